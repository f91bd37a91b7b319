#include "platform/files/FileUpdate.h"

#include <QFile>
#include <QSaveFile>

namespace fh {

FileUpdate writeFileIfChanged(const QString& path, const QByteArray& bytes) {
  QFile old(path);
  if (old.open(QIODevice::ReadOnly) && old.size() == bytes.size() && old.readAll() == bytes) return {};
  old.close();
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
    return {false, file.errorString()};
  }
  return {true, {}};
}

}  // namespace fh
