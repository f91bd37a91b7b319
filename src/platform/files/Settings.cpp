#include "platform/files/Settings.h"

#include <QSettings>

namespace fh {

namespace {

// One file per application in the user's configuration folder: ~/.config/Fernhollow/<application>.conf.
QString keyPath(const QString& section, const QString& key) { return section + u'/' + key; }

}  // namespace

QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& defaultValue) {
  const QSettings store(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Fernhollow"), application);
  return store.value(keyPath(section, key), defaultValue).toString();
}

void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& value) {
  QSettings store(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Fernhollow"), application);
  store.setValue(keyPath(section, key), value);
  store.sync();
}

void useSettingsFolder(const QString& folder) {
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
}

}  // namespace fh
