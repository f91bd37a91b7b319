#include "Mastering.h"
#include "SoundSource.h"
#include "Synthesis.h"

#include "SoundChecks.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace fh::test {
namespace {

const QString kSounds = QStringLiteral(FH_SOURCE_DIR "/world/sounds");

// The Audio/*.wav rows of resources.md: name and the length column ("2 s loop", "under 1 s").
std::map<QString, QString> listedSounds() {
  QFile file(QStringLiteral(FH_SOURCE_DIR "/world/resources.md"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  static const QRegularExpression row(QStringLiteral("^\\| `Audio/(\\w+)\\.wav` \\| ([^|]+) \\|"), QRegularExpression::MultilineOption);
  std::map<QString, QString> listed;
  for (const auto& match : row.globalMatch(QString::fromUtf8(file.readAll()))) listed[match.captured(1)] = match.captured(2).trimmed();
  return listed;
}

TEST(BundledSounds, EverySoundInTheListHasASourceOfItsLengthAndKind) {
  const auto listed = listedSounds();
  ASSERT_EQ(listed.size(), 17u);
  const auto sounds = fhsound::readSoundFolder(kSounds);
  std::map<QString, const fhsound::SoundSource*> byName;
  for (const auto& sound : sounds) byName[sound.name] = &sound;
  EXPECT_EQ(byName.size(), listed.size()) << "a source that resources.md does not list";
  for (const auto& [name, length] : listed) {
    SCOPED_TRACE(name.toStdString());
    ASSERT_TRUE(byName.contains(name));
    const auto& sound = *byName[name];
    EXPECT_EQ(sound.loop, length.endsWith(QStringLiteral("loop")));
    if (length.startsWith(QStringLiteral("under ")))
      EXPECT_LT(sound.length, length.section(u' ', 1, 1).toDouble());
    else
      EXPECT_DOUBLE_EQ(sound.length, length.section(u' ', 0, 0).toDouble());
  }
}

TEST(BundledSounds, AllPlayAtOneLoudnessUnclippedAndLoopWithoutAClick) {
  double quietest = 0;
  double loudest = -100;
  for (const auto& sound : fhsound::readSoundFolder(kSounds)) {
    SCOPED_TRACE(sound.name.toStdString());
    const auto mastered = fhsound::master(fhsound::renderSound(sound));
    EXPECT_FALSE(mastered.heldBack);
    EXPECT_LE(mastered.peakDb, fhsound::kCeilingDb + 0.01);
    EXPECT_EQ(std::ranges::count_if(mastered.samples, [](qint16 s) { return std::abs(int(s)) >= 32767; }), 0);
    quietest = std::min(quietest, mastered.loudnessDb);
    loudest = std::max(loudest, mastered.loudnessDb);
    std::vector<float> samples(mastered.samples.begin(), mastered.samples.end());
    if (sound.loop)
      EXPECT_LT(seamJumpInLocalSteps(samples), 1.5);
    else  // a one-shot ends in silence rather than being cut off
      EXPECT_LE(std::abs(samples.back()), 1);
  }
  EXPECT_LT(loudest - quietest, 1.0);
  EXPECT_NEAR(loudest, fhsound::kTargetLoudnessDb, 0.5);
}

}  // namespace
}  // namespace fh::test
