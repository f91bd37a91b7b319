#pragma once

// The course of a game, from Start on the opening screen to Exit on the main view. The program
// stays up behind the opening screen between games, so one run serves several players in turn.
namespace fh {

// Opens the database, logs a player in and brings up the world at the player's saved shot. A
// cancelled login goes back to the opening screen.
void StartGame();
// Shows the login form and, when a player was chosen, takes over what is kept for them.
bool LoginUser();
// Saves the play time, lets go of the world and the database, and shows the opening screen again.
void EndGame();

// EndGame without the opening screen: the film stopped, the play time written, the sounds, the world
// and the database let go. For an end of the program that comes from outside.
void closeGame();
// Whether a game is being played: its world is loaded from the end of StartGame to EndGame. Play time
// counts only then.
bool gameBeingPlayed();

}  // namespace fh
