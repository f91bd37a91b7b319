#pragma once

#include "platform/base/Values.h"
#include "world/SetFileFields.h"

#include <QString>

#include <memory>
#include <vector>

namespace fh {

class ByteFile;
class cHotSpot;

// One fixed view of the house with its neighbours and hotspots. What it looks like is not stored
// with it: backdrop, sprites and score are computed from the database for this user each time.
class cShot {
 public:
  // A shot record without hotspots.
  static constexpr qsizetype kEmptyRecordSize = 200;

  cShot();
  ~cShot();

  QString sHeader = QStringLiteral("Shot");
  QString sName;
  QString ShotToLeft;
  QString ShotToRight;
  Boolean16 GoElapsedTime = false;
  i16 NumHotSpots = 0;
  // Slots 0 to NumHotSpots at least: the hotspots, index 0 first, and a spare top slot that stays
  // empty. A delete doesn't give slots back. A shot that was never read nor given a hotspot has none.
  std::vector<std::shared_ptr<cHotSpot>> HotSpots;

  // The shot's name for the player: "Freindly Name" of its row in table Shots, or sName without one.
  QString FriendlyName() const;
  // Computes the score and the sprites anew, and with `bChange` also the backdrop, as on entering the
  // shot. Without it only state inside the shot has changed.
  void RefreshVisualElements(bool bChange);
  // Gives each sprite of this shot the strip of its first cel source whose condition holds, and hides
  // the sprites of other shots and those without a holding source. With `bChange` the sprites of this
  // shot are also drawn, and the looping ones started.
  void RefreshSprites(bool bChange);
  // Shows the score of this user's house, and marks the user as winner when it is 1.
  void RefreshScore();

  // Enables or disables the first hotspot of this name in any case; an unknown name is told in a
  // message box.
  void SetHotspotState(const QString& name, bool state);
  // The last hotspot moves into the gap, which changes the order, and with it who wins an overlap.
  void DeleteHotSpot(i16 index);
  // Appends a hotspot of this place and size with the defaults for the rest, and gives its index.
  i16 AddHotSpot(i16 left, i16 top, i16 width, i16 height);
  // The hit test: the lowest index whose inside holds the point, edges excluded, or -1. Disabled
  // hotspots count: they shield those beneath them.
  i16 CheckHotSpots(i16 x, i16 y) const;
  // The slot at the index: none for -1, for a shot without hotspots and for an empty slot; a bounds
  // failure outside the slots.
  std::shared_ptr<cHotSpot> HotSpot(i16 index) const;
  // The NumHotSpots hotspots, without the slots above them.
  std::span<const std::shared_ptr<cHotSpot>> hotSpots() const { return setfile::counted(HotSpots, NumHotSpots); }

  // Appends the record and its hotspots at the file's position.
  void Save(ByteFile& file, const SetWriting& writing = {}) const;
  // Reads the record and its hotspots from the file's position.
  void Load(ByteFile& file, const SetReading& reading = {});
};

}  // namespace fh
