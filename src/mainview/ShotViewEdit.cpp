#include "mainview/ShotView.h"

#include "game/GameState.h"
#include "game/Screens.h"
#include "platform/base/Failure.h"
#include "platform/desktop/Fonts.h"
#include "platform/base/Ui.h"
#include "platform/desktop/PictureBox.h"
#include "world/SetFile.h"
#include "world/cSet.h"
#include "world/cHotSpot.h"
#include "world/cShot.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>

// Edit mode: the main view as the world's authoring tool. The shot's plain backdrop stands in for
// the picture, with each hotspot drawn on it as an outline that shows its name.
namespace fh {

namespace {

constexpr i16 kMostHotSpotsDrawn = 19;

}  // namespace

QLabel* ShotView::newHighlight() {
  auto* label = new QLabel(QStringLiteral("HotSpot"), this);
  label->setObjectName(QStringLiteral("Highlight"));
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  label->setFont(ArialFont(8.25, true));
  label->setStyleSheet(QStringLiteral("QLabel { color: yellow; background: transparent; border: 1px solid yellow; }"));
  label->hide();
  return label;
}

void ShotView::modeDebug() {
  if (!CurrentShot) return;
  GameMode = 0;
  CurrentHotSpotIndex = 0;
  if (CurrentShot->NumHotSpots > 0) SetHighlights();
  // The backdrop has no window of its own, so the outlines can lie on it and its mouse messages
  // reach the window's hook. The sprites, which live on DisplayView, are out of sight meanwhile.
  DisplayView->hide();
  Backdrop->show();
}

void ShotView::EditOff() {
  if (!CurrentShot) return;
  GameMode = 1;
  UnSetHighlights();
  DisplayView->show();
  Backdrop->hide();
}

void ShotView::SetHighlights() {
  if (!CurrentShot) return;
  const QPoint picture = DisplayView->pos();
  for (i16 i = 0; i < CurrentShot->NumHotSpots; ++i) {
    if (i >= static_cast<int>(Highlight.size())) Highlight.push_back(newHighlight());
    const std::shared_ptr<cHotSpot> hotspot = CurrentShot->HotSpot(i);
    if (!hotspot) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("hotspot %1").arg(i));
    QLabel* label = Highlight[static_cast<std::size_t>(i)];
    label->setGeometry(picture.x() + hotspot->Left, picture.y() + hotspot->Top, hotspot->Width, hotspot->Height);
    label->setText(hotspot->Name);
    label->raise();
    label->show();
  }
}

// The count is that of the shot now: callers that change the number of hotspots call this first.
void ShotView::UnSetHighlights() {
  if (!CurrentShot) return;
  const std::size_t count = std::min(static_cast<std::size_t>(std::max<i16>(CurrentShot->NumHotSpots, 0)), Highlight.size());
  for (std::size_t i = 0; i < count; ++i) Highlight[i]->hide();
  for (std::size_t i = 1; i < count; ++i) delete Highlight[i];
  if (count > 1) Highlight.erase(Highlight.begin() + 1, Highlight.begin() + static_cast<std::ptrdiff_t>(count));
}

void ShotView::setHighlightCaption(i16 index, const QString& caption) {
  if (index < 0 || index >= static_cast<int>(Highlight.size()))
    throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("Highlight(%1)").arg(index));
  Highlight[static_cast<std::size_t>(index)]->setText(caption);
}

// A new hotspot of 20 by 20 around the pointer, named for its place in the list. Drawn with the
// mouse, a shot takes 19 at most.
void ShotView::AddHotSpot(i16 x, i16 y) {
  if (!CurrentShot) return;
  if (CurrentShot->NumHotSpots == kMostHotSpotsDrawn) {
    MsgBox(QStringLiteral("Maximum number of hotspots reached."), Buttons::Ok, QStringLiteral("Whoa there little fella!"));
    return;
  }
  UnSetHighlights();
  const std::shared_ptr<cShot> shot = RequireCurrentSet().Shot(RequireCurrentSet().nCurrentShot);
  CurrentHotSpotIndex = shot->AddHotSpot(subI16(x, 2), subI16(y, 2), 20, 20);
  shot->HotSpot(CurrentHotSpotIndex)->Name = QStringLiteral("HotSpot") + QString::number(CurrentHotSpotIndex + 1);
  SetHighlights();
}

// What the three edit buttons do.
void ShotView::btnSetForm_Click() {
  // The set dialog can change the shots, so the mode is entered again on the shot it leaves shown.
  const bool wasEditing = GameMode == 0;
  if (wasEditing) EditOff();
  ShowSetDialog();
  if (wasEditing) modeDebug();
}

void ShotView::btnShotEdit_Click() { ShowShotDialog(); }

void ShotView::Save_Click() { SaveSet(); }

void ShotView::setAuthoring(bool authoring) {
  m_authoring = authoring;
  for (QPushButton* button : {btnSetForm, btnShotEdit, Save}) button->setVisible(authoring);
}

}  // namespace fh
