#pragma once

#include "NeededFiles.h"
#include "Problems.h"
#include "ScriptCheck.h"
#include "WorldIndex.h"

// The parts of a world check, each over one side of the world. They share the index of names, the
// list of problems and the list of needed files.
namespace fh::fhworld {

// The shot picture, in whose pixels hotspots and sprites are placed.
constexpr int kViewWidth = 632;
constexpr int kViewHeight = 390;

struct CheckContext {
  WorldIndex& world;
  Problems& problems;
  NeededFiles& files;
};

// Shots, neighbours and hotspots of the set with their scripts; what the scripts of each shot can
// do, by lower-cased shot name.
std::map<QString, ScriptEffects> checkShots(CheckContext& context, ScriptCheck& scripts);
// Whether every shot can be reached from the first, and every judged fixture put right.
void checkWayToWin(CheckContext& context, const std::map<QString, ScriptEffects>& effectsByShot);

// Containers and their objects, sprites and their looks, backdrops, texts, sounds, questions.
void checkContainers(CheckContext& context);
void checkPictures(CheckContext& context);
// Whether every judged fixture looks different when it is put right, on the shot where that is done.
void checkFixesShown(CheckContext& context, const std::map<QString, ScriptEffects>& effectsByShot);
void checkTexts(CheckContext& context);
void checkQuestions(CheckContext& context);
void checkSoundsAndFixedFiles(CheckContext& context);

// Plays a new player through a copy of the database: the house as it starts scores 100, each
// fixture put right alone lowers the score, and all of them put right score 1.
void checkScore(const QString& databaseFile, const WorldData& world, Problems& problems);

}  // namespace fh::fhworld
