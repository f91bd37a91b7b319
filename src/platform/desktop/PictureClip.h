#pragma once

#include <QPixmap>

namespace fh {

// A picture cut into Rows by Cols equal cells, read one cell at a time: the strips of the sprites
// and of the meter. Cells are numbered row by row from 0.
class PictureClip {
 public:
  QPixmap Picture;
  int Rows = 1;
  int Cols = 1;

  int CellWidth() const { return Cols > 0 ? Picture.width() / Cols : 0; }
  int CellHeight() const { return Rows > 0 ? Picture.height() / Rows : 0; }
  // A cell outside the picture is a run-time failure.
  QPixmap GraphicCell(int index) const;
};

}  // namespace fh
