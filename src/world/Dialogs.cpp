#include "world/Dialogs.h"

#include "game/GameState.h"
#include "game/View.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"

namespace fh {

void ShowDialog(const QString& name) {
  if (name.isEmpty()) {
    view().showText(QString());
    return;
  }
  Recordset row = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM Dialogs WHERE Name = ?"), {name});
  if (row.IsEOF())
    MsgBox(QStringLiteral("Dialog ") + name + QStringLiteral(" does not exist!"));
  else
    view().showText(row.Field(QStringLiteral("Text")).toText());
  row.Close();
}

void ShowDialogString(const QString& text) {
  if (text == QLatin1String("last")) {
    view().showText(LastDialogText);
    return;
  }
  view().showText(text);
  LastDialogText = text;
}

}  // namespace fh
