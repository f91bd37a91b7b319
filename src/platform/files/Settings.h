#pragma once

#include <QString>

// The per-user settings store: values are text, kept under an application, a section and a key.
namespace fh {

QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& defaultValue = {});
void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& value);

// Keeps the store in this folder from now on. Tests use it so that they never touch a real user's settings.
void useSettingsFolder(const QString& folder);

}  // namespace fh
