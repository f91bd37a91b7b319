#include "SvgPicture.h"

#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <algorithm>

namespace fh::fhart {

namespace {

// Collects what Qt Svg says while it reads and draws one file (an unresolved link, a gradient it
// dropped), so that the messages reach the artist with the file's name. Other messages go on to
// the handler that was there before.
class QtSvgMessages {
 public:
  explicit QtSvgMessages(QString fileName) : m_fileName(std::move(fileName)) {
    s_current = this;
    m_previous = qInstallMessageHandler(&QtSvgMessages::handle);
  }
  ~QtSvgMessages() {
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
  }
  QtSvgMessages(const QtSvgMessages&) = delete;
  QtSvgMessages& operator=(const QtSvgMessages&) = delete;

  const QStringList& messages() const { return m_messages; }

 private:
  static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (s_current && context.category && qstrcmp(context.category, "qt.svg") == 0) {
      s_current->take(message);
      return;
    }
    if (s_current && s_current->m_previous) s_current->m_previous(type, context, message);
  }

  // Qt names data read from memory "<input>"; its place "<input>:12:40: ..." becomes "Kitchen.svg:12:40: ...".
  void take(QString message) {
    static const QString kMemory = QStringLiteral("<input>:");
    if (message.startsWith(kMemory)) message = m_fileName + u':' + message.mid(kMemory.size());
    else message = m_fileName + QStringLiteral(": ") + message;
    m_messages << message;
  }

  static inline QtSvgMessages* s_current = nullptr;
  QString m_fileName;
  QtMessageHandler m_previous = nullptr;
  QStringList m_messages;
};

// Whether a message of Qt's adds nothing to the source's notes. Qt places a link it can't resolve
// at the end of the file, while the source's notes name the line of the link; and a message on a
// line that is already noted says the same thing again in Qt's words.
bool alreadyNoted(const QString& message, const SvgSource& source) {
  static const QRegularExpression unresolved(QStringLiteral("Could not resolve property|link #\\S+ is undefined"));
  if (unresolved.match(message).hasMatch()) return true;
  static const QRegularExpression line(QStringLiteral("^:(\\d+):"));
  const QRegularExpressionMatch match = line.match(QStringView(message).mid(source.name.size()));
  if (!message.startsWith(source.name) || !match.hasMatch()) return false;
  const QString place = source.name + u':' + match.captured(1) + u':';
  return std::any_of(source.notes.begin(), source.notes.end(), [&](const QString& note) { return note.startsWith(place); });
}

}  // namespace

RenderedPicture renderSvg(const QString& file) {
  const SvgSource source = readSvgSource(file);
  RenderedPicture picture{source.name, QImage(source.size, QImage::Format_RGB32), source.notes};
  QtSvgMessages qtMessages(source.name);
  QSvgRenderer renderer(source.content);
  if (!renderer.isValid()) {
    QString text = QStringLiteral("%1: Qt Svg cannot read it").arg(source.name);
    for (const QString& message : qtMessages.messages()) text += QStringLiteral("\n  ") + message;
    throw ArtProblem{text};
  }
  picture.image.fill(Qt::white);
  QPainter painter(&picture.image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
  renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(source.size)));
  painter.end();
  for (const QString& message : qtMessages.messages())
    if (!alreadyNoted(message, source)) picture.notes << message;
  return picture;
}

}  // namespace fh::fhart
