#include "computer/Comp_CleanAir.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/base/Values.h"
#include "platform/desktop/Fonts.h"
#include "script/ContainerState.h"
#include "world/SaveFailure.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

namespace fh {

namespace {

constexpr i16 kScreenNumber = 3;
// The calculator turns pounds into tons at 2,500 pounds, not 2,000; its totals are known by that.
constexpr double kPoundsPerTon = 2500.0;
constexpr int kMostInPounds = 1000;

struct Item {
  const char* caption;
  i16 pounds;
  int left;
  int top;
};

const Item kItemList[Comp_CleanAir::kItems] = {
    {"Lighting - 1,045 lbs", 1045, 1200, 2340},       {"Color Television - 510 lbs", 510, 1200, 2640},
    {"Cars - 20,956 lbs", 20956, 1200, 2940},         {"Refrigerator - 1,136 lbs", 1136, 1200, 3240},
    {"Clothes Washer - 1,199 lbs", 1199, 1200, 3540}, {"Dishwasher - 1,038 lbs", 1038, 1200, 3840},
    {"Range - 933 lbs", 933, 1200, 4140},             {"Air conditioner  - 547 lbs", 547, 5220, 2340},
    {"Spa/hot tub - 2,555 lbs", 2555, 5220, 2640},    {"Water heater - 4,476 lbs", 4476, 5220, 2940},
    {"Space heater - 12,958 lbs", 12958, 5220, 3240}, {"Furnace Fan - 666 lbs", 666, 5220, 3540},
    {"Home Computer - 144 lbs", 144, 5220, 3840}};

const std::pair<const char*, int> kParticipants[] = {{"1 (just you)", 1},
                                                     {"25 (your classroom)", 25},
                                                     {"1,000 (your school)", 1000},
                                                     {"50,000 (your community)", 50000},
                                                     {"1,000,000 (your state)", 1000000}};

QLabel* label(QWidget* form, const char* name, const QString& text, const QRect& place, const QFont& font) {
  auto* made = new QLabel(text, form);
  made->setObjectName(QString::fromLatin1(name));
  made->setGeometry(place);
  made->setFont(font);
  made->setWordWrap(true);
  made->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return made;
}

// Every statement of the opening goes on when one before it fails.
void ignoringFailures(const std::function<void()>& step) {
  try {
    step();
  } catch (const RuntimeFailure&) {
  }
}

}  // namespace

Comp_CleanAir::Comp_CleanAir() : ComputerForm(QStringLiteral("Comp_CleanAir"), QStringLiteral("Community Chalkboard"), kScreenNumber) {
  Title = label(this, "Title", QStringLiteral("Clean Air Calculator"), twipsRect(0, 0, 9420, 420), ArialFont(15.75, true));
  QPalette red = Title->palette();
  red.setColor(QPalette::WindowText, Qt::red);
  Title->setPalette(red);
  Label1 = label(this, "Label1",
                 QStringLiteral("The typical household in some US states produces close to 50,000 pounds of carbon dioxide (CO2) a year. "
                                "Use this clean air calculator to see how much CO2 you, your class or community emits a year. Then use "
                                "the suggestions you find throughout this home to help you use less energy to keep our air clean."),
                 twipsRect(60, 480, 9375, 855), ArialFont(9.75));
  Label2 = label(this, "Label2", QStringLiteral("Number of Participants:"), twipsRect(1140, 1500, 2760, 300), ArialFont(12, true));

  lstParticipants = new QComboBox(this);
  lstParticipants->setObjectName(QStringLiteral("lstParticipants"));
  lstParticipants->setGeometry(twipsRect(3960, 1440, 3795, 405));
  lstParticipants->setFont(ArialFont(12, true));
  QPalette green = lstParticipants->palette();
  green.setColor(QPalette::Base, QColor(128, 255, 128));
  green.setColor(QPalette::Button, QColor(128, 255, 128));
  lstParticipants->setPalette(green);
  for (const auto& [text, multiplier] : kParticipants) lstParticipants->addItem(QString::fromLatin1(text), multiplier);
  connect(lstParticipants, &QComboBox::activated, this, [this] { guarded("Clean Air participants", [this] { CalcTotal(); }); });

  Label3 = label(this, "Label3", QStringLiteral("Check the items below that you find in your home."), twipsRect(0, 1980, 9435, 315),
                 ArialFont(9.75, true));
  for (int i = 0; i < kItems; ++i) {
    auto* box = new QCheckBox(QString::fromLatin1(kItemList[i].caption), this);
    box->setObjectName(QStringLiteral("Check1_%1").arg(i));
    box->setGeometry(twipsRect(kItemList[i].left, kItemList[i].top, i == 0 ? 2955 : 2895, 255));
    box->setFont(ArialFont(9.75));
    connect(box, &QCheckBox::clicked, this, [this] { guarded("Clean Air item", [this] { CalcTotal(); }); });
    Check1[static_cast<std::size_t>(i)] = box;
  }
  Label12 = label(this, "Label12", QStringLiteral("Your Annual Carbon Dioxide Emission Total . . . . . . ."), twipsRect(660, 4500, 5820, 300),
                  ArialFont(12, true));
  lblTotal = label(this, "lblTotal", QStringLiteral("lbs"), twipsRect(6540, 4500, 1920, 300), ArialFont(12, true));
}

void Comp_CleanAir::Init() {
  ignoringFailures([] { ActiveComputerScreen = kScreenNumber; });
  // The one thing kept of the calculator: the opening's other failures pass unnoticed, but not a
  // failure to keep that.
  ignoringFailures([] { TellingSaveFailures([] { SetContainer(QStringLiteral("CleanAir"), 1, false); }); });
  ignoringFailures([this] {
    for (int i = 0; i < kItems; ++i) ItemPounds[static_cast<std::size_t>(i)] = kItemList[i].pounds;
  });
  // Choosing the first entry is a click on the list, which works the total out.
  ignoringFailures([this] {
    lstParticipants->setCurrentIndex(0);
    CalcTotal();
  });
}

void Comp_CleanAir::CalcTotal() {
  const int participants = lstParticipants->currentData().toInt();
  std::int32_t pounds = 0;
  for (int i = 0; i < kItems; ++i)
    if (Check1[static_cast<std::size_t>(i)]->isChecked()) pounds += ItemPounds[static_cast<std::size_t>(i)];
  if (participants <= kMostInPounds)
    lblTotal->setText(formatThousands(static_cast<double>(pounds * participants)) + QStringLiteral(" lbs"));
  else
    lblTotal->setText(formatThousands(pounds / kPoundsPerTon * participants) + QStringLiteral(" tons"));
}

void Comp_CleanAir::Print() {
  ignoringFailures([this] { show(); });
}

Comp_CleanAir& CleanAirForm() {
  static auto* form = new Comp_CleanAir;
  return *form;
}

}  // namespace fh
