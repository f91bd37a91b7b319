#include "ConditionCheck.h"

#include "Problems.h"
#include "WorldIndex.h"

namespace fh::fhworld {

namespace {

bool startsWithNumber(const QString& value) {
  return !value.isEmpty() && (value.front().isDigit() || (value.size() > 1 && value.front() == QLatin1Char('-') && value.at(1).isDigit()));
}

}  // namespace

void checkCondition(const QString& condition, const WorldIndex& world, const QString& where, Problems& problems) {
  const qsizetype first = condition.indexOf(QLatin1Char(' '));
  const qsizetype second = first < 0 ? -1 : condition.indexOf(QLatin1Char(' '), first + 1);
  if (second < 0) {
    problems.add(where, QStringLiteral("the condition \"%1\" can't be evaluated: it needs a container, a keyword "
                                       "and a value with single blanks between them").arg(condition));
    return;
  }
  const QString name = condition.left(first);
  const QString keyword = condition.mid(first + 1, second - first - 1).toLower();
  const QString value = condition.mid(second + 1);
  const ContainerRow* container = world.container(name);
  if (!container) {
    problems.add(where, QStringLiteral("the condition names the container \"%1\", which the world lacks").arg(name));
    return;
  }
  if (keyword == QLatin1String("state")) {
    if (!startsWithNumber(value)) {
      problems.add(where, QStringLiteral("the state in \"%1\" is not a number, so it tests for 0").arg(condition));
    }
    return;
  }
  if (keyword == QLatin1String("holds") || keyword == QLatin1String("!holds")) {
    if (!world.objectWords(container->name).contains(value.toLower())) {
      problems.add(where, QStringLiteral("no object of %1 is written \"%2\" (a condition writes an object's name in "
                                         "lower case without blanks)").arg(container->name, value));
    }
    return;
  }
  problems.add(where, QStringLiteral("the keyword \"%1\" is none of state, holds and !holds, so the condition is never "
                                     "true").arg(keyword));
}

void checkConditions(const QString& conditions, const WorldIndex& world, const QString& where, Problems& problems) {
  if (conditions.isEmpty()) {
    problems.add(where, QStringLiteral("the condition is empty and can't be evaluated"));
    return;
  }
  QStringList lines = conditions.split(QStringLiteral("\r\n"));
  if (lines.size() > 1 && lines.last().isEmpty()) lines.removeLast();  // a closing line end holds no line
  for (const QString& line : lines) checkCondition(line, world, where, problems);
}

}  // namespace fh::fhworld
