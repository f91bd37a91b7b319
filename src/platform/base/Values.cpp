#include "platform/base/Values.h"

#include "platform/base/Failure.h"

#include <cmath>
#include <limits>

namespace fh {

void failOverflow() { throw RuntimeFailure(Failure::Overflow); }

i16 CInt(double value) {
  if (std::isnan(value)) throw RuntimeFailure(Failure::Overflow);
  const double rounded = std::nearbyint(value);  // the default rounding mode is half to even
  if (rounded < -32768.0 || rounded > 32767.0) throw RuntimeFailure(Failure::Overflow);
  return static_cast<i16>(rounded);
}

namespace {

bool isValBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\n'; }
bool isNothing(QChar) { return false; }

// Reads "&H1F" or "&O17" from position i; returns false when the text has no such number there.
bool readRadixNumber(const QString& s, qsizetype& i, double& result) {
  if (i + 1 >= s.size() || s[i] != u'&') return false;
  const QChar kind = s[i + 1].toUpper();
  const int base = kind == u'H' ? 16 : kind == u'O' ? 8 : 0;
  if (base == 0) return false;
  qsizetype j = i + 2;
  double value = 0;
  bool any = false;
  while (j < s.size() && hexDigit(s[j]) >= 0 && hexDigit(s[j]) < base) {
    value = value * base + hexDigit(s[j]);
    any = true;
    ++j;
  }
  if (!any) return false;
  i = j;
  result = value;
  return true;
}

// Reads a decimal number with optional sign, fraction and exponent ("E" or "D"). `skip` says which
// characters are passed over between the parts; returns false when there are no digits at all.
bool readDecimalNumber(const QString& s, qsizetype& i, double& result, bool (*skip)(QChar)) {
  QString digits;
  auto at = [&](qsizetype k) { return k < s.size() ? s[k] : QChar(); };
  auto pass = [&] { while (i < s.size() && skip(s[i])) ++i; };
  pass();
  if (at(i) == u'+' || at(i) == u'-') digits += s[i++];
  bool any = false;
  for (pass(); at(i).isDigit(); pass()) { digits += s[i++]; any = true; }
  if (at(i) == u'.') {
    digits += s[i++];
    for (pass(); at(i).isDigit(); pass()) { digits += s[i++]; any = true; }
  }
  if (!any) return false;
  const QChar e = at(i).toUpper();
  if (e == u'E' || e == u'D') {
    qsizetype k = i + 1;
    QString exponent = QStringLiteral("e");
    if (at(k) == u'+' || at(k) == u'-') exponent += s[k++];
    bool expDigits = false;
    while (at(k).isDigit()) { exponent += s[k++]; expDigits = true; }
    if (expDigits) { digits += exponent; i = k; }
  }
  result = digits.toDouble();
  return true;
}

}  // namespace

int hexDigit(QChar c) {
  if (c >= u'0' && c <= u'9') return c.unicode() - u'0';
  const char16_t u = c.toUpper().unicode();
  return u >= u'A' && u <= u'F' ? u - u'A' + 10 : -1;
}

double Val(const QString& text) {
  qsizetype i = 0;
  while (i < text.size() && isValBlank(text[i])) ++i;
  double result = 0;
  if (readRadixNumber(text, i, result)) return result;
  if (readDecimalNumber(text, i, result, isValBlank)) return result;
  return 0;
}

i16 CInt(const QString& text) {
  const QString s = text.trimmed();
  qsizetype i = 0;
  double value = 0;
  const bool number = readRadixNumber(s, i, value) ||
                      readDecimalNumber(s, i, value, isNothing);
  if (!number || i != s.size()) throw RuntimeFailure(Failure::TypeMismatch, QStringLiteral("'%1'").arg(text));
  return CInt(value);
}

QString formatThousands(double value) {
  const double rounded = std::round(value);  // a half goes away from zero in formatted output
  if (rounded == 0) return {};
  QString digits = QString::number(std::fabs(rounded), 'f', 0);
  for (qsizetype at = digits.size() - 3; at > 0; at -= 3) digits.insert(at, u',');
  return rounded < 0 ? QStringLiteral("-") + digits : digits;
}

QString formatClock(double days) {
  const double fraction = std::fabs(days) - std::floor(std::fabs(days));
  long long seconds = std::llround(fraction * 86400.0);
  if (seconds >= 86400) seconds = 0;
  return QStringLiteral("%1:%2:%3")
      .arg(seconds / 3600)
      .arg(seconds / 60 % 60, 2, 10, QChar(u'0'))
      .arg(seconds % 60, 2, 10, QChar(u'0'));
}

int InStr(int start, const QString& text, const QString& what) {
  if (start < 1) throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("InStr start %1").arg(start));
  if (start > text.size()) return 0;
  const qsizetype found = text.indexOf(what, start - 1);
  return found < 0 ? 0 : static_cast<int>(found + 1);
}

QString Mid(const QString& text, int start, int length) {
  if (start < 1) throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("Mid start %1").arg(start));
  if (start > text.size()) return {};
  return length < 0 ? text.mid(start - 1) : text.mid(start - 1, length);
}

QString Space(int count) {
  if (count < 0) throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("Space %1").arg(count));
  return QString(count, QLatin1Char(' '));
}

}  // namespace fh
