#include "CheckParts.h"

#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <deque>

namespace fh::fhworld {

namespace {

constexpr int kComputerScreensTop = 70;  // the computer's screens cover the Computer shot below this
constexpr int kLongestShotTitle = 40;
const QString kComputerShot = QStringLiteral("Computer");

bool knownCursor(int icon) { return (icon >= 0 && icon <= 15) || icon == 99 || icon > 100; }

void merge(ScriptEffects& into, const ScriptEffects& from) {
  into.shotsReached.insert(from.shotsReached.begin(), from.shotsReached.end());
  into.containersToggled.insert(from.containersToggled.begin(), from.containersToggled.end());
  into.containersShown.insert(from.containersShown.begin(), from.containersShown.end());
  into.computerWords.insert(from.computerWords.begin(), from.computerWords.end());
  for (const auto& [container, states] : from.statesSet) into.statesSet[container].insert(states.begin(), states.end());
}

void checkHotSpot(CheckContext& context, ScriptCheck& scripts, const cShot& shot, const cHotSpot& hotSpot,
                  ScriptEffects& effects) {
  const QString where = QStringLiteral("shot %1, hotspot %2").arg(shot.sName, hotSpot.Name);
  Problems& problems = context.problems;
  if (hotSpot.Name.isEmpty() || hotSpot.Name.contains(QLatin1Char(' '))) {
    problems.add(where, QStringLiteral("a hotspot needs a name of one word, for scripts to address it"));
  }
  if (hotSpot.Width < 2 || hotSpot.Height < 2) {
    problems.add(where, QStringLiteral("it is %1 by %2 pixels and can never be hit").arg(hotSpot.Width).arg(hotSpot.Height));
  }
  if (hotSpot.Left < 0 || hotSpot.Top < 0 || hotSpot.Left + hotSpot.Width > kViewWidth ||
      hotSpot.Top + hotSpot.Height > kViewHeight) {
    problems.add(where, QStringLiteral("it reaches outside the %1 by %2 picture").arg(kViewWidth).arg(kViewHeight));
  }
  if (shot.sName == kComputerShot && hotSpot.Top + hotSpot.Height > kComputerScreensTop) {
    problems.add(where, QStringLiteral("it reaches under the computer's screens, which cover the shot from %1 pixels "
                                       "down").arg(kComputerScreensTop));
  }
  if (!knownCursor(hotSpot.Icon)) problems.add(where, QStringLiteral("the cursor %1 is not one of the game's").arg(hotSpot.Icon));
  if (!hotSpot.Rollover.isEmpty()) merge(effects, scripts.checkRollover(hotSpot.Rollover, where, shot.sName));
  merge(effects, scripts.checkClick(hotSpot.ScriptLines, where, shot.sName));
}

void checkShot(CheckContext& context, ScriptCheck& scripts, const cShot& shot, ScriptEffects& effects) {
  const QString where = QStringLiteral("shot %1").arg(shot.sName);
  Problems& problems = context.problems;
  WorldIndex& world = context.world;
  if (shot.sName.isEmpty() || shot.sName.contains(QLatin1Char(' '))) {
    problems.add(where, QStringLiteral("a shot needs a name of one word, for scripts to go to it"));
  }
  const auto title = world.data.shotTitles.find(shot.sName.toLower());
  if (title == world.data.shotTitles.end() || title->second.isEmpty()) {
    problems.add(where, QStringLiteral("it has no friendly name in table Shots"));
  } else if (title->second.size() > kLongestShotTitle) {
    problems.add(where, QStringLiteral("its friendly name is longer than %1 characters").arg(kLongestShotTitle));
  }
  for (const QString& neighbour : {shot.ShotToLeft, shot.ShotToRight}) {
    if (!neighbour.isEmpty() && !world.shot(neighbour)) {
      problems.add(where, QStringLiteral("its neighbour \"%1\" is not in the set").arg(neighbour));
    }
  }
  if (shot.sName == kComputerShot) {
    if (!shot.ShotToLeft.isEmpty() || !shot.ShotToRight.isEmpty()) {
      problems.add(where, QStringLiteral("the arrows would leave a computer screen open over the house: the Computer "
                                         "shot has no neighbours"));
    }
  } else if (!shot.GoElapsedTime) {
    problems.add(where, QStringLiteral("play time doesn't count while it is shown"));
  }
  QStringList names;
  for (const auto& hotSpot : shot.hotSpots()) {
    if (names.contains(hotSpot->Name.toLower())) {
      problems.add(where, QStringLiteral("two hotspots are named %1; scripts reach only the first").arg(hotSpot->Name));
    }
    names << hotSpot->Name.toLower();
    checkHotSpot(context, scripts, shot, *hotSpot, effects);
  }
}

}  // namespace

std::map<QString, ScriptEffects> checkShots(CheckContext& context, ScriptCheck& scripts) {
  std::map<QString, ScriptEffects> effectsByShot;
  const cSet& set = *context.world.set;
  if (set.shots().empty()) context.problems.add(QStringLiteral("set %1").arg(set.sName), QStringLiteral("it has no shots"));
  QStringList names;
  for (const auto& shot : set.shots()) {
    if (names.contains(shot->sName.toLower())) {
      context.problems.add(QStringLiteral("shot %1").arg(shot->sName),
                           QStringLiteral("two shots have this name; a goto reaches only the last"));
    }
    names << shot->sName.toLower();
    checkShot(context, scripts, *shot, effectsByShot[shot->sName.toLower()]);
  }
  if (!context.world.shot(kComputerShot)) {
    context.problems.add(QStringLiteral("set %1").arg(set.sName),
                         QStringLiteral("it has no shot named \"Computer\", where the computer button leads"));
  }
  return effectsByShot;
}

void checkWayToWin(CheckContext& context, const std::map<QString, ScriptEffects>& effectsByShot) {
  const cSet& set = *context.world.set;
  if (set.shots().empty()) return;
  // The first shot is where a new player stands; the computer button leads to "Computer" from anywhere.
  std::set<QString> reached;
  std::deque<QString> next{set.shots().front()->sName.toLower(), kComputerShot.toLower()};
  ScriptEffects reachable;
  while (!next.empty()) {
    const QString name = next.front();
    next.pop_front();
    const cShot* shot = context.world.shot(name);
    if (!shot || !reached.insert(name).second) continue;
    const auto effects = effectsByShot.find(name);
    if (effects != effectsByShot.end()) {
      merge(reachable, effects->second);
      next.insert(next.end(), effects->second.shotsReached.begin(), effects->second.shotsReached.end());
    }
    next.push_back(shot->ShotToLeft.toLower());
    next.push_back(shot->ShotToRight.toLower());
  }
  for (const auto& shot : set.shots()) {
    if (!reached.count(shot->sName.toLower())) {
      context.problems.add(QStringLiteral("shot %1").arg(shot->sName), QStringLiteral("no way leads to it from the first shot"));
    }
  }

  for (const auto& [key, container] : context.world.data.containers) {
    const QString where = QStringLiteral("container %1").arg(container.name);
    if (container.judgedByObject() && !reachable.containersShown.count(key)) {
      context.problems.add(where, QStringLiteral("no script the player can reach opens its choice of objects, so the "
                                                 "house can't be won"));
    }
    if (!container.judgedByState()) continue;
    const int wise = *container.wiseState;
    const auto states = reachable.statesSet.find(key);
    bool canBeWise = (states != reachable.statesSet.end() && states->second.count(wise)) ||
                     (reachable.containersToggled.count(key) && (wise == 0 || wise == 1));
    // The computer's screens set these two themselves, to 1.
    if (key == QLatin1String("cleanair")) canBeWise = canBeWise || (wise == 1 && reachable.computerWords.count("cleanair"));
    if (key == QLatin1String("homecheckup")) canBeWise = canBeWise || (wise == 1 && reachable.computerWords.count("homecheckup"));
    if (!canBeWise) {
      context.problems.add(where, QStringLiteral("no script the player can reach puts it in its wise state %1, so the "
                                                 "house can't be won").arg(wise));
    }
  }
}

}  // namespace fh::fhworld
