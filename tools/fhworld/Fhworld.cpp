#include "Fhworld.h"

#include "WorldCheck.h"

#include "platform/base/Failure.h"

namespace fh::fhworld {

namespace {

const char* const kUsage = R"(Usage:
  fhworld check DATABASE_FOLDER RESOURCE_FOLDER
      check the world: the game database (Fernhollow.mdb) and the set file its start-up
      script names, both in DATABASE_FOLDER, and the pictures and sounds it needs under
      RESOURCE_FOLDER (Graphics/ and Audio/)
  fhworld resources DATABASE_FOLDER
      list every picture and sound file the world needs, and what needs it
  fhworld --help
      show this help

check prints every problem with where it stands, then a summary; it exits with 0 when
the world is whole, 1 when it has problems and 2 when it can't be read at all.
)";

int usageError(QTextStream& err, const QString& sentence) {
  err << "fhworld: " << sentence << "\n" << "Try 'fhworld --help'.\n";
  return 2;
}

QString summaryLine(const CheckResult& result) {
  const WorldSummary& s = result.summary;
  const auto problems = result.problems.all().size();
  return QStringLiteral("%1 shots, %2 hotspots, %3 containers, %4 objects, %5 sprites, %6 sounds, %7 questions: %8")
      .arg(s.shots).arg(s.hotSpots).arg(s.containers).arg(s.objects).arg(s.sprites).arg(s.sounds).arg(s.questions)
      .arg(problems == 0 ? QStringLiteral("no problems")
                         : problems == 1 ? QStringLiteral("1 problem") : QStringLiteral("%1 problems").arg(problems));
}

}  // namespace

int runFhworld(const QStringList& arguments, QTextStream& out, QTextStream& err) {
  if (arguments.value(0) == QLatin1String("--help")) {
    out << kUsage;
    return 0;
  }
  const QString command = arguments.value(0);
  if (command == QLatin1String("check") && arguments.size() != 3) return usageError(err, QStringLiteral("check needs a database folder and a resource folder"));
  if (command == QLatin1String("resources") && arguments.size() != 2) return usageError(err, QStringLiteral("resources needs a database folder"));
  if (command != QLatin1String("check") && command != QLatin1String("resources")) {
    return usageError(err, command.isEmpty() ? QStringLiteral("no command") : QStringLiteral("unknown command '%1'").arg(command));
  }
  CheckResult result;
  try {
    result = checkWorld(arguments.at(1), command == QLatin1String("check") ? arguments.at(2) : QString());
  } catch (const RuntimeFailure& failure) {
    err << "fhworld: can't read the world in " << arguments.at(1) << ": " << failure.message() << "\n";
    return 2;
  }
  if (command == QLatin1String("resources")) {
    for (const NeededFile& file : result.files.all()) out << file.path << "\t" << file.usedBy << "\n";
    return 0;
  }
  for (const Problem& problem : result.problems.all()) out << problem.line() << "\n";
  out << summaryLine(result) << "\n";
  return result.problems.empty() ? 0 : 1;
}

}  // namespace fh::fhworld
