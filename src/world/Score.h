#pragma once

#include "platform/base/Values.h"

#include <cstdint>
#include <optional>

namespace fh {

class Database;

// The scales of the two halves of the score, taken over the house as a new player finds it.
struct ScoreBaselines {
  i16 stateADR = 0;   // CountOfName of ContainerDefaulStateADR
  i16 objectADR = 0;  // SumOfADR of ContainerDefaultObjectlADR
};

// The player's two sums: the objects chosen and the states set. Both fall to 0 when all is wise.
// A sum whose query gave no row is missing.
struct ScoreSums {
  std::optional<float> sumOfADR;
  std::optional<float> countOfCurrentState;
};

// Reads the baselines; a query that gives no row leaves its value as it was in `current`.
ScoreBaselines ReadScoreBaselines(Database& db, ScoreBaselines current);

// Reads the player's sums through SelectionScore and StateScore.
ScoreSums ReadScoreSums(Database& db, std::int32_t userId);

// The score: 100 for the house as it starts, 1 when every choice is wise, objects weighing 37 and
// states 63. It is not capped: a house worse than the start scores above 100, and one past 32767
// is an overflow. A missing sum makes its half 0 without looking at the baseline; a baseline of 0
// under a sum that is there is a division by zero.
i16 ScoreFrom(const ScoreSums& sums, const ScoreBaselines& baselines);

}  // namespace fh
