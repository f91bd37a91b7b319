#include "world/SaveFailure.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Ui.h"
#include "world/cSet.h"
#include "world/cShot.h"

namespace fh {

bool IsSaveFailure(const RuntimeFailure& failure) { return failure.kind() == Failure::DatabaseFailure; }

bool IsLostDatabase(const RuntimeFailure& failure) { return failure.kind() == Failure::DatabaseFileNotFound; }

void TellSaveFailed(const RuntimeFailure& failure) {
  MsgBox(QStringLiteral("The game could not save your last change, so the house stays as it was saved before.\n\n") + failure.message());
  if (!CurrentSet) return;
  // The database may still be out of reach: then the house in memory is all there is.
  try {
    CurrentSet->reloadContainers();
    if (CurrentShot) CurrentShot->RefreshVisualElements(true);
  } catch (const RuntimeFailure&) {
  }
}

void TellingSaveFailures(const std::function<void()>& step) {
  try {
    step();
  } catch (const RuntimeFailure& failure) {
    if (!IsSaveFailure(failure)) throw;
    TellSaveFailed(failure);
  }
}

}  // namespace fh
