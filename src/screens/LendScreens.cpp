#include "screens/LendScreens.h"

#include "game/Screens.h"
#include "platform/base/Ui.h"
#include "screens/InfoBox.h"
#include "screens/SelectMusic.h"
#include "screens/SelectObject.h"

namespace fh {

void LendChoiceScreens() {
  Screens& lent = screens();
  lent.infoBox = [](const QRect& view) -> ChoiceScreen& { return InfoBoxForm(view); };
  lent.selectObject = [](const QRect& view) -> ChoiceScreen& { return SelectObjectForm(view); };
  lent.music = [](const QRect& view, const QPixmap& picture) {
    SelectMusic& dialog = SelectMusicForm(view);
    dialog.Palette = picture;
    ui().showModal(dialog);
  };
}

}  // namespace fh
