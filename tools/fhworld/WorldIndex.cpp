#include "WorldIndex.h"

#include "world/cSet.h"
#include "world/cShot.h"

namespace fh::fhworld {

WorldIndex::WorldIndex(const WorldData& worldData, QString folder) : data(worldData), databaseFolder(std::move(folder)) {
  for (const SpriteRow& sprite : data.sprites) sprites.emplace(sprite.name.toLower(), &sprite);
}

void WorldIndex::useSet(std::shared_ptr<const cSet> worldSet) {
  set = std::move(worldSet);
  shots.clear();
  for (const auto& shot : set->shots()) shots.emplace(shot->sName.toLower(), shot.get());
}

const ContainerRow* WorldIndex::container(const QString& name) const {
  const auto found = data.containers.find(name.toLower());
  return found == data.containers.end() ? nullptr : &found->second;
}

const cShot* WorldIndex::shot(const QString& name) const {
  const auto found = shots.find(name.toLower());
  return found == shots.end() ? nullptr : found->second;
}

QStringList WorldIndex::objectWords(const QString& container) const {
  QStringList words;
  const auto found = data.objectsByContainer.find(container.toLower());
  if (found == data.objectsByContainer.end()) return words;
  for (const ObjectRow& object : found->second) words << conditionWord(object.name);
  return words;
}

QString conditionWord(const QString& objectName) {
  return QString(objectName).remove(QLatin1Char(' ')).toLower();
}

}  // namespace fh::fhworld
