#pragma once

#include "computer/ComputerForm.h"

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;

namespace fh {

// The clean air calculator: the student ticks what the home has, chooses how many people take
// part, and reads the yearly carbon dioxide. Only the opening is kept: it puts "CleanAir" right.
// The ticks stay while the game runs; the participants start at one person at each opening.
class Comp_CleanAir final : public ComputerForm {
 public:
  static constexpr int kItems = 13;

  Comp_CleanAir();

  QLabel* Title;
  QLabel* Label1;
  QLabel* Label2;
  QComboBox* lstParticipants;
  QLabel* Label3;
  std::array<QCheckBox*, kItems> Check1{};
  QLabel* Label12;
  QLabel* lblTotal;

  void Init() override;
  void Shutdown() override { hide(); }
  // Shows the screen once more, and prints nothing: this screen has never printed.
  void Print() override;

 private:
  void CalcTotal();

  // Pounds of carbon dioxide a year of each item; the one entry beyond the boxes is never summed.
  std::array<i16, 14> ItemPounds{};
};

Comp_CleanAir& CleanAirForm();

}  // namespace fh
