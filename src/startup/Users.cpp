#include "startup/Users.h"

#include "game/GameState.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"

namespace fh {

namespace {

void runForUser(const QString& query, const QString& parameter, std::int32_t userId) {
  QueryDef action = RequireGameDB().QueryDefs(query);
  action.SetParameter(parameter, userId);
  action.Execute();
  action.Close();
}

}  // namespace

std::int32_t AddUser(const QString& name, const QString& password) {
  Recordset users = RequireGameDB().OpenRecordset(QStringLiteral("Users"));
  // Only the comparison ignores case: nothing is trimmed, so "Ann " and "Ann" are two players.
  for (; !users.IsEOF(); users.MoveNext()) {
    if (users.Field(QStringLiteral("User Name")).toText().toLower() != name.toLower()) continue;
    MsgBox(QStringLiteral("Sorry, but somebody else is already using that name.  Please try another name or have your "
                          "teacher remove the other one."),
           Buttons::Ok, QStringLiteral("Duplicate User Name"));
    return -1;
  }

  users.AddNew();
  users.SetField(QStringLiteral("User Name"), name);
  users.SetField(QStringLiteral("Password"), password);
  users.SetField(QStringLiteral("Current Shot"), 0);
  const std::int32_t id = users.Field(QStringLiteral("ID")).toLong();
  users.Update();
  users.Close();

  // The new player's containers start as the world defines them.
  runForUser(QStringLiteral("Make New User"), QStringLiteral("User ID"), id);
  return id;
}

void RemoveUser(const QString& name) {
  Recordset user = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE \"User Name\" = ?"), {name});
  const std::int32_t id = user.Field(QStringLiteral("ID")).toLong();
  // What refers to the player goes first: the containers, then the checkup answers.
  runForUser(QStringLiteral("Remove User Step 1"), QStringLiteral("SelectUserID"), id);
  runForUser(QStringLiteral("Remove User Step 2"), QStringLiteral("SelectUserID"), id);
  user.Delete();
  user.Close();
}

}  // namespace fh
