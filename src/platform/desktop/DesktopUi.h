#pragma once

#include "platform/base/Ui.h"

namespace fh {

// The Ui of the running program: Qt's dialogs and event loop.
class DesktopUi final : public Ui {
 public:
  Answer messageBox(const QString& text, Buttons buttons, const QString& title, const QString& details) override;
  QString inputBox(const QString& prompt, const QString& title) override;
  void selectAll(QLineEdit& box) override;
  void showModal(QWidget& form) override;
  void yield() override;
  void quit(int exitCode) override;
};

// The one DesktopUi.
DesktopUi& desktopUi();

}  // namespace fh
