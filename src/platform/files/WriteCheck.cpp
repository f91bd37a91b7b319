#include "platform/files/WriteCheck.h"

#include "platform/files/FileNames.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>

namespace fh {

QString whyNotWritable(const QString& designFolder, const QString& fileName) {
  const QString folder = resolveFileName(designFolder);
  QTemporaryFile probe(QDir(folder).filePath(QStringLiteral(".write-check-XXXXXX")));
  if (!probe.open()) return QStringLiteral("No file can be made in the folder %1.").arg(QDir::toNativeSeparators(folder));
  probe.close();

  QFile file(resolveFileName(designFolder + fileName));
  if (!file.exists()) return {};
  if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
    return QStringLiteral("The file %1 can't be written.").arg(QDir::toNativeSeparators(file.fileName()));
  return {};
}

}  // namespace fh
