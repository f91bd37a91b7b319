#pragma once

#include "platform/ByteFile.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <QByteArray>
#include <QStringList>

#include <memory>

namespace fh::test {

// The bytes that a record's Save writes.
template <class Record>
QByteArray savedBytes(const Record& record) {
  ByteFile file = ByteFile::fromBytes({});
  record.Save(file);
  return file.bytes();
}

// A record read from bytes with its Load.
template <class Record>
Record loadedFrom(const QByteArray& bytes) {
  ByteFile file = ByteFile::fromBytes(bytes);
  Record record;
  record.Load(file);
  return record;
}

inline std::shared_ptr<cHotSpot> makeHotSpot(const QString& name, const QStringList& lines = {}) {
  auto hotSpot = std::make_shared<cHotSpot>();
  hotSpot->Name = name;
  hotSpot->ScriptLines = lines;
  hotSpot->NumScriptLines = static_cast<i16>(lines.size());
  return hotSpot;
}

inline std::shared_ptr<cShot> makeShot(const QString& name, std::vector<std::shared_ptr<cHotSpot>> hotSpots = {}) {
  auto shot = std::make_shared<cShot>();
  shot->sName = name;
  shot->NumHotSpots = static_cast<i16>(hotSpots.size());
  shot->HotSpots = std::move(hotSpots);
  return shot;
}

inline cSet makeSet(const QString& name, std::vector<std::shared_ptr<cShot>> shots = {}) {
  cSet set;
  set.sName = name;
  set.nNumShots = static_cast<i16>(shots.size());
  set.Shots = std::move(shots);
  return set;
}

// A small world with something in every field: two shots, three hotspots, a few lines.
inline cSet sampleSet() {
  auto door = makeHotSpot(QStringLiteral("FrontDoor"), {QStringLiteral("goto shot hall"), QStringLiteral("playlocal door")});
  door->Left = 120;
  door->Top = 40;
  door->Width = 80;
  door->Height = 200;
  door->Quiet = true;
  door->Rollover = QStringLiteral("showdialogstring front door");
  auto lamp = makeHotSpot(QStringLiteral("Lamp"), {QStringLiteral("toggle lamp")});
  lamp->Enabled = false;
  lamp->Icon = -3;
  auto porch = makeShot(QStringLiteral("Porch"), {door, lamp});
  porch->ShotToLeft = QStringLiteral("Garden");
  porch->ShotToRight = QStringLiteral("Hall");
  porch->GoElapsedTime = true;
  auto hall = makeShot(QStringLiteral("Hall"), {makeHotSpot(QStringLiteral("Stairs"))});
  cSet set = makeSet(QStringLiteral("Fernhollow"), {porch, hall});
  set.nCurrentShot = 1;
  return set;
}

}  // namespace fh::test
