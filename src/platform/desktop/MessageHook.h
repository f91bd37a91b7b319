#pragma once

#include <QObject>
#include <QPointer>

#include <cstdint>
#include <functional>

class QWidget;

namespace fh {

// The window messages that the game knows by number.
namespace message {
constexpr int kKeyDown = 256;
constexpr int kKeyUp = 257;
constexpr int kMouseMove = 512;
constexpr int kLeftDown = 513;
constexpr int kLeftUp = 514;
constexpr int kLeftDoubleClick = 515;
constexpr int kRightDown = 516;
constexpr int kRightUp = 517;
constexpr int kRightDoubleClick = 518;
constexpr int kMiddleDown = 519;
constexpr int kMiddleUp = 520;
constexpr int kMiddleDoubleClick = 521;
}  // namespace message

// Reports the messages that a window itself receives from the player: mouse moves, buttons and
// keys over the window's own surface. That surface is the window and its children without a window
// of their own, the images and labels (QLabel, ImagePair); a child of any other kind, like the main
// view's picture box, is a window of its own and takes its messages for itself. Keys are reported
// with the parameter 0. A mouse message's
// parameter holds the position in the window as two 16-bit halves, Y in the high one.
class MessageHook : public QObject {
 public:
  // Starts reporting the messages of this window; children it gains later are looked at when they
  // are first shown.
  void setWindow(QWidget* window);

  std::function<void(int message, std::uint32_t param)> onMessage;

  // The parameter of a mouse message at this position in the window. A pointer held outside the
  // window is reported at the nearest edge.
  static std::uint32_t positionParam(int x, int y);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void hook(QWidget* widget);

  QPointer<QWidget> m_window;
};

}  // namespace fh
