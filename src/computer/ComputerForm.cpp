#include "computer/ComputerForm.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Ui.h"
#include "platform/desktop/Printout.h"
#include "world/Dialogs.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QEvent>
#include <QTimer>

namespace fh {

namespace {

constexpr int kYields = 3;

}  // namespace

ComputerForm::ComputerForm(const QString& name, const QString& caption, i16 number)
    : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint), m_number(number) {
  setObjectName(name);
  setWindowTitle(caption);
  setFixedSize(630, 320);
  QPalette white = palette();
  white.setColor(QPalette::Window, Qt::white);
  setPalette(white);
  setAutoFillBackground(true);
}

// A screen shown again keeps its old place in the stack, under the main view; without a window
// manager nobody else brings it to the front and gives it the keyboard.
void ComputerForm::ShowAt(QPoint place) {
  move(place);
  show();
  raise();
  activateWindow();
}

// A message box or dialog that the game opens over the screen is no reason to come back over it.
void ComputerForm::Form_Deactivate() {
  if (Printing || QApplication::activeModalWidget()) return;
  for (int i = 0; i < kYields; ++i) DoEvents();
  if (ActiveComputerScreen != m_number || QApplication::activeModalWidget()) return;
  show();
  raise();
  activateWindow();
}

// The screen loses the keyboard also while it is being hidden, before the computer has taken its
// number back; the answer waits for the event loop, when the hiding is over.
bool ComputerForm::event(QEvent* event) {
  if (event->type() == QEvent::WindowDeactivate) {
    QTimer::singleShot(0, this, [this] {
      // Nothing that goes wrong here matters to the player: the screen simply stays where it is.
      try {
        Form_Deactivate();
      } catch (const RuntimeFailure&) {
      }
    });
  }
  return QDialog::event(event);
}

void ComputerForm::printTellingFailure(const std::function<void()>& print) {
  try {
    print();
  } catch (const RuntimeFailure& failure) {
    if (failure.kind() != Failure::PrinterError) throw;
    Printing = false;
    MsgBox(QStringLiteral("Nothing was printed: ") + failure.message());
  }
}

QString printoutTitle(const QString& what) {
  return what + QStringLiteral(" - ") + CurrentUserName + QStringLiteral(" - ") + QDate::currentDate().toString(Qt::ISODate);
}

void endPrintout(Printout& page) {
  const QString where = page.EndDoc();
  if (page.SavedAsFile()) ShowDialogString(QStringLiteral("No printer here: saved as ") + QDir::toNativeSeparators(where));
}

}  // namespace fh
