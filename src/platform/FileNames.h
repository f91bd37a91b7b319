#pragma once

#include <QString>

// File names as the game builds them: backslashes or slashes, any case ("graphics\Menu.bmp" under an
// upper-cased resource path). This is the one place where such a name meets the real file system.
namespace fh {

// The real path of a design name. Each component is matched without regard to case, an exact match
// first; relative names start at the working directory. Components that exist nowhere are kept as
// written, so the result also serves to create a new file.
QString resolveFileName(const QString& designName);

// The name of the first ordinary file that matches the pattern's last component ("*" and "?",
// without regard to case) in its folder, or empty. Folders and hidden files don't count. Never fails:
// a folder that can't be read gives empty.
QString firstMatchingFile(const QString& designPattern);

bool fileExists(const QString& designName);

// Deletes the file; false when there was none or it could not be deleted.
bool deleteFile(const QString& designName);

// The folder of the running program, as the platform gives it (no separator at the end).
QString programFolder();

}  // namespace fh
