#include "Fhsound.h"

#include "SoundChecks.h"
#include "TempFolder.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

int fhsound(const QStringList& arguments, QString* out = nullptr, QString* err = nullptr) {
  QString ignored;
  QTextStream outStream(out ? out : &ignored);
  QTextStream errStream(err ? err : &ignored);
  return fhsound::runFhsound(arguments, outStream, errStream);
}

const QDateTime kLongAgo(QDate(2001, 1, 1), QTime(12, 0));

TEST(FhsoundBuild, WritesAPlainWaveForEverySource) {
  TempFolder folder;
  folder.write(QStringLiteral("src/Hum.sound"), "length 0.5\nloop\ntone freq=220 harmonics=3\n");
  folder.write(QStringLiteral("src/Tick.sound"), "length 0.1\nnoise highpass=2000 decay=0.01\n");
  folder.write(QStringLiteral("src/notes.txt"), "not a sound");
  QString out;
  ASSERT_EQ(fhsound({QStringLiteral("build"), folder.at(QStringLiteral("src")), folder.at(QStringLiteral("out/Audio"))}, &out), 0);
  EXPECT_TRUE(out.contains(QStringLiteral("Hum.wav: 0.50 s loop"))) << out.toStdString();
  EXPECT_FALSE(QFile::exists(folder.at(QStringLiteral("out/Audio/notes.wav"))));

  const auto wave = readWave(fileBytes(folder.at(QStringLiteral("out/Audio/Hum.wav"))));
  ASSERT_TRUE(wave);
  // Plain PCM, mono, 16 bits at 22050 a second: half a second is 11025 samples.
  EXPECT_EQ(std::tie(wave->format, wave->channels, wave->bits, wave->sampleRate), std::tuple(1, 1, 16, 22050u));
  EXPECT_EQ(std::tie(wave->blockAlign, wave->byteRate), std::tuple(2, 44100u));
  EXPECT_EQ(wave->samples.size(), 11025u);
  EXPECT_TRUE(QFile::exists(folder.at(QStringLiteral("out/Audio/Tick.wav"))));
}

TEST(FhsoundBuild, OnlyAChangedSoundIsWrittenAgain) {
  TempFolder folder;
  folder.write(QStringLiteral("src/Hum.sound"), "length 0.5\ntone freq=220\n");
  folder.write(QStringLiteral("src/Tick.sound"), "length 0.1\nnoise decay=0.01\n");
  const QStringList build = {QStringLiteral("build"), folder.at(QStringLiteral("src")), folder.at(QStringLiteral("out"))};
  ASSERT_EQ(fhsound(build), 0);
  const QByteArray firstHum = fileBytes(folder.at(QStringLiteral("out/Hum.wav")));
  for (const char* wave : {"out/Hum.wav", "out/Tick.wav"}) ASSERT_TRUE(setModified(folder.at(QLatin1String(wave)), kLongAgo));

  folder.write(QStringLiteral("src/Hum.sound"), "length 0.5\ntone freq=330\n");
  QString out;
  ASSERT_EQ(fhsound(build, &out), 0);
  EXPECT_TRUE(out.contains(QStringLiteral("Tick.wav: 0.10 s, loudness -20.0 dB"))) << out.toStdString();
  EXPECT_EQ(QFileInfo(folder.at(QStringLiteral("out/Tick.wav"))).lastModified(), kLongAgo);
  EXPECT_NE(fileBytes(folder.at(QStringLiteral("out/Hum.wav"))), firstHum);
}

TEST(FhsoundBuild, ABadSourceIsNamedAndNothingIsWritten) {
  TempFolder folder;
  folder.write(QStringLiteral("src/A.sound"), "length 0.5\ntone freq=220\n");
  const QString bad = folder.write(QStringLiteral("src/B.sound"), "# a typo\nlength 0.5\nnoise lowpass=800 gian=-3\n");
  QString err;
  EXPECT_EQ(fhsound({QStringLiteral("build"), folder.at(QStringLiteral("src")), folder.at(QStringLiteral("out"))}, nullptr, &err), 1);
  EXPECT_TRUE(err.startsWith(QStringLiteral("fhsound: %1:3: a noise has no setting 'gian'").arg(bad))) << err.toStdString();
  EXPECT_FALSE(QFile::exists(folder.at(QStringLiteral("out/A.wav"))));
}

TEST(FhsoundCommands, MistakesOnTheCommandLineExitWithTwo) {
  TempFolder folder;
  folder.makeFolder(QStringLiteral("empty"));
  const QList<QStringList> mistakes = {
      {},
      {QStringLiteral("build"), folder.path()},
      {QStringLiteral("build"), folder.at(QStringLiteral("missing")), folder.at(QStringLiteral("out"))},
      {QStringLiteral("build"), folder.at(QStringLiteral("empty")), folder.at(QStringLiteral("out"))},
  };
  for (const QStringList& arguments : mistakes) {
    QString err;
    EXPECT_EQ(fhsound(arguments, nullptr, &err), 2) << arguments.join(u' ').toStdString();
    EXPECT_TRUE(err.contains(QStringLiteral("Usage:")));
  }
  QString out;
  EXPECT_EQ(fhsound({QStringLiteral("--help")}, &out), 0);
  EXPECT_TRUE(out.contains(QStringLiteral("fhsound build SOURCES OUT")));
}

}  // namespace
}  // namespace fh::test
