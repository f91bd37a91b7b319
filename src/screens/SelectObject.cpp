#include "screens/SelectObject.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"
#include "platform/desktop/CdPrompt.h"
#include "platform/desktop/Fonts.h"
#include "platform/desktop/PictureButton.h"
#include "platform/desktop/Pictures.h"
#include "platform/desktop/RichTextBox.h"
#include "platform/files/FileNames.h"
#include "screens/ObjectHelp.h"
#include "sound/cSoundMgr.h"
#include "world/Dialogs.h"
#include "world/SaveFailure.h"
#include "world/cSet.h"

#include <QLabel>

namespace fh {

namespace {

QLabel* textLabel(QWidget* form, const QString& name, const QString& text, const QRect& place, const QFont& font) {
  auto* label = new QLabel(text, form);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);  // names and descriptions from the database, shown as written
  label->setGeometry(place);
  label->setFont(font);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return label;
}

// The savings summary is written with carriage returns alone, which a label would run together.
QString withLineBreaks(QString text) { return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n'); }

}  // namespace

SelectObject::SelectObject(const QRect& view)
    : PictureForm(QStringLiteral("SelectObject"), QStringLiteral("Select Object"), QStringLiteral("ChoiceBack")), m_view(view) {
  Image1 = new QLabel(this);
  Image1->setObjectName(QStringLiteral("Image1"));
  Image1->setGeometry(twipsRect(135, 135, 1815, 2175));
  Image1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  ObjectName = textLabel(this, QStringLiteral("ObjectName"), QStringLiteral("Name"), twipsRect(2085, 150, 2580, 585), ArialFont(11.25, true));
  Description = textLabel(this, QStringLiteral("Description"), QStringLiteral("Description"), twipsRect(2115, 735, 2535, 1590), ArialFont(9));

  const auto button = [this](const char* name, const char* toolTip, const char* pictures, const QRect& place,
                             void (SelectObject::*click)()) {
    PictureButton* made = WindowArtButton(this, QString::fromLatin1(name), QString::fromLatin1(toolTip), QString::fromLatin1(pictures), place.topLeft());
    connect(made, &QPushButton::clicked, this, [this, name, click] {
      guarded(name, [this, click] { (this->*click)(); });
    });
    return made;
  };
  btnLeft = button("btnLeft", "Previous Object", "ChoiceLeft", twipsRect(135, 2370, 960, 720), &SelectObject::btnLeft_Click);
  btnRight = button("btnRight", "Next Object", "ChoiceRight", twipsRect(1095, 2370, 960, 720), &SelectObject::btnRight_Click);
  btnInformation = button("btnInformation", "Show Object Information", "ChoiceInformation", twipsRect(2100, 2535, 1725, 465),
                          &SelectObject::btnInformation_Click);
  btnSavings = button("btnSavings", "Show Savings Calculation", "ChoiceSavings", twipsRect(2100, 3030, 1725, 465),
                      &SelectObject::btnSavings_Click);
  btnHelp = button("btnHelp", "Show Help Screen", "ChoiceHelp", twipsRect(645, 3060, 855, 435), &SelectObject::btnHelp_Click);
  btnOK = button("btnOK", "Select this object", "Ok", twipsRect(3885, 2520, 795, 960), &SelectObject::btnOK_Click);

  InfoMode = 1;
  centreOver(view);
}

QueryDef SelectObject::containerQuery() const {
  QueryDef query = RequireGameDB().QueryDefs(QStringLiteral("GetContainer"));
  query.SetParameter(QStringLiteral("SelectContainer"), ContainerName);
  query.SetParameter(QStringLiteral("SelectUserID"), CurrentUserID);
  return query;
}

Recordset& SelectObject::objectList() {
  if (!ObjectList) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("ObjectList"));
  return *ObjectList;
}

void SelectObject::Init(const QString& containerName) {
  ContainerName = containerName;
  InfoMode = 1;
  // The screen starts empty, so that nothing of the last container shows through a message.
  ObjectName->clear();
  Description->clear();
  Image1->clear();

  Recordset container = containerQuery().OpenRecordset();
  // Both messages hide the form and go on: the script shows it all the same, empty. The spelling
  // is the game's own.
  if (container.IsEOF()) {
    MsgBox(QStringLiteral("No User-Containre entry for ") + containerName + QStringLiteral(" check database and try again."));
    hide();
  }
  ObjectList = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM GetObjects WHERE Containers.Name = ?"), {containerName});
  if (ObjectList->IsEOF()) {
    MsgBox(QStringLiteral("No objects for  ") + containerName + QStringLiteral(" check database and try again."));
    hide();
  } else {
    // With no row for the player, but objects, this is where Init fails: no current record.
    const FieldValue help = container.Field(QStringLiteral("Help Text"));
    HelpTextCache = help.isNull() ? QStringLiteral("No help available, try to make the wise choice!") : help.toText();
    HelpTitle = container.Field(QStringLiteral("Friendly Name")).toText();

    // Names match as the database matches them, without regard to case. Null matches nothing.
    const FieldValue standing = container.Field(QStringLiteral("CurrentObject"));
    ObjectList->MoveFirst();
    while (!ObjectList->IsEOF()) {
      if (!standing.isNull() &&
          ObjectList->Field(QStringLiteral("Objects.Name")).toText().compare(standing.toText(), Qt::CaseInsensitive) == 0)
        break;
      ObjectList->MoveNext();
    }
    if (ObjectList->IsEOF()) ObjectList->MoveFirst();
    ShowObject();
  }
  container.Close();
  ModalOpen = true;
}

// A step that fails here, a missing picture or a Null, is taken for a missing CD: OK tries again,
// Cancel ends the program. A picture's failure names its file for the prompt.
void SelectObject::ShowObject() {
  RetryWithCdPrompt([this] { showObjectOnce(); });
}

void SelectObject::showObjectOnce() {
  Recordset& object = objectList();
  ObjectName->setText(object.Field(QStringLiteral("Objects.Name")).toText());
  if (InfoMode == 1) Description->setText(object.Field(QStringLiteral("Description")).toText());
  if (InfoMode == 2) {
    const FieldValue savings = object.Field(QStringLiteral("SavingsInfo"));
    // The rate stands as the database gives it, with no formatting.
    const QString summary = QStringLiteral("\rResource usage summary:\r\rDaily ") + object.Field(QStringLiteral("ResourceGroup")).toText() +
                            QStringLiteral(" rate = ") + object.Field(QStringLiteral("ADR")).toText();
    Description->setText(withLineBreaks(savings.isNull() ? summary : savings.toText()));
  }
  const QString imageFile = object.Field(QStringLiteral("ImageFile")).toText();
  if (imageFile.isEmpty())
    Image1->clear();
  else
    Image1->setPixmap(QPixmap::fromImage(LoadPicture(fileInFolder(ResourcePath + QStringLiteral("Graphics\\"), imageFile))));
}

void SelectObject::btnLeft_Click() {
  SoundMgr().PlayLocal(QStringLiteral("Switch"), 0, false);
  Recordset& objects = objectList();
  objects.MovePrevious();
  if (objects.IsBOF()) objects.MoveLast();
  ShowObject();
}

// The objects are a ring: past the last comes the first again.
void SelectObject::btnRight_Click() {
  SoundMgr().PlayLocal(QStringLiteral("Switch"), 0, false);
  Recordset& objects = objectList();
  objects.MoveNext();
  if (objects.IsEOF()) objects.MoveFirst();
  ShowObject();
}

void SelectObject::btnInformation_Click() {
  if (InfoMode == 1) return;
  InfoMode = 1;
  ShowObject();
}

void SelectObject::btnSavings_Click() {
  if (InfoMode == 2) return;
  InfoMode = 2;
  ShowObject();
}

void SelectObject::btnHelp_Click() {
  ObjectHelp& help = ObjectHelpForm(m_view);
  help.Title->setText(HelpTitle);
  help.HelpText->setText(HelpTextCache);
  ui().showModal(help);
}

// The one way out: the player always leaves with a choice, written at once. The score is brought
// up to date by the refresh that follows the screen.
void SelectObject::btnOK_Click() {
  const QString chosen = objectList().Field(QStringLiteral("Objects.Name")).toText();
  RequireCurrentSet().GetContainer(ContainerName).CurrentObject = chosen;

  // A choice the database won't keep is told, and the screen closes all the same: the player
  // mustn't be held in it while the database is out of reach.
  TellingSaveFailures([this, &chosen] {
    Recordset row = containerQuery().OpenRecordset();
    if (!row.IsEOF()) {
      row.Edit();
      row.SetField(QStringLiteral("CurrentObject"), chosen);
      row.Update();
      ShowDialogString(row.Field(QStringLiteral("Friendly Name")).toText() + QStringLiteral(" set to ") +
                       row.Field(QStringLiteral("CurrentObject")).toText());
    }
    row.Close();
  });

  objectList().Close();
  ModalOpen = false;
  hide();
}

SelectObject& SelectObjectForm(const QRect& view) {
  static auto* form = new SelectObject(view);
  return *form;
}

}  // namespace fh
