#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace fh {

// A small tool window of edit mode: dark teal, with its controls at fixed places given in twips.
// Each time it comes up it places itself over the shot's picture and fills itself anew from the
// world (Form_Activate). There is no cancel: neither Escape nor a window manager's close takes it
// away, only its own buttons, which hide it. It is never deleted, so it keeps what it holds from
// one opening to the next.
class AuthoringForm : public QDialog {
 public:
  AuthoringForm(const QString& name, const QString& caption, int widthTwips, int heightTwips);

  // Escape: nothing. Every way out goes through a button that applies the boxes.
  void reject() override {}
  // Coming up, the form is placed and activated before its window is shown, so that a form that
  // hides itself in Form_Activate never reaches the screen. (A window hidden from within its own
  // show event stays on the screen.)
  void setVisible(bool visible) override;

 protected:
  // Fills the controls from the world; may hide the form, which then doesn't come up.
  virtual void Form_Activate() = 0;

  void closeEvent(QCloseEvent* event) override;

  // The controls as the forms make them: named, at their place in twips on `parent`, the form or
  // one of its frames.
  template <class Control>
  static Control* placed(Control* control, const char* name, const QRect& place) {
    control->setObjectName(QString::fromLatin1(name));
    control->setGeometry(place);
    return control;
  }
  static QLabel* addLabel(QWidget* parent, const char* name, const QString& caption, const QRect& place);
  static QLineEdit* addTextBox(QWidget* parent, const char* name, const QRect& place);
  // A button of the form whose click runs `click`; OK is made the default button, which Enter presses.
  QPushButton* addButton(const char* name, const QString& caption, const QRect& place, std::function<void()> click);

  // A box for a name, which must not hold a blank: a change that brings one in puts `previousName`
  // back, any other change is kept in `previousName`. Filling the box in Form_Activate is a change
  // like any other, so a name that already holds a blank (a shot named through the Add box, or one
  // read from a file) shows as the name before it, and OK gives the object that one.
  void refuseBlanks(QLineEdit* box, QString& previousName);

 private:
  bool m_hiddenWhileActivating = false;
};

}  // namespace fh
