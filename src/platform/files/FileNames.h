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

// Whether a name from the world's data stays inside the folder it is looked for in. Such names
// become file names under the resource tree, so none may lead elsewhere: not by a ".." that climbs
// above the folder, nor as an absolute path or one with a drive letter, in either slash.
bool staysInFolder(const QString& name);

// The design name of `name` in `folder` (a design name ending in a separator). A name that doesn't
// stay in the folder is "File not found", as a file that isn't there is, so that whatever the game
// does about a missing file follows.
QString fileInFolder(const QString& folder, const QString& name);

// Deletes the file; false when there was none or it could not be deleted.
bool deleteFile(const QString& designName);

// The folder of the running program, as the platform gives it (no separator at the end).
QString programFolder();

}  // namespace fh
