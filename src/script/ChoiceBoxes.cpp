#include "script/ChoiceBoxes.h"

#include "game/GameState.h"
#include "game/Screens.h"
#include "game/View.h"
#include "platform/base/Ui.h"
#include "platform/desktop/PictureBox.h"
#include "world/cShot.h"

namespace fh {

namespace {

void showChoiceScreen(ChoiceScreen& screen, const QString& name) {
  screen.Init(name);
  screen.TakePalette(view().picture());
  ui().showModal(screen.form());
  RequireCurrentShot().RefreshVisualElements(true);
}

}  // namespace

void ShowInfoBox(const QString& name) { showChoiceScreen(InfoBoxScreen(view().pictureOnScreen()), name); }

void ShowContainer(const QString& name) { showChoiceScreen(SelectObjectScreen(view().pictureOnScreen()), name); }

}  // namespace fh
