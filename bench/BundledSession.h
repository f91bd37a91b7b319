#pragma once

#include <QString>
#include <QTemporaryDir>

namespace fh::bench {

// A game on a copy of the bundled world, as the benchmarks play it: the staged database and set
// file copied to a folder of their own, so that nothing is written into the staged world, a new
// player, and the main window offscreen on the staged resources.
class BundledSession {
 public:
  BundledSession();
  ~BundledSession();
  BundledSession(const BundledSession&) = delete;
  BundledSession& operator=(const BundledSession&) = delete;

  // Reads the set file and builds its sprites and containers, showing the player's shot.
  void loadWorld();
  QString databaseFile() const { return m_folder.path() + QStringLiteral("/Fernhollow.mdb"); }
  QString setFile() const { return m_folder.path() + QStringLiteral("/Fernhollow.set"); }

 private:
  QTemporaryDir m_folder;
};

// The staged resource tree, for the benchmarks that need the main window.
QString StagedResources();

}  // namespace fh::bench
