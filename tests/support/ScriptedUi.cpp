#include "ScriptedUi.h"

#include <QLineEdit>
#include <QWidget>

#include <gtest/gtest.h>

#include <stdexcept>

namespace fh::test {

ScriptedUi::ScriptedUi(std::deque<Answer> answers) : m_previous(setUi(this)), m_answers(std::move(answers)) {}

ScriptedUi::~ScriptedUi() { setUi(m_previous); }

std::vector<Shown> ScriptedUi::messageBoxes() const {
  std::vector<Shown> boxes;
  for (const Shown& s : m_shown)
    if (s.kind == Shown::Kind::MessageBox) boxes.push_back(s);
  return boxes;
}

Answer ScriptedUi::messageBox(const QString& text, Buttons buttons, const QString& title, const QString& details) {
  m_shown.push_back({Shown::Kind::MessageBox, text, title, buttons, details});
  if (onMessageBox) onMessageBox(text);
  if (m_answers.empty()) return Answer::Ok;
  const Answer answer = m_answers.front();
  m_answers.pop_front();
  return answer;
}

QString ScriptedUi::inputBox(const QString& prompt, const QString& title) {
  m_shown.push_back({Shown::Kind::InputBox, prompt, title});
  if (m_inputs.empty()) return {};
  QString text = m_inputs.front();
  m_inputs.pop_front();
  return text;
}

void ScriptedUi::selectAll(QLineEdit& box) {
  m_shown.push_back({Shown::Kind::SelectAll, box.objectName(), {}});
  box.selectAll();
}

void ScriptedUi::showModal(QWidget& form) {
  m_shown.push_back({Shown::Kind::Modal, form.objectName(), form.windowTitle()});
  if (m_modals.empty()) {
    ADD_FAILURE() << "modal form " << form.objectName().toStdString() << " shown with no action queued";
    throw std::logic_error("unanswered modal form");
  }
  auto action = std::move(m_modals.front());
  m_modals.pop_front();
  form.show();
  action(form);
  EXPECT_FALSE(form.isVisible()) << "modal form " << form.objectName().toStdString() << " still up";
  form.hide();
}

void ScriptedUi::yield() { ++m_yields; }

void ScriptedUi::quit(int exitCode) { throw QuitCalled{exitCode}; }

}  // namespace fh::test
