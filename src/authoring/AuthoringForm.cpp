#include "authoring/AuthoringForm.h"

#include "game/View.h"
#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/desktop/Fonts.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace fh {

namespace {

const QColor kDarkTeal(0, 64, 64);

}  // namespace

AuthoringForm::AuthoringForm(const QString& name, const QString& caption, int widthTwips, int heightTwips)
    : QDialog(nullptr, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
  setObjectName(name);
  setWindowTitle(caption);
  setFixedSize(twipsToPixels(widthTwips), twipsToPixels(heightTwips));
  setFont(ArialFont(8.25));
  // The captions stand in white on the teal; the boxes keep their own white ground.
  QPalette colours = palette();
  colours.setColor(QPalette::Window, kDarkTeal);
  colours.setColor(QPalette::WindowText, Qt::white);
  setPalette(colours);
  setAutoFillBackground(true);
}

// Without a window manager nobody else places the form; the main view may have moved since the
// last opening, so it is placed every time.
void AuthoringForm::setVisible(bool visible) {
  if (!visible) m_hiddenWhileActivating = true;  // for the activation under way, if there is one
  if (!visible || isVisible()) {
    QDialog::setVisible(visible);
    return;
  }
  m_hiddenWhileActivating = false;
  guarded(objectName().toLatin1().constData(), [this] {
    const QRect picture = view().pictureOnScreen();
    move(picture.x() + (picture.width() - width()) / 2, picture.y() + (picture.height() - height()) / 2);
    Form_Activate();
  });
  if (!m_hiddenWhileActivating) QDialog::setVisible(true);
}

void AuthoringForm::closeEvent(QCloseEvent* event) { event->ignore(); }

QLabel* AuthoringForm::addLabel(QWidget* parent, const char* name, const QString& caption, const QRect& place) {
  auto* label = placed(new QLabel(caption, parent), name, place);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return label;
}

QLineEdit* AuthoringForm::addTextBox(QWidget* parent, const char* name, const QRect& place) {
  return placed(new QLineEdit(parent), name, place);
}

QPushButton* AuthoringForm::addButton(const char* name, const QString& caption, const QRect& place, std::function<void()> click) {
  auto* button = placed(new QPushButton(caption, this), name, place);
  button->setAutoDefault(false);
  button->setDefault(button->objectName() == QLatin1StringView("btnOK"));
  connect(button, &QPushButton::clicked, this, [name, click = std::move(click)] { guarded(name, click); });
  return button;
}

void AuthoringForm::refuseBlanks(QLineEdit* box, QString& previousName) {
  connect(box, &QLineEdit::textChanged, this, [box, &previousName](const QString& text) {
    guarded("name box", [box, &previousName, &text] {
      if (!text.contains(u' ')) {
        previousName = text;
        return;
      }
      // The caret goes back to where it stood before the blank came in.
      const int caret = box->cursorPosition() - static_cast<int>(text.size() - previousName.size());
      box->setText(previousName);
      box->setCursorPosition(std::max(caret, 0));
    });
  });
}

}  // namespace fh
