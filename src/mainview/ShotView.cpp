#include "mainview/ShotView.h"

#include "game/FixedPictures.h"
#include "game/GameState.h"
#include "game/Screens.h"
#include "mainview/ElapsedTimeText.h"
#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "platform/base/Ui.h"
#include "platform/desktop/CdPrompt.h"
#include "platform/desktop/Fonts.h"
#include "platform/desktop/ImagePair.h"
#include "platform/desktop/MediaDevice.h"
#include "platform/desktop/PictureBox.h"
#include "platform/desktop/Pictures.h"
#include "platform/desktop/WindowArt.h"
#include "platform/files/FileNames.h"
#include "sound/MusicDevice.h"
#include "world/Players.h"
#include "world/SaveFailure.h"
#include "world/cSet.h"
#include "world/cShot.h"
#include "world/cSprite.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

#include <cmath>
#include <functional>

namespace fh {

namespace {

constexpr int kFrameWidth = 640;
constexpr int kFrameHeight = 480;
const QPoint kShotPlace(4, 48);
const QSize kShotSize(632, 390);
const QPoint kMeterPlace(240, 0);
constexpr int kMeterCells = 24;
constexpr int kSecondsBetweenSaves = 60;

i16 wholePixels(qreal position) { return toI16(static_cast<long long>(std::nearbyint(position))); }

std::unique_ptr<ShotView>& theView() {
  static std::unique_ptr<ShotView> view;
  return view;
}

QLabel* displayLabel(QWidget* parent, const QString& name, const QString& text, const QColor& colour) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);  // world texts are shown as they are written, markup and all
  label->setFont(ArialFont(9, true));
  label->setAlignment(Qt::AlignCenter);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, colour);
  label->setPalette(palette);
  return label;
}

// A hidden text box whose every change `shown` shows: an inlet for a text given from outside, which
// no operation of the game writes to.
QLineEdit* mirrorBox(QWidget* parent, const QString& name, QLabel* shown) {
  auto* box = new QLineEdit(shown->text(), parent);
  box->setObjectName(name);
  box->hide();
  QObject::connect(box, &QLineEdit::textChanged, shown, &QLabel::setText);
  return box;
}

QPushButton* editButton(QWidget* parent, const QString& name, const QString& caption, QSize size) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  button->resize(size);
  button->hide();
  return button;
}

ImagePair* frameButton(QWidget* parent, const QString& name, const QString& pictures) {
  auto* pair = new ImagePair(name, parent);
  pair->setPictures(WindowPixmap(pictures + QStringLiteral("Up")), WindowPixmap(pictures + QStringLiteral("Down")));
  return pair;
}

// Runs the steps of the window's load. A failing step is taken for a resource tree that isn't
// there: the first time the player is shown the setup form to name it, after that asked for the
// CD; either way the same step runs again.
class LoadSteps {
 public:
  void run(const std::function<void()>& step) {
    for (;;) {
      try {
        step();
        return;
      } catch (const RuntimeFailure& failure) {
        if (!m_setupShown) {
          m_setupShown = true;
          ShowSetup();
        } else if (AskForCd(failure) == Answer::Cancel) {
          EndProgram();
        }
      }
    }
  }

 private:
  bool m_setupShown = false;
};

}  // namespace

ShotView::ShotView() : MMControl1(MusicDevice()) {
  setView(this);
  setObjectName(QStringLiteral("ShotView"));
  setWindowTitle(QStringLiteral("Fernhollow"));
  setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
  QPalette black = palette();
  black.setColor(QPalette::Window, Qt::black);
  setPalette(black);
  setAutoFillBackground(true);

  // The controls as they stand at design time; the load step places them.
  BackPlane = new QLabel(this);
  BackPlane->setObjectName(QStringLiteral("BackPlane"));
  Backdrop = new QLabel(this);
  Backdrop->setObjectName(QStringLiteral("Backdrop"));
  Backdrop->hide();
  DisplayView = new PictureBox(this);
  DisplayView->setObjectName(QStringLiteral("DisplayView"));
  // The picture's own roads in: a left press and every move. Its releases and other buttons are
  // not the game's business.
  DisplayView->onMouseDown = [this](Qt::MouseButton button, QPointF at) {
    if (button == Qt::LeftButton) HandleMouse(message::kLeftDown, wholePixels(at.x()), wholePixels(at.y()));
  };
  DisplayView->onMouseMove = [this](QPointF at) { HandleMouse(message::kMouseMove, wholePixels(at.x()), wholePixels(at.y())); };
  VideoSys = new PictureBox(this);
  VideoSys->setObjectName(QStringLiteral("VideoSys"));
  VideoSys->setGeometry(142, 202, 105, 72);
  VideoSys->hide();
  ElapsedTimeView = displayLabel(this, QStringLiteral("ElapsedTimeView"), QStringLiteral("0:00:00"), QColor(255, 224, 192));
  ElapsedTimeView->resize(50, 15);
  Score = displayLabel(this, QStringLiteral("Score"), QStringLiteral("100"), QColor(255, 224, 192));
  Score->resize(32, 15);
  TextWindow = displayLabel(this, QStringLiteral("TextWindow"), QString(), Qt::black);
  TextWindow->setWordWrap(true);
  InScore = mirrorBox(this, QStringLiteral("InScore"), Score);
  InElapsedTimeView = mirrorBox(this, QStringLiteral("InElapsedTimeView"), ElapsedTimeView);
  Highlight.push_back(newHighlight());
  btnSetForm = editButton(this, QStringLiteral("btnSetForm"), QStringLiteral("S&et Edit"), {65, 25});
  btnShotEdit = editButton(this, QStringLiteral("btnShotEdit"), QStringLiteral("Sh&otEdit"), {65, 25});
  Save = editButton(this, QStringLiteral("Save"), QStringLiteral("&Save"), {57, 25});
  connect(btnSetForm, &QPushButton::clicked, this, [this] { guarded("Set Edit", [this] { btnSetForm_Click(); }); });
  connect(btnShotEdit, &QPushButton::clicked, this, [this] { guarded("Shot Edit", [this] { btnShotEdit_Click(); }); });
  connect(Save, &QPushButton::clicked, this, [this] { guarded("Save", [this] { Save_Click(); }); });

  SpriteCels.resize(1);
  SpriteTimer.push_back(std::make_unique<Timer>("sprite timer"));
  SpriteTimer[0]->onTick = [this] { spriteTick(0); };

  ElapsedTime.setInterval(1000);
  ElapsedTime.onTick = [this] { ElapsedTime_Timer(); };
  ElapsedTime.setEnabled(true);
  GameClock.setInterval(75);
  GameClock.onTick = [this] { GameClock_Timer(); };
  MeterTimer.onTick = [this] { meterTick(); };
}

ShotView::~ShotView() { setView(nullptr); }

void ShotView::loadWindow() {
  LoadSteps steps;
  steps.run([this] {
    GameMode = 1;
    CurrentHotSpotIndex = -1;
    nSpriteControls = 0;
  });
  // Without a window manager a request for full screen is ignored, so the window takes the
  // screen's geometry itself.
  steps.run([this] { setGeometry(QGuiApplication::primaryScreen()->geometry()); });
  steps.run([this] {
    BackPlane->setGeometry((width() - kFrameWidth) / 2, (height() - kFrameHeight) / 2, kFrameWidth, kFrameHeight);
  });
  steps.run([this] {
    BackPlane->setPixmap(QPixmap::fromImage(LoadPicture(fileInFolder(ResourcePath + QStringLiteral("graphics\\"), kFramePicture))));
  });
  steps.run([this] {
    DisplayView->setGeometry(QRect(framePosition() + kShotPlace, kShotSize));
    Backdrop->setGeometry(DisplayView->geometry());
  });
  steps.run([this] {
    btnStereo = frameButton(this, QStringLiteral("btnStereo"), QStringLiteral("Stereo"));
    btnComputer = frameButton(this, QStringLiteral("btnComputer"), QStringLiteral("Computer"));
    btnExit = frameButton(this, QStringLiteral("btnExit"), QStringLiteral("Exit"));
    btnLeft = frameButton(this, QStringLiteral("btnLeft"), QStringLiteral("Left"));
    btnRight = frameButton(this, QStringLiteral("btnRight"), QStringLiteral("Right"));
    const QPoint corner = framePosition();
    ElapsedTimeView->move(corner + QPoint(134, 16));
    Score->move(corner + QPoint(240, 31));
    btnStereo->move(corner + QPoint(331, 5));
    btnComputer->move(corner + QPoint(472, 2));
    btnExit->move(corner + QPoint(582, 6));
    btnLeft->move(corner + QPoint(7, 440));
    btnRight->move(corner + QPoint(579, 440));
    for (ImagePair* button : {btnStereo, btnComputer, btnExit, btnLeft, btnRight}) button->setUpVisible(true);
    // A move the database refuses to keep is told, and the game goes on; any other failure under
    // these buttons is a failure of the program.
    btnStereo->onAction = [this] { btnStereo_Action(); };
    btnComputer->onAction = [this] { TellingSaveFailures([this] { btnComputer_Action(); }); };
    btnExit->onAction = [] { btnExit_Action(); };
    btnLeft->onAction = [this] { TellingSaveFailures([this] { btnLeft_Action(); }); };
    btnRight->onAction = [this] { TellingSaveFailures([this] { btnRight_Action(); }); };
  });
  steps.run([this] {
    MeterAnim.Picture = WindowPixmap(QStringLiteral("Meter"));
    MeterAnim.Cols = kMeterCells;
  });
  steps.run([this] { MeterTimer.setEnabled(true); });
  steps.run([this] {
    const QPoint corner = framePosition();
    btnSetForm->move(corner);
    btnShotEdit->move(corner + QPoint(0, btnSetForm->height()));
    Save->move(corner + QPoint(btnSetForm->width(), 0));
  });
  steps.run([this] { TextWindow->setGeometry(QRect(framePosition() + QPoint(86, 442), QSize(468, 30))); });
  steps.run([this] {
    MsgBlaster1.onMessage = [this](int message, std::uint32_t param) { MsgBlaster1_Message(message, param); };
    MsgBlaster1.setWindow(this);
  });
  steps.run([this] {
    MMControl1.Notify = false;
    MMControl1.Wait = true;
    MMControl1.Shareable = false;
    MMControl1.DeviceType = QStringLiteral("Sequencer");
  });
}

QPoint ShotView::framePosition() const { return BackPlane->pos(); }

QRect ShotView::pictureOnScreen() const { return {DisplayView->mapToGlobal(QPoint(0, 0)), DisplayView->size()}; }

void ShotView::showText(const QString& text) { TextWindow->setText(text); }

QString ShotView::shownText() const { return TextWindow->text(); }

PictureClip& ShotView::spriteCels(i16 slot) {
  if (slot < 0 || slot >= static_cast<int>(SpriteCels.size()))
    throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("SpriteCels(%1)").arg(slot));
  return SpriteCels[static_cast<std::size_t>(slot)];
}

Timer& ShotView::spriteTimer(i16 slot) {
  if (slot < 0 || slot >= static_cast<int>(SpriteTimer.size()))
    throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("SpriteTimer(%1)").arg(slot));
  return *SpriteTimer[static_cast<std::size_t>(slot)];
}

void ShotView::paintOnPicture(const QPixmap& cel, int x, int y) { DisplayView->PaintPicture(cel, x, y); }

int ShotView::pictureWidth() const { return DisplayView->width(); }

const QPixmap& ShotView::picture() const { return DisplayView->Picture(); }

void ShotView::setGameClockRunning(bool running) { GameClock.setEnabled(running); }

void ShotView::SetScore(i16 score) {
  if (UserHasWonGame) {
    Score->setText(QStringLiteral("wise!"));
    MeterTimer.setInterval(3000);
    CurrentScore = 1;
    return;
  }
  CurrentScore = score;
  Score->setText(QString::number(score));
  // Scores are often set deep in a click's script, long before the event loop runs again.
  Score->repaint();
  const i16 distance = subI16(110, CurrentScore);
  // The platform rounds a half to the even neighbour, as nearbyint does in the default mode.
  MeterTimer.setInterval(static_cast<int>(std::nearbyint(distance / 120.0 * 1000 + 50)));
}

void ShotView::SetCursor(i16 number) { DisplayView->setMousePointer(number <= 100 ? number : 99); }

i16 ShotView::AddSprite() {
  if (nSpriteControls > 0) {
    const i16 index = nSpriteControls;
    SpriteCels.resize(static_cast<size_t>(index) + 1);
    auto timer = std::make_unique<Timer>("sprite timer");
    timer->onTick = [this, index] { spriteTick(index); };
    SpriteTimer.push_back(std::move(timer));
  }
  return nSpriteControls++;
}

void ShotView::ClearSprites() {
  SpriteTimer[0]->setEnabled(false);
  SpriteCels.resize(1);
  SpriteTimer.resize(1);
  nSpriteControls = 0;
}

void ShotView::SetBackdrop(const QString& name, bool force) {
  bool changed = false;
  if (name != m_currentBackdrop) {
    loadBackdrop(name);
    m_currentBackdrop = name;
    changed = true;
  }
  if (force || changed) DisplayView->setPicture(Backdrop->pixmap());
}

// The backdrop's load asks for the CD first and for the resource folder second, and can't be left:
// it runs until the picture loads. The setup form may move the tree, so each try starts from it.
void ShotView::loadBackdrop(const QString& name) {
  for (;;) {
    const QString folder = ResourcePath + QStringLiteral("graphics\\");
    try {
      Backdrop->setPixmap(QPixmap::fromImage(LoadPicture(fileInFolder(folder, name))));
      return;
    } catch (const RuntimeFailure& failure) {
      if (AskForCd(failure, folder + name) == Answer::Cancel) ShowSetup();
    }
  }
}

void ShotView::ElapsedTime_Timer() {
  if (!CurrentShot) return;
  if (CurrentShot->GoElapsedTime && !ModalOpen && !UserHasWonGame) {
    GameElapsedTime += 1.0f / 86400.0f;
    // Each minute of play goes into the player's row as it is played, so that a crash or a power cut
    // loses no more than the last one.
    if (++m_countedSeconds == kSecondsBetweenSaves) {
      m_countedSeconds = 0;
      keepPlayTime();
    }
  }
  ElapsedTimeView->setText(ElapsedTimeText(GameElapsedTime));
}

// The meter is no control: each cell is painted straight onto the frame, above the score, and is
// shown at once, also in the middle of a long script. Nothing holds it there but the next cell.
void ShotView::meterTick() {
  if (!m_windowActivated) return;
  const QPixmap cell = MeterAnim.GraphicCell(m_meterFrame);
  QPixmap frame = BackPlane->pixmap();
  QPainter painter(&frame);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.drawPixmap(kMeterPlace, cell);
  painter.end();
  BackPlane->setPixmap(frame);
  BackPlane->repaint(QRect(kMeterPlace, cell.size()));
  ++m_meterFrame;
  if (m_meterFrame > kMeterCells - 1) m_meterFrame = 0;
}

void ShotView::spriteTick(i16 index) {
  const auto sprite = RequireCurrentSet().GetSprite(index);
  if (!sprite) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("sprite %1").arg(index));
  sprite->NextFrame();
}

bool ShotView::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) m_windowActivated = true;
  return QWidget::event(event);
}

void ShotView::showView() {
  show();
  raise();
  activateWindow();
}

ShotView& TheShotView() {
  std::unique_ptr<ShotView>& view = theView();
  if (!view) {
    view = std::make_unique<ShotView>();
    view->loadWindow();
  }
  return *view;
}

bool ShotViewExists() { return theView() != nullptr; }

void UnloadShotView() { theView().reset(); }

}  // namespace fh
