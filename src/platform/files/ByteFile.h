#pragma once

#include "platform/base/Values.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace fh {

// A file opened for byte-wise access, as the world file is read and written: 16-bit little-endian
// integers, -1/0 booleans, fixed-length blank-padded Western text, bare tags. Nothing aligns anything.
//
// A read past the end of the file is a failure ("Input past end of file"): it gives no data, so a
// truncated or hostile file can never make a reader invent records from nothing.
class ByteFile {
 public:
  // Reads the whole file; a missing file is "File not found".
  static ByteFile openForReading(const QString& designName);
  // Starts an empty file that close() writes to the path; the folder must exist ("Path not found").
  static ByteFile openForWriting(const QString& designName);
  // Reads from bytes in memory, for tools and tests; `name` says where they came from.
  static ByteFile fromBytes(QByteArray bytes, QString name = {});

  ByteFile(ByteFile&&) = default;
  ByteFile& operator=(ByteFile&&) = default;
  ~ByteFile();

  QByteArray getBytes(qsizetype count);
  i16 getInteger() {
    const QByteArrayView b = takeBytes(2);
    return static_cast<i16>(static_cast<unsigned char>(b[0]) | (static_cast<unsigned char>(b[1]) << 8));
  }
  Boolean16 getBoolean() { return Boolean16::fromStored(getInteger()); }
  // `length` bytes as text, exactly as they stand (padding included).
  QString getText(qsizetype length);
  // The next `count` bytes, read past; they stay valid while the file lives and nothing is put.
  // Kept here, in line: a world file is read a field at a time.
  QByteArrayView takeBytes(qsizetype count) {
    if (count < 0 || count > remaining()) failPastEnd();
    const QByteArrayView result(m_bytes.constData() + m_position, count);
    m_position += count;
    return result;
  }

  void putBytes(const QByteArray& bytes);
  void putInteger(i16 value);
  void putBoolean(Boolean16 value) { putInteger(value.stored()); }
  // Exactly `length` bytes: cut to `length` characters, padded on the right with blanks.
  void putText(const QString& text, qsizetype length);

  qsizetype position() const { return m_position; }
  qsizetype size() const { return m_bytes.size(); }
  qsizetype remaining() const { return m_bytes.size() - m_position; }
  const QByteArray& bytes() const { return m_bytes; }
  // The design name the file was opened by, for telling a player which file is meant.
  const QString& name() const { return m_name; }

  // Writes what was put to the file; does nothing for a file opened for reading.
  void close();

 private:
  ByteFile() = default;
  // A read past the end moves to the end, and fails.
  [[noreturn]] void failPastEnd();

  QByteArray m_bytes;
  QString m_name;
  qsizetype m_position = 0;
  QString m_writePath;  // empty unless opened for writing and not yet closed
};

}  // namespace fh
