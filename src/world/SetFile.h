#pragma once

#include <QString>

namespace fh {

class cShot;

// Reads the set file of this bare name from the database folder into a new CurrentSet, builds its
// sprites and this user's containers, and shows the user's shot. An empty name does nothing; a
// missing or short file is a run-time failure.
void LoadSet(const QString& fileName);

// Writes CurrentSet to the database folder as its name + ".set", replacing any old file, and gives
// each shot its row in table Shots.
void SaveSet();

// Gives a saved shot its row in table Shots, or finds the row it has.
void KeepShotsRowInLine(const cShot& shot);

}  // namespace fh
