#include "platform/desktop/Fonts.h"

#include <QStringList>

namespace fh {

QFont ArialFont(double points, bool bold) {
  QFont font(QStringLiteral("Liberation Sans"));
  font.setFamilies(QStringList{QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("DejaVu Sans")});
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

}  // namespace fh
