#include "computer/CheckupPrintLayout.h"

namespace fh {

namespace {

constexpr int kNumberWidth = 3;
constexpr int kFirstLineWidth = 50;
constexpr int kSecondLineIndent = 14;
constexpr int kPaddedWidth = 55;

}  // namespace

QString CheckupNumberText(i16 number, i16 subNumber) {
  QString text = QString::number(number);
  if (subNumber != 0) text += QChar(96 + subNumber);
  return text;
}

QString CheckupLabel(const QString& numberText) {
  return QStringLiteral("Question ") + Space(kNumberWidth - static_cast<int>(numberText.size())) + numberText;
}

QStringList CheckupTextLines(const QString& text) {
  const int length = static_cast<int>(text.size());
  if (length <= kFirstLineWidth) return {text + Space(kPaddedWidth - length)};
  // A text with no blank early enough walks the break to position 0, where Mid fails.
  int breakAt = kFirstLineWidth;
  while (Mid(text, breakAt, 1) != QStringLiteral(" ")) --breakAt;
  const QString rest = Mid(text, breakAt + 1);
  return {text.left(breakAt),
          Space(kSecondLineIndent) + rest + Space(kPaddedWidth - static_cast<int>(rest.size()))};
}

}  // namespace fh
