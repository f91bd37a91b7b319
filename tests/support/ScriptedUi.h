#pragma once

#include "platform/base/Ui.h"

#include <QString>

#include <deque>
#include <functional>
#include <vector>

class QWidget;

namespace fh::test {

// What the program showed through the Ui.
struct Shown {
  enum class Kind { MessageBox, InputBox, Modal, SelectAll };
  Kind kind;
  QString text;   // the message or prompt; the object name of a modal form or text box
  QString title;
  Buttons buttons = Buttons::Ok;
  QString details{};  // a message box's folded-away details
};

// Thrown when the program ends through the Ui, so that the test goes on behind the call.
struct QuitCalled {
  int exitCode;
};

// A Ui that answers from a script and records what it was shown. Installed for its lifetime.
// Message boxes without a queued answer are answered OK; input boxes with empty text. A modal form
// needs a queued action (which must leave the form hidden): without one the test fails at once,
// since nobody would ever close it.
class ScriptedUi final : public Ui {
 public:
  explicit ScriptedUi(std::deque<Answer> answers = {});
  ~ScriptedUi() override;
  ScriptedUi(const ScriptedUi&) = delete;
  ScriptedUi& operator=(const ScriptedUi&) = delete;

  void queueAnswer(Answer answer) { m_answers.push_back(answer); }
  void queueInput(const QString& text) { m_inputs.push_back(text); }
  // What the "player" does while the next modal form is up.
  void queueModal(std::function<void(QWidget&)> action) { m_modals.push_back(std::move(action)); }

  // What else happens while a message box is up (the player puts the CD in...).
  std::function<void(const QString&)> onMessageBox;

  const std::vector<Shown>& shown() const { return m_shown; }
  std::vector<Shown> messageBoxes() const;
  int yields() const { return m_yields; }

  Answer messageBox(const QString& text, Buttons buttons, const QString& title, const QString& details) override;
  QString inputBox(const QString& prompt, const QString& title) override;
  void selectAll(QLineEdit& box) override;
  void showModal(QWidget& form) override;
  void yield() override;
  void quit(int exitCode) override;

 private:
  Ui* m_previous = nullptr;
  std::deque<Answer> m_answers;
  std::deque<QString> m_inputs;
  std::deque<std::function<void(QWidget&)>> m_modals;
  std::vector<Shown> m_shown;
  int m_yields = 0;
};

}  // namespace fh::test
