#pragma once

#include "platform/base/Values.h"

#include <cstdint>

namespace fh {

class Database;

// The scales of the two halves of the score, taken over the house as a new player finds it.
struct ScoreBaselines {
  i16 stateADR = 0;   // CountOfName of ContainerDefaulStateADR
  i16 objectADR = 0;  // SumOfADR of ContainerDefaultObjectlADR
};

// The player's two sums: the objects chosen and the states set. Both fall to 0 when all is wise.
struct ScoreSums {
  float sumOfADR = 0;
  float countOfCurrentState = 0;
};

// Reads the baselines; a query that gives no row leaves its value as it was in `current`.
ScoreBaselines ReadScoreBaselines(Database& db, ScoreBaselines current);

// Reads the player's sums through SelectionScore and StateScore; a query with no row counts 0.
ScoreSums ReadScoreSums(Database& db, std::int32_t userId);

// The score: 100 for the house as it starts, 1 when every choice is wise, objects weighing 37 and
// states 63. It is not capped: a house worse than the start scores above 100. A baseline of 0 is a
// division by zero.
i16 ScoreFrom(const ScoreSums& sums, const ScoreBaselines& baselines);

}  // namespace fh
