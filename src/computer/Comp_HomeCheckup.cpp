#include "computer/Comp_HomeCheckup.h"

#include "computer/CheckupPrintLayout.h"
#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"
#include "platform/desktop/Fonts.h"
#include "platform/desktop/Printout.h"
#include "script/ContainerState.h"
#include "world/SaveFailure.h"

#include <QComboBox>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>

namespace fh {

namespace {

constexpr i16 kScreenNumber = 4;
constexpr int kListSlots = 8;

enum AnswerStyle : i16 { kFreeText = 1, kFromList = 2, kYesOrNo = 3 };

const QString kIntroduction = QStringLiteral(
    "The Home Checkup is designed to help you and your family better understand how efficiently water and energy are used "
    "around your home. Read each question carefully.  Print out the home checkup if you need it to help you gather the "
    "information. There are 35 questions, some may require your parent's or an adult's help, or refer back to the answers "
    "from your activities.");
// "When your done" is the form's own wording.
const QString kHowTo = QStringLiteral(
    "To complete the questions just choose the most appropriate answer. When your done, print it out and have your "
    "parent or teacher sign the completed questionnaire.  Have fun!");
const QString kCongratulations = QStringLiteral(
    "Congratulations!!! You have completed the Home Checkup.  Good job.  Now print it out, have your parents sign it and "
    "give it to your teacher.");

template <class Control>
Control* place(Control* control, const char* name, const QRect& where, const QFont& font) {
  control->setObjectName(QString::fromLatin1(name));
  control->setGeometry(where);
  control->setFont(font);
  return control;
}

QLabel* label(QWidget* form, const char* name, const QString& text, const QRect& where, const QFont& font, const QColor& back) {
  auto* made = place(new QLabel(text, form), name, where, font);
  made->setTextFormat(Qt::PlainText);  // the questions come from the database and are shown as written
  made->setWordWrap(true);
  made->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  made->setAutoFillBackground(true);
  QPalette colours = made->palette();
  colours.setColor(QPalette::Window, back);
  made->setPalette(colours);
  return made;
}

}  // namespace

Comp_HomeCheckup::Comp_HomeCheckup() : ComputerForm(QStringLiteral("Comp_HomeCheckup"), QStringLiteral("Home Checkup"), kScreenNumber) {
  Label1 = label(this, "Label1", QStringLiteral("HOME CHECKUP"), twipsRect(0, 0, 9375, 375), ArialFont(15.75), Qt::white);
  QPalette red = Label1->palette();
  red.setColor(QPalette::WindowText, Qt::red);
  Label1->setPalette(red);
  Label2 = label(this, "Label2", kIntroduction, twipsRect(120, 360, 9135, 1095), ArialFont(11.25), Qt::white);
  Label3 = label(this, "Label3", kHowTo, twipsRect(120, 1440, 9255, 855), ArialFont(11.25), Qt::white);
  QuestionNumber = label(this, "QuestionNumber", QStringLiteral("Number"), twipsRect(3960, 2160, 1575, 375), ArialFont(11.25, true),
                         QColor(192, 192, 255));
  QuestionText = label(this, "QuestionText", QStringLiteral("Question"), twipsRect(600, 2640, 8295, 615), ArialFont(11.25, true),
                       QColor(255, 255, 192));

  txtAnswer = place(new QLineEdit(this), "txtAnswer", twipsRect(2280, 3360, 5295, 375), ArialFont(12, true));
  lstAnswer = place(new QComboBox(this), "lstAnswer", twipsRect(3000, 3360, 3855, 405), ArialFont(12, true));
  optYesNo[0] = place(new QRadioButton(QStringLiteral("No"), this), "optYesNo_0", twipsRect(4560, 3360, 1335, 255), ArialFont(12, true));
  optYesNo[1] = place(new QRadioButton(QStringLiteral("Yes"), this), "optYesNo_1", twipsRect(4560, 3720, 1335, 255), ArialFont(12, true));
  // The pair must be able to stand both clear, for a question not answered yet.
  for (std::size_t i = 0; i < optYesNo.size(); ++i) {
    optYesNo[i]->setAutoExclusive(false);
    connect(optYesNo[i], &QRadioButton::toggled, this, [this, i](bool on) {
      if (on) optYesNo[1 - i]->setChecked(false);
    });
  }
  btnPrevious = place(new QPushButton(QStringLiteral("&Previous"), this), "btnPrevious", twipsRect(600, 4080, 2895, 615), ArialFont(12, true));
  btnNext = place(new QPushButton(QStringLiteral("&Next"), this), "btnNext", twipsRect(3720, 4080, 5175, 615), ArialFont(12, true));
  // Enter moves on from wherever it is pressed, but on Previous itself.
  btnNext->setDefault(true);
  // An answer the database won't keep is told, and the question stays on screen.
  connect(btnPrevious, &QPushButton::clicked, this,
          [this] { guarded("Home Checkup Previous", [this] { TellingSaveFailures([this] { btnPrevious_Click(); }); }); });
  connect(btnNext, &QPushButton::clicked, this,
          [this] { guarded("Home Checkup Next", [this] { TellingSaveFailures([this] { NextQuestion(); }); }); });

  setTabOrder(btnPrevious, btnNext);
  setTabOrder(btnNext, txtAnswer);
  setTabOrder(txtAnswer, lstAnswer);
  setTabOrder(lstAnswer, optYesNo[0]);
  setTabOrder(optYesNo[0], optYesNo[1]);
}

Recordset& Comp_HomeCheckup::questions() {
  if (!QuestionRS) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("QuestionRS"));
  return *QuestionRS;
}

Recordset Comp_HomeCheckup::openAnswer() {
  return RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM HomeCheckupAnswers WHERE \"User ID\" = ? AND \"Question ID\" = ?"),
                                       {CurrentUserID, questions().Field(QStringLiteral("ID")).toLong()});
}

// Walks back from the last question to the last one answered, whatever gaps lie before it.
void Comp_HomeCheckup::Init() {
  ActiveComputerScreen = kScreenNumber;
  QuestionRS = RequireGameDB().OpenRecordset(QStringLiteral("GetHomeCheckupQuestions"));
  Recordset& rows = questions();
  rows.MoveLast();
  for (;;) {
    Recordset answer = openAnswer();
    const bool answered = !answer.IsEOF();
    answer.Close();
    if (answered) {
      rows.MoveNext();
      if (rows.IsEOF()) rows.MoveLast();
      break;
    }
    rows.MovePrevious();
    if (rows.IsBOF()) {
      rows.MoveFirst();
      break;
    }
  }
  ShowQuestion();
}

void Comp_HomeCheckup::ShowQuestion() {
  Recordset& question = questions();
  QuestionNumber->setText(QStringLiteral("Question ") + CheckupNumberText(question.Field(QStringLiteral("Number")).toI16(),
                                                                           question.Field(QStringLiteral("Sub Number")).toI16()));
  QuestionText->setText(question.Field(QStringLiteral("Text")).toText());

  Recordset answer = openAnswer();
  const QString stored = answer.IsEOF() ? QString() : answer.Field(QStringLiteral("Answer")).toText();
  switch (question.Field(QStringLiteral("Answer Style")).toI16()) {
    case kFreeText:
      txtAnswer->setText(stored);
      txtAnswer->show();
      lstAnswer->hide();
      for (QRadioButton* option : optYesNo) option->hide();
      txtAnswer->setFocus();
      // Typing replaces the old answer as a whole.
      ui().selectAll(*txtAnswer);
      break;
    case kFromList:
      lstAnswer->clear();
      for (int slot = 1; slot <= kListSlots; ++slot) {
        const FieldValue item = question.Field(QStringLiteral("List%1").arg(slot));
        if (!item.isNull() && !item.toText().isEmpty()) lstAnswer->addItem(item.toText());
      }
      lstAnswer->setCurrentIndex(stored.isEmpty() ? -1 : lstAnswer->findText(stored, Qt::MatchFixedString));
      txtAnswer->hide();
      for (QRadioButton* option : optYesNo) option->hide();
      lstAnswer->show();
      lstAnswer->setFocus();
      break;
    case kYesOrNo:
      optYesNo[0]->setChecked(!stored.isEmpty() && stored != QLatin1String("Yes"));
      optYesNo[1]->setChecked(stored == QLatin1String("Yes"));
      txtAnswer->hide();
      lstAnswer->hide();
      for (QRadioButton* option : optYesNo) option->show();
      btnNext->setFocus();
      break;
    default:
      // Any other style has no control of its own: the last question's stay as they are.
      break;
  }
  answer.Close();
}

// An empty answer is no answer: it never blanks or removes one stored before.
void Comp_HomeCheckup::SaveAnswer() {
  Recordset& question = questions();
  QString text;
  switch (question.Field(QStringLiteral("Answer Style")).toI16()) {
    case kFreeText:
      text = txtAnswer->text();
      break;
    case kFromList:
      text = lstAnswer->currentIndex() < 0 ? QString() : lstAnswer->currentText();
      break;
    case kYesOrNo:
      text = optYesNo[0]->isChecked() ? QStringLiteral("No") : optYesNo[1]->isChecked() ? QStringLiteral("Yes") : QString();
      break;
    default:
      break;
  }
  if (text.isEmpty()) return;

  Recordset answer = openAnswer();
  if (answer.IsEOF()) {
    answer.AddNew();
    answer.SetField(QStringLiteral("User ID"), CurrentUserID);
    answer.SetField(QStringLiteral("Question ID"), question.Field(QStringLiteral("ID")).toLong());
  } else {
    answer.Edit();
  }
  answer.SetField(QStringLiteral("Answer"), text);
  answer.Update();
  answer.Close();
}

// The end of the list counts as done, answered or not, and says so at every Next on the last question.
void Comp_HomeCheckup::NextQuestion() {
  SaveAnswer();
  Recordset& rows = questions();
  rows.MoveNext();
  if (rows.IsEOF()) {
    rows.MoveLast();
    MsgBox(kCongratulations, Buttons::Ok, QStringLiteral("You did it!"));
    SetContainer(QStringLiteral("HomeCheckup"), 1, false);
  }
  ShowQuestion();
}

void Comp_HomeCheckup::btnPrevious_Click() {
  SaveAnswer();
  Recordset& rows = questions();
  rows.MovePrevious();
  if (rows.IsBOF()) rows.MoveFirst();
  ShowQuestion();
}

void Comp_HomeCheckup::Shutdown() {
  SaveAnswer();
  questions().Close();
  QuestionRS.reset();
  hide();
}

void Comp_HomeCheckup::Print() {
  printTellingFailure([this] { PrintQuestionaire(); });
}

void Comp_HomeCheckup::PrintQuestionaire() {
  Printing = true;
  Printout page(printoutTitle(QStringLiteral("Home Checkup")));
  page.Print(QStringLiteral("Home Checkup Printout - "));
  page.Print(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
  page.EndLine();
  const double ruleAt = page.CurrentY() + 10;
  page.Line(0, ruleAt, page.ScaleWidth(), ruleAt, Qt::black);
  page.EndLine();
  page.Print(QStringLiteral("Student Name: ") + CurrentUserName);
  page.EndLine();
  page.EndLine();

  Recordset& rows = questions();
  i16 previousNumber = 0;
  for (rows.MoveFirst(); !rows.IsEOF(); rows.MoveNext()) {
    const i16 number = rows.Field(QStringLiteral("Number")).toI16();
    const QString label = CheckupLabel(CheckupNumberText(number, rows.Field(QStringLiteral("Sub Number")).toI16()));
    // A blank line before each new number, none between the parts of one.
    if (number != previousNumber) page.EndLine();
    previousNumber = number;
    page.Print(label + QStringLiteral(": "));
    const QStringList lines = CheckupTextLines(rows.Field(QStringLiteral("Text")).toText());
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
      page.Print(lines[i]);
      page.EndLine();
    }
    page.Print(lines.last());
    Recordset answer = openAnswer();
    if (!answer.IsEOF()) page.Print(answer.Field(QStringLiteral("Answer")).toText());
    page.EndLine();
    answer.Close();
  }

  for (int i = 0; i < 3; ++i) page.EndLine();
  page.Print(QStringLiteral("Parent/Teacher Signature: _________________________________________ Date: ______________"));
  page.EndLine();
  page.EndLine();
  page.EndLine();
  page.Print(QStringLiteral("Thank you for completing the Home Checkup!"));
  page.EndLine();
  page.Print(QStringLiteral("The answers will be used to help better understand the water and energy needs of your community."));
  page.EndLine();
  endPrintout(page);

  rows.MoveFirst();
  ShowQuestion();
  Printing = false;
}

Comp_HomeCheckup& HomeCheckupForm() {
  static auto* form = new Comp_HomeCheckup;
  return *form;
}

}  // namespace fh
