#include "authoring/frmHotSpotPopup.h"

#include "game/GameState.h"
#include "game/View.h"
#include "platform/base/Failure.h"
#include "platform/base/Twips.h"
#include "platform/base/Values.h"
#include "platform/desktop/Fonts.h"
#include "world/cHotSpot.h"
#include "world/cShot.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace fh {

namespace {

// The rollover is one line: Enter in its box presses OK, as everywhere on the form but in the
// script box, where it starts the next line.
class OneLineTextBox final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
      event->ignore();
    else
      QPlainTextEdit::keyPressEvent(event);
  }
};

// The script's text ends each line with a carriage return and a line feed; a Qt text box holds a
// line feed alone.
void showScriptText(QPlainTextEdit& box, QString text) { box.setPlainText(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))); }
QString scriptText(const QPlainTextEdit& box) { return box.toPlainText().replace(u'\n', QStringLiteral("\r\n")); }

// Splits the script box's text into the hotspot's lines. Positions count from 1. A carriage return
// ends a line (the count rises and the line is stored), a line feed moves the start of the next one
// past itself, and whatever follows the last break is a line too unless it is empty. The count of
// lines is only ever set to the lines found so far: an empty box leaves the old script standing,
// and deleting the hotspot is the only way to be rid of a script. Blank lines count.
void storeScript(cHotSpot& hotspot, const QString& text) {
  i16 count = 0;
  int start = 1;
  const i16 length = toI16(text.size());
  const auto storeLine = [&hotspot, &count](const QString& line) {
    count = addI16(count, 1);
    hotspot.SetNumScriptLines(count);
    hotspot.SetScriptLine(subI16(count, 1), line);
  };
  for (int i = 1; i <= length; ++i) {
    const QChar character = text.at(i - 1);
    if (character == u'\r')
      storeLine(Mid(text, start, i - start));
    else if (character == u'\n')
      start = i + 1;
  }
  const QString tail = Mid(text, start);
  if (!tail.isEmpty()) storeLine(tail);
}

}  // namespace

frmHotSpotPopup::frmHotSpotPopup() : AuthoringForm(QStringLiteral("frmHotSpotPopup"), QStringLiteral("HotSpot"), 3270, 6240) {
  Label2 = addLabel(this, "Label2", QStringLiteral("Name"), twipsRect(135, 120, 3000, 375));
  Label2->setFont(ArialFont(8.25, true));
  txtName = addTextBox(this, "txtName", twipsRect(120, 480, 3015, 375));
  txtName->setFont(TimesFont(9));

  Frame1 = placed(new QGroupBox(QStringLiteral("Script"), this), "Frame1", twipsRect(120, 975, 3015, 2895));
  Label3 = addLabel(Frame1, "Label3", QStringLiteral("On_Click"), twipsRect(60, 240, 2910, 300));
  txtScript = placed(new QPlainTextEdit(Frame1), "txtScript", twipsRect(30, 540, 2970, 1335));
  txtScript->setLineWrapMode(QPlainTextEdit::NoWrap);  // a line of the box is a line of the script
  Label4 = addLabel(Frame1, "Label4", QStringLiteral("On_Rollover"), twipsRect(60, 1935, 2910, 300));
  txtRollover = placed(new OneLineTextBox(Frame1), "txtRollover", twipsRect(30, 2235, 3015, 615));

  // Only the frame's caption is in Bookman; what it holds keeps the form's font.
  Frame2 = placed(new QGroupBox(QStringLiteral("Settings"), this), "Frame2", twipsRect(105, 4005, 3015, 1455));
  Frame2->setFont(BookmanFont(8.25));
  chkEnabled = placed(new QCheckBox(QStringLiteral("Enabled"), Frame2), "chkEnabled", twipsRect(120, 255, 1320, 252));
  ChkQuiet = placed(new QCheckBox(QStringLiteral("Quiet"), Frame2), "ChkQuiet", twipsRect(1560, 240, 1320, 252));
  Label1 = addLabel(Frame2, "Label1", QStringLiteral("Icon"), twipsRect(120, 600, 1575, 375));
  txtIcon = addTextBox(Frame2, "txtIcon", twipsRect(120, 960, 1575, 330));
  txtIcon->setText(QStringLiteral("Text1"));
  for (QWidget* inFrame : std::initializer_list<QWidget*>{chkEnabled, ChkQuiet, Label1, txtIcon}) inFrame->setFont(font());

  btnDel = addButton("btnDel", QStringLiteral("Del"), twipsRect(120, 5565, 855, 375), [this] { btnDel_Click(); });
  btnOK = addButton("btnOK", QStringLiteral("OK"), twipsRect(1920, 5565, 1215, 375), [this] { btnOK_Click(); });
  refuseBlanks(txtName, PreviousName);
}

std::shared_ptr<cHotSpot> frmHotSpotPopup::currentHotSpot() const {
  const i16 index = view().CurrentHotSpotIndex;
  std::shared_ptr<cHotSpot> hotspot = RequireCurrentShot().HotSpot(index);
  if (!hotspot) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("hotspot %1").arg(index));
  return hotspot;
}

// Every line of the script, the last too, ends with a line break in the box.
void frmHotSpotPopup::Form_Activate() {
  if (view().CurrentHotSpotIndex == -1) {
    hide();
    return;
  }
  const std::shared_ptr<cHotSpot> hotspot = currentHotSpot();
  txtName->setText(hotspot->Name);
  txtIcon->setText(QString::number(hotspot->Icon));
  ChkQuiet->setChecked(static_cast<bool>(hotspot->Quiet));
  chkEnabled->setChecked(static_cast<bool>(hotspot->Enabled));
  QString script;
  for (i16 i = 0; i < hotspot->NumScriptLines; ++i) script += hotspot->Script(i) + QStringLiteral("\r\n");
  showScriptText(*txtScript, script);
  showScriptText(*txtRollover, hotspot->Rollover);
}

void frmHotSpotPopup::btnOK_Click() {
  const i16 index = view().CurrentHotSpotIndex;
  const std::shared_ptr<cHotSpot> hotspot = currentHotSpot();
  hotspot->Name = txtName->text();
  view().setHighlightCaption(index, txtName->text());
  hotspot->Icon = CInt(Val(txtIcon->text()));
  // Whatever the Enabled box says: the test before this call was always true, and the hotspot's
  // rollover is undone under its old flags.
  hotspot->LiteDown();
  hotspot->Quiet = ChkQuiet->isChecked();
  hotspot->Enabled = chkEnabled->isChecked();
  storeScript(*hotspot, scriptText(*txtScript));
  hotspot->Rollover = scriptText(*txtRollover);
  hide();
}

// No question first. The last hotspot moves into the gap, so the outlines are laid anew.
void frmHotSpotPopup::btnDel_Click() {
  GameView& mainView = view();
  const i16 index = mainView.CurrentHotSpotIndex;
  currentHotSpot()->LiteDown();
  mainView.UnSetHighlights();
  RequireCurrentShot().DeleteHotSpot(index);
  mainView.SetHighlights();
  mainView.CurrentHotSpotIndex = -1;
  hide();
}

frmHotSpotPopup& HotSpotPopupForm() {
  static auto* form = new frmHotSpotPopup;
  return *form;
}

}  // namespace fh
