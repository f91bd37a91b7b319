#include "screens/ScreenSaver.h"

#include "game/FixedPictures.h"
#include "game/GameState.h"
#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/desktop/Fonts.h"
#include "platform/desktop/PictureBox.h"
#include "platform/desktop/Pictures.h"
#include "platform/files/FileNames.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QShowEvent>
#include <QTime>

namespace fh {

namespace {

constexpr int kCustomPointer = 99;
constexpr i16 kForgivenMoves = 5;

// The image takes the slide's own size. A slide larger than the form is shrunk to fit it, its
// proportions kept, so that every slide lies wholly on the screen.
QPixmap fitted(const QImage& slide, QSize room) {
  const QPixmap picture = QPixmap::fromImage(slide);
  if (picture.width() <= room.width() && picture.height() <= room.height()) return picture;
  return picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

ScreenSaver::ScreenSaver() : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) {
  setObjectName(QStringLiteral("ScreenSaver"));
  setWindowTitle(QStringLiteral("ScreenSaver"));
  QPalette black = palette();
  black.setColor(QPalette::Window, Qt::black);
  setPalette(black);
  setAutoFillBackground(true);
  // Without a window manager a request for full screen is ignored, so the form takes the screen's
  // geometry itself.
  setGeometry(QGuiApplication::primaryScreen()->geometry());

  MouseIcon = QPixmap(32, 32);
  MouseIcon.fill(Qt::transparent);

  Image1 = new QLabel(this);
  Image1->setObjectName(QStringLiteral("Image1"));
  Image1->setGeometry(twipsRect(360, 390, 4755, 3165));

  Label1 = new QLabel(QStringLiteral("Fernhollow(tm) Screen Saver - Hit any key to continue!"), this);
  Label1->setObjectName(QStringLiteral("Label1"));
  Label1->setGeometry(twipsRect(840, 5700, 4815, 255));
  Label1->setFont(ArialFont(9.75));
  QPalette cyan = Label1->palette();
  cyan.setColor(QPalette::WindowText, QColor(0, 255, 255));
  Label1->setPalette(cyan);

  Timer1.setInterval(5000);
  Timer1.onTick = [this] { Timer1_Timer(); };
  Timer1.setEnabled(true);

  MsgBlaster1.onMessage = [this](int number, std::uint32_t) { MsgBlaster1_Message(number); };
  MsgBlaster1.setWindow(this);
}

void ScreenSaver::Form_Activate() {
  m_random.seed(static_cast<quint32>(QTime::currentTime().msecsSinceStartOfDay()));
  SlideIndex = 0;
  MouseMoves = 0;
  ShowSlide();
}

// A missing slide is a failure of the program, also while the form is hidden and the timer goes on
// changing slides out of sight.
void ScreenSaver::ShowSlide() {
  SlideIndex = addI16(SlideIndex, 1);
  if (SlideIndex == 12) SlideIndex = 1;
  const QString path = fileInFolder(ResourcePath + QStringLiteral("graphics\\"), SlidePictures().at(SlideIndex - 1));
  setMousePointer(kCustomPointer);
  const QPixmap slide = fitted(LoadPicture(path), size());
  Image1->setPixmap(slide);
  Image1->resize(slide.size());
  Image1->hide();
  const int left = randomPlace(width() - Image1->width());
  const int top = randomPlace(height() - Image1->height());
  Image1->move(left, top);
  Image1->show();
}

void ScreenSaver::Timer1_Timer() {
  ShowSlide();
  const int top = randomPlace(height() - Label1->height());
  const int left = randomPlace(width() - Label1->width());
  Label1->move(left, top);
}

void ScreenSaver::MsgBlaster1_Message(int number) {
  if (number == message::kMouseMove) {
    MouseMoves = addI16(MouseMoves, 1);
    if (MouseMoves <= kForgivenMoves) return;
  }
  hide();
}

void ScreenSaver::setMousePointer(int number) {
  m_mousePointer = number;
  setCursor(mousePointer(number, MouseIcon));
}

// Being shown is the activation. A window that the window system shows again, restored from being
// minimised, goes on where it was.
void ScreenSaver::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (event->spontaneous()) return;
  guarded("ScreenSaver", [this] { Form_Activate(); });
}

ScreenSaver& ScreenSaverForm() {
  static auto* form = new ScreenSaver;
  return *form;
}

void ShowScreenSaver() {
  ScreenSaver& form = ScreenSaverForm();
  form.show();
  form.raise();
  form.activateWindow();
}

}  // namespace fh
