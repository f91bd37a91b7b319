#include "WorldBuild.h"

#include "TextValues.h"

#include "platform/base/Ansi.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <QHash>
#include <QRegularExpression>

#include <limits>
#include <optional>

namespace fh::fhset {

namespace {

// The records nest in this order; a field belongs to exactly one of them.
enum class Record { None, Set, Shot, HotSpot };

QString nameOf(Record record) {
  switch (record) {
    case Record::Set: return QStringLiteral("the set");
    case Record::Shot: return QStringLiteral("a shot");
    case Record::HotSpot: return QStringLiteral("a hotspot");
    case Record::None: break;
  }
  return QStringLiteral("no record");
}

// The record that owns a key, or None for a key that isn't one. The header belongs to whichever is open.
Record ownerOf(QStringView key, Record open) {
  static const QHash<QString, Record> owners = {
      {QStringLiteral("current-shot"), Record::Set}, {QStringLiteral("to-left"), Record::Shot},
      {QStringLiteral("to-right"), Record::Shot},    {QStringLiteral("elapsed-time"), Record::Shot},
      {QStringLiteral("left"), Record::HotSpot},     {QStringLiteral("top"), Record::HotSpot},
      {QStringLiteral("width"), Record::HotSpot},    {QStringLiteral("height"), Record::HotSpot},
      {QStringLiteral("icon"), Record::HotSpot},     {QStringLiteral("quiet"), Record::HotSpot},
      {QStringLiteral("enabled"), Record::HotSpot},  {QStringLiteral("rollover"), Record::HotSpot},
      {QStringLiteral("do"), Record::HotSpot}};
  if (key == u"header") return open;
  return owners.value(key.toString(), Record::None);
}

QString keysOf(Record record) {
  switch (record) {
    case Record::Set: return QStringLiteral("current-shot, header, shot");
    case Record::Shot: return QStringLiteral("to-left, to-right, elapsed-time, header, hotspot");
    case Record::HotSpot: return QStringLiteral("left, top, width, height, icon, quiet, enabled, rollover, do, header, hotspot, shot");
    case Record::None: break;
  }
  return QStringLiteral("set");
}

bool isSeparator(QChar c) { return c == u' ' || c == u'\t'; }

QStringView trimmedSeparators(QStringView text) {
  while (!text.isEmpty() && isSeparator(text.front())) text = text.mid(1);
  while (!text.isEmpty() && (isSeparator(text.back()) || text.back() == u'\r')) text.chop(1);
  return text;
}

class WorldParser {
 public:
  explicit WorldParser(const QString& fileName) : m_fileName(fileName) {}

  void parseLine(int number, QStringView line) {
    m_line = number;
    line = trimmedSeparators(line);
    if (line.isEmpty() || line.startsWith(u'#')) return;
    qsizetype split = 0;
    while (split < line.size() && !isSeparator(line[split])) ++split;
    const QStringView key = line.left(split);
    const QStringView value = trimmedSeparators(line.mid(split));
    if (key == u"set" || key == u"shot" || key == u"hotspot")
      startRecord(key, value);
    else
      setField(key, value);
  }

  Built finish() {
    if (!m_set && m_problems.isEmpty()) {
      m_line = 1;
      problem(QStringLiteral("there is no 'set' line; a world file begins with 'set' and the set's name"));
    }
    if (!m_problems.isEmpty()) return {nullptr, m_problems};
    // As in a set that was read, each list ends in an empty top slot.
    m_set->Shots.push_back(nullptr);
    for (const auto& shot : m_set->shots()) shot->HotSpots.push_back(nullptr);
    return {m_set, {}};
  }

 private:
  void problem(const QString& sentence) {
    m_problems += QStringLiteral("%1:%2: %3").arg(m_fileName, QString::number(m_line), sentence);
  }

  // A new record: it is open until the next one begins, and takes the fields that follow.
  void startRecord(QStringView key, QStringView value) {
    const std::optional<QString> name = text(value);
    m_given.clear();
    if (key == u"set") {
      if (m_set) return problem(QStringLiteral("a world file holds one set, and it began on line %1").arg(m_setLine));
      m_set = std::make_shared<cSet>();
      m_setLine = m_line;
      m_open = Record::Set;
      if (name) m_set->sName = *name;
      return;
    }
    if (key == u"shot") {
      if (!m_set) return problem(QStringLiteral("a shot needs the 'set' line before it"));
      if (!countOneMore(m_set->nNumShots, "shots in the set")) return;
      m_shot = std::make_shared<cShot>();
      m_hotSpot = nullptr;
      m_set->Shots.push_back(m_shot);
      m_open = Record::Shot;
      if (name) m_shot->sName = *name;
      return;
    }
    if (!m_shot) return problem(QStringLiteral("a hotspot needs a 'shot' line before it"));
    if (!countOneMore(m_shot->NumHotSpots, "hotspots in one shot")) return;
    m_hotSpot = std::make_shared<cHotSpot>();
    m_shot->HotSpots.push_back(m_hotSpot);
    m_open = Record::HotSpot;
    if (name) m_hotSpot->Name = *name;
  }

  void setField(QStringView key, QStringView value) {
    const Record owner = ownerOf(key, m_open);
    if (owner == Record::None)
      return problem(QStringLiteral("unknown key '%1'; the keys here are %2").arg(key.toString(), keysOf(m_open)));
    if (owner > m_open)
      return problem(QStringLiteral("'%1' belongs in %2, and none is open here").arg(key.toString(), nameOf(owner)));
    if (owner < m_open)
      return problem(QStringLiteral("'%1' belongs to %2, whose fields come before its first %3")
                         .arg(key.toString(), nameOf(owner), owner == Record::Set ? u"shot" : u"hotspot"));
    if (key != u"do") {
      const QString given = key.toString();
      if (m_given.contains(given))
        return problem(QStringLiteral("'%1' is given twice in this record; the first is on line %2").arg(given).arg(m_given.value(given)));
      m_given.insert(given, m_line);
    }
    if (key == u"header") return setHeader(value);
    if (m_open == Record::Set) return setSetField(value);
    if (m_open == Record::Shot) return setShotField(key, value);
    setHotSpotField(key, value);
  }

  void setSetField(QStringView value) {
    if (const auto number = integer(value)) m_set->nCurrentShot = *number;
  }

  void setShotField(QStringView key, QStringView value) {
    if (key == u"elapsed-time") {
      if (const auto flag = yesNo(value)) m_shot->GoElapsedTime = *flag;
      return;
    }
    if (const auto name = text(value)) (key == u"to-left" ? m_shot->ShotToLeft : m_shot->ShotToRight) = *name;
  }

  void setHotSpotField(QStringView key, QStringView value) {
    cHotSpot& hotSpot = *m_hotSpot;
    if (key == u"do") {
      const auto line = text(value);
      if (line && countOneMore(hotSpot.NumScriptLines, "script lines in one hotspot")) hotSpot.ScriptLines.append(*line);
      return;
    }
    if (key == u"rollover") {
      if (const auto line = text(value)) hotSpot.Rollover = *line;
      return;
    }
    if (key == u"quiet" || key == u"enabled") {
      if (const auto flag = yesNo(value)) (key == u"quiet" ? hotSpot.Quiet : hotSpot.Enabled) = *flag;
      return;
    }
    const auto number = integer(value);
    if (!number) return;
    if (key == u"left") hotSpot.Left = *number;
    if (key == u"top") hotSpot.Top = *number;
    if (key == u"width") hotSpot.Width = *number;
    if (key == u"height") hotSpot.Height = *number;
    if (key == u"icon") hotSpot.Icon = *number;
  }

  // The reader takes as many bytes for a tag as the record's own tag has.
  void setHeader(QStringView value) {
    const auto header = text(value);
    if (!header) return;
    QString& target = m_open == Record::Set ? m_set->sHeader : m_open == Record::Shot ? m_shot->sHeader : m_hotSpot->sHeader;
    if (header->size() != target.size())
      return problem(QStringLiteral("the header of %1 must be %2 characters long, as the game reads %2 bytes for it; this one has %3")
                         .arg(nameOf(m_open))
                         .arg(target.size())
                         .arg(header->size()));
    target = *header;
  }

  std::optional<QString> text(QStringView written) {
    const ReadValue value = readValue(written);
    if (!value.problem.isEmpty()) {
      problem(value.problem);
      return std::nullopt;
    }
    if (value.text.size() > setfile::kTextLength) {
      problem(QStringLiteral("the text is %1 characters long; a set file keeps %2, and the game would lose the rest")
                  .arg(value.text.size())
                  .arg(setfile::kTextLength));
      return std::nullopt;
    }
    return value.text;
  }

  static bool looksLikeNumber(QStringView written) {
    static const QRegularExpression wholeNumber(QStringLiteral("^-?[0-9]+$"));
    return wholeNumber.match(written).hasMatch();
  }

  std::optional<i16> integer(QStringView written) {
    if (!looksLikeNumber(written)) {
      problem(QStringLiteral("'%1' is not a whole number").arg(written.toString()));
      return std::nullopt;
    }
    bool ok = false;
    const long long number = written.toLongLong(&ok);
    if (!ok || number < std::numeric_limits<i16>::min() || number > std::numeric_limits<i16>::max()) {
      problem(QStringLiteral("%1 is out of range; numbers run from -32768 to 32767").arg(written.toString()));
      return std::nullopt;
    }
    return static_cast<i16>(number);
  }

  // Besides yes and no, a number keeps a flag that a foreign file held as neither -1 nor 0.
  std::optional<Boolean16> yesNo(QStringView written) {
    if (written == u"yes") return true;
    if (written == u"no") return false;
    if (looksLikeNumber(written)) {
      if (const auto number = integer(written)) return Boolean16::fromStored(*number);
      return std::nullopt;
    }
    problem(QStringLiteral("expected yes or no, not '%1'").arg(written.toString()));
    return std::nullopt;
  }

  bool countOneMore(i16& count, const char* what) {
    if (count == std::numeric_limits<i16>::max()) {
      problem(QStringLiteral("more than 32767 %1; a set file can't count them").arg(QLatin1String(what)));
      return false;
    }
    ++count;
    return true;
  }

  QString m_fileName;
  int m_line = 0;
  QStringList m_problems;

  std::shared_ptr<cSet> m_set;
  std::shared_ptr<cShot> m_shot;
  std::shared_ptr<cHotSpot> m_hotSpot;
  Record m_open = Record::None;
  int m_setLine = 0;
  QHash<QString, int> m_given;  // the fields of the open record, with their lines
};

}  // namespace

Built buildSet(const QByteArray& text, const QString& fileName) {
  QString content = QString::fromUtf8(text);
  if (content.startsWith(QChar(0xFEFF))) content.remove(0, 1);
  WorldParser parser(fileName);
  const QList<QStringView> lines = QStringView(content).split(u'\n');
  for (qsizetype i = 0; i < lines.size(); ++i) parser.parseLine(static_cast<int>(i + 1), lines[i]);
  return parser.finish();
}

}  // namespace fh::fhset
