#include "SessionFixture.h"

#include "platform/desktop/ImagePair.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace fh::test {
namespace {

// The login form is up, as LoginUser shows it.
class Login : public SessionFixture {
 protected:
  void SetUp() override {
    SessionFixture::SetUp();
    login.show();
  }
  QStringList listed() const {
    QStringList names;
    for (int row = 0; row < login.UserList->count(); ++row) names << login.UserList->item(row)->text();
    return names;
  }
  bool anythingOpen() const { return login.txtPassword->isEnabled() || login.btnOK->isEnabled() || login.btnRemove->isEnabled(); }
  int rowsOf(const QString& table, int userId) {
    return GameDB->OpenRecordset(QStringLiteral("SELECT * FROM %1 WHERE \"User ID\" = ?").arg(table), {userId}).RecordCount();
  }
  static void pressKey(QWidget& target, int key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&target, &press);
  }

  frmLogin& login = loginForm();
};

TEST_F(Login, PasswordsAndTheMasterPasswordAreTakenInAnyCapitals) {
  struct Attempt { QString name, typed; int id; QString box; };
  for (const Attempt& a : {Attempt{"Ann", "sECRET", 1, {}}, Attempt{"Ann", "OakMeadow", 1, "Password is 'Secret'"},
                           Attempt{"bob", "OAKMEADOW", 2, {}}}) {  // Bob's own password is the master: no override
    ScriptedUi attempt;
    login.show();
    choosePlayer(login, a.name, a.typed);
    login.btnOK_MouseUp();
    EXPECT_FALSE(login.isVisible()) << a.typed.toStdString();
    EXPECT_EQ(login.SelectedUserID, a.id);
    ASSERT_EQ(attempt.shown().size(), a.box.isEmpty() ? 0u : 1u) << a.typed.toStdString();
    if (a.box.isEmpty()) continue;
    EXPECT_EQ(attempt.shown()[0].text, a.box);
    EXPECT_EQ(attempt.shown()[0].title, QStringLiteral("Password Overide"));
  }
}

TEST_F(Login, WrongOrEmptyPasswordSaysSoAndSelectsWhatWasTyped) {
  for (const QString& typed : {QStringLiteral("secrets"), QString()}) {
    ScriptedUi attempt;
    choosePlayer(login, QStringLiteral("Ann"), typed);
    login.btnOK_MouseUp();
    ASSERT_EQ(attempt.shown().size(), 2u);
    EXPECT_EQ(attempt.shown()[0].text, QStringLiteral("Invalid Password, try again!"));
    EXPECT_EQ(attempt.shown()[0].title, QStringLiteral("Login"));
    EXPECT_EQ(attempt.shown()[1].kind, Shown::Kind::SelectAll);
    EXPECT_EQ(login.txtPassword->selectedText(), typed);
    EXPECT_TRUE(login.isVisible());
  }
}

TEST_F(Login, EnterInThePasswordBoxPressesAndReleasesOk) {
  choosePlayer(login, QStringLiteral("Ann"), QStringLiteral("Secre"));
  pressKey(*login.txtPassword, Qt::Key_T, QStringLiteral("t"));  // other keys go into the box
  pressKey(*login.txtPassword, Qt::Key_Return);
  EXPECT_EQ(ui.yields(), 2);  // the button was seen going down, then up
  EXPECT_TRUE(login.btnOK->upVisible());
  EXPECT_FALSE(login.isVisible());
  EXPECT_EQ(login.SelectedUserID, 1);
}

TEST_F(Login, RemovalTakesOnlyTheMasterPasswordAndStartsTheListOver) {
  EXPECT_FALSE(anythingOpen());
  for (const QString& answer : {QStringLiteral("oak meadow"), QString()}) {
    choosePlayer(login, QStringLiteral("Ann"), {});
    EXPECT_TRUE(login.btnRemove->isEnabled());
    ui.queueInput(answer);
    login.btnRemove_MouseUp();
    EXPECT_EQ(listed().size(), 2);
  }
  EXPECT_TRUE(ui.messageBoxes().empty());
  EXPECT_EQ(ui.shown().back().text, QStringLiteral("Please enter Master Password"));
  EXPECT_EQ(ui.shown().back().title, QStringLiteral("Remove User"));

  ui.queueInput(QStringLiteral("OAKMEADOW"));
  login.btnRemove_MouseUp();
  EXPECT_EQ(listed(), QStringList{QStringLiteral("Bob")});
  EXPECT_TRUE(login.UserList->selectedItems().isEmpty());
  EXPECT_FALSE(anythingOpen());
  EXPECT_EQ(rowsOf(QStringLiteral("UserContainers"), 1), 0);
  EXPECT_EQ(rowsOf(QStringLiteral("HomeCheckupAnswers"), 1), 0);
  EXPECT_EQ(rowsOf(QStringLiteral("HomeCheckupAnswers"), 2), 1);
}

TEST_F(Login, NewPlayerIsLoggedInAtOnceWithTheWorldsStartingHouse) {
  ui.queueModal([](QWidget& form) {
    auto& newUser = dynamic_cast<frmNewUser&>(form);
    newUser.txtUserName->setText(QStringLiteral("Cy Jones "));
    newUser.txtPassword->setText(QStringLiteral("pw"));
    pressKey(*newUser.txtPassword, Qt::Key_Return);  // Enter is OK
  });
  login.btnNewUser_MouseUp();
  EXPECT_FALSE(login.isVisible());
  ASSERT_GT(login.SelectedUserID, 2);
  Recordset cy = userRow(login.SelectedUserID);
  EXPECT_EQ(cy.Field(QStringLiteral("User Name")).toText(), QStringLiteral("Cy Jones "));  // as typed, blank and all
  EXPECT_EQ(rowsOf(QStringLiteral("UserContainers"), login.SelectedUserID), 5);
}

TEST_F(Login, BlankOrTakenNamesKeepTheNewUserFormUpAndCancelComesBack) {
  ui.queueModal([](QWidget& form) {
    auto& newUser = dynamic_cast<frmNewUser&>(form);
    newUser.cmdOK_Click();
    newUser.txtUserName->setText(QStringLiteral("ANN"));
    newUser.cmdOK_Click();
    newUser.txtPassword->setText(QStringLiteral("x"));
    newUser.cmdOK_Click();
    EXPECT_TRUE(newUser.isVisible());
    EXPECT_EQ(newUser.txtUserName->text(), QStringLiteral("ANN"));
    pressKey(*newUser.txtPassword, Qt::Key_Escape);  // Escape is Cancel
  });
  choosePlayer(login, QStringLiteral("Bob"), QStringLiteral("half typed"));
  login.btnNewUser_MouseUp();

  const std::vector<Shown> boxes = ui.messageBoxes();
  ASSERT_EQ(boxes.size(), 3u);
  EXPECT_EQ(boxes[0].text, QStringLiteral("Username can not be blank."));
  EXPECT_EQ(boxes[0].title, kAppTitle);
  EXPECT_EQ(boxes[1].text, QStringLiteral("Password can not be blank."));
  EXPECT_EQ(boxes[2].text, QStringLiteral("Sorry, but somebody else is already using that name.  Please try another name or "
                                          "have your teacher remove the other one."));
  EXPECT_EQ(boxes[2].title, QStringLiteral("Duplicate User Name"));
  // Back from the new-player form the login starts over, and nobody was added.
  EXPECT_TRUE(login.isVisible());
  EXPECT_EQ(listed().size(), 2);
  EXPECT_FALSE(anythingOpen());
  EXPECT_TRUE(login.txtPassword->text().isEmpty());
}

}  // namespace
}  // namespace fh::test
