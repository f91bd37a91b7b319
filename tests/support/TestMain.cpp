#include "platform/desktop/Printout.h"
#include "platform/files/Settings.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Every test program runs headless, with a settings store and a folder for printouts of its own,
// both thrown away at the end: no test reaches a real user's settings or a printer.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  QTemporaryDir settings;
  fh::useSettingsFolder(settings.path());
  QTemporaryDir printouts;
  fh::usePrintoutFolder(printouts.path());
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
