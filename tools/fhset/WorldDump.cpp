#include "WorldDump.h"

#include "QuietUi.h"
#include "TextValues.h"

#include "platform/base/Ansi.h"
#include "platform/base/Failure.h"
#include "platform/files/ByteFile.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <algorithm>
#include <vector>

namespace fh::fhset {

namespace {

// How the reading ended.
struct Ending {
  enum class Kind { Complete, EndsEarly, NegativeCount, Failed } kind = Kind::Complete;
  QString failure;  // the failure's words, when it Failed
  // The set, its last shot and that shot's last hotspot, as far as they were made: the records that
  // were being read when the reading stopped, the deepest last.
  std::vector<const void*> stoppedPath;
};

// Sizes of the records' own fields, without their children; the tag is as long as it was read.
qsizetype tagSize(const QString& header) { return toAnsi(header).size(); }
qsizetype ownSize(const cSet& set) { return tagSize(set.sHeader) + setfile::kTextLength + 4; }
qsizetype ownSize(const cShot& shot) { return tagSize(shot.sHeader) + 3 * setfile::kTextLength + 4; }
qsizetype ownSize(const cHotSpot& hotSpot) { return tagSize(hotSpot.sHeader) + 14 + 2 * setfile::kTextLength + 2; }

QString named(const QString& label, const QString& name) {
  return name.isEmpty() ? label : QStringLiteral("%1 (%2)").arg(label, writeValue(name));
}

// A flag the game wrote is -1 or 0; any other value, which a foreign file may hold and the game takes
// as true, is kept as its number so that the file is built back as it was.
QString yesNo(Boolean16 value) {
  if (value.stored() == kTrue) return QStringLiteral("yes");
  if (value.stored() == kFalse) return QStringLiteral("no");
  return QString::number(value.stored());
}

std::vector<const void*> lastRecords(const cSet& set) {
  std::vector<const void*> path{&set};
  if (set.shots().empty()) return path;
  const cShot& shot = *set.shots().back();
  path.push_back(&shot);
  if (!shot.hotSpots().empty()) path.push_back(shot.hotSpots().back().get());
  return path;
}

class DumpWriter {
 public:
  DumpWriter(const Ending& ending, qsizetype fileSize) : m_ending(ending), m_fileSize(fileSize) {}

  void writeSet(const cSet& set, const QString& fileName) {
    m_text += QStringLiteral("# Fernhollow world file, text form of %1\n").arg(fileName);
    field(0, QStringLiteral("set"), set.sName);
    checkHeader(0, set.sHeader, QStringLiteral("Set"), QStringLiteral("the set"));
    const qsizetype countAt = tagSize(set.sHeader) + setfile::kTextLength;
    checkEnding(0, &set, QStringLiteral("the set"), {set.nNumShots, set.shots().size(), countAt, "shot"});
    field(0, QStringLiteral("current-shot"), QString::number(set.nCurrentShot));
    m_offset += ownSize(set);
    for (std::size_t i = 0; i < set.shots().size(); ++i) writeShot(*set.shots()[i], static_cast<int>(i));
  }

  void writeTrailingBytes(qsizetype end) {
    note(0, end, QStringLiteral("%1 bytes follow the end of the set; the game never reads them, and they are left out here").arg(m_fileSize - end));
  }

  void writeFailure(qsizetype position) {
    note(0, position, QStringLiteral("the reading failed: %1").arg(m_ending.failure));
  }

  Dump take() { return {std::move(m_text), std::move(m_damage)}; }

 private:
  void writeShot(const cShot& shot, int index) {
    const QString label = named(QStringLiteral("shot %1").arg(index), shot.sName);
    m_text += u'\n';
    field(0, QStringLiteral("shot"), shot.sName);
    checkHeader(1, shot.sHeader, QStringLiteral("Shot"), label);
    const qsizetype countAt = m_offset + ownSize(shot) - 2;
    checkEnding(1, &shot, label, {shot.NumHotSpots, shot.hotSpots().size(), countAt, "hotspot"});
    optionalField(1, QStringLiteral("to-left"), shot.ShotToLeft);
    optionalField(1, QStringLiteral("to-right"), shot.ShotToRight);
    field(1, QStringLiteral("elapsed-time"), yesNo(shot.GoElapsedTime));
    m_offset += ownSize(shot);
    for (std::size_t i = 0; i < shot.hotSpots().size(); ++i)
      writeHotSpot(*shot.hotSpots()[i], named(QStringLiteral("hotspot %1 of shot %2").arg(i).arg(index), shot.hotSpots()[i]->Name));
  }

  void writeHotSpot(const cHotSpot& hotSpot, const QString& label) {
    m_text += u'\n';
    field(1, QStringLiteral("hotspot"), hotSpot.Name);
    checkHeader(2, hotSpot.sHeader, QStringLiteral("HotSpot"), label);
    const qsizetype countAt = m_offset + ownSize(hotSpot) - 2;
    const auto lines = static_cast<std::size_t>(hotSpot.ScriptLines.size());
    checkEnding(2, &hotSpot, label, {hotSpot.NumScriptLines, lines, countAt, "script line"});
    field(2, QStringLiteral("left"), QString::number(hotSpot.Left));
    field(2, QStringLiteral("top"), QString::number(hotSpot.Top));
    field(2, QStringLiteral("width"), QString::number(hotSpot.Width));
    field(2, QStringLiteral("height"), QString::number(hotSpot.Height));
    field(2, QStringLiteral("icon"), QString::number(hotSpot.Icon));
    field(2, QStringLiteral("quiet"), yesNo(hotSpot.Quiet));
    field(2, QStringLiteral("enabled"), yesNo(hotSpot.Enabled));
    optionalField(2, QStringLiteral("rollover"), hotSpot.Rollover);
    for (const QString& line : hotSpot.ScriptLines) field(2, QStringLiteral("do"), line);
    m_offset += ownSize(hotSpot) + hotSpot.ScriptLines.size() * setfile::kTextLength;
  }

  void field(int depth, const QString& key, const QString& value) {
    m_text += QString(depth * 2, u' ') + key;
    if (!value.isEmpty()) m_text += u' ' + writeValue(value);
    m_text += u'\n';
  }

  void optionalField(int depth, const QString& key, const QString& value) {
    if (!value.isEmpty()) field(depth, key, value);
  }

  void note(int depth, qsizetype offset, const QString& sentence) {
    m_text += QStringLiteral("%1# At byte %2, %3.\n").arg(QString(depth * 2, u' ')).arg(offset).arg(sentence);
    m_damage += QStringLiteral("byte %1: %2").arg(offset).arg(sentence);
  }

  void checkHeader(int depth, const QString& header, const QString& tag, const QString& label) {
    if (header == tag) return;
    note(depth, m_offset, QStringLiteral("the header of %1 is %2, not \"%3\"").arg(label, quoteValue(header), tag));
    field(depth, QStringLiteral("header"), header);
  }

  // A record's count of children, how many of them it holds, and where the count stands in the file.
  struct Children {
    i16 count;
    std::size_t held;
    qsizetype countAt;
    const char* kind;

    QString counted() const {
      return QStringLiteral("%1 %2%3").arg(count).arg(QLatin1String(kind)).arg(count == 1 ? "" : "s");
    }
  };

  // Notes where a reading that stopped left this record, and how many of its children it read.
  void checkEnding(int depth, const void* record, const QString& label, const Children& children) {
    if (m_ending.kind != Ending::Kind::EndsEarly && m_ending.kind != Ending::Kind::NegativeCount) return;
    const auto& path = m_ending.stoppedPath;
    if (std::find(path.begin(), path.end(), record) == path.end()) return;
    const bool stoppedHere = record == path.back();
    if (stoppedHere && m_ending.kind == Ending::Kind::NegativeCount) {
      note(depth, children.countAt, QStringLiteral("%1 counts %2; a negative count can't be read, and the reading stops there").arg(label, children.counted()));
      return;
    }
    if (stoppedHere) {
      const qsizetype into = m_fileSize - m_offset;
      note(depth, m_fileSize, into == 0
          ? QStringLiteral("the file ends where %1 should begin; its fields are defaults").arg(label)
          : QStringLiteral("the file ends %1 bytes into %2; the fields it doesn't reach are defaults").arg(into).arg(label));
    }
    // The last child that a parent holds is the one that was being read.
    const std::size_t complete = stoppedHere ? children.held : children.held - 1;
    if (children.count > 0 && complete < static_cast<std::size_t>(children.count))
      note(depth, children.countAt, QStringLiteral("%1 counts %2; the reading stops after %3 of them").arg(label, children.counted(), QString::number(complete)));
  }

  const Ending& m_ending;
  qsizetype m_fileSize;
  qsizetype m_offset = 0;  // where the record being written began in the file
  QString m_text;
  QStringList m_damage;
};

}  // namespace

Dump dumpSetFile(const QByteArray& bytes, const QString& fileName) {
  QuietUi quiet;  // a wrong header is a note in the text, not a message box
  ByteFile file = ByteFile::fromBytes(bytes, fileName);
  cSet set;
  Ending ending;
  try {
    set.Load(file, SetReading{.keepLeadingBlanks = true});
  } catch (const RuntimeFailure& failure) {
    ending.kind = failure.kind() == Failure::InputPastEndOfFile     ? Ending::Kind::EndsEarly
                  : failure.kind() == Failure::SubscriptOutOfRange ? Ending::Kind::NegativeCount
                                                                    : Ending::Kind::Failed;
    ending.failure = failure.message();
  } catch (const std::exception& failure) {
    ending.kind = Ending::Kind::Failed;
    ending.failure = QString::fromLocal8Bit(failure.what());
  }
  ending.stoppedPath = lastRecords(set);

  DumpWriter writer(ending, bytes.size());
  writer.writeSet(set, fileName);
  if (ending.kind == Ending::Kind::Complete && file.remaining() > 0) writer.writeTrailingBytes(file.position());
  if (ending.kind == Ending::Kind::Failed) writer.writeFailure(file.position());
  return writer.take();
}

}  // namespace fh::fhset
