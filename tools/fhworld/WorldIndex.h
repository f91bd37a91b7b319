#pragma once

#include "WorldData.h"

#include <QString>

#include <map>
#include <memory>

namespace fh {
class cSet;
class cShot;
}

namespace fh::fhworld {

// The world's names as scripts write them, for looking up what a line names.
struct WorldIndex {
  WorldIndex(const WorldData& data, QString databaseFolder);

  // Takes in the set file's shots, once it has been read.
  void useSet(std::shared_ptr<const cSet> worldSet);

  const WorldData& data;
  QString databaseFolder;                    // ends in a separator
  std::shared_ptr<const cSet> set;           // none until the set file has been read
  std::map<QString, const cShot*> shots;     // by lower-cased name
  std::map<QString, const SpriteRow*> sprites;
  std::map<QString, QString> sounds;         // sound name -> file, filled from the start-up script

  const ContainerRow* container(const QString& name) const;
  const cShot* shot(const QString& name) const;
  // The container's objects as conditions write them: lower case without blanks.
  QStringList objectWords(const QString& container) const;
};

// An object's name as a condition writes it.
QString conditionWord(const QString& objectName);

}  // namespace fh::fhworld
