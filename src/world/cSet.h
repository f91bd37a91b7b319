#pragma once

#include "platform/base/Values.h"
#include "world/SetFileFields.h"
#include "world/cContainer.h"
#include "world/cShot.h"
#include "world/cSprite.h"

#include <QString>

#include <map>
#include <memory>
#include <vector>

namespace fh {

class ByteFile;

// The live world: its shots, read from and written to a set file, and the sprites and this user's
// containers, read from the database. One set lives at a time, as CurrentSet.
class cSet {
 public:
  // A set record without shots.
  static constexpr qsizetype kEmptyRecordSize = 71;

  cSet();
  // A live set that ends lets go of the current shot and takes its sprites' cel stores and frame
  // timers off the main view.
  ~cSet();
  cSet(cSet&&) noexcept;
  cSet& operator=(cSet&&) noexcept;
  cSet(const cSet&) = delete;
  cSet& operator=(const cSet&) = delete;

  i16 nCurrentShot = -1;
  QString sHeader = QStringLiteral("Set");
  QString sName;
  i16 nNumShots = 0;
  // Slots 0 to nNumShots: the shots, index 0 first, and a spare top slot that stays empty. A set
  // that was never read nor given a shot has no slots at all.
  std::vector<std::shared_ptr<cShot>> Shots;
  // Keyed by the lower-cased name.
  std::map<QString, std::shared_ptr<cContainer>> Containers;
  i16 nNumSprites = 0;
  std::vector<std::shared_ptr<cSprite>> Sprites;  // nNumSprites sprites, index 0 first

  // Appends the record and its shots at the file's position.
  void Save(ByteFile& file, const SetWriting& writing = {}) const;
  // Reads the record and its shots from the file's position. The game goes on with LoadAssets at
  // once (LoadSet); tools read set files without a database, so reading alone stops here.
  void Load(ByteFile& file, const SetReading& reading = {});

  // The first sprite whose lower-cased name is `lowerCaseName`, or none.
  std::shared_ptr<cSprite> GetSpriteByName(const QString& lowerCaseName) const;
  // The sprite at the index, or none at nNumSprites and above.
  std::shared_ptr<cSprite> GetSprite(i16 index) const;
  // The container of this name in any case; an unknown name is a run-time failure.
  cContainer& GetContainer(const QString& name) const;
  // Builds the sprites, with their places on the main view, and this user's containers.
  void LoadAssets();
  // Takes this user's container states and objects again from the database.
  void reloadContainers();

  // Appends a new shot of this name and gives its index.
  i16 AddShot(const QString& name);
  // Removes a shot; those above it move down one, and nCurrentShot stays as it was. At or past the
  // top the count falls all the same, and the last shot is left in the top slot, out of the count.
  void DeleteShot(i16 index);
  // Makes the shot at the index the current one, records it as the user's position and draws it.
  // -1 does nothing at all.
  void ShowShot(i16 index);
  // The hit test on the shot at nCurrentShot.
  i16 CheckHotSpots(i16 x, i16 y) const;
  // The slot at the index: none for the empty top slot, and a run-time failure outside the slots.
  std::shared_ptr<cShot> Shot(i16 index) const;
  // The nNumShots shots, without the top slot.
  std::span<const std::shared_ptr<cShot>> shots() const { return setfile::counted(Shots, nNumShots); }

 private:
  // Set by the operations that make the set live (LoadAssets, ShowShot): what undoes that when the
  // set ends. A set that is only a record, as the tools read it, has nothing to undo.
  void (*m_endLife)(cSet&) = nullptr;
};

}  // namespace fh
