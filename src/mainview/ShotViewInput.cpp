#include "mainview/ShotView.h"

#include "game/GameState.h"
#include "game/Screens.h"
#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "platform/base/Ui.h"
#include "platform/desktop/PictureBox.h"
#include "world/SaveFailure.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <QKeyEvent>
#include <QLabel>

#include <exception>
#include <functional>

// How the pointer and the keyboard reach the game: the one mouse dispatcher, its two roads in, the
// hover test of the game clock, and the key that opens the setup.
namespace fh {

namespace {

// Held by the caller for as long as it works with it: a script line may end the set, and with it
// the shot that owns the hotspot.
std::shared_ptr<cHotSpot> hotSpotOfCurrentShot(i16 index) {
  std::shared_ptr<cHotSpot> hotspot = RequireCurrentShot().HotSpot(index);
  if (!hotspot) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("hotspot %1").arg(index));
  return hotspot;
}

enum class SaveFailures { Told, Silent };

// The silent nets of the mouse and of the game clock: whatever fails under them, the game's own
// failures and the standard library's alike, ends the work without a word and forgets the lit
// hotspot, which the next tick finds again. Two failures go on up to the guard above: the program's
// End, and a database file that went away, since nothing more can be kept in it.
void underSilentNet(i16& currentHotSpotIndex, SaveFailures saveFailures, const std::function<void()>& work) {
  try {
    work();
  } catch (const ProgramEnded&) {
    throw;
  } catch (const RuntimeFailure& failure) {
    currentHotSpotIndex = -1;
    if (IsLostDatabase(failure)) throw;
    // What the database refused to keep is no fault of the script, and the player must know it.
    if (saveFailures == SaveFailures::Told && IsSaveFailure(failure)) TellSaveFailed(failure);
  } catch (const std::exception&) {
    currentHotSpotIndex = -1;
  }
}

}  // namespace

// The only net under a clicked script: the rest of it is lost. A film asked for by the television
// ends here.
void ShotView::HandleMouse(int message, i16 x, i16 y) {
  underSilentNet(CurrentHotSpotIndex, SaveFailures::Told, [&] { handleMouseUnguarded(message, x, y); });
}

void ShotView::handleMouseUnguarded(int message, i16 x, i16 y) {
  if (!CurrentShot || message < message::kMouseMove || message > message::kRightUp) return;
  switch (message) {
    case message::kMouseMove:
      // The hit test waits for the next tick: a move costs two stores.
      m_mouseX = x;
      m_mouseY = y;
      return;
    case message::kLeftDown: {
      m_leftDown = true;
      if (GameMode != 1 || CurrentHotSpotIndex == -1) return;
      // The hotspot that the last tick lit fires, not the one under the click: a click within a
      // tick of arriving does nothing, and one in the moment of leaving still fires.
      const std::shared_ptr<cHotSpot> hotspot = hotSpotOfCurrentShot(CurrentHotSpotIndex);
      hotspot->LiteDown();
      hotspot->Fire();
      m_leftDown = false;
      // The script may have changed the shot: what lies under the click now lights, in silence.
      CurrentHotSpotIndex = RequireCurrentSet().CheckHotSpots(x, y);
      if (CurrentHotSpotIndex != -1) hotSpotOfCurrentShot(CurrentHotSpotIndex)->LiteUp(false);
      return;
    }
    case message::kLeftUp:
      m_leftDown = false;
      return;
    case message::kLeftDoubleClick:
      // In edit mode a double click opens the dialog of the hotspot under it; in play it does nothing.
      if (GameMode == 1) return;
      CurrentHotSpotIndex = RequireCurrentSet().CheckHotSpots(x, y);
      if (CurrentHotSpotIndex != -1) ShowHotSpotDialog();
      return;
    case message::kRightDown:
      // In edit mode a right press on a hotspot takes it up for sizing, one on empty ground draws a
      // new one there, and the right drag that follows gives it its size.
      if (GameMode == 0) {
        CurrentHotSpotIndex = RequireCurrentSet().CheckHotSpots(x, y);
        if (CurrentHotSpotIndex == -1) AddHotSpot(x, y);
        m_lastMouseX = x;
        m_lastMouseY = y;
      }
      m_rightDown = true;
      return;
    case message::kRightUp:
      // A right release with the left button down is ignored, so RightDown outlasts it. Edit mode's
      // sizing has always behaved so, and authors are used to it.
      if (!m_leftDown) m_rightDown = false;
      return;
  }
}

// The hook gives the position in the window as two 16-bit halves; the dispatcher wants it in the
// frame of DisplayView, like the picture's own messages.
void ShotView::MsgBlaster1_Message(int message, std::uint32_t param) {
  const std::uint32_t y = param / 65536;
  const std::uint32_t x = param - 65536 * y;
  HandleMouse(message, toI16(static_cast<int>(x) - DisplayView->x()), toI16(static_cast<int>(y) - DisplayView->y()));
}

// A hotspot index that went stale is healed by the next tick. A rollover whose write fails stays
// silent too: the tick comes 13 times a second, also behind a message box, and would tell it again
// at each entry.
void ShotView::GameClock_Timer() { underSilentNet(CurrentHotSpotIndex, SaveFailures::Silent, [this] { gameClockTick(); }); }

void ShotView::gameClockTick() {
  if (!CurrentShot) return;
  // The whole tick works on where the pointer was when it began.
  const i16 x = m_mouseX;
  const i16 y = m_mouseY;
  const i16 hit = RequireCurrentSet().CheckHotSpots(x, y);
  if (hit != CurrentHotSpotIndex) {
    // The hotspot left is told first, by its old index, while the shot may have changed since the
    // last tick; the count guards a shot without hotspots.
    if (CurrentHotSpotIndex != -1 && RequireCurrentShot().NumHotSpots > 0) hotSpotOfCurrentShot(CurrentHotSpotIndex)->LiteDown();
    CurrentHotSpotIndex = hit;
    if (CurrentHotSpotIndex != -1 && RequireCurrentShot().NumHotSpots > 0) hotSpotOfCurrentShot(CurrentHotSpotIndex)->LiteUp(true);
  }
  if (GameMode == 0 && CurrentHotSpotIndex != -1) editDragStep(x, y);
}

// In edit mode the tick moves the lit hotspot with a left drag and sizes it with a right one, both
// when both buttons are down. In the move the hotspot leads and its outline follows; in the sizing
// the outline leads and the hotspot takes its size. The tick's hit test comes first, so a drag
// faster than the tick can follow loses the hotspot.
void ShotView::editDragStep(i16 x, i16 y) {
  cHotSpot& hotspot = *hotSpotOfCurrentShot(CurrentHotSpotIndex);
  QLabel& outline = *Highlight.at(static_cast<std::size_t>(CurrentHotSpotIndex));
  if (m_leftDown) {
    hotspot.Left = addI16(hotspot.Left, subI16(x, m_lastMouseX));
    hotspot.Top = addI16(hotspot.Top, subI16(y, m_lastMouseY));
    outline.move(DisplayView->x() + hotspot.Left, DisplayView->y() + hotspot.Top);
  }
  if (m_rightDown) {
    const int width = outline.width() + (x - m_lastMouseX);
    const int height = outline.height() + (y - m_lastMouseY);
    // An outline pulled past its own corner is no size at all: the tick fails, and the rectangle
    // stays as it was until a new press takes it up.
    if (width < 0 || height < 0) throw RuntimeFailure(Failure::InvalidPropertyValue, QStringLiteral("Highlight(%1) size").arg(CurrentHotSpotIndex));
    outline.resize(width, height);
    hotspot.Width = toI16(outline.width());
    hotspot.Height = toI16(outline.height());
  }
  m_lastMouseX = x;
  m_lastMouseY = y;
}

// The character code is compared with "s" or "S", which is "s": a capital S does nothing, and the
// setup has always opened that way. For authors, F2 enters edit mode and leaves it again.
void ShotView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F2 && m_authoring) {
    guarded("edit mode", [this] { GameMode == 1 ? modeDebug() : EditOff(); });
    return;
  }
  const QString text = event->text();
  if (text.isEmpty() || text.at(0).unicode() != (u's' | u'S')) return;
  guarded("key press", [] { ShowSetup(); });
}

}  // namespace fh
