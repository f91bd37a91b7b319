#include "platform/desktop/DesktopUi.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

namespace fh {

namespace {

// Ends a modal loop when its form hides itself, which is how the game's forms close.
class HideWatcher : public QObject {
 public:
  HideWatcher(QWidget& form, QEventLoop& loop) : m_loop(loop) { form.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Hide) m_loop.quit();
    return QObject::eventFilter(watched, event);
  }

 private:
  QEventLoop& m_loop;
};

}  // namespace

Answer DesktopUi::messageBox(const QString& text, Buttons buttons, const QString& title, const QString& details) {
  QMessageBox box(QMessageBox::NoIcon, title, text,
                  buttons == Buttons::OkCancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
  box.setDefaultButton(QMessageBox::Ok);
  // Messages carry names and texts of the world: markup in them is shown, not obeyed.
  box.setTextFormat(Qt::PlainText);
  if (!details.isEmpty()) box.setDetailedText(details);
  // Without a window manager nobody else gives the box the keyboard, and Enter would go elsewhere.
  box.show();
  box.raise();
  box.activateWindow();
  return box.exec() == QMessageBox::Cancel ? Answer::Cancel : Answer::Ok;
}

QString DesktopUi::inputBox(const QString& prompt, const QString& title) {
  QInputDialog box;
  box.setWindowTitle(title);
  box.setLabelText(prompt);
  box.setInputMode(QInputDialog::TextInput);
  return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

void DesktopUi::selectAll(QLineEdit& box) {
  box.home(false);
  box.end(true);
}

void DesktopUi::showModal(QWidget& form) {
  QPointer<QWidget> guard(&form);
  const Qt::WindowModality before = form.windowModality();
  if (form.isVisible()) form.hide();
  form.setWindowModality(Qt::ApplicationModal);
  QEventLoop loop;
  HideWatcher watcher(form, loop);
  QObject::connect(&form, &QObject::destroyed, &loop, &QEventLoop::quit);
  form.show();
  // A window shown again keeps its old place in the stack, which may be under a full-screen window
  // raised since; without a window manager nobody else brings it to the front.
  form.raise();
  form.activateWindow();
  if (guard && form.isVisible()) loop.exec(QEventLoop::DialogExec);
  if (guard) {
    form.removeEventFilter(&watcher);
    form.setWindowModality(before);
  }
}

void DesktopUi::yield() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

DesktopUi& desktopUi() {
  static DesktopUi instance;
  return instance;
}

void DesktopUi::quit(int exitCode) {
  // The program's End leaves every loop and window at once, nested modal loops included. Its last
  // acts run first, here, while the application still stands: no static object's destructor runs.
  runProgramEndActs();
  std::fflush(stdout);
  std::fflush(stderr);
  std::_Exit(exitCode);
}

}  // namespace fh
