#pragma once

#include "platform/base/Values.h"

#include <QString>

namespace fh {

// A fixture slot of the house as this user has it: its state and the object it holds, and what
// counts as wise for both. The set keeps one per container; conditions read it, and the container
// operations write it together with the user's row in the database.
struct cContainer {
  QString Name;
  i16 WiseState = 0;
  QString WiseObject;
  QString CurrentObject;
  i16 CurrentState = 0;
};

}  // namespace fh
