#include "platform/desktop/PictureClip.h"

#include "platform/base/Failure.h"

namespace fh {

QPixmap PictureClip::GraphicCell(int index) const {
  if (Picture.isNull()) throw RuntimeFailure(Failure::InvalidPicture, QStringLiteral("picture clip without a picture"));
  if (index < 0 || index >= Rows * Cols) throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("cell %1").arg(index));
  return Picture.copy((index % Cols) * CellWidth(), (index / Cols) * CellHeight(), CellWidth(), CellHeight());
}

}  // namespace fh
