#include "platform/base/Ui.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

namespace fh {

namespace {

// The Ui of a program without windows (the tools, or the game before its application installs
// the desktop's): nobody is there to answer, so a message goes to the error stream and is taken as
// OK, an input box gives empty text, and a modal form counts as closed at once.
class HeadlessUi final : public Ui {
 public:
  Answer messageBox(const QString& text, Buttons, const QString& title, const QString& details) override {
    QTextStream err(stderr);
    err << title << ": " << text;
    if (!details.isEmpty()) err << " (" << details << ')';
    err << '\n';
    return Answer::Ok;
  }
  QString inputBox(const QString&, const QString&) override { return {}; }
  void selectAll(QLineEdit&) override {}
  void showModal(QWidget&) override {}
  void yield() override {
    if (QCoreApplication::instance()) QCoreApplication::processEvents();
  }
  void quit(int exitCode) override {
    runProgramEndActs();
    std::fflush(stdout);
    std::fflush(stderr);
    std::_Exit(exitCode);
  }
};

HeadlessUi headless;
Ui* current = nullptr;

std::vector<std::function<void()>>& programEndActs() {
  static std::vector<std::function<void()>> acts;
  return acts;
}

}  // namespace

Ui& ui() { return current ? *current : headless; }

Ui* setUi(Ui* replacement) { return std::exchange(current, replacement); }

Answer MsgBox(const QString& text, Buttons buttons, const QString& title, const QString& details) {
  return ui().messageBox(text, buttons, title.isEmpty() ? kAppTitle : title, details);
}

QString InputBox(const QString& prompt, const QString& title) {
  return ui().inputBox(prompt, title.isEmpty() ? kAppTitle : title);
}

void DoEvents() { ui().yield(); }

void atProgramEnd(std::function<void()> act) { programEndActs().push_back(std::move(act)); }

void runProgramEndActs() {
  const std::vector<std::function<void()>> acts = std::exchange(programEndActs(), {});
  for (auto act = acts.rbegin(); act != acts.rend(); ++act) {
    try {
      (*act)();
    } catch (...) {
      // Nobody is left to tell, and the process must end all the same.
    }
  }
}

}  // namespace fh
