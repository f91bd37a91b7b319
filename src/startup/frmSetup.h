#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

namespace fh {

class DirList;
class DriveList;

// Asks where the resource tree is, when it can't be seen. It stands for every resource problem.
class frmSetup : public QDialog {
  Q_OBJECT
 public:
  explicit frmSetup(QWidget* parent = nullptr);

  QLabel* Label1;
  DriveList* Drive1;
  DirList* Dir1;
  QLabel* Label2;
  QPushButton* btnCancel;
  QPushButton* btnOK;

  // Takes the open folder as the resource tree and saves it with PanBase.
  void btnOK_Click();
  // Quit: hides the dialog and ends the program.
  void btnCancel_Click();
  // Escape is the Quit button.
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void showDriveRoot();
};

// The one frmSetup, created on first use.
frmSetup& setupForm();

}  // namespace fh
