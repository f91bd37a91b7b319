#include "Fhmidi.h"
#include "MidiFile.h"
#include "MusicSource.h"

#include "TempFolder.h"
#include "sound/MusicPieces.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

const QString kSources = QStringLiteral(FH_MUSIC_SOURCES);

int fhmidi(const QStringList& arguments, QString* out = nullptr, QString* err = nullptr) {
  QString ignored;
  QTextStream outStream(out ? out : &ignored);
  QTextStream errStream(err ? err : &ignored);
  return fhmidi::runFhmidi(arguments, outStream, errStream);
}

fhmidi::MidiSummary builtPiece(const QString& name) {
  QFile source(kSources + u'/' + QFileInfo(name).completeBaseName() + QStringLiteral(".txt"));
  EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << name.toStdString();
  return fhmidi::readMidiFile(fhmidi::writeMidiFile(fhmidi::parseMusicSource(QString::fromUtf8(source.readAll()), name)));
}

// Every piece of the stereo lasts 40 to 120 seconds; the bands have drums on channel 10, the
// orchestra none.
TEST(BundledMusic, EveryPieceHasItsLengthAndItsDrums) {
  int pieces = 0;
  for (const MusicStyle& style : kMusicStyles)
    for (const MusicPiece& piece : style.pieces) {
      SCOPED_TRACE(piece.file);
      const fhmidi::MidiSummary summary = builtPiece(QString::fromLatin1(piece.file));
      EXPECT_GE(summary.seconds, 40.0);
      EXPECT_LE(summary.seconds, 120.0);
      ++pieces;
      int drumNotes = 0;
      for (const fhmidi::MidiTrackSummary& track : summary.tracks)
        if (track.notesByChannel.count(10)) drumNotes += track.notesByChannel.at(10);
      if (QLatin1String(style.name) == QLatin1String("Classical"))
        EXPECT_EQ(drumNotes, 0);
      else
        EXPECT_GT(drumNotes, 100);
    }
  EXPECT_EQ(pieces, 15);
  EXPECT_EQ(QDir(kSources).entryList({QStringLiteral("*.txt")}, QDir::Files).size(), 15);
}

TEST(FhmidiCommand, BuildWritesOnlyWhatChangedAndNamesABadLine) {
  TempFolder folder;
  const QString good = QStringLiteral("track p program 1\nsection A 1\np: 1 c4\nform A A\n");
  folder.write(QStringLiteral("src/Good.txt"), good.toUtf8());
  const QString out = folder.at(QStringLiteral("out"));
  QString printed;
  ASSERT_EQ(fhmidi({QStringLiteral("build"), folder.at(QStringLiteral("src")), out}, &printed), 0);
  EXPECT_TRUE(printed.startsWith(QStringLiteral("wrote "))) << printed.toStdString();
  const QString midi = out + QStringLiteral("/Good.mid");
  const QDateTime written = QFileInfo(midi).lastModified();
  printed.clear();
  ASSERT_EQ(fhmidi({QStringLiteral("build"), folder.at(QStringLiteral("src")), out}, &printed), 0);
  EXPECT_TRUE(printed.startsWith(QStringLiteral("unchanged "))) << printed.toStdString();
  EXPECT_EQ(QFileInfo(midi).lastModified(), written);

  folder.write(QStringLiteral("src/Bad.txt"), "track p program 1\nsection A 1\np: 1 q4\nform A\n");
  QString err;
  EXPECT_EQ(fhmidi({QStringLiteral("build"), folder.at(QStringLiteral("src")), out}, nullptr, &err), 1);
  EXPECT_TRUE(err.contains(QStringLiteral("Bad.txt:3: 'q4'"))) << err.toStdString();
  EXPECT_FALSE(QFileInfo::exists(out + QStringLiteral("/Bad.mid")));

  EXPECT_EQ(fhmidi({QStringLiteral("build"), folder.at(QStringLiteral("nowhere")), out}), 2);
  EXPECT_EQ(fhmidi({QStringLiteral("play")}), 2);
  EXPECT_EQ(fhmidi({QStringLiteral("--help")}), 0);
}

}  // namespace
}  // namespace fh::test
