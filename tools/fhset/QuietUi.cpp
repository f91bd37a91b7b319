#include "QuietUi.h"

#include "platform/base/Failure.h"

namespace fh::fhset {

QuietUi::QuietUi() : m_previous(setUi(this)) {}

QuietUi::~QuietUi() { setUi(m_previous); }

Answer QuietUi::messageBox(const QString&, Buttons, const QString&, const QString&) {
  ++m_messageBoxes;
  return Answer::Ok;
}

QString QuietUi::inputBox(const QString&, const QString&) { return {}; }

void QuietUi::selectAll(QLineEdit&) {}

void QuietUi::showModal(QWidget&) {}

void QuietUi::yield() {}

void QuietUi::quit(int) { throw ProgramEnded(); }

}  // namespace fh::fhset
