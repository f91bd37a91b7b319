#pragma once

#include "platform/files/ByteFile.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <QByteArray>
#include <QRect>
#include <QStringList>

#include <memory>

namespace fh::test {

template <class Record>
QByteArray savedBytes(const Record& record) {
  ByteFile file = ByteFile::fromBytes({});
  record.Save(file);
  return file.bytes();
}

template <class Record>
Record loadedFrom(const QByteArray& bytes, SetReading reading = {}) {
  ByteFile file = ByteFile::fromBytes(bytes);
  Record record;
  record.Load(file, reading);
  return record;
}

inline std::shared_ptr<cHotSpot> makeHotSpot(const QString& name, const QStringList& lines = {}) {
  auto hotSpot = std::make_shared<cHotSpot>();
  hotSpot->Name = name;
  hotSpot->ScriptLines = lines;
  hotSpot->NumScriptLines = static_cast<i16>(lines.size());
  return hotSpot;
}

// A hotspot at `place` on the picture.
inline std::shared_ptr<cHotSpot> placedHotSpot(const QString& name, QRect place, const QStringList& lines = {}) {
  auto hotSpot = makeHotSpot(name, lines);
  hotSpot->Left = static_cast<i16>(place.left());
  hotSpot->Top = static_cast<i16>(place.top());
  hotSpot->Width = static_cast<i16>(place.width());
  hotSpot->Height = static_cast<i16>(place.height());
  return hotSpot;
}

inline std::shared_ptr<cShot> makeShot(const QString& name, std::vector<std::shared_ptr<cHotSpot>> hotSpots = {}) {
  auto shot = std::make_shared<cShot>();
  shot->sName = name;
  shot->NumHotSpots = static_cast<i16>(hotSpots.size());
  shot->HotSpots = std::move(hotSpots);
  shot->HotSpots.push_back(nullptr);  // the empty top slot, as a read shot has it
  return shot;
}

inline cSet makeSet(const QString& name, std::vector<std::shared_ptr<cShot>> shots = {}) {
  cSet set;
  set.sName = name;
  set.nNumShots = static_cast<i16>(shots.size());
  set.Shots = std::move(shots);
  set.Shots.push_back(nullptr);
  return set;
}

// Two shots, three hotspots and a few lines, with something other than the default in most fields.
inline cSet sampleSet() {
  auto door = makeHotSpot(QStringLiteral("FrontDoor"), {QStringLiteral("goto shot hall"), QStringLiteral("playlocal door")});
  door->Left = 120;
  door->Height = 200;
  door->Quiet = true;
  door->Rollover = QStringLiteral("showdialogstring front door");
  auto lamp = makeHotSpot(QStringLiteral("Lamp"), {QStringLiteral("toggle lamp")});
  lamp->Enabled = false;
  lamp->Icon = -3;
  auto porch = makeShot(QStringLiteral("Porch"), {door, lamp});
  porch->ShotToLeft = QStringLiteral("Garden");
  porch->GoElapsedTime = true;
  cSet set = makeSet(QStringLiteral("Fernhollow"), {porch, makeShot(QStringLiteral("Hall"), {makeHotSpot(QStringLiteral("Stairs"))})});
  set.nCurrentShot = 1;
  return set;
}

}  // namespace fh::test
