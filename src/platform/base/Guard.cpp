#include "platform/base/Guard.h"

#include "platform/base/Failure.h"
#include "platform/base/Ui.h"

#include <QString>

namespace fh {

QString failureReport(int number, const QString& message, const char* where) {
  return QStringLiteral("Run-time error '%1':\n\n%2\n\nThe program stops here (%3).")
      .arg(number)
      .arg(message, QString::fromUtf8(where));
}

void guarded(const char* where, const std::function<void()>& handler) {
  try {
    handler();
    return;
  } catch (const ProgramEnded&) {
    ui().quit(0);
    return;
  } catch (const RuntimeFailure& failure) {
    MsgBox(failureReport(failure.number(), failure.message(), where));
  } catch (const std::exception& other) {
    MsgBox(failureReport(51, QStringLiteral("Internal error: %1").arg(QString::fromUtf8(other.what())), where));
  }
  ui().quit(1);
}

}  // namespace fh
