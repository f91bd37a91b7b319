#include "SvgSource.h"

#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <cmath>
#include <optional>
#include <vector>

namespace fh::fhart {

// What Qt Svg (6.4, as Debian ships it) leaves out. Each point was found by rendering a small file
// with the feature; Qt itself says nothing about most of them, so readSvgSource tells the artist.
// - Not drawn: <clipPath>, <mask>, <pattern>, <marker>, <symbol>, <filter> with all its fe* effects
//   (no blur, no drop shadow), <textPath>, <foreignObject>. Worse, the shapes inside <clipPath>,
//   <mask>, <pattern>, <marker> and <symbol> are drawn as ordinary shapes where they stand.
// - No effect: the attributes clip-path, mask, filter, marker-start, marker-mid and marker-end.
// - Colours: rgba(), hsl() and hsla() paint black. #rrggbb, #rgb, rgb() and names work; for
//   see-through paint use fill-opacity, stroke-opacity or opacity.
// - <radialGradient> without an r attribute is dropped, and whatever it should fill stays empty.
// - opacity on a <g> is applied to each shape inside it on its own, so overlapping shapes in a
//   half-transparent group show through each other.
// - A <style> sheet works with element, class and id selectors, but a presentation attribute
//   (fill="red") beats it, the other way round from browsers; var() and the font shorthand are
//   not understood.
// - Text: a font-family list is read as one font name (mended by withOneFontFamily); x, y, dx and
//   dy on a <tspan> and letter-spacing are ignored, so each line of text is its own <text>.
// - The root's width and height decide the picture size here, not Qt: Qt would also take a
//   viewBox alone, or millimetres.

namespace {

const QString kSvgNamespace = QStringLiteral("http://www.w3.org/2000/svg");

// Every element Qt Svg 6.4 draws or uses; the animation, audio and video elements are left out,
// as a still picture has no use for them.
const QSet<QString>& drawnElements() {
  static const QSet<QString> names = {
      QStringLiteral("svg"),         QStringLiteral("g"),          QStringLiteral("defs"),
      QStringLiteral("switch"),      QStringLiteral("a"),          QStringLiteral("use"),
      QStringLiteral("title"),       QStringLiteral("desc"),       QStringLiteral("metadata"),
      QStringLiteral("style"),       QStringLiteral("rect"),       QStringLiteral("circle"),
      QStringLiteral("ellipse"),     QStringLiteral("line"),       QStringLiteral("polyline"),
      QStringLiteral("polygon"),     QStringLiteral("path"),       QStringLiteral("image"),
      QStringLiteral("text"),        QStringLiteral("tspan"),      QStringLiteral("textArea"),
      QStringLiteral("tbreak"),      QStringLiteral("linearGradient"), QStringLiteral("radialGradient"),
      QStringLiteral("stop"),        QStringLiteral("solidColor"), QStringLiteral("font"),
      QStringLiteral("font-face"),   QStringLiteral("font-face-name"), QStringLiteral("font-face-src"),
      QStringLiteral("font-face-uri"), QStringLiteral("glyph"),    QStringLiteral("missing-glyph"),
      QStringLiteral("hkern"),
  };
  return names;
}

QString whyNotDrawn(const QString& element) {
  static const QSet<QString> drawnInPlace = {QStringLiteral("clipPath"), QStringLiteral("mask"), QStringLiteral("pattern"),
                                             QStringLiteral("marker"), QStringLiteral("symbol")};
  if (drawnInPlace.contains(element))
    return QStringLiteral("<%1> is not understood by the renderer, and the shapes inside it are drawn as ordinary shapes").arg(element);
  if (element == QStringLiteral("filter")) return QStringLiteral("<filter> is not drawn: no blur or other effect");
  return QStringLiteral("<%1> is not drawn by the renderer").arg(element);
}

const QSet<QString>& ineffectiveProperties() {
  static const QSet<QString> names = {QStringLiteral("clip-path"),    QStringLiteral("mask"),
                                      QStringLiteral("filter"),       QStringLiteral("marker-start"),
                                      QStringLiteral("marker-mid"),   QStringLiteral("marker-end"),
                                      QStringLiteral("marker")};
  return names;
}

const QSet<QString>& colourProperties() {
  static const QSet<QString> names = {QStringLiteral("fill"), QStringLiteral("stroke"), QStringLiteral("stop-color"),
                                      QStringLiteral("color"), QStringLiteral("solid-color")};
  return names;
}

// What the renderer makes of one property, or nothing when it draws it as written.
std::optional<QString> propertyNote(const QString& name, const QString& value) {
  const QString trimmed = value.trimmed();
  if (ineffectiveProperties().contains(name) && trimmed != QStringLiteral("none"))
    return QStringLiteral("%1 has no effect in the renderer").arg(name);
  if (name == QStringLiteral("font"))
    return QStringLiteral("the font shorthand is not understood; write font-family, font-size and font-weight");
  if (trimmed.contains(QStringLiteral("var(")))
    return QStringLiteral("%1: var() is not understood").arg(name);
  static const QRegularExpression unreadColour(QStringLiteral("^(rgba|hsla?)\\s*\\("), QRegularExpression::CaseInsensitiveOption);
  if (colourProperties().contains(name) && unreadColour.match(trimmed).hasMatch())
    return QStringLiteral("%1 %2 paints black; write #rrggbb (and fill-opacity for see-through)").arg(name, trimmed);
  return std::nullopt;
}

// A length in whole pixels: "632" or "632px".
std::optional<int> wholePixels(QString text) {
  text = text.trimmed();
  if (text.endsWith(QStringLiteral("px"))) text.chop(2);
  bool ok = false;
  const double value = text.toDouble(&ok);
  if (!ok || value < 1 || value > 16384 || std::floor(value) != value) return std::nullopt;
  return static_cast<int>(value);
}

int pixelsOrThrow(const QString& name, const QXmlStreamAttributes& attributes, const QString& which) {
  const std::optional<int> pixels = wholePixels(attributes.value(which).toString());
  if (!pixels)
    throw ArtProblem{QStringLiteral("%1: %2=\"%3\" is not a whole number of pixels").arg(name, which, attributes.value(which))};
  return *pixels;
}

void checkViewBox(SvgSource& source, const QXmlStreamAttributes& attributes, qint64 line) {
  if (!attributes.hasAttribute(QStringLiteral("viewBox"))) return;
  static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
  const QString viewBox = attributes.value(QStringLiteral("viewBox")).toString().trimmed();
  const QStringList parts = viewBox.split(separators);
  const QStringList expected = {QStringLiteral("0"), QStringLiteral("0"), QString::number(source.size.width()),
                                QString::number(source.size.height())};
  bool same = parts.size() == 4;
  for (int i = 0; same && i < 4; ++i) same = parts[i].toDouble() == expected[i].toDouble();
  if (!same)
    source.notes << QStringLiteral("%1:%2: viewBox \"%3\" is not \"%4\": the drawing is stretched to %5 x %6 pixels")
                        .arg(source.name).arg(line).arg(viewBox, expected.join(u' '))
                        .arg(source.size.width()).arg(source.size.height());
}

// A link to an element of the file: fill="url(#glow)", href="#tap".
struct Reference {
  QString id;
  QString property;
  qint64 line;
};

// Walks the elements of a file and notes what the renderer will not draw as written.
class SourceCheck {
 public:
  explicit SourceCheck(SvgSource& source) : m_source(source) {}

  // Notes on one element that the renderer reads: its attributes and style="" declarations.
  void checkElement(const QXmlStreamReader& reader) {
    const QString where = QStringLiteral("%1:%2: ").arg(m_source.name).arg(reader.lineNumber());
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
      const QString name = attribute.qualifiedName().toString();
      if (name == QStringLiteral("style")) {
        for (const QString& declaration : attribute.value().toString().split(u';', Qt::SkipEmptyParts)) {
          const qsizetype colon = declaration.indexOf(u':');
          if (colon >= 0) checkProperty(where, declaration.left(colon).trimmed(), declaration.mid(colon + 1), reader.lineNumber());
        }
      } else {
        checkProperty(where, name, attribute.value().toString(), reader.lineNumber());
      }
    }
    if (reader.name() == QStringLiteral("radialGradient") && !attributes.hasAttribute(QStringLiteral("r")))
      m_source.notes << where + QStringLiteral("<radialGradient> without an r attribute is dropped by the renderer; give r=\"0.5\"");
  }

  // Walks the elements below the root. Elements of other namespaces (an editor's own data) and
  // everything inside an element already noted are passed over quietly.
  void checkContent(QXmlStreamReader& reader) {
    int skipDepth = 0;
    while (!reader.atEnd()) {
      reader.readNext();
      if (reader.isEndElement() && skipDepth > 0) --skipDepth;
      if (!reader.isStartElement()) continue;
      const QString id = reader.attributes().value(QStringLiteral("id")).toString();
      if (!id.isEmpty()) m_ids.insert(id);
      if (skipDepth > 0) {
        ++skipDepth;
        continue;
      }
      const QString element = reader.name().toString();
      const bool svgElement = reader.namespaceUri().isEmpty() || reader.namespaceUri() == kSvgNamespace;
      if (!svgElement || element == QStringLiteral("metadata")) {
        skipDepth = 1;
        continue;
      }
      if (!drawnElements().contains(element)) {
        m_source.notes << QStringLiteral("%1:%2: %3").arg(m_source.name).arg(reader.lineNumber()).arg(whyNotDrawn(element));
        skipDepth = 1;
        continue;
      }
      checkElement(reader);
    }
  }

  // Links are checked once the whole file is read, as they may point forward.
  void checkReferences() {
    for (const Reference& reference : m_references) {
      if (!m_ids.contains(reference.id))
        m_source.notes << QStringLiteral("%1:%2: %3 points to #%4, which no element of the file is")
                              .arg(m_source.name).arg(reference.line).arg(reference.property, reference.id);
    }
  }

 private:
  void checkProperty(const QString& where, const QString& name, const QString& value, qint64 line) {
    if (auto note = propertyNote(name, value)) {
      m_source.notes << where + *note;
      return;
    }
    static const QRegularExpression link(QStringLiteral("^\\s*(?:url\\(\\s*['\"]?#([^)'\"\\s]+)|#(\\S+)\\s*$)"));
    const bool linking = name == QStringLiteral("href") || name == QStringLiteral("xlink:href") || value.contains(QStringLiteral("url("));
    const QRegularExpressionMatch match = link.match(value);
    if (linking && match.hasMatch())
      m_references.push_back({match.captured(1).isEmpty() ? match.captured(2) : match.captured(1), name, line});
  }

  SvgSource& m_source;
  QSet<QString> m_ids;
  std::vector<Reference> m_references;
};

QString firstUsableFamily(const QString& list) {
  static const QSet<QString> generic = {QStringLiteral("serif"), QStringLiteral("sans-serif"), QStringLiteral("monospace"),
                                        QStringLiteral("cursive"), QStringLiteral("fantasy")};
  QStringList names;
  for (QString name : list.split(u',', Qt::SkipEmptyParts)) {
    name = name.trimmed();
    if (name.size() >= 2 && (name.front() == u'\'' || name.front() == u'"') && name.back() == name.front())
      name = name.mid(1, name.size() - 2).trimmed();
    if (!name.isEmpty()) names << name;
  }
  if (names.isEmpty()) return list;
  const QStringList installed = QFontDatabase::families();
  for (const QString& name : names) {
    if (generic.contains(name.toLower())) return name;
    if (installed.contains(name, Qt::CaseInsensitive)) return name;
  }
  return names.front();
}

// Replaces the first capture of every match of the pattern with its first usable family.
QString cutFamilyLists(const QString& text, const QRegularExpression& pattern) {
  QString result;
  qsizetype copied = 0;
  for (auto it = pattern.globalMatch(text); it.hasNext();) {
    const QRegularExpressionMatch match = it.next();
    const QString value = match.captured(1);
    if (!value.contains(u',') && !value.contains(u'\'') && !value.contains(u'"')) continue;
    result += QStringView(text).mid(copied, match.capturedStart(1) - copied);
    result += firstUsableFamily(value);
    copied = match.capturedEnd(1);
  }
  result += QStringView(text).mid(copied);
  return result;
}

}  // namespace

QByteArray withOneFontFamily(const QByteArray& content) {
  if (!content.contains("font-family")) return content;
  static const QRegularExpression doubleQuoted(QStringLiteral("font-family\\s*=\\s*\"([^\"\\n]*)\""));
  static const QRegularExpression singleQuoted(QStringLiteral("font-family\\s*=\\s*'([^'\\n]*)'"));
  static const QRegularExpression declaration(QStringLiteral("font-family\\s*:\\s*([^;\"}<\\n]*[^;\"}<\\s])"));
  QString text = QString::fromUtf8(content);
  text = cutFamilyLists(text, doubleQuoted);
  text = cutFamilyLists(text, singleQuoted);
  text = cutFamilyLists(text, declaration);
  return text.toUtf8();
}

SvgSource readSvgSource(const QString& file) {
  SvgSource source;
  source.name = QFileInfo(file).fileName();
  QFile in(file);
  if (!in.open(QIODevice::ReadOnly)) throw ArtProblem{QStringLiteral("%1: cannot be read (%2)").arg(source.name, in.errorString())};
  const QByteArray content = in.readAll();

  QXmlStreamReader reader(content);
  while (!reader.atEnd() && !reader.isStartElement()) reader.readNext();
  if (reader.hasError())
    throw ArtProblem{QStringLiteral("%1:%2: not an SVG file: %3").arg(source.name).arg(reader.lineNumber()).arg(reader.errorString())};
  if (reader.name() != QStringLiteral("svg"))
    throw ArtProblem{QStringLiteral("%1: the outermost element is <%2>; a picture's must be <svg>").arg(source.name, reader.name())};
  const QXmlStreamAttributes root = reader.attributes();
  if (!root.hasAttribute(QStringLiteral("width")) || !root.hasAttribute(QStringLiteral("height")))
    throw ArtProblem{QStringLiteral("%1: the <svg> element needs a width and a height in pixels, such as width=\"632\" height=\"390\"").arg(source.name)};
  source.size = QSize(pixelsOrThrow(source.name, root, QStringLiteral("width")), pixelsOrThrow(source.name, root, QStringLiteral("height")));
  checkViewBox(source, root, reader.lineNumber());
  SourceCheck check(source);
  check.checkElement(reader);
  check.checkContent(reader);
  if (reader.hasError())
    throw ArtProblem{QStringLiteral("%1:%2: broken SVG: %3").arg(source.name).arg(reader.lineNumber()).arg(reader.errorString())};
  check.checkReferences();
  source.content = withOneFontFamily(content);
  return source;
}

}  // namespace fh::fhart
