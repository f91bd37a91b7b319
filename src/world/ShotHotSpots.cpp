#include "world/cShot.h"

#include "platform/base/Failure.h"
#include "platform/base/Ui.h"
#include "world/cHotSpot.h"

// The hotspots of a shot as a list: the hit test, and what the scripts and the editor do to it.
namespace fh {

namespace {

[[noreturn]] void NoSuchHotSpot(const cShot& shot, i16 index) {
  throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("hotspot %1 of shot '%2'").arg(index).arg(shot.sName));
}

std::size_t hotSpotSlot(const cShot& shot, i16 index) {
  if (index < 0 || index >= static_cast<int>(shot.HotSpots.size())) NoSuchHotSpot(shot, index);
  return static_cast<std::size_t>(index);
}

}  // namespace

void cShot::SetHotspotState(const QString& name, bool state) {
  const QString wanted = name.toLower();
  for (i16 i = 0; i < NumHotSpots; ++i) {
    if (HotSpot(i)->Name.toLower() != wanted) continue;
    HotSpots[i]->Enabled = state;
    return;
  }
  MsgBox(QStringLiteral("Hotspot ") + name + QStringLiteral(" not found in current shot."));
}

// Not the shifting of the set's shots: the last one fills the gap and the array keeps its size, so
// the order changes, and with it who wins an overlap and the order saved in the file. An index at or
// past the count, inside the slots, takes the last hotspot there, out of the count.
void cShot::DeleteHotSpot(i16 index) {
  const i16 last = subI16(NumHotSpots, 1);
  const std::size_t lastSlot = hotSpotSlot(*this, last);
  HotSpots[hotSpotSlot(*this, index)] = HotSpots[lastSlot];
  HotSpots[lastSlot].reset();
  NumHotSpots = last;
}

i16 cShot::AddHotSpot(i16 left, i16 top, i16 width, i16 height) {
  NumHotSpots = addI16(NumHotSpots, 1);
  HotSpots.resize(static_cast<std::size_t>(NumHotSpots) + 1);
  auto hotspot = std::make_shared<cHotSpot>();
  hotspot->Left = left;
  hotspot->Top = top;
  hotspot->Width = width;
  hotspot->Height = height;
  HotSpots[NumHotSpots - 1] = std::move(hotspot);
  return subI16(NumHotSpots, 1);
}

// Runs every tick of the game clock, so it looks at nothing but the rectangles. Both comparisons
// are strict: a point on an edge is outside, and a hotspot one pixel wide can't be hit.
i16 cShot::CheckHotSpots(i16 x, i16 y) const {
  for (i16 i = 0; i < NumHotSpots; ++i) {
    if (i >= static_cast<int>(HotSpots.size()) || !HotSpots[i]) NoSuchHotSpot(*this, i);
    const cHotSpot& spot = *HotSpots[i];
    // The far edges are 16-bit sums, both taken for every hotspot looked at: one that reaches past
    // 32767 is an overflow, not a wrap.
    const i16 right = addI16(spot.Left, spot.Width);
    const i16 bottom = addI16(spot.Top, spot.Height);
    if (x > spot.Left && x < right && y > spot.Top && y < bottom) return i;
  }
  return -1;
}

std::shared_ptr<cHotSpot> cShot::HotSpot(i16 index) const {
  if (index == -1 || NumHotSpots == 0) return nullptr;
  return HotSpots[hotSpotSlot(*this, index)];
}

}  // namespace fh
