#include "script/Television.h"

#include "game/GameState.h"
#include "game/View.h"
#include "script/ContainerState.h"
#include "world/Condition.h"
#include "world/Dialogs.h"

#include <array>

namespace fh {

namespace {

struct Channel {
  QLatin1StringView caption;
  QLatin1StringView film;
};

constexpr std::array<Channel, 4> kChannels{{
    {QLatin1StringView("You are watching the Student Interview"), QLatin1StringView("School.avi")},
    {QLatin1StringView("You are watching The Fernhollow Video"), QLatin1StringView("Fernhollow.avi")},
    {QLatin1StringView("You are watching News Channel 1"), QLatin1StringView("NewsClip.avi")},
    {QLatin1StringView("You are watching News Channel 2"), QLatin1StringView("NewsStory.avi")},
}};

constexpr i16 kLastChannel = static_cast<i16>(kChannels.size() - 1);
constexpr i16 kChannel1 = 1;

// The screen of the television stands at the same place in every shot that shows it.
constexpr i16 kScreenX = 297;
constexpr i16 kScreenY = 98;

}  // namespace

void ShowVideo(const QString& word) {
  if (EvalCondition(QStringLiteral("TV state 1")) != kTrue) return;
  const bool next = word == QLatin1StringView("next");
  const bool previous = word == QLatin1StringView("previous");
  if (!next && !previous) {
    view().PlayVideo(kScreenX, kScreenY, word);
    return;
  }
  // From the start the first "next" gives channel 1 and the first "previous" channel 3: channel 0
  // comes up only after a wrap.
  if (next) {
    TVChannel = addI16(TVChannel, 1);
    if (TVChannel == kLastChannel + 1) TVChannel = 0;
  } else {
    TVChannel = subI16(TVChannel, 1);
    if (TVChannel == -1) TVChannel = kLastChannel;
  }
  // TVChannel is a global: a value set from elsewhere outside the four channels shows nothing.
  if (TVChannel < 0 || TVChannel > kLastChannel) return;
  const Channel& channel = kChannels[static_cast<std::size_t>(TVChannel)];
  ShowDialogString(channel.caption);
  view().PlayVideo(kScreenX, kScreenY, channel.film);
  // Never reached while films are switched off: PlayVideo fails above, so nothing in the game sets
  // this container. Kept for the day films play again.
  if (TVChannel == kChannel1) SetContainer(QStringLiteral("ReedmarshVideo"), 1, false);
}

}  // namespace fh
