#include "CheckParts.h"

#include "platform/base/Failure.h"
#include "platform/data/Database.h"
#include "world/Score.h"

#include <QFile>
#include <QTemporaryDir>

namespace fh::fhworld {

namespace {

const QString kWhere = QStringLiteral("score");

// Puts one container of the player in the given state and object, as the game's screens do.
void setContainer(Database& db, std::int32_t userId, const ContainerRow& container, int state, const QString& object) {
  QueryDef query = db.QueryDefs(QStringLiteral("GetContainer"));
  query.SetParameter(QStringLiteral("SelectContainer"), container.name);
  query.SetParameter(QStringLiteral("SelectUserID"), userId);
  Recordset row = query.OpenRecordset();
  if (row.IsEOF()) throw RuntimeFailure(Failure::NoCurrentRecord, QStringLiteral("GetContainer %1").arg(container.name));
  row.Edit();
  row.SetField(QStringLiteral("CurrentState"), state);
  row.SetField(QStringLiteral("CurrentObject"), object.isEmpty() ? QVariant() : QVariant(object));
  row.Update();
  row.Close();
  query.Close();
}

void makeWise(Database& db, std::int32_t userId, const ContainerRow& container) {
  setContainer(db, userId, container, container.wiseState.value_or(container.defaultState),
               container.judgedByObject() ? container.wiseObject : container.defaultObject);
}

void makeDefault(Database& db, std::int32_t userId, const ContainerRow& container) {
  setContainer(db, userId, container, container.defaultState, container.defaultObject);
}

std::int32_t addPlayer(Database& db) {
  Recordset users = db.OpenRecordset(QStringLiteral("Users"));
  users.AddNew();
  const std::int32_t id = users.Field(QStringLiteral("ID")).toLong();
  users.SetField(QStringLiteral("User Name"), QStringLiteral("fhworld check"));
  users.SetField(QStringLiteral("Password"), QString());
  users.SetField(QStringLiteral("Current Shot"), 0);
  users.Update();
  users.Close();
  QueryDef makeNewUser = db.QueryDefs(QStringLiteral("Make New User"));
  makeNewUser.SetParameter(QStringLiteral("User ID"), id);
  makeNewUser.Execute();
  makeNewUser.Close();
  return id;
}

void playThrough(Database& db, const WorldData& world, Problems& problems) {
  const ScoreBaselines baselines = ReadScoreBaselines(db, {});
  if (baselines.stateADR == 0 || baselines.objectADR == 0) {
    problems.add(kWhere, QStringLiteral("a score baseline is 0 (states %1, objects %2): every score would be a division by "
                                        "zero").arg(baselines.stateADR).arg(baselines.objectADR));
    return;
  }
  const std::int32_t player = addPlayer(db);
  auto score = [&] { return ScoreFrom(ReadScoreSums(db, player), baselines); };
  const i16 start = score();
  if (start != 100) problems.add(kWhere, QStringLiteral("a new player's house scores %1, not 100").arg(start));

  std::vector<const ContainerRow*> judged;
  for (const auto& [key, container] : world.containers) {
    if (container.judgedByState() || container.judgedByObject()) judged.push_back(&container);
  }
  for (const ContainerRow* container : judged) {
    makeWise(db, player, *container);
    const i16 alone = score();
    if (alone >= start) {
      problems.add(QStringLiteral("container %1").arg(container->name),
                   QStringLiteral("putting it right alone leaves the score at %1").arg(alone));
    }
    makeDefault(db, player, *container);
  }
  for (const ContainerRow* container : judged) makeWise(db, player, *container);
  const i16 wise = score();
  if (wise != 1) problems.add(kWhere, QStringLiteral("a house with every choice wise scores %1, not 1").arg(wise));
}

}  // namespace

void checkScore(const QString& databaseFile, const WorldData& world, Problems& problems) {
  // The player is made up in a copy, so that the checked database stays as it was.
  QTemporaryDir folder;
  const QString copy = folder.filePath(QStringLiteral("Fernhollow.mdb"));
  if (!folder.isValid() || !QFile::copy(databaseFile, copy)) {
    problems.add(kWhere, QStringLiteral("the database could not be copied to try the score"));
    return;
  }
  try {
    std::shared_ptr<Database> db = Database::OpenDatabase(copy);
    playThrough(*db, world, problems);
    db->Close();
  } catch (const RuntimeFailure& failure) {
    problems.add(kWhere, QStringLiteral("it can't be computed: %1").arg(failure.message()));
  }
}

}  // namespace fh::fhworld
