#include "WorldCheck.h"

#include "CheckParts.h"
#include "QuietUi.h"
#include "WorldDump.h"

#include "platform/base/Failure.h"
#include "platform/data/Database.h"
#include "platform/files/ByteFile.h"
#include "platform/files/FileNames.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <QDir>

namespace fh::fhworld {

namespace {

const QString kDatabaseFile = QStringLiteral("Fernhollow.mdb");

// Reads the set file as the game does; a damaged one is told with the byte where it goes wrong.
std::shared_ptr<const cSet> readSet(const QString& path, const QString& name, Problems& problems) {
  if (!fileExists(path)) {
    problems.add(QStringLiteral("StartUp script"), QStringLiteral("the set file \"%1\" is not in the database folder").arg(name));
    return nullptr;
  }
  ByteFile file = ByteFile::openForReading(path);
  const fhset::Dump dump = fhset::dumpSetFile(file.bytes(), name);
  for (const QString& damage : dump.damage) problems.add(name, damage);
  if (!dump.damage.isEmpty()) return nullptr;
  fhset::QuietUi quiet;  // nobody is there to answer a message box
  auto set = std::make_shared<cSet>();
  set->Load(file);
  return set;
}

// A needed file ("Graphics/Kitchen.bmp") as the game finds it: a name that leads out of its folder
// is missing to the game, wherever it points.
bool isThere(const QString& root, const QString& neededPath) {
  const QString name = neededPath.mid(neededPath.indexOf(u'/') + 1);
  return staysInFolder(name) && fileExists(root + neededPath);
}

void count(const CheckContext& context, const ScriptCheck& scripts, WorldSummary& summary) {
  const WorldData& data = context.world.data;
  if (context.world.set) {
    summary.shots = static_cast<int>(context.world.set->shots().size());
    for (const auto& shot : context.world.set->shots()) summary.hotSpots += shot->NumHotSpots;
  }
  summary.containers = static_cast<int>(data.containers.size());
  for (const auto& [container, objects] : data.objectsByContainer) summary.objects += static_cast<int>(objects.size());
  summary.sprites = static_cast<int>(data.sprites.size());
  summary.sounds = scripts.soundsLoaded();
  summary.questions = static_cast<int>(data.questions.size());
}

}  // namespace

CheckResult checkWorld(const QString& databaseFolder, const QString& resourceFolder) {
  CheckResult result;
  const QString folder = QDir::fromNativeSeparators(databaseFolder).endsWith(QLatin1Char('/'))
                             ? databaseFolder
                             : databaseFolder + QLatin1Char('/');
  const QString databaseFile = resolveFileName(folder + kDatabaseFile);
  std::shared_ptr<Database> db = Database::OpenDatabase(databaseFile);
  WorldData data;
  try {
    data = readWorldData(*db);
  } catch (const RuntimeFailure& failure) {
    result.problems.add(kDatabaseFile, QStringLiteral("the world can't be read: %1").arg(failure.message()));
    return result;
  }
  db->Close();

  WorldIndex world(data, folder);
  CheckContext context{world, result.problems, result.files};
  ScriptCheck scripts(world, result.problems);
  if (!data.startupScript) {
    result.problems.add(QStringLiteral("StartUp script"), QStringLiteral("table StartUp has no row, so nothing starts"));
  } else {
    scripts.checkStartup(*data.startupScript);
  }
  if (!scripts.startSetFile().isEmpty()) {
    if (auto set = readSet(resolveFileName(folder + scripts.startSetFile()), scripts.startSetFile(), result.problems)) {
      world.useSet(std::move(set));
    }
  }
  std::map<QString, ScriptEffects> effectsByShot;
  if (world.set) {
    effectsByShot = checkShots(context, scripts);
    checkWayToWin(context, effectsByShot);
  }
  checkContainers(context);
  checkPictures(context);
  checkFixesShown(context, effectsByShot);
  checkTexts(context);
  checkQuestions(context);
  checkSoundsAndFixedFiles(context);
  checkScore(databaseFile, data, result.problems);

  if (!resourceFolder.isEmpty()) {
    const QString root = resourceFolder.endsWith(QLatin1Char('/')) ? resourceFolder : resourceFolder + QLatin1Char('/');
    for (const NeededFile& file : result.files.all()) {
      if (!isThere(root, file.path)) result.problems.addMissingFile(file.usedBy, file.path);
    }
  }
  count(context, scripts, result.summary);
  return result;
}

}  // namespace fh::fhworld
