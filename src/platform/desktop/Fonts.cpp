#include "platform/desktop/Fonts.h"

#include <QStringList>

namespace fh {

namespace {

QFont fontOf(const QStringList& families, double points, bool bold) {
  QFont font(families.front());
  font.setFamilies(families);
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

}  // namespace

QFont ArialFont(double points, bool bold) {
  return fontOf({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("DejaVu Sans")}, points, bold);
}

QFont TimesFont(double points, bool bold) {
  return fontOf({QStringLiteral("Liberation Serif"), QStringLiteral("Times New Roman"), QStringLiteral("DejaVu Serif")}, points, bold);
}

QFont BookmanFont(double points, bool bold) {
  return fontOf({QStringLiteral("Bookman Old Style"), QStringLiteral("URW Bookman"), QStringLiteral("TeX Gyre Bonum"),
                 QStringLiteral("DejaVu Serif")},
                points, bold);
}

}  // namespace fh
