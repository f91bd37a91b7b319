#include "platform/data/Recordset.h"

#include "platform/base/Failure.h"
#include "platform/data/DatabaseConnection.h"

#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>

namespace fh {

namespace {

enum class EditMode { None, Editing, Adding };

}  // namespace

struct Recordset::Data {
  std::shared_ptr<DatabaseConnection> connection;
  QStringList columns;
  std::vector<std::vector<QVariant>> rows;
  std::vector<bool> deleted;
  Target target;
  int position = 0;  // -1 before the first row, rows.size() after the last
  bool closed = false;

  EditMode mode = EditMode::None;
  std::vector<QVariant> buffer;  // the row being edited or added
  std::vector<bool> changed;
  QVariant newId;
};

Recordset::Recordset(std::shared_ptr<DatabaseConnection> connection, QStringList columns,
                     std::vector<std::vector<QVariant>> rows, Target target)
    : d(std::make_unique<Data>()) {
  d->connection = std::move(connection);
  d->columns = std::move(columns);
  d->rows = std::move(rows);
  d->deleted.assign(d->rows.size(), false);
  d->target = std::move(target);
}

// Recordsets are closed where they are used; one that ends open mostly does so while another
// failure goes up past it, between an AddNew and its Update. A destructor can't throw, so a failure
// to take the new row back waits on the connection, and the next statement there fails with it.
Recordset::~Recordset() {
  if (!d) return;
  try {
    Close();
  } catch (const RuntimeFailure& failure) {
    d->connection->keepFailure(failure);
  }
}

Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

// A row that was deleted stays current, neither before the first nor after the last, until a move.
bool Recordset::IsBOF() const { return d->position < 0 || d->rows.empty(); }

bool Recordset::IsEOF() const { return d->position >= static_cast<int>(d->rows.size()) || d->rows.empty(); }

int Recordset::RecordCount() const {
  return static_cast<int>(std::count(d->deleted.begin(), d->deleted.end(), false));
}

QStringList Recordset::ColumnNames() const { return d->columns; }

int Recordset::AbsolutePosition() const {
  if (IsBOF() || IsEOF() || d->deleted[d->position]) return -1;
  int place = 0;
  for (int i = 0; i < d->position; ++i)
    if (!d->deleted[i]) ++place;
  return place;
}

// Moves one row in `direction`, passing over deleted rows, and stops before the first or after the last.
void Recordset::step(int direction) {
  const int end = static_cast<int>(d->rows.size());
  do d->position += direction;
  while (d->position >= 0 && d->position < end && d->deleted[d->position]);
  if (d->position < -1) d->position = -1;
  if (d->position > end) d->position = end;
}

void Recordset::MoveFirst() {
  if (RecordCount() == 0) throw RuntimeFailure(Failure::NoCurrentRecord, QStringLiteral("MoveFirst"));
  d->position = -1;
  step(1);
}

void Recordset::MoveLast() {
  if (RecordCount() == 0) throw RuntimeFailure(Failure::NoCurrentRecord, QStringLiteral("MoveLast"));
  d->position = static_cast<int>(d->rows.size());
  step(-1);
}

void Recordset::MoveNext() {
  if (IsEOF()) throw RuntimeFailure(Failure::NoCurrentRecord, QStringLiteral("MoveNext"));
  step(1);
}

void Recordset::MovePrevious() {
  if (IsBOF()) throw RuntimeFailure(Failure::NoCurrentRecord, QStringLiteral("MovePrevious"));
  step(-1);
}

int Recordset::columnIndex(const QString& name) const {
  for (int i = 0; i < d->columns.size(); ++i)
    if (d->columns[i].compare(name, Qt::CaseInsensitive) == 0) return i;
  throw RuntimeFailure(Failure::ItemNotFound, QStringLiteral("field '%1'").arg(name));
}

void Recordset::requireCurrent() const {
  if (d->closed) throw RuntimeFailure(Failure::ObjectClosed, QStringLiteral("the recordset is closed"));
  if (IsBOF() || IsEOF()) throw RuntimeFailure(Failure::NoCurrentRecord);
  if (d->deleted[d->position]) throw RuntimeFailure(Failure::RecordIsDeleted);
}

FieldValue Recordset::Field(const QString& name) const {
  const int column = columnIndex(name);
  if (d->mode != EditMode::None) return FieldValue(d->buffer[column], QStringLiteral("field '%1'").arg(name));
  requireCurrent();
  return FieldValue(d->rows[d->position][column], QStringLiteral("field '%1'").arg(name));
}

void Recordset::SetField(const QString& name, const QVariant& value) {
  const int column = columnIndex(name);
  if (d->mode == EditMode::None) throw RuntimeFailure(Failure::UpdateWithoutEdit, QStringLiteral("field '%1'").arg(name));
  const QString& columnName = d->columns[column];
  const bool isKey = columnName.compare(d->target.resultKey, Qt::CaseInsensitive) == 0;
  if (isKey || !d->connection->columnsOf(d->target.table).contains(columnName, Qt::CaseInsensitive))
    throw RuntimeFailure(Failure::FieldNotUpdatable, QStringLiteral("field '%1'").arg(name));
  d->buffer[column] = value;
  d->changed[column] = true;
}

void Recordset::Edit() {
  requireCurrent();
  if (d->target.table.isEmpty()) throw RuntimeFailure(Failure::FieldNotUpdatable, QStringLiteral("these rows are read only"));
  d->mode = EditMode::Editing;
  d->buffer = d->rows[d->position];
  d->changed.assign(d->columns.size(), false);
}

void Recordset::AddNew() {
  if (d->closed) throw RuntimeFailure(Failure::ObjectClosed, QStringLiteral("the recordset is closed"));
  if (d->target.table.isEmpty() || d->target.resultKey.isEmpty())
    throw RuntimeFailure(Failure::FieldNotUpdatable, QStringLiteral("rows can't be added here"));
  if (d->mode != EditMode::None) CancelUpdate();
  if (!d->connection->beginPendingInsert())
    throw RuntimeFailure(Failure::DatabaseFailure, QStringLiteral("another new row is waiting for its Update"));
  try {
    QSqlQuery insert = d->connection->run(QStringLiteral("INSERT INTO %1 DEFAULT VALUES RETURNING %2")
                                              .arg(quotedName(d->target.table), quotedName(d->target.tableKey)));
    insert.next();
    d->newId = insert.value(0);
    // The new row starts with the defaults the table gives it.
    QSqlQuery fresh = d->connection->run(QStringLiteral("SELECT * FROM %1 WHERE %2 = ?")
                                             .arg(quotedName(d->target.table), quotedName(d->target.tableKey)),
                                         {d->newId});
    fresh.next();
    d->buffer.assign(d->columns.size(), QVariant());
    for (int i = 0; i < d->columns.size(); ++i) {
      const int at = fresh.record().indexOf(d->columns[i]);
      if (at >= 0) d->buffer[i] = fresh.value(at);
    }
  } catch (const RuntimeFailure&) {
    d->connection->endPendingInsert(false);
    throw;
  }
  d->changed.assign(d->columns.size(), false);
  d->mode = EditMode::Adding;
}

void Recordset::Update() {
  if (d->mode == EditMode::None) throw RuntimeFailure(Failure::UpdateWithoutEdit);
  QStringList assignments;
  QVariantList values;
  for (int i = 0; i < d->columns.size(); ++i) {
    if (!d->changed[i]) continue;
    assignments << quotedName(d->columns[i]) + QStringLiteral(" = ?");
    values << d->buffer[i];
  }
  const QVariant id = d->mode == EditMode::Adding ? d->newId : d->buffer[columnIndex(d->target.resultKey)];
  try {
    if (!assignments.isEmpty()) {
      values << id;
      const QSqlQuery update = d->connection->run(QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?")
                                                      .arg(quotedName(d->target.table), assignments.join(QStringLiteral(", ")),
                                                           quotedName(d->target.tableKey)),
                                                  values);
      // Another program removed the row meanwhile (a player taken out while still playing
      // elsewhere): the change has nowhere to go, and that must not pass unnoticed.
      if (update.numRowsAffected() == 0)
        throw RuntimeFailure(Failure::DatabaseFailure,
                             QStringLiteral("the row %1 %2 is no longer in table %3").arg(d->target.tableKey, id.toString(), d->target.table));
    }
    if (d->mode == EditMode::Adding) d->connection->endPendingInsert(true);
  } catch (const RuntimeFailure&) {
    if (d->mode == EditMode::Adding) d->connection->endPendingInsert(false);
    d->mode = EditMode::None;
    throw;
  }
  // The current row stays where it was; a new row joins the end.
  if (d->mode == EditMode::Adding) {
    d->rows.push_back(d->buffer);
    d->deleted.push_back(false);
    if (d->position >= static_cast<int>(d->rows.size()) - 1) d->position = static_cast<int>(d->rows.size());
  } else {
    d->rows[d->position] = d->buffer;
  }
  d->mode = EditMode::None;
}

void Recordset::CancelUpdate() {
  if (d->mode == EditMode::Adding) d->connection->endPendingInsert(false);
  d->mode = EditMode::None;
}

void Recordset::Delete() {
  requireCurrent();
  if (d->target.table.isEmpty() || d->target.resultKey.isEmpty())
    throw RuntimeFailure(Failure::FieldNotUpdatable, QStringLiteral("rows can't be deleted here"));
  if (d->mode != EditMode::None) CancelUpdate();
  d->connection->run(QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(quotedName(d->target.table), quotedName(d->target.tableKey)),
                     {d->rows[d->position][columnIndex(d->target.resultKey)]});
  d->deleted[d->position] = true;
}

// A new row that waits for its Update is taken back; if that fails, the recordset is closed all
// the same and the failure goes on up.
void Recordset::Close() {
  if (d->closed) return;
  d->closed = true;
  d->rows.clear();
  d->deleted.clear();
  d->position = 0;
  CancelUpdate();
}

}  // namespace fh
