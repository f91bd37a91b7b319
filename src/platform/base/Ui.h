#pragma once

#include <QString>

class QLineEdit;
class QWidget;

namespace fh {

// The application's own title: message boxes without a title of their own show it.
inline const QString kAppTitle = QStringLiteral("Fernhollow");

enum class Buttons { Ok, OkCancel };
enum class Answer { Ok, Cancel };

// Everything that waits for the player or lets the event loop run goes through here: message and
// input boxes, modal forms, yields, keystrokes sent to a box, the end of the process. The desktop
// has its own Ui; tests install one that answers from a script and records what was shown.
class Ui {
 public:
  virtual ~Ui() = default;

  // `title` is never empty here: MsgBox puts in the application's title. `details`, when there are
  // any, stay folded away until the player asks for them.
  virtual Answer messageBox(const QString& text, Buttons buttons, const QString& title, const QString& details) = 0;
  // The text typed, or empty text when the box was cancelled.
  virtual QString inputBox(const QString& prompt, const QString& title) = 0;
  // The keystrokes "{Home}+{End}": caret to the start, then select to the end.
  virtual void selectAll(QLineEdit& box) = 0;
  // Shows the form modally. Returns once the form has hidden itself (or is gone); the event loop,
  // and with it every timer, runs meanwhile.
  virtual void showModal(QWidget& form) = 0;
  // Lets the event loop run once: repaints, timers and input that are waiting.
  virtual void yield() = 0;
  // Ends the process with this exit code, from wherever it is.
  virtual void quit(int exitCode) = 0;
};

// The Ui in use. Without one installed it is a Ui without windows, for the tools: messages go to
// the error stream. The game's application installs the desktop's at its start.
Ui& ui();
// Installs another Ui and returns the one it replaces; nullptr puts back the one without windows.
Ui* setUi(Ui* replacement);

// A message box in the program's terms: OK alone unless told, the application's title unless given
// one, and no details unless given some.
Answer MsgBox(const QString& text, Buttons buttons = Buttons::Ok, const QString& title = {}, const QString& details = {});
QString InputBox(const QString& prompt, const QString& title = {});
void DoEvents();

}  // namespace fh
