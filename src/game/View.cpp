#include "game/View.h"

#include "platform/base/Failure.h"

namespace fh {

namespace {

GameView* current = nullptr;

}  // namespace

GameView& view() {
  if (!current) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("the main view"));
  return *current;
}

bool hasView() { return current != nullptr; }

void setView(GameView* view) { current = view; }

}  // namespace fh
