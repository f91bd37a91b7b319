#include "startup/Splash.h"

#include "game/FixedPictures.h"
#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/desktop/Fonts.h"
#include "platform/desktop/ImagePair.h"
#include "platform/desktop/Pictures.h"
#include "platform/desktop/WindowArt.h"
#include "startup/Session.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

#include <memory>

namespace fh {

namespace {

constexpr int kPictureWidth = 640;
constexpr int kPictureHeight = 480;

// Qt doesn't tell the desktop's colour; this is the one the classic desktop shows by default.
const QColor kDesktopColour(0, 128, 128);

std::unique_ptr<Splash>& theSplash() {
  static std::unique_ptr<Splash> splash;
  return splash;
}

ImagePair* splashButton(QWidget* parent, const QString& name, const QString& pictures) {
  auto* pair = new ImagePair(name, parent);
  pair->setPictures(WindowPixmap(pictures + QStringLiteral("Up")), WindowPixmap(pictures + QStringLiteral("Down")));
  return pair;
}

QPixmap openingPicture(const QString& name) {
  // Both names go under the resource path as they stand; a missing picture stops the program.
  return QPixmap::fromImage(LoadPicture(ResourcePath + QStringLiteral("graphics\\") + name));
}

}  // namespace

Splash::Splash() {
  setObjectName(QStringLiteral("Splash"));
  setWindowTitle(QStringLiteral("Fernhollow"));
  setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
  QPalette desktop = palette();
  desktop.setColor(QPalette::Window, kDesktopColour);
  setPalette(desktop);
  setAutoFillBackground(true);

  BackPlane = new QLabel(this);
  BackPlane->setObjectName(QStringLiteral("BackPlane"));
  Image1 = new QLabel(this);
  Image1->setObjectName(QStringLiteral("Image1"));
  lblVersion = new QLabel(this);
  lblVersion->setObjectName(QStringLiteral("lblVersion"));
  lblVersion->resize(65, 17);
  lblVersion->setFont(ArialFont(9));

  // The pairs are hidden until the load step places them.
  btnDemo = splashButton(this, QStringLiteral("btnDemo"), QStringLiteral("SplashDemo"));
  btnStart = splashButton(this, QStringLiteral("btnStart"), QStringLiteral("SplashStart"));
  btnExit = splashButton(this, QStringLiteral("btnExit"), QStringLiteral("SplashExit"));
  // Demo is Start with another picture.
  btnStart->onAction = [] { StartGame(); };
  btnDemo->onAction = [] { StartGame(); };
  // Nothing is open to save here: EndGame has closed the database.
  btnExit->onAction = [] { EndProgram(); };
}

void Splash::Form_Load() {
  // Without a window manager a request for full screen is ignored, so the window takes the
  // screen's geometry itself.
  setGeometry(QGuiApplication::primaryScreen()->geometry());
  BackPlane->setGeometry((width() - kPictureWidth) / 2, (height() - kPictureHeight) / 2, kPictureWidth, kPictureHeight);

  BackPlane->setPixmap(openingPicture(kOpeningPicture));
  const QPixmap slide = openingPicture(kOpeningSlide);
  Image1->setPixmap(slide);
  Image1->resize(slide.size());

  const QPoint corner = BackPlane->pos();
  Image1->move(corner + QPoint(161, 134));
  btnDemo->move(corner + QPoint(85, 358));
  btnStart->move(corner + QPoint(263, 358));
  btnExit->move(corner + QPoint(441, 358));
  lblVersion->move(corner + QPoint(507, 160));

  for (ImagePair* button : {btnDemo, btnStart, btnExit}) button->setUpVisible(true);
  lblVersion->setText(QStringLiteral("Ver. %1.%2").arg(FH_VERSION_MAJOR).arg(FH_VERSION_MINOR));
}

void Splash::showSplash() {
  show();
  raise();
  activateWindow();
}

Splash& TheSplash() {
  std::unique_ptr<Splash>& splash = theSplash();
  if (!splash) {
    auto loaded = std::make_unique<Splash>();
    loaded->Form_Load();
    splash = std::move(loaded);
  }
  return *splash;
}

bool SplashExists() { return theSplash() != nullptr; }

void UnloadSplash() { theSplash().reset(); }

}  // namespace fh
