#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <memory>

class QWidget;

namespace fh {

// A printed document, laid out as the game's printouts are: text line by line from the top, in
// the printer's own unit, twips. It goes to the system's default printer with no dialog; where no
// printer is set up, it is saved as a PDF file in the player's documents folder instead.
//
// The text is set in a fixed-width font: the printouts line their columns up by counting
// characters. A page ends by itself when the text runs past its bottom. Anything the printer
// refuses is a Printer error failure.
class Printout {
 public:
  // The printer's queue shows the title; a document saved as a file takes it as its name, with
  // the characters that file names can't hold made blanks.
  explicit Printout(const QString& title);
  // A document that wasn't ended is thrown away.
  ~Printout();
  Printout(const Printout&) = delete;
  Printout& operator=(const Printout&) = delete;

  // The text at the current place; the place moves on behind it, on the same line.
  void Print(const QString& text);
  // Ends the line; on an empty line, leaves a blank line.
  void EndLine();
  // The top of the current line and the width of the page's printable area, in twips.
  double CurrentY() const;
  double ScaleWidth() const;
  void Line(double x1, double y1, double x2, double y2, const QColor& colour);
  // A picture of the window as it stands on the screen, at the size it has there, on the current line.
  void PrintWindow(QWidget& window);
  // Hands the document to the printer, or writes the file. Says where it went: the printer's name,
  // or the file's path when the page was saved.
  QString EndDoc();
  bool SavedAsFile() const;

 private:
  struct Page;
  std::unique_ptr<Page> m_page;
};

// The text of the last document ended, line by line as it was printed, blanks and all.
const QStringList& LastPrintoutText();

// From now on every printout is saved in this folder, and none reaches a printer; returns the
// folder used before, empty for the printer. Tests use it.
QString usePrintoutFolder(const QString& folder);

}  // namespace fh
