#include "platform/base/Failure.h"
#include "platform/desktop/WindowArt.h"

#include "FailureOf.h"

#include <QDir>
#include <QImage>
#include <QSet>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

QImage windowImage(const char* name) { return QImage(QStringLiteral(":/windows/%1.bmp").arg(QLatin1String(name))); }

TEST(WindowArt, EveryPictureIsThereAtItsSizeInTheGamesOnePalette) {
  const QImage frame(QStringLiteral(FH_STAGE_DIR "/resources/Graphics/Menu.bmp"));
  ASSERT_FALSE(frame.isNull());
  for (const WindowPicture& picture : WindowPictures()) {
    const QImage image = windowImage(picture.name);
    ASSERT_FALSE(image.isNull()) << picture.name;
    EXPECT_EQ(image.size(), picture.size) << picture.name;
    EXPECT_EQ(image.format(), QImage::Format_Indexed8) << picture.name;
    EXPECT_EQ(image.colorTable(), frame.colorTable()) << picture.name;
    EXPECT_EQ(WindowPixmap(QLatin1String(picture.name)).size(), picture.size) << picture.name;
  }
}

TEST(WindowArt, NothingIsDrawnThatNoWindowShowsAndEveryButtonMovesWhenPressed) {
  QSet<QString> listed;
  for (const WindowPicture& picture : WindowPictures()) listed << QLatin1String(picture.name) + QStringLiteral(".bmp");
  for (const QString& file : QDir(QStringLiteral(":/windows")).entryList())
    EXPECT_TRUE(listed.contains(file)) << file.toStdString() << " is drawn but no window shows it";

  for (const WindowPicture& picture : WindowPictures()) {
    const QString name = QLatin1String(picture.name);
    if (!name.endsWith(QStringLiteral("Up"))) continue;
    const QString down = name.chopped(2) + QStringLiteral("Down");
    EXPECT_NE(windowImage(picture.name), QImage(QStringLiteral(":/windows/%1.bmp").arg(down))) << picture.name;
  }
}

TEST(WindowArt, TheMetersNeedleTurnsThroughTwentyFourDifferentCells) {
  const QImage strip = windowImage("Meter");
  ASSERT_EQ(strip.size(), QSize(24 * 32, 29));
  QList<QImage> cells;
  for (int i = 0; i < 24; ++i) cells << strip.copy(i * 32, 0, 32, 29);
  for (int i = 0; i < 24; ++i)
    for (int j = i + 1; j < 24; ++j) EXPECT_NE(cells[i], cells[j]) << "cells " << i << " and " << j;
  // A quarter turn every six cells, clockwise from straight up: the red needle is found there.
  const QPoint centre(16, 14);
  const QPoint needle[] = {{0, -6}, {6, 0}, {0, 6}, {-6, 0}};
  for (int quarter = 0; quarter < 4; ++quarter) {
    const QRgb colour = cells[quarter * 6].pixel(centre + needle[quarter]);
    EXPECT_TRUE(qRed(colour) > 160 && qGreen(colour) < 130) << "cell " << quarter * 6;
  }
}

TEST(WindowArt, AnUnknownPictureIsARunTimeFailure) {
  EXPECT_EQ(failureOf([] { WindowPixmap(QStringLiteral("NoSuchButtonUp")); }), Failure::InvalidPicture);
}

}  // namespace
}  // namespace fh::test
