#include "game/GameState.h"
#include "mainview/ShotView.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/AudioOutput.h"
#include "startup/TerminationHandling.h"
#include "world/cSet.h"

#include <QTimer>

#include <cstdio>

// A program that plays a game until a signal comes, for the tests of the end from outside. Arguments:
// the database file (player 1 plays), the resource folder, the play time in days, and optionally
// "modal" (a message box stands open) or "opening" (no game: the opening screen after one). It says
// "ready" on standard output once its event loop runs.
int main(int argc, char** argv) {
  using namespace fh;
  Application app(argc, argv);
  handleTerminationRequests();
  const QStringList arguments = QCoreApplication::arguments();
  const QString mode = arguments.value(4);

  GameDB = Database::OpenDatabase(arguments.at(1));
  ResourcePath = arguments.at(2) + u'/';
  CurrentUserID = 1;
  GameElapsedTime = arguments.at(3).toFloat();
  if (mode == QLatin1StringView("opening")) {
    GameDB->Close();
  } else {
    TheShotView();
    CurrentSet = std::make_shared<cSet>();
  }
  // A game's sounds open the audio output, and with it the sound library that would take signals over.
  AudioOutput::instance().open();

  QTimer::singleShot(0, [] {
    std::puts("ready");
    std::fflush(stdout);
  });
  if (mode == QLatin1StringView("modal")) MsgBox(QStringLiteral("Nobody answers this box."));
  return QApplication::exec();
}
