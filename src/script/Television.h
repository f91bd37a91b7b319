#pragma once

#include <QString>

// The television of the house: four channels, stepped by the script word `showvideo`. The set is on
// while the container "TV" stands in state 1; every world that uses the word must have that container.
namespace fh {

// "next" and "previous" step TVChannel round the four channels, show the channel's caption and
// play its film; any other word is a film of that name, with no caption. With the set off nothing
// happens at all. Films are switched off, so a call that gets as far as the film fails there, and
// the rest of the script that asked for it is lost.
void ShowVideo(const QString& word);

}  // namespace fh
