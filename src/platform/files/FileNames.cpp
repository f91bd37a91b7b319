#include "platform/files/FileNames.h"

#include "platform/base/Failure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace fh {

namespace {

QStringList componentsOf(const QString& designName) {
  return QString(designName).replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
}

bool isAbsolute(const QString& designName) {
  return designName.startsWith(u'/') || designName.startsWith(u'\\');
}

// The entry of `folder` called `name` without regard to case: the exact spelling if it is there,
// otherwise the first of the others in sorted order; empty when there is none.
QString findEntry(const QString& folder, const QString& name) {
  if (name == u"." || name == u"..") return name;
  if (QFileInfo::exists(folder + u'/' + name)) return name;
  const QString wanted = name.toUpper();
  const QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
  for (const QString& entry : entries)
    if (entry.toUpper() == wanted) return entry;
  return {};
}

}  // namespace

QString resolveFileName(const QString& designName) {
  const QStringList parts = componentsOf(designName);
  QString path = isAbsolute(designName) ? QStringLiteral("/") : QDir::currentPath();
  bool found = true;
  for (const QString& part : parts) {
    const QString entry = found ? findEntry(path, part) : QString();
    found = !entry.isEmpty();
    path = QDir::cleanPath(path + u'/' + (found ? entry : part));
  }
  return path;
}

QString firstMatchingFile(const QString& designPattern) {
  QStringList parts = componentsOf(designPattern);
  if (parts.isEmpty()) return {};
  const QString pattern = parts.takeLast();
  QString folderName = parts.join(u'/');
  if (isAbsolute(designPattern)) folderName.prepend(u'/');
  const QString folder = folderName.isEmpty() && !isAbsolute(designPattern) ? QDir::currentPath() : resolveFileName(folderName);

  // "*.*" matches every name, also one without a dot, as the platform's directory query did.
  const QString wildcard = pattern == u"*.*" ? QStringLiteral("*") : pattern;
  const QRegularExpression match(QRegularExpression::wildcardToRegularExpression(wildcard),
                                 QRegularExpression::CaseInsensitiveOption);
  const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
  for (const QFileInfo& entry : entries)
    if (match.match(entry.fileName()).hasMatch()) return entry.fileName();
  return {};
}

bool fileExists(const QString& designName) {
  return QFileInfo(resolveFileName(designName)).isFile();
}

bool deleteFile(const QString& designName) {
  const QString path = resolveFileName(designName);
  return QFileInfo(path).isFile() && QFile::remove(path);
}

bool staysInFolder(const QString& name) {
  if (isAbsolute(name)) return false;
  if (name.size() >= 2 && name[1] == u':' && name[0].isLetter()) return false;
  int depth = 0;
  for (const QString& part : componentsOf(name)) {
    if (part == u".") continue;
    depth += part == u".." ? -1 : 1;
    if (depth < 0) return false;
  }
  return true;
}

QString fileInFolder(const QString& folder, const QString& name) {
  if (!staysInFolder(name)) throw RuntimeFailure(Failure::FileNotFound, folder + name);
  return folder + name;
}

QString programFolder() { return QCoreApplication::applicationDirPath(); }

}  // namespace fh
