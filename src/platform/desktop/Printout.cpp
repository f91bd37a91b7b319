#include "platform/desktop/Printout.h"

#include "platform/base/Failure.h"

#include <QDir>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QWidget>

namespace fh {

namespace {

constexpr double kTwipsPerInch = 1440.0;
constexpr double kPrintPoints = 9;
constexpr double kSavedPageMargin = 15;  // millimetres

QString& printoutFolder() {
  static QString folder;
  return folder;
}

QStringList& lastText() {
  static QStringList lines;
  return lines;
}

[[noreturn]] void printerError(const QString& what) { throw RuntimeFailure(Failure::PrinterError, what); }

QString fileNameFor(const QString& title) {
  static const QRegularExpression forbidden(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]"));
  return QString(title).replace(forbidden, QStringLiteral(" ")).trimmed() + QStringLiteral(".pdf");
}

QFont fixedWidthFont() {
  QFont font(QStringLiteral("Liberation Mono"));
  font.setFamilies({QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Monospace")});
  font.setStyleHint(QFont::Monospace);
  font.setPointSizeF(kPrintPoints);
  return font;
}

}  // namespace

struct Printout::Page {
  QPrinter printer{QPrinter::HighResolution};
  QPainter painter;
  QString savedPath;  // empty when the document goes to a printer
  double x = 0;       // the current place, in the printer's pixels
  double y = 0;
  bool ended = false;
  QStringList lines;  // what was printed, as text
  QString line;

  double pixelsToTwips(double pixels) const { return pixels * kTwipsPerInch / printer.resolution(); }
  double twipsToPixels(double twips) const { return twips * printer.resolution() / kTwipsPerInch; }
  QRectF paintRect() const { return printer.pageLayout().paintRectPixels(printer.resolution()); }
  double lineHeight() const { return QFontMetricsF(painter.font(), &printer).lineSpacing(); }
  void newPageIfFull() {
    if (y + lineHeight() <= paintRect().height()) return;
    if (!printer.newPage()) printerError(QStringLiteral("a new page"));
    x = 0;
    y = 0;
  }
};

Printout::Printout(const QString& title) : m_page(std::make_unique<Page>()) {
  QPrinter& printer = m_page->printer;
  const QPrinterInfo systemPrinter = QPrinterInfo::defaultPrinter();
  if (printoutFolder().isEmpty() && !systemPrinter.isNull()) {
    printer.setPrinterName(systemPrinter.printerName());
  } else {
    const QString folder =
        printoutFolder().isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : printoutFolder();
    if (!QDir().mkpath(folder)) printerError(QStringLiteral("the folder %1 can't be made").arg(QDir::toNativeSeparators(folder)));
    m_page->savedPath = QDir(folder).filePath(fileNameFor(title));
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(m_page->savedPath);
    // A printer keeps its own margins; a saved page gets the ones paper would have.
    printer.setPageMargins(QMarginsF(kSavedPageMargin, kSavedPageMargin, kSavedPageMargin, kSavedPageMargin), QPageLayout::Millimeter);
  }
  printer.setDocName(title);
  if (!m_page->painter.begin(&printer)) {
    printerError(m_page->savedPath.isEmpty() ? QStringLiteral("the printer %1 can't be used").arg(printer.printerName())
                                             : QStringLiteral("%1 can't be written").arg(QDir::toNativeSeparators(m_page->savedPath)));
  }
  m_page->painter.setFont(fixedWidthFont());
}

Printout::~Printout() {
  if (m_page->ended || !m_page->painter.isActive()) return;
  m_page->printer.abort();
  if (m_page->painter.isActive()) m_page->painter.end();
}

void Printout::Print(const QString& text) {
  Page& page = *m_page;
  page.newPageIfFull();
  const QFontMetricsF metrics(page.painter.font(), &page.printer);
  page.painter.drawText(QPointF(page.x, page.y + metrics.ascent()), text);
  page.x += metrics.horizontalAdvance(text);
  page.line += text;
}

void Printout::EndLine() {
  m_page->lines.append(std::exchange(m_page->line, QString()));
  m_page->newPageIfFull();
  m_page->x = 0;
  m_page->y += m_page->lineHeight();
}

double Printout::CurrentY() const { return m_page->pixelsToTwips(m_page->y); }

double Printout::ScaleWidth() const { return m_page->pixelsToTwips(m_page->paintRect().width()); }

void Printout::Line(double x1, double y1, double x2, double y2, const QColor& colour) {
  Page& page = *m_page;
  page.painter.setPen(QPen(colour, 0));
  page.painter.drawLine(QPointF(page.twipsToPixels(x1), page.twipsToPixels(y1)), QPointF(page.twipsToPixels(x2), page.twipsToPixels(y2)));
}

void Printout::PrintWindow(QWidget& window) {
  Page& page = *m_page;
  const QPixmap picture = window.grab();
  // As large on paper as on a screen of the window's resolution.
  const double scale = page.printer.resolution() / static_cast<double>(window.logicalDpiX());
  const QRectF place(page.x, page.y, picture.width() * scale, picture.height() * scale);
  page.painter.drawPixmap(place, picture, QRectF(picture.rect()));
  page.x = 0;
  page.y += place.height();
}

QString Printout::EndDoc() {
  if (!m_page->painter.end()) printerError(QStringLiteral("the document can't be finished"));
  m_page->ended = true;
  if (!m_page->line.isEmpty()) m_page->lines.append(m_page->line);
  lastText() = m_page->lines;
  return m_page->savedPath.isEmpty() ? m_page->printer.printerName() : m_page->savedPath;
}

bool Printout::SavedAsFile() const { return !m_page->savedPath.isEmpty(); }

const QStringList& LastPrintoutText() { return lastText(); }

QString usePrintoutFolder(const QString& folder) { return std::exchange(printoutFolder(), folder); }

}  // namespace fh
