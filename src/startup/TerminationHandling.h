#pragma once

namespace fh {

// Ends the program when it is asked to from outside (a shutdown, a logout, Ctrl+C, a closed
// terminal): a game being played is ended first as Exit ends it, so that the player's play time is
// kept; on the opening screen or at the login the program simply ends. Installed once, at start.
void handleTerminationRequests();

}  // namespace fh
