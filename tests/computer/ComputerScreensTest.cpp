#include "ComputerFixture.h"

#include "computer/Comp_CleanAir.h"
#include "computer/Comp_HomeCheckup.h"
#include "computer/Comp_HowAmIDoing.h"
#include "world/cSet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>

namespace fh::test {
namespace {

using HowAmIDoing = ComputerFixture;
using CleanAir = ComputerFixture;
using ComputerPrint = ComputerFixture;
using ScreenOnTop = ComputerFixture;

// A row as the grid shows it: name, state, wise choice, unwise choice.
QStringList gridRow(const Comp_HowAmIDoing& grid, int row) {
  QStringList cells;
  for (int column = 0; column < 4; ++column) cells << grid.TextMatrix(row, column);
  return cells;
}

void listContainers(Database& db, const QStringList& listed) {
  Recordset containers = db.OpenRecordset(QStringLiteral("Containers"));
  for (; !containers.IsEOF(); containers.MoveNext()) {
    containers.Edit();
    containers.SetField(QStringLiteral("Listed"), listed.contains(containers.Field(QStringLiteral("Name")).toText()) ? 1 : 0);
    containers.Update();
  }
}

TEST_F(HowAmIDoing, ShowsEachContainerUnderItsChoiceAndRefillsAtEachOpening) {
  run("computer howamidoing");
  Comp_HowAmIDoing& grid = HowAmIDoingForm();
  EXPECT_EQ(ActiveComputerScreen, 1);
  ASSERT_EQ(grid.Rows(), 5);
  EXPECT_EQ(gridRow(grid, 0), QStringList({"Object", "State", "Wise Choice", "UnWise Choice"}));
  EXPECT_EQ(gridRow(grid, 1), QStringList({"Kitchen Tap", "", "", "dripping"}));
  EXPECT_EQ(gridRow(grid, 3), QStringList({"Bulb", "not in use", "", "Old Bulb"}));
  EXPECT_EQ(gridRow(grid, 4), QStringList({"Radio", "", "", ""}));

  store(QStringLiteral("CurrentState"), 0, QStringLiteral("Lamp"));
  listContainers(*GameDB, {QStringLiteral("Lamp")});
  run("computer howamidoing");
  ASSERT_EQ(grid.Rows(), 2);
  EXPECT_EQ(gridRow(grid, 1), QStringList({"Hall Lamp", "", "off", ""}));

  // With nothing listed the rows of the last opening stay, emptied.
  listContainers(*GameDB, {});
  run("computer howamidoing");
  EXPECT_EQ(grid.Rows(), 2);
  EXPECT_EQ(gridRow(grid, 1), QStringList({"", "", "", ""}));
  EXPECT_EQ(grid.TextMatrix(0, 3), QStringLiteral("UnWise Choice"));
}

TEST_F(CleanAir, TotalsInPoundsUpToASchoolAndInTonsOfTwoAndAHalfThousandPoundsAbove) {
  run("computer cleanair");
  Comp_CleanAir& calculator = CleanAirForm();
  EXPECT_EQ(CurrentSet->GetContainer(QStringLiteral("cleanair")).CurrentState, 1);
  EXPECT_EQ(stored(QStringLiteral("CurrentState"), QStringLiteral("CleanAir")), 1);
  EXPECT_EQ(calculator.lblTotal->text(), QStringLiteral(" lbs"));

  const auto totalFor = [&calculator](int participants) {
    calculator.lstParticipants->setCurrentIndex(participants);
    emit calculator.lstParticipants->activated(participants);
    return calculator.lblTotal->text();
  };
  for (QCheckBox* box : calculator.Check1) box->click();
  EXPECT_EQ(totalFor(0), QStringLiteral("48,163 lbs"));
  EXPECT_EQ(totalFor(2), QStringLiteral("48,163,000 lbs"));
  EXPECT_EQ(totalFor(3), QStringLiteral("963,260 tons"));
  for (QCheckBox* box : calculator.Check1) box->click();
  EXPECT_EQ(calculator.lblTotal->text(), QStringLiteral(" tons"));
  calculator.Check1[12]->click();
  EXPECT_EQ(totalFor(3), QStringLiteral("2,880 tons"));

  // The ticks outlast a close; the participants start again at one.
  run("computer shutdown");
  run("computer cleanair");
  EXPECT_TRUE(calculator.Check1[12]->isChecked());
  EXPECT_EQ(calculator.lstParticipants->currentIndex(), 0);
  EXPECT_EQ(calculator.lblTotal->text(), QStringLiteral("144 lbs"));
}

// The progress grid prints as it stands, the checkup as its questionnaire; the calculator never
// printed. With no printer the page is saved, and the dialog line says where.
TEST_F(ComputerPrint, EachScreenPrintsInItsOwnWay) {
  const QString today = QDate::currentDate().toString(Qt::ISODate);
  run("computer cleanair");
  run("computer print");
  EXPECT_TRUE(printoutFiles().isEmpty());

  run("computer howamidoing");
  run("computer print");
  const QString grid = QStringLiteral("How Am I Doing - Ada - %1.pdf").arg(today);
  EXPECT_EQ(printoutFiles(), QStringList{grid});
  EXPECT_EQ(text(), QStringLiteral("No printer here: saved as ") + QDir::toNativeSeparators(printouts.at(grid)));

  run("computer homecheckup");
  run("computer print");
  EXPECT_TRUE(printoutFiles().contains(QStringLiteral("Home Checkup - Ada - %1.pdf").arg(today)));
  EXPECT_FALSE(HomeCheckupForm().Printing);

  // A printer that can't be used is told, and nothing else changes.
  usePrintoutFolder(printouts.write(QStringLiteral("not-a-folder")));
  run("computer print");
  ASSERT_EQ(messages().size(), 1);
  EXPECT_TRUE(messages().front().startsWith(QStringLiteral("Nothing was printed: Printer error")));
  EXPECT_EQ(ActiveComputerScreen, 4);
  EXPECT_FALSE(HomeCheckupForm().Printing);
}

// A click on the shot behind a screen acts first, in the yields; a screen it closed stays closed.
TEST_F(ScreenOnTop, AScreenThatLosesTheKeyboardComesBackIfItIsStillOpen) {
  run("computer howamidoing");
  Comp_HowAmIDoing& grid = HowAmIDoingForm();
  grid.hide();
  grid.Form_Deactivate();
  EXPECT_EQ(ui.yields(), 3);
  EXPECT_TRUE(grid.isVisible());

  grid.Printing = true;
  grid.hide();
  grid.Form_Deactivate();
  grid.Printing = false;
  EXPECT_FALSE(grid.isVisible());

  run("computer shutdown");
  grid.Form_Deactivate();
  EXPECT_FALSE(grid.isVisible());
}

}  // namespace
}  // namespace fh::test
