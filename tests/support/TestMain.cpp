#include "platform/Settings.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Every test program runs headless, with a settings store of its own that is thrown away at the end.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  QTemporaryDir settings;
  fh::useSettingsFolder(settings.path());
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
