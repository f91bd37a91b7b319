#include "Fhsound.h"

#include "Mastering.h"
#include "SoundSource.h"
#include "Subcommands.h"
#include "Synthesis.h"
#include "WaveFile.h"

#include "platform/files/FileUpdate.h"

#include <QDir>
#include <QFileInfo>

namespace fh::fhsound {

using tools::UsageProblem;

namespace {

const char* const kUsage =
    "Usage:\n"
    "  fhsound build SOURCES OUT  synthesize every SOURCES/*.sound into OUT/<name>.wav\n"
    "  fhsound --help             show this help\n"
    "\n"
    "Each source is a few lines of tones and noises; world/sounds/README.md describes them.\n"
    "Wave files are 16-bit PCM mono at 22050 Hz, all brought to one loudness; a file whose\n"
    "bytes would not change is left alone.\n";


QString decibels(double value) { return QString::number(value, 'f', 1) + QStringLiteral(" dB"); }

int build(const QStringList& args, QTextStream& out, QTextStream& err) {
  if (args.size() != 2) throw UsageProblem{QStringLiteral("build needs a source folder and an output folder")};
  if (!QFileInfo(args[0]).isDir()) throw UsageProblem{QStringLiteral("there is no folder %1").arg(args[0])};
  if (!QDir().mkpath(args[1])) throw UsageProblem{QStringLiteral("cannot make the folder %1").arg(args[1])};
  // Every source is read before anything is written, so that a mistake leaves the old sounds whole.
  const std::vector<SoundSource> sounds = readSoundFolder(args[0]);
  if (sounds.empty()) throw UsageProblem{QStringLiteral("there are no .sound files in %1").arg(args[0])};
  const QDir target(args[1]);
  for (const SoundSource& sound : sounds) {
    const MasteredSound mastered = master(renderSound(sound));
    const QString path = target.filePath(sound.name + QStringLiteral(".wav"));
    const FileUpdate update = writeFileIfChanged(path, waveFile(mastered.samples, kSampleRate));
    if (!update.error.isEmpty()) throw SourceProblem{path, 0, QStringLiteral("cannot be written: %1").arg(update.error)};
    const bool written = update.written;
    out << sound.name << ".wav: " << QString::number(sound.length, 'f', 2) << " s" << (sound.loop ? " loop" : "")
        << ", loudness " << decibels(mastered.loudnessDb) << ", peak " << decibels(mastered.peakDb)
        << (written ? "" : ", unchanged") << '\n';
    if (mastered.heldBack)
      err << "fhsound: " << sound.file << ": too spiky to reach " << decibels(kTargetLoudnessDb)
          << " without clipping; a softer attack or a longer decay would help\n";
  }
  return 0;
}

}  // namespace

int runFhsound(const QStringList& arguments, QTextStream& out, QTextStream& err) {
  try {
    return tools::runSubcommands(QStringLiteral("fhsound"), kUsage,
                                 {{QStringLiteral("build"), [&](const QStringList& args) { return build(args, out, err); }}}, arguments,
                                 out, err);
  } catch (const SourceProblem& problem) {
    err << "fhsound: " << problem.where() << ": " << problem.text << '\n';
    return 1;
  }
}

}  // namespace fh::fhsound
