#include "TextValues.h"

#include "platform/base/Ansi.h"
#include "platform/base/Values.h"

#include <algorithm>

namespace fh::fhset {

namespace {

// Control characters, and two that can't be seen: they are written as the bytes they are.
bool needsEscape(QChar c) {
  return c.category() == QChar::Other_Control || c == QChar(0xA0) || c == QChar(0xAD);
}

bool hasAnsiByte(QChar c) { return fromAnsi(toAnsi(QString(c))) == QString(c); }

// The character's byte in the set file, as two hex digits.
QString hexByte(QChar c) {
  return QStringLiteral("%1").arg(static_cast<unsigned char>(toAnsi(QString(c)).at(0)), 2, 16, QChar(u'0')).toUpper();
}

QString describe(QChar c) { return QStringLiteral("U+%1").arg(c.unicode(), 4, 16, QChar(u'0')).toUpper(); }

// Why a character typed as it is can't be part of a text of the world, or empty.
QString problemWith(QChar c) {
  if (c == QChar::ReplacementCharacter) return QStringLiteral("the line is not valid UTF-8 text");
  if (needsEscape(c))
    return QStringLiteral("the control character %1 must be written as \\x%2 inside double quotes")
        .arg(describe(c), hexByte(c));
  if (!hasAnsiByte(c))
    return QStringLiteral("'%1' (%2) is not a Windows-1252 character, and set files hold only those")
        .arg(QString(c), describe(c));
  return {};
}

ReadValue readQuoted(QStringView inner) {
  ReadValue result;
  for (qsizetype i = 0; i < inner.size(); ++i) {
    const QChar c = inner[i];
    if (c == u'"') return {{}, QStringLiteral("a double quote inside a quoted text must be written \\\"")};
    if (c != u'\\') {
      result.problem = problemWith(c);
      if (!result.problem.isEmpty()) return result;
      result.text += c;
      continue;
    }
    const QChar next = i + 1 < inner.size() ? inner[i + 1] : QChar();
    if (next == u'\\' || next == u'"') {
      result.text += next;
      ++i;
      continue;
    }
    const int high = i + 2 < inner.size() ? hexDigit(inner[i + 2]) : -1;
    const int low = i + 3 < inner.size() ? hexDigit(inner[i + 3]) : -1;
    if (next != u'x' || high < 0 || low < 0)
      return {{}, QStringLiteral("unknown escape; the escapes are \\\\, \\\" and \\x followed by two hex digits")};
    result.text += fromAnsi(QByteArray(1, static_cast<char>(high * 16 + low)));
    i += 3;
  }
  return result;
}

}  // namespace

QString writeValue(const QString& text) {
  const bool plain = !text.startsWith(u' ') && !text.endsWith(u' ') && !text.startsWith(u'"') &&
                     std::none_of(text.begin(), text.end(), needsEscape);
  return plain ? text : quoteValue(text);
}

QString quoteValue(const QString& text) {
  QString result = QStringLiteral("\"");
  for (const QChar c : text) {
    if (c == u'\\' || c == u'"')
      result += QString(u'\\') + c;
    else if (needsEscape(c))
      result += QStringLiteral("\\x") + hexByte(c);
    else
      result += c;
  }
  return result + u'"';
}

ReadValue readValue(QStringView written) {
  if (written.startsWith(u'"')) {
    if (written.size() < 2 || !written.endsWith(u'"'))
      return {{}, QStringLiteral("a text that begins with a double quote must end with one")};
    return readQuoted(written.mid(1, written.size() - 2));
  }
  for (const QChar c : written) {
    const QString problem = problemWith(c);
    if (!problem.isEmpty()) return {{}, problem};
  }
  return {written.toString(), {}};
}

}  // namespace fh::fhset
