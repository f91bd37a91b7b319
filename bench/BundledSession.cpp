#include "BundledSession.h"

#include "game/GameState.h"
#include "mainview/ShotView.h"
#include "platform/data/Database.h"
#include "startup/Users.h"
#include "world/Score.h"
#include "world/SetFile.h"
#include "world/cSet.h"

#include <QFile>

#include <stdexcept>

namespace fh::bench {

QString StagedResources() { return QStringLiteral(FH_STAGE_DIR "/resources/"); }

BundledSession::BundledSession() {
  for (const char* name : {"Fernhollow.mdb", "Fernhollow.set"}) {
    const QString from = QStringLiteral(FH_STAGE_DIR "/Database/") + QLatin1StringView(name);
    if (!QFile::copy(from, m_folder.path() + u'/' + QLatin1StringView(name)))
      throw std::runtime_error("the bundled world isn't staged: build it first (" + from.toStdString() + ")");
  }
  ResourcePath = StagedResources();
  DatabasePath = m_folder.path() + u'/';
  TheShotView();
  GameDB = Database::OpenDatabase(databaseFile());
  CurrentUserID = AddUser(QStringLiteral("Benchmark"), QStringLiteral("pw"));
  CurrentShotIndex = 0;
  UserHasWonGame = false;
  GameMode = 1;
  const ScoreBaselines baselines = ReadScoreBaselines(*GameDB, {});
  BaseStateADR = baselines.stateADR;
  BaseObjectADR = baselines.objectADR;
}

BundledSession::~BundledSession() {
  CurrentSet.reset();
  CurrentShot.reset();
  if (GameDB) GameDB->Close();
  GameDB.reset();
}

void BundledSession::loadWorld() { LoadSet(QStringLiteral("Fernhollow.set")); }

}  // namespace fh::bench
