#pragma once

#include <QPlainTextEdit>

namespace fh {

// The rich text control as the game uses it: it shows a text as plain text, with its line breaks
// (CR LF, or either alone), wrapped at words and with a scroll bar when it runs long. The player can
// read and select the text, not change it.
class RichTextBox : public QPlainTextEdit {
 public:
  RichTextBox(const QString& name, QWidget* parent);

  QString Text() const { return toPlainText(); }
  void setText(const QString& text);
};

}  // namespace fh
