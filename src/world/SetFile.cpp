#include "world/SetFile.h"

#include "game/GameState.h"
#include "game/View.h"
#include "platform/base/Failure.h"
#include "platform/data/Database.h"
#include "platform/files/ByteFile.h"
#include "platform/files/FileNames.h"
#include "world/cSet.h"
#include "world/cShot.h"

namespace fh {

void LoadSet(const QString& fileName) {
  if (fileName.isEmpty()) return;
  // In edit mode the main view leaves it for the time of the load, and enters it again on the
  // shot the new set shows.
  const bool editing = GameMode == 0;
  if (editing) view().EditOff();
  if (CurrentShot) CurrentSet.reset();  // the old set ends before the new one begins
  CurrentSet = std::make_shared<cSet>();
  ByteFile file = ByteFile::openForReading(DatabasePath + fileName);
  CurrentSet->Load(file);
  CurrentSet->LoadAssets();
  file.close();
  // The user's record decides which shot is shown, never the nCurrentShot of the file.
  CurrentSet->ShowShot(CurrentShotIndex);
  if (editing) view().modeDebug();
}

// Every saved shot has its row in table Shots; a new row gets only its Name, so its friendly name
// stays the table's default until an author writes one.
void KeepShotsRowInLine(const cShot& shot) {
  Recordset row = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM Shots WHERE Name = ?"), {shot.sName});
  if (row.IsEOF()) row.AddNew();
  else row.Edit();
  row.SetField(QStringLiteral("Name"), shot.sName);
  row.Update();
  row.Close();
}

void SaveSet() {
  RequireCurrentSet();
  // "Untiltled" is the name the game has always used; existing worlds may rely on it.
  const QString fileName = CurrentSet->sName.isEmpty() ? QStringLiteral("Untiltled.set") : CurrentSet->sName + QStringLiteral(".set");
  const QString path = DatabasePath + fileName;
  deleteFile(path);  // there may be no old file
  ByteFile file = ByteFile::openForWriting(path);
  CurrentSet->Save(file, SetWriting{.afterShot = KeepShotsRowInLine});
  file.close();
}

}  // namespace fh
