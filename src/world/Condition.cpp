#include "world/Condition.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Ui.h"
#include "world/cContainer.h"
#include "world/cSet.h"

namespace fh {

namespace {

ConditionTest& installedTest() {
  static ConditionTest test;
  return test;
}

// The text in front of `end` (0-based, exclusive) from `start`; a missing blank leaves `end` at -1,
// and a cut of negative length is an Invalid procedure call, as it always was.
QString cut(const QString& text, qsizetype start, qsizetype end) {
  if (end < start) throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("condition '%1'").arg(text));
  return text.mid(start, end - start);
}

}  // namespace

// Script words carry no blanks, so an object of two words is tested with them written as one. Only
// the object loses its blanks: a value with a blank in it never matches.
i16 EvalCondition(const QString& condition) {
  const qsizetype firstBlank = condition.indexOf(u' ');
  const QString name = cut(condition, 0, firstBlank);
  const qsizetype secondBlank = condition.indexOf(u' ', firstBlank + 1);
  const QString keyword = cut(condition, firstBlank + 1, secondBlank).toLower();
  const QString value = condition.mid(secondBlank + 1);

  const cContainer* container = &RequireCurrentSet().GetContainer(name);
  // Never true: the look-up fails on an unknown name before it could give none. The message stays
  // for a look-up that some day answers an unknown name with nothing.
  if (container == nullptr) {
    MsgBox(QStringLiteral("Container ") + name + QStringLiteral(" not found!!"));
    return kFalse;
  }
  if (keyword == QLatin1String("state")) return toBoolean16(Val(value) == container->CurrentState);
  const bool holds = StripBlanks(container->CurrentObject).toLower() == value.toLower();
  if (keyword == QLatin1String("holds")) return toBoolean16(holds);
  if (keyword == QLatin1String("!holds")) return toBoolean16(!holds);
  return kFalse;
}

// Positions count from 1 as the loop always did: it goes on while the next line would start before
// the last character. They are 16-bit: a line end past 32767, or a next line starting there, is an
// overflow; a last line of any length is read to its end.
i16 EvalConditions(const QString& conditions) {
  const qsizetype length = conditions.size();
  i16 position = 1;
  do {
    const i16 lineEnd = toI16(InStr(position, conditions, QStringLiteral("\r")));
    const QString line = lineEnd > 0 ? Mid(conditions, position, lineEnd - position) : Mid(conditions, position);
    if (EvalCondition(line) == kFalse) return kFalse;
    if (lineEnd == 0) break;
    position = addI16(lineEnd, 2);
  } while (position < length);
  return kTrue;
}

QString StripBlanks(const QString& text) {
  QString stripped = text;
  stripped.remove(u' ');
  return stripped;
}

void setConditionTest(ConditionTest test) { installedTest() = std::move(test); }

i16 TestCondition(const QString& condition) {
  const ConditionTest& test = installedTest();
  return test ? test(condition) : EvalCondition(condition);
}

}  // namespace fh
