#include "script/ChoiceBoxes.h"

#include "mainview/ShotView.h"
#include "platform/PictureBox.h"
#include "platform/Ui.h"
#include "screens/ChoiceScreen.h"
#include "startup/Globals.h"
#include "world/cShot.h"

namespace fh {

namespace {

void showChoiceScreen(ChoiceScreen& screen, const QString& name) {
  screen.Init(name);
  screen.TakePalette(TheShotView().DisplayView->Picture());
  ui().showModal(screen.form());
  RequireCurrentShot().RefreshVisualElements(true);
}

}  // namespace

void ShowInfoBox(const QString& name) { showChoiceScreen(InfoBoxScreen(TheShotView().displayViewOnScreen()), name); }

void ShowContainer(const QString& name) { showChoiceScreen(SelectObjectScreen(TheShotView().displayViewOnScreen()), name); }

}  // namespace fh
