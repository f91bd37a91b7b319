#include "platform/CdPrompt.h"

#include "platform/Failure.h"

namespace fh {

Answer AskForCd() { return MsgBox(kInsertCdText, Buttons::OkCancel); }

void RetryWithCdPrompt(const std::function<void()>& step) {
  for (;;) {
    try {
      step();
      return;
    } catch (const RuntimeFailure&) {
      if (AskForCd() == Answer::Cancel) EndProgram();
    }
  }
}

}  // namespace fh
