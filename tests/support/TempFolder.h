#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QString>
#include <QTemporaryDir>

namespace fh::test {

// A folder that is gone after the test, with helpers to lay out files in it.
class TempFolder {
 public:
  TempFolder();
  QString path() const { return m_dir.path(); }
  // Path of a file or folder inside, with slashes.
  QString at(const QString& relative) const { return m_dir.filePath(relative); }
  // Writes a file, making its folders.
  QString write(const QString& relative, const QByteArray& content = "x") const;
  QString makeFolder(const QString& relative) const;

 private:
  QTemporaryDir m_dir;
};

// The bytes of a file; empty when it can't be read.
QByteArray fileBytes(const QString& path);
// Gives a file another time of last change, as though it had been written then.
bool setModified(const QString& path, const QDateTime& when);

// Sets the working directory for the lifetime of the object.
class WorkingDirectory {
 public:
  explicit WorkingDirectory(const QString& path);
  ~WorkingDirectory();

 private:
  QString m_before;
};

}  // namespace fh::test
