#pragma once

namespace fh {

// The program's first steps: folders, settings, the resource tree, then the opening screen.
void Main();
// Works out DatabasePath, reads ResourcePath and PanBase, and asks for the resource tree until it is found.
void InitProgram();
// True when an ordinary file can be seen in the resource tree's "Graphics" folder. Never fails.
bool ResourcesPresent();

}  // namespace fh
