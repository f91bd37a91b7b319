#include "game/Screens.h"

#include "platform/base/Failure.h"

namespace fh {

namespace {

template <typename Hook>
const Hook& lent(const Hook& hook, const char* what) {
  if (!hook) throw RuntimeFailure(Failure::ObjectNotSet, QString::fromLatin1(what));
  return hook;
}

}  // namespace

Screens& screens() {
  static Screens lentScreens;
  return lentScreens;
}

ChoiceScreen& InfoBoxScreen(const QRect& view) { return lent(screens().infoBox, "the info box")(view); }

ChoiceScreen& SelectObjectScreen(const QRect& view) { return lent(screens().selectObject, "the object selection")(view); }

ComputerScreen* ComputerScreenFor(i16 number) { return lent(screens().computer, "the computer's screens")(number); }

void ShowMusicDialog(const QRect& view, const QPixmap& picture) { lent(screens().music, "the music dialog")(view, picture); }

void ShowSetup() { lent(screens().setup, "the setup dialog")(); }

void EndSession() { lent(screens().endGame, "the end of the session")(); }

void ShowHotSpotDialog() { lent(screens().hotSpotDialog, "the hotspot dialog")(); }

void ShowSetDialog() { lent(screens().setDialog, "the set dialog")(); }

void ShowShotDialog() { lent(screens().shotDialog, "the shot dialog")(); }

}  // namespace fh
