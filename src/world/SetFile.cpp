#include "world/SetFile.h"

#include "platform/ByteFile.h"
#include "platform/Failure.h"
#include "platform/FileNames.h"
#include "startup/Globals.h"
#include "world/cSet.h"

namespace fh {

void LoadSet(const QString& fileName) {
  if (fileName.isEmpty()) return;
  // Not yet: in edit mode (GameMode 0) the main view leaves it through EditOff for the time of the
  // load, and enters it again through modeDebug at the end.
  if (CurrentShot) CurrentSet.reset();  // the old set ends before the new one begins
  CurrentSet = std::make_shared<cSet>();
  ByteFile file = ByteFile::openForReading(DatabasePath + fileName);
  CurrentSet->Load(file);
  file.close();
  // Not yet: CurrentSet->ShowShot(CurrentShotIndex) shows the shot of the user's record, never the
  // nCurrentShot of the file.
}

void SaveSet() {
  if (!CurrentSet) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("CurrentSet"));
  // "Untiltled" is the name the game has always used; existing worlds may rely on it.
  const QString fileName = CurrentSet->sName.isEmpty() ? QStringLiteral("Untiltled.set") : CurrentSet->sName + QStringLiteral(".set");
  const QString path = DatabasePath + fileName;
  deleteFile(path);  // there may be no old file
  ByteFile file = ByteFile::openForWriting(path);
  CurrentSet->Save(file);
  file.close();
}

}  // namespace fh
