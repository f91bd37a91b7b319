#include "TempFolder.h"

#include "game/FixedPictures.h"
#include "game/GameState.h"
#include "screens/ScreenSaver.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

// The eleven slides, each in a shade of its own, and the screen saver over them with its timer
// stopped: the tests tick it themselves.
class SlideShow : public testing::Test {
 protected:
  SlideShow() {
    for (int number = 1; number <= 11; ++number) writeSlide(number, {40, 30});
    ResourcePath = m_folder.path() + u'\\';
    saver.Timer1.setEnabled(false);
  }
  ~SlideShow() override { saver.hide(); }

  void writeSlide(int number, QSize size) const {
    QImage slide(size, QImage::Format_RGB32);
    slide.fill(QColor(number * 20, 100, 0));
    m_folder.makeFolder(QStringLiteral("Graphics"));
    slide.save(m_folder.at(QStringLiteral("Graphics/") + SlidePictures().at(number - 1)), "BMP");
  }
  int slideOnShow() const { return saver.Image1->pixmap().toImage().pixelColor(0, 0).red() / 20; }
  bool onTheForm(const QWidget* control) const { return saver.rect().contains(control->geometry()); }
  static void send(QWidget* to, QEvent::Type type, Qt::MouseButton button = Qt::NoButton) {
    QMouseEvent event(type, QPointF(3, 4), to->mapToGlobal(QPointF(3, 4)), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(to, &event);
  }

  TempFolder m_folder;
  ScreenSaver& saver = ScreenSaverForm();
};

TEST_F(SlideShow, SlidesComeInOrderAtPlacesOnTheFormUnderAnInvisiblePointer) {
  ShowScreenSaver();
  EXPECT_EQ(slideOnShow(), 1);
  QImage clear(32, 32, QImage::Format_ARGB32);
  clear.fill(Qt::transparent);
  EXPECT_EQ(saver.cursor().pixmap().toImage().convertToFormat(clear.format()), clear);
  for (int number = 2; number <= 12; ++number) {
    saver.Timer1_Timer();
    EXPECT_EQ(slideOnShow(), number == 12 ? 1 : number);
    EXPECT_TRUE(onTheForm(saver.Image1) && onTheForm(saver.Label1)) << number;
  }
}

// Moves over the image and the label count as moves over the form; a key let pass by the label
// with the focus, and a button, hide at once.
TEST_F(SlideShow, FiveMovesAreForgivenAfterEveryShowButNoKeyOrButton) {
  for (int show = 0; show < 2; ++show) {
    ShowScreenSaver();
    for (QWidget* over : {saver.Image1, saver.Label1, saver.Image1, saver.Label1, saver.Image1}) send(over, QEvent::MouseMove);
    EXPECT_TRUE(saver.isVisible());
    send(&saver, QEvent::MouseMove);
    EXPECT_FALSE(saver.isVisible());
  }
  ShowScreenSaver();
  send(&saver, QEvent::MouseMove);
  saver.Label1->setFocus();
  QKeyEvent key(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
  QCoreApplication::sendEvent(saver.Label1, &key);
  EXPECT_FALSE(saver.isVisible());
  ShowScreenSaver();
  send(saver.Image1, QEvent::MouseButtonPress, Qt::RightButton);
  EXPECT_FALSE(saver.isVisible());
}

// A slide larger than the form is shrunk to fit it, so that it too lies wholly on the screen.
TEST_F(SlideShow, ASlideAsLargeAsTheFormFillsItAndALargerOneIsShrunk) {
  writeSlide(1, saver.size());
  writeSlide(2, {saver.width() * 2, saver.height()});
  ShowScreenSaver();
  EXPECT_EQ(saver.Image1->geometry(), saver.rect());
  saver.Timer1_Timer();
  EXPECT_EQ(saver.Image1->size(), QSize(saver.width(), saver.height() / 2));
  EXPECT_TRUE(onTheForm(saver.Image1));
}

}  // namespace
}  // namespace fh::test
