#pragma once

#include <QString>

// The script word `computer`: the in-game computer's screens, laid over the shot "Computer" without
// modality. ActiveComputerScreen tells which one is open: 0 none, 1 How Am I Doing, 3 Clean Air,
// 4 Home Checkup.
namespace fh {

// By the sub-word: "shutdown" closes the open screen, "print" prints it, "howamidoing", "cleanair"
// and "homecheckup" close it and open theirs, "communitychalkboard" closes it and opens nothing.
// Any other word, the empty one too, does nothing.
void ComputerCommand(const QString& subWord);

// Shuts the open screen down, and in every case leaves none open.
void CloseComputer();

}  // namespace fh
