#pragma once

#include "computer/ComputerForm.h"

class QTableWidget;

namespace fh {

// The progress report: one row for each container the world lists, with what stands in it under
// "Wise Choice" or "UnWise Choice". Filled at each opening; it doesn't follow later changes.
class Comp_HowAmIDoing final : public ComputerForm {
 public:
  Comp_HowAmIDoing();

  // The grid's header is its fixed row 0; the containers' rows follow from row 1.
  QTableWidget* Grid1;

  void Init() override;
  void Shutdown() override { hide(); }
  // A picture of the window as it stands.
  void Print() override;

  // The number of rows with the header, and a cell's text, as the grid counts them.
  int Rows() const;
  QString TextMatrix(int row, int column) const;

 private:
  void FillGrid();
  void setRows(int rows);
  void setCell(int row, int column, const QString& text);
};

Comp_HowAmIDoing& HowAmIDoingForm();

}  // namespace fh
