#include "ScriptedUi.h"
#include "platform/desktop/ImagePair.h"
#include "platform/desktop/MessageHook.h"
#include "platform/desktop/PictureBox.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace fh::test {
namespace {

using Messages = std::vector<std::pair<int, std::uint32_t>>;

// A window with children of both kinds: a label and an image pair have no window of their own, a
// picture box and a command button have.
class WindowMessages : public testing::Test {
 protected:
  void SetUp() override {
    window.resize(400, 300);
    label = new QLabel(QStringLiteral("frame"), &window);
    label->setGeometry(100, 50, 80, 20);
    pair = new ImagePair(QStringLiteral("btnLeft"), &window);
    QPixmap up(40, 30);
    up.fill(Qt::gray);
    pair->setPictures(up, up);
    pair->move(10, 200);
    pair->setUpVisible(true);
    pair->onAction = [this] { ++actions; };
    picture = new PictureBox(&window);
    picture->setGeometry(200, 100, 100, 100);
    button = new QPushButton(QStringLiteral("Save"), &window);
    button->setGeometry(300, 0, 50, 20);
    hook.onMessage = [this](int message, std::uint32_t param) { seen.emplace_back(message, param); };
    hook.setWindow(&window);
    window.show();
  }

  static void send(QWidget* to, QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::NoButton) {
    QMouseEvent event(type, at, to->mapToGlobal(at), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(to, &event);
  }
  static std::uint32_t at(int x, int y) { return static_cast<std::uint32_t>(y) * 65536u + static_cast<std::uint32_t>(x); }

  ScriptedUi ui;
  QWidget window;
  QLabel* label = nullptr;
  ImagePair* pair = nullptr;
  PictureBox* picture = nullptr;
  QPushButton* button = nullptr;
  MessageHook hook;
  Messages seen;
  int actions = 0;
};

TEST_F(WindowMessages, TheWindowsOwnSurfaceReportsOnceInWindowPixels) {
  send(label, QEvent::MouseMove, {5, 6});
  send(label, QEvent::MouseButtonPress, {5, 6}, Qt::LeftButton);
  send(&window, QEvent::MouseButtonRelease, {7, 8}, Qt::LeftButton);
  send(&window, QEvent::MouseButtonPress, {7, 8}, Qt::RightButton);
  send(&window, QEvent::MouseButtonDblClick, {7, 8}, Qt::LeftButton);
  EXPECT_EQ(seen, (Messages{{512, at(105, 56)}, {513, at(105, 56)}, {514, at(7, 8)}, {516, at(7, 8)}, {515, at(7, 8)}}));
}

TEST_F(WindowMessages, ChildrenWithAWindowOfTheirOwnKeepTheirMessages) {
  int pressesOnPicture = 0;
  picture->onMouseDown = [&](Qt::MouseButton, QPointF) { ++pressesOnPicture; };
  send(picture, QEvent::MouseButtonPress, {5, 5}, Qt::RightButton);
  send(picture, QEvent::MouseButtonRelease, {5, 5}, Qt::RightButton);
  send(picture, QEvent::MouseMove, {5, 5});
  send(button, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton);
  send(button, QEvent::MouseButtonRelease, {5, 5}, Qt::LeftButton);
  EXPECT_TRUE(seen.empty());
  EXPECT_EQ(pressesOnPicture, 1);
}

// The hook hears the press before the pair acts on it, and any mouse button works the pair.
TEST_F(WindowMessages, AnImagePairIsPartOfTheSurfaceAndAnyButtonWorksIt) {
  send(pair, QEvent::MouseButtonPress, {3, 4}, Qt::RightButton);
  EXPECT_TRUE(pair->downVisible());
  EXPECT_FALSE(pair->upVisible());
  EXPECT_EQ(actions, 0);
  send(pair, QEvent::MouseButtonRelease, {300, 4}, Qt::RightButton);
  EXPECT_TRUE(pair->upVisible());
  EXPECT_EQ(actions, 1);
  EXPECT_EQ(ui.yields(), 2);
  EXPECT_EQ(seen, (Messages{{516, at(13, 204)}, {517, at(310, 204)}}));

  // A release that wasn't pressed here does nothing.
  send(pair, QEvent::MouseButtonRelease, {3, 4}, Qt::LeftButton);
  EXPECT_EQ(actions, 1);
}

TEST_F(WindowMessages, ALabelAddedLaterJoinsTheSurfaceWhenShown) {
  auto* later = new QLabel(QStringLiteral("HotSpot"), &window);
  later->setGeometry(20, 20, 30, 30);
  later->show();
  send(later, QEvent::MouseButtonPress, {1, 2}, Qt::LeftButton);
  EXPECT_EQ(seen, (Messages{{513, at(21, 22)}}));
}

// A key goes to the focus and, let pass by a label, on to the window: one report, not two.
TEST_F(WindowMessages, AKeyIsReportedOnceWhereverOnTheSurfaceTheFocusIs) {
  label->setFocus();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
  QCoreApplication::sendEvent(label, &press);
  EXPECT_EQ(seen, (Messages{{256, 0u}}));
}

TEST(MessageParam, HoldsYHighAndXLowAndKeepsAHeldPointerAtTheEdge) {
  EXPECT_EQ(MessageHook::positionParam(3, 2), 2u * 65536u + 3u);
  EXPECT_EQ(MessageHook::positionParam(-5, 70000), 32767u * 65536u);
}

}  // namespace
}  // namespace fh::test
