#include "LiveWorld.h"

#include "platform/base/Failure.h"
#include "world/cSprite.h"

namespace fh::test {
namespace {

class Sprite : public LiveWorld {
 protected:
  // A sprite on the main view with the four-cel strip Drip.bmp, started.
  cSprite started(i16 numFrames, bool loop, bool backwards) {
    cSprite sprite;
    sprite.NumFrames = numFrames;
    sprite.Loop = loop;
    sprite.Backwards = backwards;
    sprite.SpriteIndex = view().AddSprite();
    sprite.SetCels(QStringLiteral("Drip.bmp"), QString());
    sprite.Go();
    return sprite;
  }
  // The cel the sprite stands on after each tick.
  static std::vector<int> ticks(cSprite& sprite, int count) {
    std::vector<int> frames;
    for (int i = 0; i < count; ++i) {
      sprite.NextFrame();
      frames.push_back(sprite.CurrentFrame());
    }
    return frames;
  }
};

// A run starts at its start cel; a halted sprite rests on the end of its run.
TEST_F(Sprite, RunsWrapOrRestOnTheirLastCel) {
  const std::tuple<i16, bool, bool, std::vector<int>> runs[] = {
      {4, true, false, {1, 2, 3, 0, 1}}, {3, false, false, {1, 2, 2}}, {4, true, true, {2, 1, 0, 3}},
      {2, false, true, {0, 0}},          {1, true, false, {0, 0}}};
  for (const auto& [frames, loop, backwards, cels] : runs) {
    SCOPED_TRACE(testing::Message() << frames << " cels, loop " << loop << ", backwards " << backwards);
    cSprite sprite = started(frames, loop, backwards);
    EXPECT_EQ(ticks(sprite, static_cast<int>(cels.size())), cels);
    if (!loop) EXPECT_FALSE(view().SpriteTimer[sprite.SpriteIndex]->Enabled());
  }
}

TEST_F(Sprite, EachTickPaintsTheCelItStartsOn) {
  cSprite drip = started(4, true, false);
  drip.X = 20;
  drip.Y = 10;
  drip.NextFrame();
  EXPECT_EQ(shown(25, 15), QColor(Qt::red));
  drip.NextFrame();
  EXPECT_EQ(shown(25, 15), QColor(Qt::green));
}

TEST_F(Sprite, TheSameStripAgainChangesNothingNotEvenTheSound) {
  cSprite sprite = started(4, true, false);
  sprite.SetCels(QStringLiteral("Fan.bmp"), QStringLiteral("Drip"));
  sprite.Go();
  sprite.SetCels(QStringLiteral("Fan.bmp"), QStringLiteral("Splash"));
  EXPECT_EQ(sprite.Sound(), QStringLiteral("Drip"));
  EXPECT_EQ(sprite.FrameStep, 1);
  sprite.SetCels(QStringLiteral("Drip.bmp"), QStringLiteral("Splash"));  // halts and rests on the end
  EXPECT_EQ(sprite.Sound(), QStringLiteral("Splash"));
  EXPECT_EQ(sprite.FrameStep, 0);
  EXPECT_EQ(sprite.CurrentFrame(), 3);
}

TEST_F(Sprite, AMissingStripAsksForTheCdUntilItLoadsOrThePlayerGivesUp) {
  cSprite sprite = started(2, false, false);
  int asked = 0;
  ui.onMessageBox = [&](const QString&) {
    if (++asked == 2) writeStrip(resources, QStringLiteral("Late.bmp"), {Qt::red, Qt::blue});
  };
  sprite.SetCels(QStringLiteral("Late.bmp"), QString());
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(ui.messageBoxes().front().text, QStringLiteral("Please insert the Fernhollow Game CD into the CD-ROM drive."));
  EXPECT_EQ(ui.messageBoxes().front().details, QStringLiteral("Missing file: ") + ResourcePath + QStringLiteral("Graphics\\Late.bmp"));
  EXPECT_EQ(sprite.CelSource(), QStringLiteral("Late.bmp"));
  ui.queueAnswer(Answer::Cancel);
  EXPECT_THROW(sprite.SetCels(QStringLiteral("Never.bmp"), QString()), ProgramEnded);
}

TEST_F(Sprite, TheSoundIsPlacedByWhereTheSpriteStands) {
  cSprite sprite;
  EXPECT_EQ(sprite.SoundPan(), 5000);
  sprite.X = static_cast<i16>(view().DisplayView->width());
  EXPECT_EQ(sprite.SoundPan(), -5000);
}

}  // namespace
}  // namespace fh::test
