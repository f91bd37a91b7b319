#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <set>

namespace fh::fhworld {

class Problems;
struct WorldIndex;

// What the scripts of a world can do, gathered while they are checked: where they lead and which
// fixtures they can change. It tells whether every shot can be reached and every fixture put right.
struct ScriptEffects {
  std::set<QString> shotsReached;                 // lower-cased shot names of `goto shot`
  std::set<QString> containersToggled;            // lower-cased names
  std::map<QString, std::set<int>> statesSet;     // by lower-cased container name
  std::set<QString> containersShown;              // `showcontainer`
  std::set<QString> computerWords;                // sub-words of `computer`
};

// Checks script lines against the world as the interpreter would run them: every command's words,
// every name a line uses, the `if` blocks. A problem names the place it was given and the line.
class ScriptCheck {
 public:
  ScriptCheck(WorldIndex& world, Problems& problems);

  // The start-up script: it also loads the world's sounds into the index and names the set file.
  void checkStartup(const QString& script);
  // A hotspot's click script, run on the shot `shot`.
  ScriptEffects checkClick(const QStringList& lines, const QString& where, const QString& shot);
  // A hotspot's rollover: one line, run by itself.
  ScriptEffects checkRollover(const QString& line, const QString& where, const QString& shot);

  const QString& startSetFile() const { return m_startSet; }
  int soundsLoaded() const { return m_soundsLoaded; }

 private:
  struct Run;
  void checkLines(const QStringList& lines, Run& run);
  void checkLine(const QString& line, Run& run);

  WorldIndex& m_world;
  Problems& m_problems;
  QString m_startSet;
  int m_soundsLoaded = 0;
};

}  // namespace fh::fhworld
