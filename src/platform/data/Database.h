#pragma once

#include "platform/data/Recordset.h"

#include <QString>
#include <QVariant>
#include <QVariantList>

#include <map>
#include <memory>

namespace fh {

class DatabaseConnection;
struct SavedQuery;

// A saved query of the database, found by name: parameters are set by name before it is opened or
// executed. The statement is the database's own; the program only knows the query's name.
class QueryDef {
 public:
  QueryDef(std::shared_ptr<DatabaseConnection> connection, const SavedQuery& query);
  ~QueryDef();
  QueryDef(QueryDef&&) noexcept;
  QueryDef& operator=(QueryDef&&) noexcept;

  const QString& Name() const;
  // An unknown parameter is "Item not found", naming it and the query.
  void SetParameter(const QString& name, const QVariant& value);
  // Every parameter must have been set: otherwise "Too few parameters", naming the first that wasn't.
  Recordset OpenRecordset();
  void Execute();
  void Close();

 private:
  std::map<QString, QVariant> boundPlaceholders() const;

  std::shared_ptr<DatabaseConnection> m_connection;
  std::unique_ptr<SavedQuery> m_query;
  std::map<QString, QVariant> m_values;  // by declared parameter name
};

// The open game database.
class Database {
 public:
  // Opens a database file by its design name (shared, read and write).
  static std::shared_ptr<Database> OpenDatabase(const QString& designFileName);

  // Rows of a table or a saved query given by name, or of a SELECT statement whose `?` take `values`.
  // Names are matched without regard to case; an unknown one is "Cannot find the input table or query".
  Recordset OpenRecordset(const QString& source, const QVariantList& values = {});
  // A saved query by name; an unknown one is "Item not found", naming it.
  QueryDef QueryDefs(const QString& name);
  void Close();

 private:
  explicit Database(std::shared_ptr<DatabaseConnection> connection) : m_connection(std::move(connection)) {}
  Recordset openStatement(const QString& statement, const QVariantList& values);

  std::shared_ptr<DatabaseConnection> m_connection;
};

}  // namespace fh
