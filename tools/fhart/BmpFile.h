#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace fh::fhart {

// The bytes of an 8-bit BMP file of an indexed picture with its whole colour table.
QByteArray bmpBytes(const QImage& indexed);

}  // namespace fh::fhart
