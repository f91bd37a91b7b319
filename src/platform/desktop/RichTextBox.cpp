#include "platform/desktop/RichTextBox.h"

#include "platform/desktop/Fonts.h"

namespace fh {

RichTextBox::RichTextBox(const QString& name, QWidget* parent) : QPlainTextEdit(parent) {
  setObjectName(name);
  setReadOnly(true);
  setFrameShape(QFrame::NoFrame);
  setFont(ArialFont(9));
  setLineWrapMode(QPlainTextEdit::WidgetWidth);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  QPalette white = palette();
  white.setColor(QPalette::Base, Qt::white);
  white.setColor(QPalette::Text, Qt::black);
  setPalette(white);
}

void RichTextBox::setText(const QString& text) {
  setPlainText(text);
  moveCursor(QTextCursor::Start);
}

}  // namespace fh
