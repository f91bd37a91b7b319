#include "ScriptCheck.h"

#include "ConditionCheck.h"
#include "Problems.h"
#include "WorldIndex.h"

#include "platform/base/Failure.h"
#include "platform/base/Values.h"
#include "platform/files/FileNames.h"
#include "script/Commands.h"
#include "script/ScriptWords.h"
#include "world/cHotSpot.h"
#include "world/cShot.h"

#include <algorithm>

namespace fh::fhworld {

namespace {

constexpr int kLongestLine = 64;
constexpr int kMostSounds = 20;

const QStringList kComputerWords{"shutdown", "print", "howamidoing", "communitychalkboard", "cleanair", "homecheckup"};
const QStringList kScreenWords{"howamidoing", "cleanair", "homecheckup"};

}  // namespace

struct ScriptCheck::Run {
  QString where;
  QString shot;  // lower-cased shot the line runs on; empty when it can't be known
  bool startup = false;
  bool rollover = false;
  int lineNumber = 0;
  int openIf = 0;  // line of the `if` whose "endif" hasn't come yet
  ScriptEffects effects;

  QString place() const { return QStringLiteral("%1, line %2").arg(where).arg(lineNumber); }
};

ScriptCheck::ScriptCheck(WorldIndex& world, Problems& problems) : m_world(world), m_problems(problems) {}

void ScriptCheck::checkStartup(const QString& script) {
  Run run;
  run.where = QStringLiteral("StartUp script");
  run.startup = true;
  QStringList lines = script.split(QStringLiteral("\r\n"));
  for (int i = 0; i < lines.size(); ++i) {
    if (lines[i].contains(QLatin1Char('\n')) || lines[i].contains(QLatin1Char('\r'))) {
      m_problems.add(QStringLiteral("StartUp script, line %1").arg(i + 1),
                     QStringLiteral("a line break that is not CR LF joins lines into one"));
    }
    if (lines[i].size() > kLongestLine) {
      m_problems.add(QStringLiteral("StartUp script, line %1").arg(i + 1),
                     QStringLiteral("the line has %1 characters; a script line holds at most %2")
                         .arg(lines[i].size()).arg(kLongestLine));
    }
  }
  checkLines(lines, run);
  if (m_startSet.isEmpty()) {
    m_problems.add(run.where, QStringLiteral("no \"startset\" line names the set file, so no world is loaded"));
  }
  if (m_soundsLoaded > kMostSounds) {
    m_problems.add(run.where, QStringLiteral("it loads %1 sounds; the game holds at most %2, the rest are refused")
                                  .arg(m_soundsLoaded).arg(kMostSounds));
  }
}

ScriptEffects ScriptCheck::checkClick(const QStringList& lines, const QString& where, const QString& shot) {
  Run run;
  run.where = where;
  run.shot = shot.toLower();
  checkLines(lines, run);
  return run.effects;
}

ScriptEffects ScriptCheck::checkRollover(const QString& line, const QString& where, const QString& shot) {
  Run run;
  run.where = where + QStringLiteral(" rollover");
  run.shot = shot.toLower();
  run.rollover = true;
  run.lineNumber = 1;
  checkLine(line, run);
  return run.effects;
}

void ScriptCheck::checkLines(const QStringList& lines, Run& run) {
  for (const QString& line : lines) {
    ++run.lineNumber;
    if (!line.isEmpty()) checkLine(line, run);
  }
  if (run.openIf != 0) {
    m_problems.add(QStringLiteral("%1, line %2").arg(run.where).arg(run.openIf),
                   QStringLiteral("the if has no endif; when it is false the game says \"If block without EndIf\""));
  }
}

void ScriptCheck::checkLine(const QString& line, Run& run) {
  const QString where = run.place();
  const QString lower = line.toLower();
  if (lower == QLatin1String("endif")) {
    if (run.openIf == 0) m_problems.add(where, QStringLiteral("endif without an if"));
    run.openIf = 0;
    return;
  }
  if (lower.trimmed() == QLatin1String("endif")) {
    m_problems.add(where, QStringLiteral("an endif with blanks around it ends no block"));
    return;
  }
  const ScriptWords words(line);
  const QString& command = words.word(0);
  if (command.isEmpty()) {
    m_problems.add(where, QStringLiteral("the line begins with a blank, so it does nothing"));
    return;
  }
  const auto known = std::ranges::find_if(kScriptCommands, [&command](const ScriptCommand& entry) { return command == entry.word; });
  if (known == kScriptCommands.end()) {
    m_problems.add(where, QStringLiteral("\"%1\" is no command, so the line does nothing").arg(command));
    return;
  }
  int needed = known->fewestWords;
  if (command == QLatin1String("goto") && (words.word(1) == QLatin1String("set") || words.word(1) == QLatin1String("shot"))) {
    needed = 2;
  }
  if (words.count() < needed) {
    m_problems.add(where, QStringLiteral("\"%1\" needs at least %2 words; with fewer the line fails and ends the script")
                              .arg(command).arg(needed));
    return;
  }

  auto knownContainer = [&](const QString& name) -> const ContainerRow* {
    const ContainerRow* container = m_world.container(name);
    if (!container) m_problems.add(where, QStringLiteral("the container \"%1\" is not in the world").arg(name));
    return container;
  };
  auto optionWord = [&](int index, const char* option) {
    const QString& word = words.word(index);
    if (!word.isEmpty() && word != QLatin1String(option)) {
      m_problems.add(where, QStringLiteral("\"%1\" is not \"%2\" and counts as left out").arg(word, QLatin1String(option)));
    }
  };
  auto knownSound = [&](const QString& name) {
    if (!m_world.sounds.count(name)) {
      m_problems.add(where, QStringLiteral("the sound \"%1\" is not loaded by the start-up script").arg(name));
    }
  };
  auto spriteOnShot = [&](const QString& name) {
    if (name.isEmpty()) {
      m_problems.add(where, QStringLiteral("\"%1\" names no sprite").arg(command));
      return;
    }
    const auto sprite = m_world.sprites.find(name);
    if (sprite == m_world.sprites.end()) {
      m_problems.add(where, QStringLiteral("the sprite \"%1\" is not in the world").arg(name));
    } else if (!run.shot.isEmpty() && sprite->second->shot.toLower() != run.shot) {
      m_problems.add(where, QStringLiteral("the sprite \"%1\" lives on the shot %2, not on this one")
                                .arg(name, sprite->second->shot));
    }
  };

  if (run.rollover && (command == QLatin1String("if") || command == QLatin1String("showvideo"))) {
    m_problems.add(where, QStringLiteral("a rollover runs one line by itself: \"%1\" has no use there").arg(command));
  }

  if (command == QLatin1String("computer")) {
    const QString& word = words.word(1);
    if (!kComputerWords.contains(word)) {
      m_problems.add(where, QStringLiteral("\"computer %1\" does nothing; the words are %2").arg(word, kComputerWords.join(", ")));
      return;
    }
    if (kScreenWords.contains(word) && !run.shot.isEmpty() && run.shot != QLatin1String("computer")) {
      m_problems.add(where, QStringLiteral("it opens a computer screen over a shot of the house: go to the Computer shot first"));
    }
    run.effects.computerWords.insert(word);
  } else if (command == QLatin1String("if")) {
    if (run.openIf != 0) {
      m_problems.add(where, QStringLiteral("an if inside the if of line %1: blocks don't nest, and a false outer "
                                           "block would end at this block's endif").arg(run.openIf));
    }
    checkCondition(words.word(1) + QLatin1Char(' ') + words.word(2) + QLatin1Char(' ') + words.word(3), m_world, where, m_problems);
    run.openIf = run.lineNumber;
  } else if (command == QLatin1String("animatesprite") || command == QLatin1String("stopsprite")) {
    spriteOnShot(words.word(1));
  } else if (command == QLatin1String("setcontainer")) {
    const ContainerRow* container = knownContainer(words.word(1));
    try {
      const i16 state = CInt(words.word(2));
      if (container) run.effects.statesSet[container->name.toLower()].insert(state);
    } catch (const RuntimeFailure&) {
      m_problems.add(where, QStringLiteral("the state \"%1\" is not a whole number; the line fails").arg(words.word(2)));
    }
    optionWord(3, "refresh");
  } else if (command == QLatin1String("togglecontainer")) {
    if (const ContainerRow* container = knownContainer(words.word(1))) run.effects.containersToggled.insert(container->name.toLower());
    optionWord(2, "anim");
  } else if (command == QLatin1String("showdialog")) {
    const QString& name = words.word(1);
    if (!name.isEmpty() && !m_world.data.dialogs.count(name)) {
      m_problems.add(where, QStringLiteral("the dialog \"%1\" is not in table Dialogs").arg(name));
    }
  } else if (command == QLatin1String("showdialogstring")) {
    if (words.count() > 3) m_problems.add(where, QStringLiteral("only two words are shown; the rest are lost"));
  } else if (command == QLatin1String("showinfobox")) {
    const QString& name = words.word(1);
    if (!m_world.data.infoBoxes.count(name)) {
      m_problems.add(where, QStringLiteral("the info box \"%1\" is not in table InfoBoxes; it would say < NOT FOUND >").arg(name));
    }
  } else if (command == QLatin1String("showcontainer")) {
    if (const ContainerRow* container = knownContainer(words.word(1))) {
      if (m_world.objectWords(container->name).isEmpty()) {
        m_problems.add(where, QStringLiteral("the container %1 has no objects to choose from").arg(container->name));
      }
      run.effects.containersShown.insert(container->name.toLower());
    }
  } else if (command == QLatin1String("showvideo")) {
    if (!m_world.container(QStringLiteral("tv"))) {
      m_problems.add(where, QStringLiteral("the television needs the container \"TV\", which the world lacks"));
    }
    if (words.word(1).isEmpty()) m_problems.add(where, QStringLiteral("showvideo names neither next, previous nor a film"));
  } else if (command == QLatin1String("goto")) {
    const QString& kind = words.word(1);
    const QString& name = words.word(2);
    if (kind == QLatin1String("shot")) {
      if (m_world.set && !m_world.shot(name)) {
        m_problems.add(where, QStringLiteral("the shot \"%1\" is not in the set").arg(name));
      } else {
        run.effects.shotsReached.insert(name);
        run.shot = name;
      }
    } else if (kind == QLatin1String("set")) {
      if (!fileExists(m_world.databaseFolder + name)) {
        m_problems.add(where, QStringLiteral("the set file \"%1\" is not in the database folder").arg(name));
      }
      run.shot.clear();
    } else {
      m_problems.add(where, QStringLiteral("goto needs \"set\" or \"shot\"; \"%1\" does nothing").arg(kind));
    }
  } else if (command == QLatin1String("playlocal")) {
    knownSound(words.word(1));
    optionWord(2, "looped");
  } else if (command == QLatin1String("stoplocal")) {
    knownSound(words.word(1));
  } else if (command == QLatin1String("loadsound")) {
    if (!run.startup) {
      m_problems.add(where, QStringLiteral("sounds are loaded once, by the start-up script"));
      return;
    }
    const QString& name = words.word(2);
    if (name.isEmpty()) {
      m_problems.add(where, QStringLiteral("the sound has no name to play it by"));
    } else if (m_world.sounds.count(name)) {
      m_problems.add(where, QStringLiteral("the sound \"%1\" is loaded twice; the first one plays").arg(name));
    } else {
      m_world.sounds[name] = words.word(1);
    }
    ++m_soundsLoaded;
  } else if (command == QLatin1String("sethotspot")) {
    const QString& name = words.word(1);
    const cShot* shot = run.shot.isEmpty() ? nullptr : m_world.shot(run.shot);
    if (shot) {
      bool found = false;
      for (const auto& hotSpot : shot->hotSpots()) found = found || hotSpot->Name.toLower() == name;
      if (!found) {
        m_problems.add(where, QStringLiteral("the shot %1 has no hotspot \"%2\"; the game says \"Hotspot %2 not found in "
                                             "current shot.\"").arg(shot->sName, name));
      }
    }
    optionWord(2, "active");
  } else if (command == QLatin1String("startset")) {
    if (!run.startup) {
      m_problems.add(where, QStringLiteral("startset only counts in the start-up script"));
    } else if (words.word(1).isEmpty()) {
      m_problems.add(where, QStringLiteral("startset names no file"));
    } else {
      m_startSet = words.word(1);
    }
  }
}

}  // namespace fh::fhworld
