#include "startup/TerminationHandling.h"

#include "platform/base/Ui.h"
#include "platform/desktop/TerminationRequests.h"
#include "startup/Session.h"

namespace fh {

void handleTerminationRequests() {
  onTerminationRequest([] {
    // A computer screen that is open doesn't hold this up as it holds up Exit: nobody is there to close it.
    if (gameBeingPlayed()) closeGame();
    ui().quit(0);
  });
}

}  // namespace fh
