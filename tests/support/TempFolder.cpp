#include "TempFolder.h"

#include <QFile>
#include <QFileInfo>

namespace fh::test {

TempFolder::TempFolder() = default;

QString TempFolder::write(const QString& relative, const QByteArray& content) const {
  const QString file = at(relative);
  QDir().mkpath(QFileInfo(file).path());
  QFile out(file);
  out.open(QIODevice::WriteOnly | QIODevice::Truncate);
  out.write(content);
  return file;
}

QString TempFolder::makeFolder(const QString& relative) const {
  QDir().mkpath(at(relative));
  return at(relative);
}

QByteArray fileBytes(const QString& path) {
  QFile in(path);
  return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

bool setModified(const QString& path, const QDateTime& when) {
  QFile file(path);
  return file.open(QIODevice::ReadWrite) && file.setFileTime(when, QFileDevice::FileModificationTime);
}

WorkingDirectory::WorkingDirectory(const QString& path) : m_before(QDir::currentPath()) { QDir::setCurrent(path); }

WorkingDirectory::~WorkingDirectory() { QDir::setCurrent(m_before); }

}  // namespace fh::test
