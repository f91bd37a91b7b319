#include "BmpFile.h"

#include "SvgSource.h"

#include <QBuffer>

namespace fh::fhart {

QByteArray bmpBytes(const QImage& indexed) {
  // Qt's BMP writer keeps an Indexed8 picture at 8 bits with its colour table as long as the table
  // has more than 16 entries; the shared palette always has 256.
  Q_ASSERT(indexed.format() == QImage::Format_Indexed8 && indexed.colorCount() > 16);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!indexed.save(&buffer, "BMP")) throw ArtProblem{QStringLiteral("Qt could not encode a BMP file")};
  return buffer.data();
}

}  // namespace fh::fhart
