#include "platform/Ui.h"

#include "platform/DesktopUi.h"

namespace fh {

namespace {

DesktopUi& desktopUi() {
  static DesktopUi instance;
  return instance;
}

Ui* current = nullptr;

}  // namespace

Ui& ui() { return current ? *current : desktopUi(); }

Ui* setUi(Ui* replacement) { return std::exchange(current, replacement); }

Answer MsgBox(const QString& text, Buttons buttons, const QString& title, const QString& details) {
  return ui().messageBox(text, buttons, title.isEmpty() ? kAppTitle : title, details);
}

QString InputBox(const QString& prompt, const QString& title) {
  return ui().inputBox(prompt, title.isEmpty() ? kAppTitle : title);
}

void DoEvents() { ui().yield(); }

}  // namespace fh
