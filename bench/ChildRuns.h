#pragma once

#include <QString>

#include <optional>

// Figures of a whole process: fhbench starts itself again in a child mode and measures the child.
namespace fh::bench {

// The child modes: "startup" starts the game and ends once its opening screen is shown, "empty"
// shows an empty window the same way (the floor of both figures), "walk" plays a session that shows
// every shot of the bundled world. Each child prints its peak resident size in bytes.
std::optional<int> RunChildMode(int argc, char** argv);

struct ChildRun {
  double seconds = 0;       // from the start of the process to its end
  double peakBytes = 0;     // its peak resident size
};
ChildRun LaunchChild(const QString& mode);

}  // namespace fh::bench
