#include "world/cShot.h"

#include "game/GameState.h"
#include "game/View.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"
#include "world/Condition.h"
#include "world/Players.h"
#include "world/Score.h"
#include "world/cSet.h"

// What a shot looks like for this user: computed from the database each time it is shown or changed.
namespace fh {

// The column is spelled "Freindly Name" in the schema, and worlds are built against that.
QString cShot::FriendlyName() const {
  Recordset row = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM Shots WHERE Name = ?"), {sName});
  const QString name = row.IsEOF() ? sName : row.Field(QStringLiteral("Freindly Name")).toText();
  row.Close();
  return name;
}

// No hover test runs while the shot is half drawn, and no stale hotspot survives a refresh.
void cShot::RefreshVisualElements(bool bChange) {
  GameView& view = fh::view();
  view.CurrentHotSpotIndex = -1;
  view.setGameClockRunning(false);
  RefreshScore();
  if (bChange) {
    QueryDef query = RequireGameDB().QueryDefs(QStringLiteral("SelectBackdrop"));
    query.SetParameter(QStringLiteral("TargetShot"), sName);
    query.SetParameter(QStringLiteral("SelectUserID"), CurrentUserID);
    Recordset backdrops = query.OpenRecordset();
    // The query gives the best backdrop first; an author's gap leaves the old picture standing.
    if (backdrops.IsEOF())
      MsgBox(QStringLiteral("Can't find any backdrops for ") + sName + QStringLiteral(" check VisualRegistry and try again."));
    else
      view.SetBackdrop(backdrops.Field(QStringLiteral("ImageSource")).toText(), true);
    backdrops.Close();
    query.Close();
  }
  RefreshSprites(bChange);
  view.setGameClockRunning(true);
}

namespace {

// Installs the strip of the first cel source whose condition holds: authors rely on the order of
// the rows. Gives false when none holds. A row with a Null condition or strip doesn't hold.
bool ApplyFirstHoldingCelSource(cSprite& sprite, Recordset& sources, bool bChange) {
  bool matched = false;
  for (; !sources.IsEOF(); sources.MoveNext()) {
    const FieldValue condition = sources.Field(QStringLiteral("Condition"));
    const FieldValue celSource = sources.Field(QStringLiteral("CelSource"));
    if (condition.isNull() || celSource.isNull()) continue;
    if (EvalConditions(condition.toText()) != kTrue) continue;
    // Never shown: the walk ends at the first row that holds, so no row before this one matched.
    // The flag and its message are kept as the game has always had them; they are no reason to
    // look at the later rows.
    if (matched) MsgBox(QStringLiteral("Warning! Multiple true conditions for ") + sprite.Name + QStringLiteral(", using last one."));
    matched = true;
    const FieldValue sound = sources.Field(QStringLiteral("Sound"));
    sprite.SetCels(celSource.toText(), sound.isNull() ? QString() : sound.toText());
    if (bChange) sprite.Refresh();
    break;
  }
  return matched;
}

}  // namespace

// With `bChange` false a sprite still takes its new strip: a running one shows it at its next frame,
// a halted one at the next full refresh.
void cShot::RefreshSprites(bool bChange) {
  const cSet& set = RequireCurrentSet();
  QueryDef query = RequireGameDB().QueryDefs(QStringLiteral("GetSpriteCelSources"));
  const QString shotName = sName.toLower();
  for (i16 index = 0;; index = addI16(index, 1)) {
    const std::shared_ptr<cSprite> sprite = set.GetSprite(index);
    if (!sprite) break;
    if (sprite->Shot.toLower() != shotName) {
      sprite->Hide();
      continue;
    }
    query.SetParameter(QStringLiteral("Sprite"), sprite->Name);
    Recordset sources = query.OpenRecordset();
    if (sources.IsEOF()) MsgBox(QStringLiteral("Sprite ") + sprite->Name + QStringLiteral(" does not exist!"));
    if (!ApplyFirstHoldingCelSource(*sprite, sources, bChange)) sprite->Hide();
    sources.Close();
  }
  query.Close();
}

void cShot::RefreshScore() {
  const ScoreSums sums = ReadScoreSums(RequireGameDB(), CurrentUserID);
  view().SetScore(ScoreFrom(sums, ScoreBaselines{.stateADR = BaseStateADR, .objectADR = BaseObjectADR}));
  // SetScore shows a won game as 1 whatever the sums say; the session marks the winner only once.
  if (CurrentScore == 1) SetWonGame();
}

}  // namespace fh
