#pragma once

#include <QString>

#include <cstdint>

// The value rules the game was written against: 16-bit integers that fail on overflow, -1/0 booleans,
// rounding half to even, leading-number parsing, and text positions counted from 1.
namespace fh {

using i16 = std::int16_t;

constexpr i16 kTrue = -1;
constexpr i16 kFalse = 0;
inline i16 toBoolean16(bool value) { return value ? kTrue : kFalse; }

// A boolean kept in 16 bits, as the world file keeps it. Set from a bool it holds -1 or 0; read from
// a file it keeps whatever was there, so that a foreign file's 1 is written back as 1. Any value but
// 0 is true.
class Boolean16 {
 public:
  constexpr Boolean16(bool value = false) : m_value(value ? kTrue : kFalse) {}
  static constexpr Boolean16 fromStored(i16 stored) {
    Boolean16 result;
    result.m_value = stored;
    return result;
  }
  constexpr explicit operator bool() const { return m_value != kFalse; }
  constexpr i16 stored() const { return m_value; }

 private:
  i16 m_value;
};

// The Overflow failure, out of line: the checks below stay cheap enough for the hit test.
[[noreturn]] void failOverflow();
// Narrows a whole number to 16 bits; out of range is an Overflow failure.
inline i16 toI16(long long value) {
  if (value < -32768 || value > 32767) failOverflow();
  return static_cast<i16>(value);
}
// 16-bit arithmetic that fails where the platform's did.
inline i16 addI16(i16 a, i16 b) { return toI16(static_cast<long long>(a) + b); }
inline i16 subI16(i16 a, i16 b) { return toI16(static_cast<long long>(a) - b); }

// Rounds to the nearest whole number, a half to the even neighbour, then narrows to 16 bits.
i16 CInt(double value);
// Converts text to a 16-bit integer: blanks around it are allowed, anything that is not a number
// (also empty text) is a Type mismatch, a number out of range an Overflow.
i16 CInt(const QString& text);

// The number that text starts with; blanks, tabs and line feeds are passed over, "&H" and "&O"
// introduce hexadecimal and octal. Text without a number gives 0.
double Val(const QString& text);

// The value of a hexadecimal digit in either case, or -1.
int hexDigit(QChar c);

// The pattern "#,###": nearest whole number, thousands separated by commas, nothing at all for 0.
QString formatThousands(double value);
// The pattern "h:nn:ss" of a time counted in days: the time of day, hours without a leading zero.
QString formatClock(double days);

// Position of `what` in `text` at or after the 1-based `start`; 0 when it isn't there.
int InStr(int start, const QString& text, const QString& what);
// Up to `length` characters from the 1-based `start`; all the rest when length is negative.
QString Mid(const QString& text, int start, int length = -1);
// `count` blanks; a negative count is an Invalid procedure call.
QString Space(int count);

}  // namespace fh
