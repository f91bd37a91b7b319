#include "platform/desktop/MessageHook.h"

#include "platform/base/Guard.h"
#include "platform/desktop/ImagePair.h"

#include <QChildEvent>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>

namespace fh {

namespace {

bool windowless(const QWidget* widget) {
  return qobject_cast<const QLabel*>(widget) != nullptr || dynamic_cast<const ImagePair*>(widget) != nullptr;
}

int buttonMessage(Qt::MouseButton button, int left, int right, int middle) {
  switch (button) {
    case Qt::LeftButton: return left;
    case Qt::RightButton: return right;
    case Qt::MiddleButton: return middle;
    default: return 0;  // buttons the game has no message for
  }
}

int messageOf(const QEvent& event) {
  using namespace message;
  switch (event.type()) {
    case QEvent::MouseMove: return kMouseMove;
    case QEvent::MouseButtonPress:
      return buttonMessage(static_cast<const QMouseEvent&>(event).button(), kLeftDown, kRightDown, kMiddleDown);
    case QEvent::MouseButtonRelease:
      return buttonMessage(static_cast<const QMouseEvent&>(event).button(), kLeftUp, kRightUp, kMiddleUp);
    case QEvent::MouseButtonDblClick:
      return buttonMessage(static_cast<const QMouseEvent&>(event).button(), kLeftDoubleClick, kRightDoubleClick,
                           kMiddleDoubleClick);
    case QEvent::KeyPress: return kKeyDown;
    case QEvent::KeyRelease: return kKeyUp;
    default: return 0;
  }
}

}  // namespace

void MessageHook::setWindow(QWidget* window) {
  m_window = window;
  hook(window);
}

// A message reaches the window's surface once: children of either kind keep what they ignore, so
// that nothing travels on to the window and is reported a second time, or at all for a child with a
// window of its own.
void MessageHook::hook(QWidget* widget) {
  widget->installEventFilter(this);
  widget->setMouseTracking(true);
  for (QObject* object : widget->children()) {
    auto* child = qobject_cast<QWidget*>(object);
    if (!child) continue;
    child->setAttribute(Qt::WA_NoMousePropagation);
    if (windowless(child)) hook(child);
  }
}

std::uint32_t MessageHook::positionParam(int x, int y) {
  const auto half = [](int value) { return static_cast<std::uint32_t>(std::clamp(value, 0, 32767)); };
  return half(y) * 65536u + half(x);
}

bool MessageHook::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ChildPolished && watched == m_window) {
    auto* child = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child());
    if (child && !child->testAttribute(Qt::WA_NoMousePropagation)) {
      child->setAttribute(Qt::WA_NoMousePropagation);
      if (windowless(child)) hook(child);
    }
    return false;
  }
  const int number = messageOf(*event);
  if (number == 0 || !onMessage || !m_window) return false;
  // A key goes to the focus first and on to the window when the focus lets it pass, as an image or
  // a label always does: it is reported at the window, once, whichever part of it has the focus.
  if (number < message::kMouseMove && watched != m_window) return false;
  std::uint32_t param = 0;
  if (number >= message::kMouseMove) {
    auto* widget = static_cast<QWidget*>(watched);
    const QPoint inWindow = widget->mapTo(m_window, static_cast<QMouseEvent*>(event)->position().toPoint());
    param = positionParam(inWindow.x(), inWindow.y());
  }
  guarded("window messages", [this, number, param] { onMessage(number, param); });
  return false;
}

}  // namespace fh
