#include "platform/desktop/CdPrompt.h"

#include "platform/base/Failure.h"

namespace fh {

namespace {

// The loads of pictures, sounds and files put the design name of their file in these failures.
QString fileNamedBy(const RuntimeFailure& failure) {
  const bool aboutAFile = failure.kind() == Failure::FileNotFound || failure.kind() == Failure::InvalidPicture;
  return aboutAFile ? failure.detail() : QString();
}

}  // namespace

Answer AskForCd(const RuntimeFailure& failure, const QString& file) {
  const QString named = fileNamedBy(failure);
  const QString missing = named.isEmpty() ? file : named;
  const QString details = missing.isEmpty() ? QString() : QStringLiteral("Missing file: ") + missing;
  return MsgBox(kInsertCdText, Buttons::OkCancel, {}, details);
}

void RetryWithCdPrompt(const std::function<void()>& step, const QString& file) {
  for (;;) {
    try {
      step();
      return;
    } catch (const RuntimeFailure& failure) {
      if (AskForCd(failure, file) == Answer::Cancel) EndProgram();
    }
  }
}

}  // namespace fh
