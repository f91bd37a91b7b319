#include "script/ContainerState.h"

#include "game/GameState.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"
#include "world/Dialogs.h"
#include "world/cContainer.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <functional>

namespace fh {

namespace {

i16 toggled(i16 state) {
  const i16 next = addI16(state, 1);
  return next == 2 ? 0 : next;
}

QueryDef containerQuery(const QString& name) {
  QueryDef query = RequireGameDB().QueryDefs(QStringLiteral("GetContainer"));
  query.SetParameter(QStringLiteral("SelectContainer"), name);
  query.SetParameter(QStringLiteral("SelectUserID"), CurrentUserID);
  return query;
}

// A container of the set without a row for this user: the copy in memory has changed already, and
// the two differ until the next load.
void reportMissingRow(const QString& name) {
  MsgBox(QStringLiteral("Can't find Container ") + name + QStringLiteral(" check database and try again."));
}

// Hands the player's row of the container to `write`, or says that there is none; the shot is
// refreshed either way.
void writeContainerRow(const QString& name, bool refresh, const std::function<void(Recordset&)>& write) {
  QueryDef query = containerQuery(name);
  Recordset row = query.OpenRecordset();
  if (row.IsEOF())
    reportMissingRow(name);
  else
    write(row);
  row.Close();
  query.Close();
  RequireCurrentShot().RefreshVisualElements(refresh);
}

}  // namespace

void SetContainer(const QString& name, i16 state, bool refresh) {
  RequireCurrentSet().GetContainer(name).CurrentState = state;
  writeContainerRow(name, refresh, [state](Recordset& row) {
    row.Edit();
    row.SetField(QStringLiteral("CurrentState"), state);
    row.Update();
  });
}

void ToggleContainer(const QString& name, bool refresh) {
  cContainer& container = RequireCurrentSet().GetContainer(name);
  container.CurrentState = toggled(container.CurrentState);
  writeContainerRow(name, refresh, [](Recordset& row) {
    // Each copy steps from its own value.
    row.Edit();
    const i16 state = toggled(row.Field(QStringLiteral("CurrentState")).toI16());
    row.SetField(QStringLiteral("CurrentState"), state);
    row.Update();
    const QString verbage = state != 0 ? QStringLiteral("State 1 Verbage") : QStringLiteral("State 0 Verbage");
    ShowDialogString(row.Field(QStringLiteral("Friendly Name")).toText() + QStringLiteral(" is now ") + row.Field(verbage).toText());
  });
}

}  // namespace fh
