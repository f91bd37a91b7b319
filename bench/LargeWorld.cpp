#include "LargeWorld.h"

#include "platform/files/ByteFile.h"
#include "world/cHotSpot.h"
#include "world/cShot.h"

namespace fh::bench {

namespace {

constexpr int kShots = 2000;
constexpr int kHotSpotsPerShot = 19;

// A line of exactly 64 characters that starts with the given words.
QString fullLine(const QString& start) { return start.leftJustified(64, u'x', true); }

}  // namespace

cSet LargeWorld() {
  cSet set;
  set.sName = QStringLiteral("Large");
  for (int s = 0; s < kShots; ++s) {
    // The first shot is the bundled world's, so that the player's shot has its backdrop and name.
    const i16 index = set.AddShot(s == 0 ? QStringLiteral("FrontPorch") : fullLine(QStringLiteral("Shot%1").arg(s)));
    cShot& shot = *set.Shot(index);
    shot.ShotToLeft = fullLine(QStringLiteral("Shot%1").arg((s + kShots - 1) % kShots));
    shot.ShotToRight = fullLine(QStringLiteral("Shot%1").arg((s + 1) % kShots));
    shot.GoElapsedTime = true;
    for (int h = 0; h < kHotSpotsPerShot; ++h) {
      const i16 spot = shot.AddHotSpot(static_cast<i16>(h * 30), static_cast<i16>(h * 15), 28, 40);
      cHotSpot& hotspot = *shot.HotSpot(spot);
      hotspot.Name = fullLine(QStringLiteral("HotSpot%1").arg(h));
      hotspot.Rollover = fullLine(QStringLiteral("showdialogstring hotspot "));
      hotspot.SetNumScriptLines(3);
      hotspot.SetScriptLine(0, fullLine(QStringLiteral("playlocal click ")));
      hotspot.SetScriptLine(1, fullLine(QStringLiteral("togglecontainer porchlight ")));
      hotspot.SetScriptLine(2, fullLine(QStringLiteral("showdialog porchlighthint ")));
    }
  }
  return set;
}

QByteArray SetFileBytes(const cSet& set) {
  ByteFile file = ByteFile::fromBytes({});
  set.Save(file);
  return file.bytes();
}

}  // namespace fh::bench
