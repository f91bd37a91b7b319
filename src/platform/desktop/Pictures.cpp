#include "platform/desktop/Pictures.h"

#include "platform/base/Failure.h"
#include "platform/files/FileNames.h"

#include <QFileInfo>

namespace fh {

QImage LoadPicture(const QString& designName) {
  const QString path = resolveFileName(designName);
  if (!QFileInfo(path).isFile()) throw RuntimeFailure(Failure::FileNotFound, designName);
  QImage picture(path);
  if (picture.isNull()) throw RuntimeFailure(Failure::InvalidPicture, designName);
  return picture;
}

}  // namespace fh
