#pragma once

#include "platform/data/FieldValue.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

namespace fh {

class DatabaseConnection;

// Rows of a table, a saved query or a statement, read when opened and movable both ways. Rows of a
// table, of a statement on one table, or of a saved query that names its update table can be edited,
// added and deleted; each change goes to the database at Update or Delete.
class Recordset {
 public:
  // Where edited rows are written: the table, its ID column, and the result column that holds the ID.
  struct Target {
    QString table;
    QString tableKey;
    QString resultKey;
  };

  Recordset(std::shared_ptr<DatabaseConnection> connection, QStringList columns, std::vector<std::vector<QVariant>> rows,
            Target target);
  // Closes the rows if they are open. A failure of that can't be thrown from here: the next
  // statement on the database fails with it instead.
  ~Recordset();
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;

  // Before the first row, after the last. (EOF itself is a macro of the C library.)
  bool IsBOF() const;
  bool IsEOF() const;
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  int RecordCount() const;
  QStringList ColumnNames() const;
  // The current row's place counting from 0; -1 before the first and after the last.
  int AbsolutePosition() const;

  // A field of the current row, found by name without regard to case; while a row is being edited
  // or added, the value it has been given.
  FieldValue Field(const QString& name) const;
  void SetField(const QString& name, const QVariant& value);

  void Edit();
  // Adds a row that the database gives its ID at once; Update keeps it, CancelUpdate or Close drops it.
  void AddNew();
  void Update();
  void CancelUpdate();
  void Delete();
  void Close();

 private:
  struct Data;
  int columnIndex(const QString& name) const;
  void requireCurrent() const;
  void step(int direction);
  std::unique_ptr<Data> d;
};

}  // namespace fh
