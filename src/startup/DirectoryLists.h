#pragma once

#include <QComboBox>
#include <QListWidget>

namespace fh {

// A list of the drives: the root of the file system and every mounted device volume.
class DriveList : public QComboBox {
  Q_OBJECT
 public:
  explicit DriveList(QWidget* parent = nullptr);
  // Root folder of the chosen drive.
  QString drive() const;
  void setDrive(const QString& rootFolder);
  // Reads the mounted volumes again; keeps the choice when its drive is still there.
  void refresh();

 signals:
  void driveChanged();
};

// A folder list: the open folder's ancestors from the root down, the open folder itself, and its
// sub-folders below it. A double click opens a folder; a single click only selects it.
class DirList : public QListWidget {
  Q_OBJECT
 public:
  explicit DirList(QWidget* parent = nullptr);
  // The open folder.
  QString path() const { return m_path; }
  void setPath(const QString& folder);
  // Opens the folder of the given row, as a double click does.
  void openRow(int row);

 signals:
  void pathChanged();

 private:
  void fill();

  QString m_path;
};

}  // namespace fh
