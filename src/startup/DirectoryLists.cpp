#include "startup/DirectoryLists.h"

#include "platform/base/Guard.h"

#include <QApplication>
#include <QDir>
#include <QStorageInfo>
#include <QStyle>

namespace fh {

namespace {

constexpr int kPathRole = Qt::UserRole;

QStringList driveRoots() {
  QStringList roots{QStringLiteral("/")};
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    // Disks, CDs and memory sticks; the system's own pseudo file systems are no drives to a player.
    if (!volume.isValid() || !volume.isReady() || !volume.device().startsWith("/dev/")) continue;
    if (!roots.contains(volume.rootPath())) roots << volume.rootPath();
  }
  roots.sort();
  return roots;
}

QString driveOf(const QString& folder) {
  const QString root = QStorageInfo(folder).rootPath();
  return root.isEmpty() ? QStringLiteral("/") : root;
}

}  // namespace

DriveList::DriveList(QWidget* parent) : QComboBox(parent) {
  refresh();
  setDrive(driveOf(QDir::currentPath()));
  connect(this, &QComboBox::currentIndexChanged, this, [this] { guarded("Drive1 change", [this] { emit driveChanged(); }); });
}

QString DriveList::drive() const { return currentData().toString(); }

void DriveList::setDrive(const QString& rootFolder) {
  int index = findData(rootFolder);
  if (index < 0) index = findData(QStringLiteral("/"));
  setCurrentIndex(index);
}

void DriveList::refresh() {
  const QString before = drive();
  const QSignalBlocker quiet(this);
  clear();
  for (const QString& root : driveRoots()) {
    const QStorageInfo volume(root);
    const QString name = volume.displayName() == root ? QString() : QStringLiteral("  [%1]").arg(volume.displayName());
    addItem(root + name, root);
  }
  if (!before.isEmpty()) setDrive(before);
}

DirList::DirList(QWidget* parent) : QListWidget(parent) {
  setPath(QDir::currentPath());
  connect(this, &QListWidget::itemDoubleClicked, this,
          [this](QListWidgetItem* item) { guarded("Dir1 double click", [this, item] { openRow(row(item)); }); });
}

void DirList::setPath(const QString& folder) {
  const QString clean = QDir::cleanPath(QDir(folder).absolutePath());
  if (clean == m_path) return;
  m_path = clean;
  fill();
  emit pathChanged();
}

void DirList::openRow(int row) {
  const QListWidgetItem* chosen = item(row);
  if (chosen) setPath(chosen->data(kPathRole).toString());
}

void DirList::fill() {
  clear();
  const QIcon open = QApplication::style()->standardIcon(QStyle::SP_DirOpenIcon);
  const QIcon closed = QApplication::style()->standardIcon(QStyle::SP_DirClosedIcon);

  // The chain from the root down to the open folder, each one step further in.
  QStringList chain;
  for (QDir dir(m_path);; ) {
    chain.prepend(dir.absolutePath());
    if (dir.isRoot() || !dir.cdUp()) break;
  }
  int depth = 0;
  for (const QString& folder : chain) {
    const QString name = QDir(folder).isRoot() ? folder : QDir(folder).dirName();
    auto* entry = new QListWidgetItem(open, QString(depth * 2, u' ') + name, this);
    entry->setData(kPathRole, folder);
    ++depth;
  }
  const QStringList children = QDir(m_path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
  for (const QString& child : children) {
    auto* entry = new QListWidgetItem(closed, QString(depth * 2, u' ') + child, this);
    entry->setData(kPathRole, QDir(m_path).filePath(child));
  }
  setCurrentRow(static_cast<int>(chain.size()) - 1);
}

}  // namespace fh
