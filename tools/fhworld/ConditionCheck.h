#pragma once

#include <QString>

namespace fh::fhworld {

class Problems;
struct WorldIndex;

// Tells what keeps one condition ("<container> <keyword> <value>") from being evaluated as meant.
void checkCondition(const QString& condition, const WorldIndex& world, const QString& where, Problems& problems);

// The same for a condition text of several lines (CR LF between them), all of which must hold.
void checkConditions(const QString& conditions, const WorldIndex& world, const QString& where, Problems& problems);

}  // namespace fh::fhworld
