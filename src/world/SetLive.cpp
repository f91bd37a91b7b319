#include "world/cSet.h"

#include "game/GameState.h"
#include "game/View.h"
#include "platform/base/Failure.h"
#include "platform/data/Database.h"
#include "world/Dialogs.h"
#include "world/Players.h"

#include <algorithm>

// The operations of the set that runs: its sprites and containers from the database, and the move
// from shot to shot.
namespace fh {

namespace {

// The shots go first, and with them the current one; then the sprites, and the main view unloads
// their cel stores and frame timers.
void EndLiveSet(cSet& set) {
  if (CurrentShot && std::ranges::find(set.Shots, CurrentShot) != set.Shots.end()) CurrentShot.reset();
  set.Shots.clear();
  if (set.Sprites.empty()) return;
  set.Sprites.clear();
  if (hasView()) view().ClearSprites();
}

// Every container of the world as this user has it. A container this user has no row for keeps
// the empty state and object.
std::vector<std::shared_ptr<cContainer>> containersOfUser(Database& db) {
  std::vector<std::shared_ptr<cContainer>> containers;
  QueryDef query = db.QueryDefs(QStringLiteral("GetAllContainers"));
  query.SetParameter(QStringLiteral("SelectUserID"), CurrentUserID);
  Recordset rows = query.OpenRecordset();
  for (; !rows.IsEOF(); rows.MoveNext()) {
    auto container = std::make_shared<cContainer>();
    container->Name = rows.Field(QStringLiteral("Name")).toText();
    const FieldValue wiseState = rows.Field(QStringLiteral("WiseState"));
    if (!wiseState.isNull()) container->WiseState = wiseState.toI16();
    const FieldValue wiseObject = rows.Field(QStringLiteral("WiseObject"));
    if (!wiseObject.isNull()) container->WiseObject = wiseObject.toText();
    const FieldValue currentObject = rows.Field(QStringLiteral("CurrentObject"));
    if (!currentObject.isNull()) container->CurrentObject = currentObject.toText();
    const FieldValue currentState = rows.Field(QStringLiteral("CurrentState"));
    if (!currentState.isNull()) container->CurrentState = currentState.toI16();
    containers.push_back(std::move(container));
  }
  rows.Close();
  query.Close();
  return containers;
}

}  // namespace

std::shared_ptr<cSprite> cSet::GetSpriteByName(const QString& lowerCaseName) const {
  for (i16 i = 0; i < nNumSprites; ++i) {
    if (Sprites[i]->Name.toLower() == lowerCaseName) return Sprites[i];
  }
  return nullptr;
}

std::shared_ptr<cSprite> cSet::GetSprite(i16 index) const {
  if (index >= nNumSprites) return nullptr;
  if (index < 0) throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("sprite %1").arg(index));
  return Sprites[index];
}

cContainer& cSet::GetContainer(const QString& name) const {
  const auto found = Containers.find(name.toLower());
  if (found == Containers.end()) throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("container '%1'").arg(name));
  return *found->second;
}

// The hover test is off while the tables are half built.
void cSet::LoadAssets() {
  Database& db = RequireGameDB();
  GameView& view = fh::view();
  m_endLife = EndLiveSet;
  view.setGameClockRunning(false);

  Recordset sprites = db.OpenRecordset(QStringLiteral("GetAllSprites"));
  if (!sprites.IsEOF()) {
    sprites.MoveLast();
    nNumSprites = toI16(sprites.RecordCount());
    Sprites.assign(nNumSprites, nullptr);
    for (sprites.MoveFirst(); !sprites.IsEOF(); sprites.MoveNext()) {
      auto sprite = std::make_shared<cSprite>();
      sprite->Name = sprites.Field(QStringLiteral("Name")).toText();
      sprite->Shot = sprites.Field(QStringLiteral("Shot")).toText();
      sprite->NumFrames = sprites.Field(QStringLiteral("NumFrames")).toI16();
      sprite->X = sprites.Field(QStringLiteral("X")).toI16();
      sprite->Y = sprites.Field(QStringLiteral("Y")).toI16();
      sprite->FrameDelay = sprites.Field(QStringLiteral("FrameDelay")).toI16();
      sprite->Loop = sprites.Field(QStringLiteral("Loop")).toBool();
      sprite->Backwards = sprites.Field(QStringLiteral("Backwards")).toBool();
      // Both are handed out in order from 0, so a frame timer finds its sprite by its own index.
      sprite->SpriteIndex = view.AddSprite();
      Sprites[sprites.AbsolutePosition()] = std::move(sprite);
    }
  }
  sprites.Close();

  for (auto& container : containersOfUser(db)) {
    const QString key = container->Name.toLower();
    if (Containers.contains(key)) throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("container '%1' twice").arg(key));
    Containers.emplace(key, std::move(container));
  }
  view.setGameClockRunning(true);
}

// The objects stay the same, so that what holds one goes on holding it.
void cSet::reloadContainers() {
  for (const auto& saved : containersOfUser(RequireGameDB())) {
    const auto found = Containers.find(saved->Name.toLower());
    if (found == Containers.end()) continue;
    found->second->CurrentState = saved->CurrentState;
    found->second->CurrentObject = saved->CurrentObject;
  }
}

namespace {

std::size_t shotSlot(const cSet& set, int index) {
  if (index < 0 || index >= static_cast<int>(set.Shots.size()))
    throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("shot %1").arg(index));
  return static_cast<std::size_t>(index);
}

}  // namespace

i16 cSet::AddShot(const QString& name) {
  nNumShots = addI16(nNumShots, 1);
  Shots.resize(static_cast<std::size_t>(nNumShots) + 1);
  auto shot = std::make_shared<cShot>();
  shot->sName = name;
  Shots[nNumShots - 1] = std::move(shot);
  return subI16(nNumShots, 1);
}

// The shots above the gap move down one, the empty top slot filling the last, so the order of the
// others is kept. (Hotspots are deleted differently, on purpose.) An index at or past the top moves
// nothing, yet the count falls and the top slot goes with the resize: the last shot is left in the
// new top slot, out of the count. With no shots the count falls to -1 and the resize fails.
void cSet::DeleteShot(i16 index) {
  const i16 last = subI16(nNumShots, 1);
  for (int i = index; i <= last; ++i) Shots[shotSlot(*this, i)] = Shots[shotSlot(*this, i + 1)];
  nNumShots = last;
  if (nNumShots < 0) throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("shots 0 to %1").arg(nNumShots));
  Shots.resize(static_cast<std::size_t>(nNumShots) + 1);
  if (nNumShots == 0) CurrentShot.reset();
}

void cSet::ShowShot(i16 index) {
  if (index == -1) return;
  view().StopVideo();
  m_endLife = EndLiveSet;
  nCurrentShot = index;
  CurrentShot = Shot(index);
  CurrentShotIndex = index;
  // Every move lands in the database at once: a crash loses nothing of the position.
  WriteUserField(QStringLiteral("Current Shot"), CurrentShotIndex);
  // The empty top slot is written as the position all the same, and only then found empty.
  if (!CurrentShot) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("shot %1").arg(index));
  ShowDialogString(CurrentShot->FriendlyName());
  CurrentShot->RefreshVisualElements(true);
}

i16 cSet::CheckHotSpots(i16 x, i16 y) const {
  const std::shared_ptr<cShot> shot = Shot(nCurrentShot);
  if (!shot) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("shot %1").arg(nCurrentShot));
  return shot->CheckHotSpots(x, y);
}

std::shared_ptr<cShot> cSet::Shot(i16 index) const { return Shots[shotSlot(*this, index)]; }

}  // namespace fh
