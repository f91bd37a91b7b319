#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "platform/base/Ui.h"
#include "platform/desktop/Pictures.h"

#include "FailureOf.h"
#include "ScriptedUi.h"
#include "TempFolder.h"

#include <QImage>

#include <gtest/gtest.h>

namespace fh::test {

TEST(EntryGuard, ReportsARunTimeFailureAndEndsTheProgram) {
  ScriptedUi ui;
  try {
    guarded("frmSetup OK", [] { throw RuntimeFailure(Failure::ItemNotFound, QStringLiteral("query 'GetAllSprites'")); });
    FAIL() << "the program went on";
  } catch (const QuitCalled& quit) {
    EXPECT_EQ(quit.exitCode, 1);
  }
  ASSERT_EQ(ui.messageBoxes().size(), 1u);
  const Shown report = ui.messageBoxes().front();
  for (const char* part : {"'3265'", "Item not found (query 'GetAllSprites')", "frmSetup OK"})
    EXPECT_TRUE(report.text.contains(QLatin1String(part))) << report.text.toStdString();
  EXPECT_EQ(report.title, QStringLiteral("Fernhollow"));

  // Other exceptions are reported too.
  EXPECT_THROW(guarded("load", [] { throw std::bad_alloc(); }), QuitCalled);
  ASSERT_EQ(ui.messageBoxes().size(), 2u);
  EXPECT_TRUE(ui.messageBoxes().back().text.contains(QStringLiteral("load")));
}

TEST(EntryGuard, EndingTheProgramIsQuietAndNormalRunsPassThrough) {
  ScriptedUi ui;
  try {
    guarded("Quit", [] { EndProgram(); });
    FAIL();
  } catch (const QuitCalled& quit) {
    EXPECT_EQ(quit.exitCode, 0);
  }
  EXPECT_TRUE(ui.shown().empty());
  bool ran = false;
  guarded("tick", [&] { ran = true; });
  EXPECT_TRUE(ran);
}

TEST(Pictures, LoadBitmapsAndFailClearlyOtherwise) {
  TempFolder tree;
  QImage made(5, 3, QImage::Format_Indexed8);
  made.setColorCount(2);
  made.fill(1);
  ASSERT_TRUE(made.save(tree.at(QStringLiteral("Slide01.bmp")), "BMP"));
  EXPECT_EQ(LoadPicture(tree.path() + QStringLiteral("\\slide01.BMP")).size(), QSize(5, 3));

  tree.write(QStringLiteral("broken.bmp"), "not a picture");
  EXPECT_EQ(failureOf([&] { LoadPicture(tree.path() + QStringLiteral("\\broken.bmp")); }), Failure::InvalidPicture);
  EXPECT_EQ(failureOf([&] { LoadPicture(tree.path() + QStringLiteral("\\missing.bmp")); }), Failure::FileNotFound);
}

}  // namespace fh::test
