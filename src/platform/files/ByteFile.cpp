#include "platform/files/ByteFile.h"

#include "platform/base/Ansi.h"
#include "platform/base/Failure.h"
#include "platform/files/FileNames.h"

#include <QFile>
#include <QFileInfo>

namespace fh {

ByteFile ByteFile::openForReading(const QString& designName) {
  QFile file(resolveFileName(designName));
  if (!QFileInfo(file.fileName()).isFile() || !file.open(QIODevice::ReadOnly))
    throw RuntimeFailure(Failure::FileNotFound, designName);
  ByteFile result;
  result.m_bytes = file.readAll();
  result.m_name = designName;
  return result;
}

ByteFile ByteFile::openForWriting(const QString& designName) {
  const QString path = resolveFileName(designName);
  if (!QFileInfo(QFileInfo(path).path()).isDir()) throw RuntimeFailure(Failure::PathNotFound, designName);
  ByteFile result;
  result.m_writePath = path;
  result.m_name = designName;
  return result;
}

ByteFile ByteFile::fromBytes(QByteArray bytes, QString name) {
  ByteFile result;
  result.m_bytes = std::move(bytes);
  result.m_name = std::move(name);
  return result;
}

ByteFile::~ByteFile() {
  try {
    close();
  } catch (const RuntimeFailure&) {
    // A destructor can't report; close() explicitly to see the failure.
  }
}

void ByteFile::failPastEnd() {
  m_position = m_bytes.size();
  throw RuntimeFailure(Failure::InputPastEndOfFile);
}

QByteArray ByteFile::getBytes(qsizetype count) { return takeBytes(count).toByteArray(); }

QString ByteFile::getText(qsizetype length) { return fromAnsi(takeBytes(length)); }

void ByteFile::putBytes(const QByteArray& bytes) {
  m_bytes.append(bytes);
  m_position = m_bytes.size();
}

void ByteFile::putInteger(i16 value) {
  const auto u = static_cast<std::uint16_t>(value);
  const char bytes[2] = {static_cast<char>(u & 0xFF), static_cast<char>(u >> 8)};
  putBytes(QByteArray(bytes, 2));
}

void ByteFile::putText(const QString& text, qsizetype length) {
  QByteArray bytes = toAnsi(text.left(length));
  bytes.append(length - bytes.size(), ' ');
  putBytes(bytes);
}

void ByteFile::close() {
  if (m_writePath.isEmpty()) return;
  const QString path = std::exchange(m_writePath, QString());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(m_bytes) != m_bytes.size())
    throw RuntimeFailure(Failure::PathFileAccess, path);
}

}  // namespace fh
