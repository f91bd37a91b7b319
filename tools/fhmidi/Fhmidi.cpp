#include "Fhmidi.h"

#include "MidiFile.h"
#include "MusicSource.h"
#include "Subcommands.h"

#include "platform/files/FileUpdate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace fh::fhmidi {

using tools::UsageProblem;

namespace {

const char* const kUsage =
    "Usage:\n"
    "  fhmidi build SOURCE_FOLDER OUT_FOLDER  write OUT_FOLDER/NAME.mid for every SOURCE_FOLDER/NAME.txt;\n"
    "                                         a file whose bytes would not change is left alone\n"
    "  fhmidi info FILE.mid                   print a MIDI file's tracks, channels and length\n"
    "  fhmidi --help                          show this help\n"
    "\n"
    "The notation of the sources is described in world/music/README.md.\n";


// Writes bytes unless the file already holds exactly them; says whether it wrote.
int build(const QStringList& args, QTextStream& out, QTextStream& err) {
  if (args.size() != 2) throw UsageProblem{QStringLiteral("build needs a source folder and an output folder")};
  const QDir sources(args[0]);
  if (!sources.exists()) throw UsageProblem{QStringLiteral("there is no source folder %1").arg(args[0])};
  if (!QDir().mkpath(args[1])) throw UsageProblem{QStringLiteral("cannot make the output folder %1").arg(args[1])};
  const QDir target(args[1]);
  const QStringList names = sources.entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name);
  if (names.isEmpty()) throw UsageProblem{QStringLiteral("there are no .txt sources in %1").arg(args[0])};
  int failures = 0;
  for (const QString& name : names) {
    const QString path = sources.filePath(name);
    try {
      QFile file(path);
      if (!file.open(QIODevice::ReadOnly)) throw SourceError{path, 0, QStringLiteral("cannot be read")};
      const Song song = parseMusicSource(QString::fromUtf8(file.readAll()), path);
      const QString output = target.filePath(QFileInfo(name).completeBaseName() + QStringLiteral(".mid"));
      const FileUpdate update = writeFileIfChanged(output, writeMidiFile(song));
      if (!update.error.isEmpty()) throw SourceError{output, 0, QStringLiteral("cannot be written: %1").arg(update.error)};
      const bool wrote = update.written;
      out << (wrote ? "wrote " : "unchanged ") << output << " ("
          << QString::number(secondsAt(song.tempos, song.endTick), 'f', 1) << " s)\n";
    } catch (const SourceError& error) {
      err << error.where() << ": " << error.text << '\n';
      ++failures;
    }
  }
  return failures > 0 ? 1 : 0;
}

int info(const QStringList& args, QTextStream& out) {
  if (args.size() != 1) throw UsageProblem{QStringLiteral("info needs one MIDI file")};
  QFile file(args[0]);
  if (!file.open(QIODevice::ReadOnly)) throw UsageProblem{QStringLiteral("there is no MIDI file %1").arg(args[0])};
  const MidiSummary summary = readMidiFile(file.readAll());
  out << "format " << summary.format << ", " << summary.tracks.size() << " tracks, " << summary.ticksPerQuarter
      << " ticks a quarter, " << QString::number(summary.seconds, 'f', 1) << " s\n";
  for (const MidiTrackSummary& track : summary.tracks) {
    out << "  " << (track.name.isEmpty() ? QStringLiteral("(unnamed)") : track.name) << ": " << track.noteOns << " notes";
    for (const auto& [channel, notes] : track.notesByChannel) {
      out << ", channel " << channel;
      if (track.programByChannel.count(channel)) out << " program " << track.programByChannel.at(channel) + 1;
    }
    out << '\n';
  }
  return 0;
}

}  // namespace

int runFhmidi(const QStringList& arguments, QTextStream& out, QTextStream& err) {
  try {
    return tools::runSubcommands(QStringLiteral("fhmidi"), kUsage,
                                 {{QStringLiteral("build"), [&](const QStringList& args) { return build(args, out, err); }},
                                  {QStringLiteral("info"), [&](const QStringList& args) { return info(args, out); }}},
                                 arguments, out, err);
  } catch (const MidiFormatError& error) {
    err << "fhmidi: " << arguments.value(1) << ": " << error.text << '\n';
    return 1;
  }
}

}  // namespace fh::fhmidi
