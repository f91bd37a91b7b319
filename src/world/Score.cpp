#include "world/Score.h"

#include "platform/base/Failure.h"
#include "platform/data/Database.h"

#include <cmath>

namespace fh {

namespace {

// Reads one column of the first row of a saved query, or nothing when it has no row.
template <typename Read>
void readFirstRow(QueryDef& query, Read read) {
  Recordset rows = query.OpenRecordset();
  if (!rows.IsEOF()) read(rows);
  rows.Close();
}

// A half whose query gave no row is 0, and its baseline is never divided by.
float half(i16 baseline, std::optional<float> sum) {
  if (!sum) return 0;
  if (baseline == 0) throw RuntimeFailure(Failure::DivisionByZero, QStringLiteral("score baseline"));
  // The factor is a double, the product is kept in single precision, as the score always was.
  return static_cast<float>((99.0 / baseline) * *sum);
}

}  // namespace

ScoreBaselines ReadScoreBaselines(Database& db, ScoreBaselines current) {
  QueryDef state = db.QueryDefs(QStringLiteral("ContainerDefaulStateADR"));
  readFirstRow(state, [&](Recordset& row) { current.stateADR = row.Field(QStringLiteral("CountOfName")).toI16(); });
  state.Close();
  QueryDef object = db.QueryDefs(QStringLiteral("ContainerDefaultObjectlADR"));
  readFirstRow(object, [&](Recordset& row) { current.objectADR = row.Field(QStringLiteral("SumOfADR")).toI16(); });
  object.Close();
  return current;
}

ScoreSums ReadScoreSums(Database& db, std::int32_t userId) {
  ScoreSums sums;
  QueryDef selection = db.QueryDefs(QStringLiteral("SelectionScore"));
  selection.SetParameter(QStringLiteral("SelectUserID"), userId);
  readFirstRow(selection, [&](Recordset& row) { sums.sumOfADR = row.Field(QStringLiteral("SumOfADR")).toSingle(); });
  selection.Close();
  QueryDef state = db.QueryDefs(QStringLiteral("StateScore"));
  state.SetParameter(QStringLiteral("SelectUserID"), userId);
  readFirstRow(state, [&](Recordset& row) {
    sums.countOfCurrentState = row.Field(QStringLiteral("CountOfCurrentState")).toSingle();
  });
  state.Close();
  return sums;
}

i16 ScoreFrom(const ScoreSums& sums, const ScoreBaselines& baselines) {
  const float selectionPart = half(baselines.objectADR, sums.sumOfADR);
  const float statePart = half(baselines.stateADR, sums.countOfCurrentState);
  // The sum is narrowed to 16 bits only after the 1 is added; it is whole already.
  return CInt(std::floor(selectionPart * 0.37 + statePart * 0.63 + 0.5) + 1);
}

}  // namespace fh
