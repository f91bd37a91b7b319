#include "platform/base/Ansi.h"

#include <array>

namespace fh {

namespace {

// Bytes 0x80 to 0x9F. The five that Windows-1252 leaves free keep their Latin-1 code points, so that
// every byte survives a read and a write.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char toByte(char16_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
  for (std::size_t i = 0; i < kHighControls.size(); ++i)
    if (kHighControls[i] == c) return static_cast<char>(0x80 + i);
  return '?';
}

}  // namespace

// World files are read a text field at a time. Most texts are plain ASCII or Latin-1, which Qt
// widens quickly; only the rare bytes 0x80 to 0x9F are then put right one by one.
QString fromAnsi(QByteArrayView bytes) {
  QString text = QString::fromLatin1(bytes);
  bool anyHighControl = false;
  for (const char b : bytes) anyHighControl |= (static_cast<unsigned char>(b) & 0xE0) == 0x80;
  if (!anyHighControl) return text;
  char16_t* out = reinterpret_cast<char16_t*>(text.data());
  for (const char b : bytes) {
    const auto u = static_cast<unsigned char>(b);
    if (u >= 0x80 && u < 0xA0) *out = kHighControls[u - 0x80];
    ++out;
  }
  return text;
}

QByteArray toAnsi(const QString& text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (const QChar c : text) bytes += toByte(c.unicode());
  return bytes;
}

}  // namespace fh
