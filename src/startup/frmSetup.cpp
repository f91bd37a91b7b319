#include "startup/frmSetup.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/files/Settings.h"
#include "sound/cSoundMgr.h"
#include "startup/DirectoryLists.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace fh {

frmSetup::frmSetup(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmSetup"));
  setWindowTitle(QStringLiteral("Can't see the CD!"));
  setFixedSize(twipsToPixels(8610), twipsToPixels(2505));
  setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);

  Label1 = new QLabel(QStringLiteral("Resource Directory"), this);
  Label1->setGeometry(twipsRect(180, 240, 2505, 300));

  Drive1 = new DriveList(this);
  Drive1->setObjectName(QStringLiteral("Drive1"));
  Drive1->setGeometry(twipsRect(180, 600, 2460, 315));

  Dir1 = new DirList(this);
  Dir1->setObjectName(QStringLiteral("Dir1"));
  Dir1->setGeometry(twipsRect(180, 960, 2460, 1440));

  Label2 = new QLabel(QStringLiteral("The Fernhollow CD was not detected.  Please make sure you have the CD in the computer "
                                     "and try again.  If the CD is in a different drive, use the controls to the left to "
                                     "point to the new location."),
                      this);
  Label2->setGeometry(twipsRect(2910, 330, 5445, 1365));
  Label2->setWordWrap(true);
  Label2->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  btnCancel = new QPushButton(QStringLiteral("Quit"), this);
  btnCancel->setObjectName(QStringLiteral("btnCancel"));
  btnCancel->setGeometry(twipsRect(2940, 1830, 1320, 525));
  btnCancel->setAutoDefault(false);

  btnOK = new QPushButton(QStringLiteral("OK"), this);
  btnOK->setObjectName(QStringLiteral("btnOK"));
  btnOK->setGeometry(twipsRect(6840, 1830, 1515, 555));
  btnOK->setDefault(true);

  connect(Drive1, &DriveList::driveChanged, this, [this] { showDriveRoot(); });
  connect(btnOK, &QPushButton::clicked, this, [this] { guarded("frmSetup OK", [this] { btnOK_Click(); }); });
  connect(btnCancel, &QPushButton::clicked, this, [this] { guarded("frmSetup Quit", [this] { btnCancel_Click(); }); });
}

void frmSetup::showDriveRoot() { Dir1->setPath(Drive1->drive()); }

void frmSetup::showEvent(QShowEvent* event) {
  if (const QScreen* screen = this->screen()) move(screen->geometry().center() - rect().center());
  // Each time the dialog comes up it shows the root of the chosen drive, not the folder last chosen.
  Drive1->refresh();
  showDriveRoot();
  QDialog::showEvent(event);
}

void frmSetup::btnOK_Click() {
  ResourcePath = Dir1->path();
  // A drive root already ends in its separator and gets no second one.
  if (!ResourcePath.endsWith(u'\\') && !ResourcePath.endsWith(u'/')) ResourcePath += u'\\';
  if (SoundMgr().PanBase == 0) SoundMgr().PanBase = 1;
  hide();
  SaveSetting(QStringLiteral("Fernhollow"), QStringLiteral("Settings"), QStringLiteral("ResourcePath"), ResourcePath);
  SaveSetting(QStringLiteral("Fernhollow"), QStringLiteral("Settings"), QStringLiteral("PanBase"), QString::number(SoundMgr().PanBase));
}

void frmSetup::btnCancel_Click() {
  hide();
  EndProgram();
}

void frmSetup::reject() {
  guarded("frmSetup Quit", [this] { btnCancel_Click(); });
}

// The close box only closes the dialog; while the tree is missing it comes up again.
void frmSetup::closeEvent(QCloseEvent* event) {
  event->accept();
  hide();
}

frmSetup& setupForm() {
  static auto* form = new frmSetup;
  return *form;
}

}  // namespace fh
