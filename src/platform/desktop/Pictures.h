#pragma once

#include <QImage>
#include <QString>

namespace fh {

// Loads a picture file (BMP or PNG) by its design name. A missing file is "File not found", one that
// can't be decoded "Invalid picture".
QImage LoadPicture(const QString& designName);

}  // namespace fh
