#pragma once

#include <QString>

namespace fh {

// Why the game couldn't keep anything in this folder (a design name ending in a separator) and
// this file in it: a folder where no file can be made, or a file that can't be opened for writing;
// empty when both can be written. A file that isn't there yet doesn't count against it.
// Permissions alone don't tell (an administrator passes them all), so it tries.
QString whyNotWritable(const QString& designFolder, const QString& fileName);

}  // namespace fh
