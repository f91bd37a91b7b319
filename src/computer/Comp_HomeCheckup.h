#pragma once

#include "computer/ComputerForm.h"
#include "platform/data/Recordset.h"

#include <array>
#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace fh {

// The home checkup: the questions of the world, one at a time, each answered as free text, as a
// choice from a list, or yes or no. Every answer is kept for the player at once, so the checkup
// can be left at any question and takes up again after the last one answered. The printout is the
// page that goes home to be signed.
class Comp_HomeCheckup final : public ComputerForm {
 public:
  Comp_HomeCheckup();

  QLabel* Label1;
  QLabel* Label2;
  QLabel* Label3;
  QLabel* QuestionNumber;
  QLabel* QuestionText;
  QLineEdit* txtAnswer;
  QComboBox* lstAnswer;
  std::array<QRadioButton*, 2> optYesNo{};  // index 0 "No", above index 1 "Yes"
  QPushButton* btnPrevious;
  QPushButton* btnNext;

  // The whole questionnaire with this player's stored answers, for a parent or teacher to sign.
  // What is typed and not yet moved on from isn't kept: afterwards the first question shows.
  void PrintQuestionaire();
  void Shutdown() override;
  // Opens on the question after the last one answered: the first when none is, the last when it is.
  void Init() override;
  void Print() override;

  void NextQuestion();
  void btnPrevious_Click();

 private:
  void ShowQuestion();
  void SaveAnswer();
  // This player's answer to the current question: one row, or none.
  Recordset openAnswer();
  Recordset& questions();

  std::optional<Recordset> QuestionRS;
};

Comp_HomeCheckup& HomeCheckupForm();

}  // namespace fh
