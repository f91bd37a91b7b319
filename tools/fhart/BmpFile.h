#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace fh::fhart {

// The bytes of an 8-bit BMP file of an indexed picture with its whole colour table.
QByteArray bmpBytes(const QImage& indexed);

// Writes the file unless it already holds exactly these bytes, so that an unchanged picture keeps
// its time stamp. Returns whether it wrote; throws ArtProblem when it can't.
bool writeIfChanged(const QString& file, const QByteArray& bytes);

}  // namespace fh::fhart
