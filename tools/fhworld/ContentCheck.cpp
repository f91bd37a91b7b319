#include "CheckParts.h"
#include "ConditionCheck.h"

#include "computer/CheckupPrintLayout.h"
#include "game/FixedPictures.h"
#include "platform/base/Failure.h"
#include "sound/MusicPieces.h"
#include "world/cShot.h"

#include <set>

namespace fh::fhworld {

namespace {

// The room that the screens give each text.
constexpr int kLongestFriendlyName = 30;
constexpr int kLongestHelpText = 450;
constexpr int kLongestObjectName = 40;
constexpr int kLongestObjectText = 170;
constexpr int kLongestDialog = 140;
constexpr int kLongestInfoTitle = 24;
constexpr int kLongestInfoText = 450;
constexpr int kLongestListItem = 24;
// The checkup's introduction on the computer says so.
constexpr int kCheckupQuestions = 35;

void checkLength(Problems& problems, const QString& where, const QString& what, const QString& text, int longest) {
  if (text.isEmpty()) {
    problems.add(where, QStringLiteral("its %1 is empty").arg(what));
  } else if (text.size() > longest) {
    problems.add(where, QStringLiteral("its %1 has %2 characters and doesn't fit: at most %3")
                            .arg(what).arg(text.size()).arg(longest));
  }
}

QString picture(const QString& file) { return QStringLiteral("Graphics/") + file; }
QString sound(const QString& file) { return QStringLiteral("Audio/") + file; }

}  // namespace

void checkContainers(CheckContext& context) {
  Problems& problems = context.problems;
  const WorldData& data = context.world.data;
  for (const QString& fault : data.databaseFaults) problems.add(QStringLiteral("database"), fault);
  for (const char* engineName : {"CleanAir", "HomeCheckup"}) {
    if (!context.world.container(QLatin1String(engineName))) {
      problems.add(QStringLiteral("containers"), QStringLiteral("the computer's screens set the container \"%1\", which the "
                                                                "world lacks").arg(QLatin1String(engineName)));
    }
  }
  for (const auto& [key, container] : data.containers) {
    const QString where = QStringLiteral("container %1").arg(container.name);
    checkLength(problems, where, QStringLiteral("friendly name"), container.friendlyName, kLongestFriendlyName);
    if (container.judgedByState() || container.judgedByObject()) {
      checkLength(problems, where, QStringLiteral("help text"), container.helpText.value_or(QString()), kLongestHelpText);
      checkLength(problems, where, QStringLiteral("state 1 verbage"), container.state1Verbage, kLongestFriendlyName);
      checkLength(problems, where, QStringLiteral("state 0 verbage"), container.state0Verbage, kLongestFriendlyName);
    }
    const auto objects = data.objectsByContainer.find(key);
    const int count = objects == data.objectsByContainer.end() ? 0 : static_cast<int>(objects->second.size());
    if (container.judgedByObject() && count < 2) {
      problems.add(where, QStringLiteral("it is judged by its object but offers %1 to choose from").arg(count));
    }
    if (objects == data.objectsByContainer.end()) continue;
    for (const ObjectRow& object : objects->second) {
      const QString objectWhere = QStringLiteral("object %1 of %2").arg(object.name, container.name);
      checkLength(problems, objectWhere, QStringLiteral("name"), object.name, kLongestObjectName);
      checkLength(problems, objectWhere, QStringLiteral("description"), object.description, kLongestObjectText);
      if (object.savingsInfo) checkLength(problems, objectWhere, QStringLiteral("savings text"), *object.savingsInfo, kLongestObjectText);
      if (!object.imageFile.isEmpty()) context.files.add(picture(object.imageFile), objectWhere);
    }
  }
}

void checkPictures(CheckContext& context) {
  Problems& problems = context.problems;
  WorldIndex& world = context.world;
  for (const SpriteRow& sprite : world.data.sprites) {
    const QString where = QStringLiteral("sprite %1").arg(sprite.name);
    if (world.set && !world.shot(sprite.shot)) {
      problems.add(where, QStringLiteral("it lives on the shot \"%1\", which is not in the set").arg(sprite.shot));
    }
    if (sprite.x < 0 || sprite.y < 0 || sprite.x >= kViewWidth || sprite.y >= kViewHeight) {
      problems.add(where, QStringLiteral("it stands outside the picture, at %1, %2").arg(sprite.x).arg(sprite.y));
    }
    if (sprite.looks.empty()) {
      problems.add(where, QStringLiteral("it has no cel source; the game says \"Sprite %1 does not exist!\"").arg(sprite.name));
    }
    for (const CelRow& look : sprite.looks) {
      checkConditions(look.condition, world, where, problems);
      context.files.add(picture(look.celSource), where);
      if (!look.sound.isEmpty() && !world.sounds.count(look.sound.toLower())) {
        problems.add(where, QStringLiteral("the sound \"%1\" is not loaded by the start-up script").arg(look.sound));
      }
    }
  }
  for (const BackdropRow& backdrop : world.data.backdrops) {
    const QString where = QStringLiteral("backdrop %1 of shot %2").arg(backdrop.id, backdrop.shot);
    if (world.set && !world.shot(backdrop.shot)) {
      problems.add(where, QStringLiteral("the shot \"%1\" is not in the set").arg(backdrop.shot));
    }
    context.files.add(picture(backdrop.imageSource), where);
  }
  if (!world.set) return;
  for (const auto& [name, shot] : world.shots) {
    bool plain = false;
    for (const BackdropRow& backdrop : world.data.backdrops) {
      plain = plain || (backdrop.shot.toLower() == name && backdrop.container.isEmpty());
    }
    if (!plain) {
      problems.add(QStringLiteral("shot %1").arg(shot->sName), QStringLiteral("it has no backdrop that shows whatever the "
                                                                       "fixtures' states (a VisualRegistry row without Container)"));
    }
  }
}

namespace {

// The shots whose scripts put the container right, by lower-cased name: they switch it, set it, open
// its choice screen or, for the computer's own containers, open the screen that sets it.
std::set<QString> shotsThatFix(const QString& key, const std::map<QString, ScriptEffects>& effectsByShot) {
  std::set<QString> shots;
  for (const auto& [shot, effects] : effectsByShot) {
    if (effects.containersToggled.count(key) || effects.statesSet.count(key) || effects.containersShown.count(key) ||
        effects.computerWords.count(key)) {
      shots.insert(shot);
    }
  }
  return shots;
}

bool conditionNames(const QString& condition, const QString& key) {
  for (const QString& line : condition.split(QStringLiteral("\r\n"))) {
    if (line.section(QLatin1Char(' '), 0, 0, QString::SectionSkipEmpty).toLower() == key) return true;
  }
  return false;
}

}  // namespace

// A fix the student can't see in the house is no fix to a child: every judged container has a
// backdrop row or a sprite look that depends on it on a shot where it is put right. A container that
// no script puts right is told by the way to win; any shot will do for it here.
void checkFixesShown(CheckContext& context, const std::map<QString, ScriptEffects>& effectsByShot) {
  const WorldIndex& world = context.world;
  for (const auto& [key, container] : world.data.containers) {
    if (!container.judgedByState() && !container.judgedByObject()) continue;
    const std::set<QString> fixedOn = shotsThatFix(key, effectsByShot);
    const auto onFixShot = [&](const QString& shot) { return fixedOn.empty() || fixedOn.count(shot.toLower()) > 0; };
    bool shown = false;
    for (const BackdropRow& backdrop : world.data.backdrops) {
      shown = shown || (backdrop.container.toLower() == key && onFixShot(backdrop.shot));
    }
    for (const SpriteRow& sprite : world.data.sprites) {
      for (const CelRow& look : sprite.looks) shown = shown || (onFixShot(sprite.shot) && conditionNames(look.condition, key));
    }
    if (shown) continue;
    QStringList shotNames;
    for (const QString& shot : fixedOn) shotNames << (world.shot(shot) ? world.shot(shot)->sName : shot);
    context.problems.add(QStringLiteral("container %1").arg(container.name),
                         QStringLiteral("its %1 all look the same%2: no backdrop row or sprite look there depends on it")
                             .arg(container.judgedByState() ? QStringLiteral("states") : QStringLiteral("objects"),
                                  shotNames.isEmpty() ? QString() : QStringLiteral(" on ") + shotNames.join(QStringLiteral(" or "))));
  }
}

void checkTexts(CheckContext& context) {
  Problems& problems = context.problems;
  for (const auto& [name, text] : context.world.data.dialogs) {
    checkLength(problems, QStringLiteral("dialog %1").arg(name), QStringLiteral("text"), text, kLongestDialog);
  }
  for (const auto& [name, box] : context.world.data.infoBoxes) {
    const QString where = QStringLiteral("info box %1").arg(name);
    checkLength(problems, where, QStringLiteral("title"), box.title, kLongestInfoTitle);
    checkLength(problems, where, QStringLiteral("text"), box.text, kLongestInfoText);
  }
}

void checkQuestions(CheckContext& context) {
  Problems& problems = context.problems;
  const std::vector<QuestionRow>& questions = context.world.data.questions;
  if (static_cast<int>(questions.size()) != kCheckupQuestions) {
    problems.add(QStringLiteral("home checkup"), QStringLiteral("it has %1 questions, but the computer tells the student there "
                                                                "are %2").arg(questions.size()).arg(kCheckupQuestions));
  }
  for (const QuestionRow& question : questions) {
    const QString numberText = CheckupNumberText(static_cast<i16>(question.number), static_cast<i16>(question.subNumber));
    const QString where = QStringLiteral("question %1").arg(numberText);
    try {
      CheckupLabel(numberText);
      CheckupTextLines(question.text);
    } catch (const RuntimeFailure&) {
      problems.add(where, QStringLiteral("it would stop the printout: a number of more than 3 characters, a text longer than "
                                         "50 characters without a blank within them, or more than 55 after the break"));
    }
    if (question.text.isEmpty()) problems.add(where, QStringLiteral("its text is empty"));
    if (question.answerStyle == 2 && question.listItems.isEmpty()) {
      problems.add(where, QStringLiteral("it is a list question with no items"));
    }
    for (const QString& item : question.listItems) {
      if (item.size() > kLongestListItem) {
        problems.add(where, QStringLiteral("the list item \"%1\" is longer than %2 characters").arg(item).arg(kLongestListItem));
      }
    }
  }
}

void checkSoundsAndFixedFiles(CheckContext& context) {
  for (const auto& [name, file] : context.world.sounds) {
    context.files.add(sound(file), QStringLiteral("sound %1").arg(name));
  }
  // The game's own sounds: hovering, clicking, and turning through the objects.
  for (const char* engineSound : {"liteup", "click", "switch"}) {
    if (!context.world.sounds.count(QLatin1String(engineSound))) {
      context.problems.add(QStringLiteral("StartUp script"),
                           QStringLiteral("it doesn't load the sound \"%1\", which the game plays itself").arg(QLatin1String(engineSound)));
    }
  }
  context.files.add(picture(kFramePicture), QStringLiteral("the main window's frame"));
  context.files.add(picture(kOpeningPicture), QStringLiteral("the opening screen"));
  for (const QString& slide : SlidePictures()) context.files.add(picture(slide), QStringLiteral("the screen saver"));
  for (const MusicStyle& style : kMusicStyles) {
    for (const MusicPiece& piece : style.pieces) {
      context.files.add(sound(QLatin1String(piece.file)), QStringLiteral("the stereo's %1 music").arg(QLatin1String(style.name)));
    }
  }
}

}  // namespace fh::fhworld
