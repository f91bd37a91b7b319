#pragma once

#include "WorldFixtures.h"

#include "ScriptedUi.h"
#include "TempFolder.h"
#include "game/GameState.h"
#include "mainview/ShotView.h"
#include "platform/data/Database.h"
#include "platform/data/SqlScript.h"
#include "platform/desktop/PictureBox.h"
#include "world/Score.h"

#include <QImage>
#include <QLabel>

#include <gtest/gtest.h>

namespace fh::test {

// A strip of square cels, one colour each, under "Graphics".
inline void writeStrip(const TempFolder& resources, const QString& name, const QList<QColor>& cels, int size = 10) {
  QImage strip(size * static_cast<int>(cels.size()), size, QImage::Format_RGB32);
  for (int x = 0; x < strip.width(); ++x)
    for (int y = 0; y < size; ++y) strip.setPixelColor(x, y, cels[x / size]);
  resources.makeFolder(QStringLiteral("Graphics"));
  strip.save(resources.at(QStringLiteral("Graphics/") + name), "BMP");
}

// The main view offscreen, the database of LiveWorld.sql open for Ada, the pictures, and the set
// file "Small.set" (Porch, Hall, Attic). Tests call LoadSet when they want the live set.
class LiveWorld : public testing::Test {
 protected:
  void SetUp() override {
    UnloadShotView();
    ResourcePath = QStringLiteral(FH_STAGE_DIR "/resources/");
    TheShotView();
    ResourcePath = resources.path() + u'/';
    for (const char* backdrop : {"Porch.bmp", "PorchDrip.bmp", "Hall.bmp"})
      writeStrip(resources, QString::fromLatin1(backdrop), {Qt::gray}, 120);
    writeStrip(resources, QStringLiteral("Drip.bmp"), {Qt::red, Qt::green, Qt::blue, Qt::yellow});
    writeStrip(resources, QStringLiteral("Other.bmp"), {Qt::black});
    writeStrip(resources, QStringLiteral("Dry.bmp"), {Qt::white});
    writeStrip(resources, QStringLiteral("Fan.bmp"), {Qt::cyan, Qt::magenta});
    writeStrip(resources, QStringLiteral("Glow.bmp"), {Qt::darkRed, Qt::darkGreen});

    const QString database = QStringLiteral(FH_SOURCE_DIR "/world/database/");
    createDatabaseFile(data.at(QStringLiteral("Fernhollow.mdb")),
                       QStringList{database + QStringLiteral("schema.sql"), database + QStringLiteral("queries.sql"),
                                   QStringLiteral(FH_SOURCE_DIR "/tests/world/LiveWorld.sql")} + moreRows());
    GameDB = Database::OpenDatabase(data.at(QStringLiteral("Fernhollow.mdb")));
    DatabasePath = data.path() + u'/';
    data.write(QStringLiteral("Small.set"), savedBytes(makeSet("Small", {makeShot("Porch"), makeShot("Hall"), makeShot("Attic")})));
    CurrentUserID = 1;
    CurrentShotIndex = 0;
    UserHasWonGame = false;
    LastDialogText.clear();
    const ScoreBaselines baselines = ReadScoreBaselines(*GameDB, {});
    BaseStateADR = baselines.stateADR;
    BaseObjectADR = baselines.objectADR;
  }

  // Scripts of rows that a fixture adds to the small world, after LiveWorld.sql.
  virtual QStringList moreRows() const { return {}; }

  void TearDown() override {
    GameDB->Close();
    resetGameState();
    UnloadShotView();
    DatabasePath.clear();
    ResourcePath.clear();
  }

  ShotView& view() { return TheShotView(); }
  QString text() { return view().TextWindow->text(); }
  QColor shown(int x, int y) { return view().DisplayView->Image().toImage().pixelColor(x, y); }

  // A row of Ada's: in Users, or in UserContainers for a container.
  Recordset row(const QString& container = {}) {
    if (container.isEmpty()) return GameDB->OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE ID = ?"), {CurrentUserID});
    return GameDB->OpenRecordset(QStringLiteral("SELECT * FROM UserContainers WHERE \"User ID\" = ? AND Container = ?"),
                                 {CurrentUserID, container});
  }
  int stored(const QString& field, const QString& container = {}) { return row(container).Field(field).toLong(); }
  void store(const QString& field, const QVariant& value, const QString& container = {}) {
    Recordset r = row(container);
    r.Edit();
    r.SetField(field, value);
    r.Update();
  }
  QStringList messages() const {
    QStringList texts;
    for (const Shown& box : ui.messageBoxes()) texts << box.text;
    return texts;
  }

  ScriptedUi ui;
  TempFolder resources;
  TempFolder data;
};

}  // namespace fh::test
