#pragma once

#include <QString>

#include <functional>

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
  // Ends the process with this exit code, from wherever it is, after the program's last acts.
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

// What the program does last, however it ends: just before the process goes, while the application
// and its devices still stand, each act runs once, the latest registered first. An act must not wait
// for the player, and a failure in one is passed over: the program is ending either way.
void atProgramEnd(std::function<void()> act);
// Runs the last acts registered so far and forgets them. Every Ui's quit that ends the process
// calls it first.
void runProgramEndActs();

}  // namespace fh
