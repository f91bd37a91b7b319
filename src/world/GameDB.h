#pragma once

#include "platform/Database.h"
#include "platform/Failure.h"
#include "startup/Globals.h"

namespace fh {

// The open game database; reaching for it before the game has opened it is "Object variable not set".
inline Database& RequireGameDB() {
  if (!GameDB) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("GameDB"));
  return *GameDB;
}

}  // namespace fh
