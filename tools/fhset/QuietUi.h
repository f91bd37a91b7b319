#pragma once

#include "platform/base/Ui.h"

namespace fh::fhset {

// A Ui for tools: nobody is there to answer, so message boxes are only counted and answered OK.
// Installed for its lifetime.
class QuietUi final : public Ui {
 public:
  QuietUi();
  ~QuietUi() override;
  QuietUi(const QuietUi&) = delete;
  QuietUi& operator=(const QuietUi&) = delete;

  int messageBoxes() const { return m_messageBoxes; }

  Answer messageBox(const QString& text, Buttons buttons, const QString& title, const QString& details) override;
  QString inputBox(const QString& prompt, const QString& title) override;
  void selectAll(QLineEdit& box) override;
  void showModal(QWidget& form) override;
  void yield() override;
  void quit(int exitCode) override;

 private:
  Ui* m_previous = nullptr;
  int m_messageBoxes = 0;
};

}  // namespace fh::fhset
