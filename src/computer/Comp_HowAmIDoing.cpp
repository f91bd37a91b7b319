#include "computer/Comp_HowAmIDoing.h"

#include "game/GameState.h"
#include "platform/base/Twips.h"
#include "platform/data/Database.h"
#include "platform/desktop/Fonts.h"
#include "platform/desktop/Printout.h"

#include <QHeaderView>
#include <QTableWidget>

namespace fh {

namespace {

constexpr i16 kScreenNumber = 1;

struct GridColumn {
  const char* header;
  int widthTwips;
  Qt::Alignment alignment;
};

const GridColumn kColumns[] = {{"Object", 2760, Qt::AlignLeft | Qt::AlignVCenter},
                               {"State", 735, Qt::AlignHCenter | Qt::AlignTop},
                               {"Wise Choice", 2805, Qt::AlignHCenter | Qt::AlignTop},
                               {"UnWise Choice", 2805, Qt::AlignHCenter | Qt::AlignTop}};
constexpr int kWiseColumn = 2;
constexpr int kUnwiseColumn = 3;

QString verbage(const Recordset& row) {
  return row.Field(QStringLiteral("CurrentState")).toI16() != 0 ? row.Field(QStringLiteral("State 1 Verbage")).toText()
                                                                 : row.Field(QStringLiteral("State 0 Verbage")).toText();
}

bool filled(const FieldValue& value) { return !value.isNull() && !value.toText().isEmpty(); }

}  // namespace

Comp_HowAmIDoing::Comp_HowAmIDoing() : ComputerForm(QStringLiteral("Comp_HowAmIDoing"), QStringLiteral("Community Chalkboard"), kScreenNumber) {
  Grid1 = new QTableWidget(0, 4, this);
  Grid1->setObjectName(QStringLiteral("Grid1"));
  Grid1->setGeometry(twipsRect(0, 0, 9405, 4755));
  Grid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
  Grid1->setSelectionMode(QAbstractItemView::NoSelection);
  Grid1->setFocusPolicy(Qt::NoFocus);
  Grid1->setWordWrap(false);
  Grid1->verticalHeader()->hide();
  Grid1->verticalHeader()->setDefaultSectionSize(16);
  QHeaderView* header = Grid1->horizontalHeader();
  header->setSectionResizeMode(QHeaderView::Fixed);
  header->setHighlightSections(false);
  header->setStyleSheet(QStringLiteral("QHeaderView::section { background: rgb(64, 64, 64); color: white; border: 1px solid rgb(128, 128, 128); }"));
  Grid1->setStyleSheet(QStringLiteral("QTableWidget { background: white; gridline-color: rgb(192, 192, 192); }"));
  Grid1->setFont(ArialFont(8.25));
  header->setFont(ArialFont(8.25));
}

void Comp_HowAmIDoing::Init() {
  ActiveComputerScreen = kScreenNumber;
  FillGrid();
}

void Comp_HowAmIDoing::FillGrid() {
  Grid1->clearContents();
  for (int column = 0; column < 4; ++column) {
    Grid1->setColumnWidth(column, twipsToPixels(kColumns[column].widthTwips));
    auto* header = new QTableWidgetItem(QString::fromLatin1(kColumns[column].header));
    header->setTextAlignment(kColumns[column].alignment);
    Grid1->setHorizontalHeaderItem(column, header);
  }

  QueryDef query = RequireGameDB().QueryDefs(QStringLiteral("GetHowAmIDoing"));
  query.SetParameter(QStringLiteral("SelectUserID"), CurrentUserID);
  Recordset rows = query.OpenRecordset();
  // An empty result leaves the rows of the last filling, cleared.
  int row = 0;
  for (; !rows.IsEOF(); rows.MoveNext()) {
    ++row;
    setRows(row + 1);
    setCell(row, 0, rows.Field(QStringLiteral("Friendly Name")).toText());
    const FieldValue wiseObject = rows.Field(QStringLiteral("WiseObject"));
    const FieldValue wiseState = rows.Field(QStringLiteral("WiseState"));
    if (filled(wiseObject)) {
      const QString current = rows.Field(QStringLiteral("CurrentObject")).toText();
      if (!rows.Field(QStringLiteral("CurrentState")).isNull()) setCell(row, 1, verbage(rows));
      setCell(row, current == wiseObject.toText() ? kWiseColumn : kUnwiseColumn, current);
    } else if (filled(wiseState)) {
      const bool wise = rows.Field(QStringLiteral("CurrentState")).toI16() == wiseState.toI16();
      setCell(row, wise ? kWiseColumn : kUnwiseColumn, verbage(rows));
    }
  }
  rows.Close();
}

int Comp_HowAmIDoing::Rows() const { return Grid1->rowCount() + 1; }

QString Comp_HowAmIDoing::TextMatrix(int row, int column) const {
  const QTableWidgetItem* item = row == 0 ? Grid1->horizontalHeaderItem(column) : Grid1->item(row - 1, column);
  return item ? item->text() : QString();
}

void Comp_HowAmIDoing::setRows(int rows) { Grid1->setRowCount(rows - 1); }

void Comp_HowAmIDoing::setCell(int row, int column, const QString& text) {
  auto* item = new QTableWidgetItem(text);
  item->setTextAlignment(kColumns[column].alignment);
  Grid1->setItem(row - 1, column, item);
}

void Comp_HowAmIDoing::Print() {
  printTellingFailure([this] {
    Printout page(printoutTitle(QStringLiteral("How Am I Doing")));
    page.PrintWindow(*this);
    endPrintout(page);
  });
}

Comp_HowAmIDoing& HowAmIDoingForm() {
  static auto* form = new Comp_HowAmIDoing;
  return *form;
}

}  // namespace fh
