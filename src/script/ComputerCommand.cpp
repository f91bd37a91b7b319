#include "script/ComputerCommand.h"

#include "game/GameState.h"
#include "game/Screens.h"
#include "game/View.h"

namespace fh {

namespace {

constexpr i16 kHowAmIDoing = 1;
constexpr i16 kCleanAir = 3;
constexpr i16 kHomeCheckup = 4;
constexpr int kScreenDropBelowViewTop = 70;  // pixels

bool isScreenNumber(i16 number) {
  return number == kHowAmIDoing || number == kCleanAir || number == kHomeCheckup;
}

// The screen's Init is what makes it the open one.
void openScreen(i16 number) {
  CloseComputer();
  ComputerScreen* screen = ComputerScreenFor(number);
  if (!screen) return;
  screen->ShowAt(view().pictureOnScreen().topLeft() + QPoint(0, kScreenDropBelowViewTop));
  screen->Init();
}

void printScreen() {
  if (!isScreenNumber(ActiveComputerScreen)) return;
  if (ComputerScreen* screen = ComputerScreenFor(ActiveComputerScreen)) screen->Print();
}

}  // namespace

void ComputerCommand(const QString& subWord) {
  if (subWord == QLatin1StringView("shutdown")) {
    CloseComputer();
  } else if (subWord == QLatin1StringView("print")) {
    printScreen();
  } else if (subWord == QLatin1StringView("howamidoing")) {
    openScreen(kHowAmIDoing);
  } else if (subWord == QLatin1StringView("communitychalkboard")) {
    // A screen the worlds name but the computer never had: the word only closes what is open.
    CloseComputer();
  } else if (subWord == QLatin1StringView("cleanair")) {
    openScreen(kCleanAir);
  } else if (subWord == QLatin1StringView("homecheckup")) {
    openScreen(kHomeCheckup);
  }
}

void CloseComputer() {
  if (isScreenNumber(ActiveComputerScreen)) {
    if (ComputerScreen* screen = ComputerScreenFor(ActiveComputerScreen)) screen->Shutdown();
  }
  ActiveComputerScreen = 0;
}

}  // namespace fh
