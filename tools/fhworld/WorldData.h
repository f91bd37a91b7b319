#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

namespace fh {
class Database;
}

namespace fh::fhworld {

struct ContainerRow {
  QString name;
  QString friendlyName;
  std::optional<int> wiseState;
  QString wiseObject;  // empty: not judged by object
  int defaultState = 0;
  QString defaultObject;
  QString state1Verbage;
  QString state0Verbage;
  std::optional<QString> helpText;
  bool listed = false;

  bool judgedByState() const { return wiseState.has_value(); }
  bool judgedByObject() const { return !wiseObject.isEmpty(); }
};

struct ObjectRow {
  QString container;
  QString name;
  QString description;
  std::optional<QString> savingsInfo;
  double adr = 0;
  QString imageFile;
};

struct CelRow {
  QString condition;
  QString celSource;
  QString sound;  // empty: none
};

struct SpriteRow {
  QString name;
  QString shot;
  int numFrames = 0;
  int x = 0;
  int y = 0;
  std::vector<CelRow> looks;  // in the order the game walks them
};

struct BackdropRow {
  QString id;
  QString shot;
  QString imageSource;
  QString container;  // empty: the plain backdrop, whatever the fixtures' states
};

struct QuestionRow {
  int id = 0;
  int number = 0;
  int subNumber = 0;
  QString text;
  int answerStyle = 0;
  QStringList listItems;  // the used ones of List1 to List8
};

struct InfoBoxRow {
  QString title;
  QString text;
};

// What the game database holds of a world, read through the tables and the game's own queries.
// Maps are keyed by the lower-cased name, as scripts write names.
struct WorldData {
  std::optional<QString> startupScript;
  std::map<QString, ContainerRow> containers;
  std::map<QString, std::vector<ObjectRow>> objectsByContainer;
  std::vector<SpriteRow> sprites;
  std::vector<BackdropRow> backdrops;
  std::map<QString, QString> shotTitles;  // "Freindly Name" by shot name
  std::map<QString, QString> dialogs;
  std::map<QString, InfoBoxRow> infoBoxes;
  std::vector<QuestionRow> questions;
  QStringList databaseFaults;  // rows of the WorldCheck view, as "problem: item"
};

// Reads the rows; a missing table, query or column is a RuntimeFailure of the data layer.
WorldData readWorldData(Database& db);

}  // namespace fh::fhworld
