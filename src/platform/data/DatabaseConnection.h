#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include "platform/base/Failure.h"

#include <map>
#include <optional>

namespace fh {

// A saved query as the database keeps it: its statement, its parameters, and where its rows are written.
struct SavedQuery {
  QString name;
  QString statement;
  QStringList parameters;  // names as declared
  QString updateTable;     // empty when its rows are read only
  QString updateKey;       // the result column that holds the update table's ID
};

// Which file a path led to when it was opened: the same path may later lead to another.
struct FileIdentity {
  unsigned long long device = 0;
  unsigned long long inode = 0;
  bool operator==(const FileIdentity&) const = default;
};

// One open connection to the game's database. This is the only place that knows the driver and where
// the database lies: the embedded SQLite file by default; a shared server can take its place here.
class DatabaseConnection {
 public:
  // Opens the database file by its design name; a missing file is "Could not find file".
  explicit DatabaseConnection(const QString& designFileName);
  ~DatabaseConnection();
  DatabaseConnection(const DatabaseConnection&) = delete;
  DatabaseConnection& operator=(const DatabaseConnection&) = delete;

  void close();
  bool isOpen() const { return m_open; }
  // What is wrong with the file as the engine reads it, in its words; empty when it reads whole.
  QString damage() const;
  // Fails with "Object invalid or no longer set" once the database is closed.
  void requireOpen() const;

  // Prepares, binds (positional values, or named ones for saved queries) and runs a statement;
  // a statement the database refuses is "Database operation failed" with the database's words. A
  // database busy with another program's write is waited for a few seconds first. A file that has
  // been removed or replaced since it was opened is "Could not find file": whatever was written
  // now would be lost with the old file.
  QSqlQuery run(const QString& statement, const QVariantList& values = {}) const;
  // Runs a statement as it stands, with nothing to bind: for scripts that make the database.
  void execute(const QString& statement) const;
  QSqlQuery runNamed(const QString& statement, const std::map<QString, QVariant>& placeholders) const;

  // Names are matched without regard to case; the results give them as the database spells them.
  std::optional<QString> findTable(const QString& name) const;
  std::optional<SavedQuery> findSavedQuery(const QString& name) const;
  QString primaryKeyOf(const QString& table) const;
  QStringList columnsOf(const QString& table) const;

  // Only one new row at a time may wait for its Update.
  bool beginPendingInsert();
  void endPendingInsert(bool keep);

  // A failure that could not be thrown where it happened: the next statement fails with it instead
  // of running. Only the first is kept until then.
  void keepFailure(const RuntimeFailure& failure);

 private:
  void makeViewsOfSavedQueries();

  void requireSameFile() const;
  // Every statement's first check after the file's: a kept failure is thrown, once.
  void throwKeptFailure() const;
  // A query on the connection, after those checks; prepared, it reads forward only.
  QSqlQuery newQuery() const;
  QSqlQuery prepared(const QString& statement) const;

  QString m_connectionName;
  QString m_path;
  FileIdentity m_identity;
  bool m_open = false;
  bool m_insertPending = false;
  mutable std::optional<RuntimeFailure> m_keptFailure;
};

// Quotes a table or column name for a statement.
QString quotedName(const QString& name);
// The placeholder that stands for a saved query's parameter in its statement: blanks become underscores.
QString placeholderFor(const QString& parameter);

}  // namespace fh
