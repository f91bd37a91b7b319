#include "script/Dialogs.h"

#include "mainview/ShotView.h"
#include "platform/Database.h"
#include "platform/Ui.h"
#include "startup/Globals.h"

#include <QLabel>

namespace fh {

void ShowDialog(const QString& name) {
  QLabel& textWindow = *TheShotView().TextWindow;
  if (name.isEmpty()) {
    textWindow.setText(QString());
    return;
  }
  Recordset row = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM Dialogs WHERE Name = ?"), {name});
  if (row.IsEOF())
    MsgBox(QStringLiteral("Dialog ") + name + QStringLiteral(" does not exist!"));
  else
    textWindow.setText(row.Field(QStringLiteral("Text")).toText());
  row.Close();
}

void ShowDialogString(const QString& text) {
  QLabel& textWindow = *TheShotView().TextWindow;
  if (text == QLatin1String("last")) {
    textWindow.setText(LastDialogText);
    return;
  }
  textWindow.setText(text);
  LastDialogText = text;
}

}  // namespace fh
