#include "ComputerFixture.h"

#include "computer/Comp_HomeCheckup.h"
#include "world/cSet.h"

#include <QComboBox>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>

namespace fh::test {
namespace {

// Ada's checkup: 1 (text), 2a (a list of Gas, Electric, Oil), 2b (yes or no), 3 (yes or no).
class HomeCheckup : public ComputerFixture {
 protected:
  Comp_HomeCheckup& checkup = HomeCheckupForm();

  void answer(int question, const char* text) {
    Recordset rows = GameDB->OpenRecordset(QStringLiteral("HomeCheckupAnswers"));
    rows.AddNew();
    rows.SetField(QStringLiteral("User ID"), CurrentUserID);
    rows.SetField(QStringLiteral("Question ID"), question);
    rows.SetField(QStringLiteral("Answer"), QString::fromLatin1(text));
    rows.Update();
  }
  QString stored(int question) {
    Recordset row = GameDB->OpenRecordset(QStringLiteral("SELECT * FROM HomeCheckupAnswers WHERE \"Question ID\" = ?"), {question});
    return row.IsEOF() ? QStringLiteral("(none)") : row.Field(QStringLiteral("Answer")).toText();
  }
  QString opensOn() {
    run("computer homecheckup");
    const QString shown = checkup.QuestionNumber->text();
    run("computer shutdown");
    return shown;
  }
};

TEST_F(HomeCheckup, OpensAfterTheLastAnsweredQuestionWhateverGapsLieBefore) {
  EXPECT_EQ(opensOn(), QStringLiteral("Question 1"));
  answer(3, "Yes");
  EXPECT_EQ(opensOn(), QStringLiteral("Question 3"));
  answer(4, "Yes");
  EXPECT_EQ(opensOn(), QStringLiteral("Question 3"));  // the last one answered: it stays there
  EXPECT_EQ(stored(1), QStringLiteral("(none)"));
  EXPECT_TRUE(messages().isEmpty());
}

TEST_F(HomeCheckup, TheEndOfTheListCongratulatesAtEveryNextAndPreviousStopsAtTheFirst) {
  run("computer homecheckup");
  checkup.btnPrevious->click();
  EXPECT_EQ(checkup.QuestionNumber->text(), QStringLiteral("Question 1"));
  EXPECT_EQ(checkup.QuestionText->textFormat(), Qt::PlainText);  // questions are shown as written
  for (int i = 0; i < 3; ++i) checkup.btnNext->click();
  EXPECT_EQ(checkup.QuestionNumber->text(), QStringLiteral("Question 3"));
  EXPECT_TRUE(messages().isEmpty());
  checkup.btnNext->click();
  checkup.btnNext->click();
  EXPECT_EQ(checkup.QuestionNumber->text(), QStringLiteral("Question 3"));
  const auto boxes = ui.messageBoxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes.front().title, QStringLiteral("You did it!"));
  EXPECT_EQ(boxes.front().text, QStringLiteral("Congratulations!!! You have completed the Home Checkup.  Good job.  Now print it "
                                               "out, have your parents sign it and give it to your teacher."));
  EXPECT_EQ(CurrentSet->GetContainer(QStringLiteral("homecheckup")).CurrentState, 1);
  EXPECT_EQ(stored(4), QStringLiteral("(none)"));  // a yes or no left clear is no answer
}

TEST_F(HomeCheckup, EachStyleStoresItsAnswerAndAnEmptyOneNeverBlanksIt) {
  run("computer homecheckup");
  checkup.txtAnswer->setText(QStringLiteral("4"));
  checkup.btnNext->click();
  EXPECT_EQ(stored(1), QStringLiteral("4"));
  EXPECT_EQ(checkup.QuestionNumber->text(), QStringLiteral("Question 2a"));
  ASSERT_EQ(checkup.lstAnswer->count(), 3);
  EXPECT_EQ(checkup.lstAnswer->itemText(2), QStringLiteral("Oil"));
  EXPECT_EQ(checkup.lstAnswer->currentIndex(), -1);
  checkup.lstAnswer->setCurrentIndex(1);
  checkup.btnNext->click();
  checkup.optYesNo[1]->click();
  checkup.btnNext->click();
  EXPECT_EQ(stored(2), QStringLiteral("Electric"));
  EXPECT_EQ(stored(3), QStringLiteral("Yes"));

  checkup.btnPrevious->click();
  EXPECT_TRUE(checkup.optYesNo[1]->isChecked());
  EXPECT_FALSE(checkup.optYesNo[0]->isChecked());
  checkup.btnPrevious->click();
  EXPECT_EQ(checkup.lstAnswer->currentText(), QStringLiteral("Electric"));
  checkup.btnPrevious->click();
  // The old text comes back selected as a whole, so that typing replaces it.
  EXPECT_EQ(checkup.txtAnswer->text(), QStringLiteral("4"));
  EXPECT_EQ(ui.shown().back().kind, Shown::Kind::SelectAll);
  checkup.txtAnswer->clear();
  run("computer shutdown");
  EXPECT_EQ(stored(1), QStringLiteral("4"));
}

// The text of the page, line by line as it was printed, and then the first question on screen.
TEST_F(HomeCheckup, ThePrintoutLaysTheQuestionsOutByCountingCharacters) {
  answer(1, "4");
  answer(3, "No");
  run("computer homecheckup");
  checkup.txtAnswer->setText(QStringLiteral("typed, not kept"));
  run("computer print");

  // Each blank line of the page is an empty entry after the line it follows.
  const QStringList expected = {
      QStringLiteral("Home Checkup Printout - ") + QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat), {},
      QStringLiteral("Student Name: Ada"), {}, {},
      QStringLiteral("Question   1: How many people live in your home?") + QString(55 - 34, u' ') + QStringLiteral("4"), {},
      QStringLiteral("Question  2a: Which fuel heats the water in your home? Pick one.") + QString(5, u' '),
      QStringLiteral("Question  2b: Does your water heater wear a warm blanket at "),
      QString(14, u' ') + QStringLiteral("home?") + QString(50, u' ') + QStringLiteral("No"), {},
      QStringLiteral("Question   3: Do you switch off the lights?") + QString(55 - 29, u' '), {}, {}, {},
      QStringLiteral("Parent/Teacher Signature: _________________________________________ Date: ______________"), {}, {},
      QStringLiteral("Thank you for completing the Home Checkup!"),
      QStringLiteral("The answers will be used to help better understand the water and energy needs of your community.")};
  EXPECT_EQ(LastPrintoutText(), expected);
  EXPECT_EQ(checkup.QuestionNumber->text(), QStringLiteral("Question 1"));
  EXPECT_EQ(checkup.txtAnswer->text(), QStringLiteral("4"));

  // The page itself holds that text.
  const QStringList files = printoutFiles();
  ASSERT_EQ(files.size(), 1);
  QProcess pdfToText;
  pdfToText.start(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), printouts.at(files.front()), QStringLiteral("-")});
  ASSERT_TRUE(pdfToText.waitForFinished(10000));
  const QString page = QString::fromUtf8(pdfToText.readAllStandardOutput());
  EXPECT_TRUE(page.contains(QStringLiteral("Question 2b: Does your water heater wear a warm blanket at\nhome? No\n"))) << page.toStdString();
}

}  // namespace
}  // namespace fh::test
