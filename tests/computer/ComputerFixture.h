#pragma once

#include "LiveWorld.h"

#include "computer/ComputerScreens.h"
#include "platform/desktop/Printout.h"
#include "script/ComputerCommand.h"
#include "script/Interpreter.h"
#include "world/SetFile.h"

#include <QDir>

namespace fh::test {

// Ada at the small world's computer (Checkup.sql), with printouts saved in a folder of the test's.
class ComputerFixture : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    ActiveComputerScreen = 0;
    CurrentUserName = QStringLiteral("Ada");
    LoadSet(QStringLiteral("Small.set"));
    m_folderBefore = usePrintoutFolder(printouts.path());
    LendComputerScreens();
  }
  void TearDown() override {
    CloseComputer();
    usePrintoutFolder(m_folderBefore);
    CurrentUserName.clear();
    LiveWorld::TearDown();
  }
  QStringList moreRows() const override { return {QStringLiteral(FH_SOURCE_DIR "/tests/computer/Checkup.sql")}; }

  static void run(const char* line) { RunScriptLine(QString::fromLatin1(line)); }
  QStringList printoutFiles() const { return QDir(printouts.path()).entryList(QDir::Files); }

  TempFolder printouts;

 private:
  QString m_folderBefore;
};

}  // namespace fh::test
