#include "platform/data/Database.h"

#include "platform/base/Failure.h"
#include "platform/data/DatabaseConnection.h"

#include <QRegularExpression>
#include <QSqlRecord>

namespace fh {

namespace {

// Reads every row a query gives into a recordset that writes to `target`.
Recordset readRows(const std::shared_ptr<DatabaseConnection>& connection, QSqlQuery& query, Recordset::Target target) {
  const QSqlRecord record = query.record();
  QStringList columns;
  for (int i = 0; i < record.count(); ++i) columns << record.fieldName(i);
  std::vector<std::vector<QVariant>> rows;
  while (query.next()) {
    std::vector<QVariant> row;
    row.reserve(columns.size());
    for (int i = 0; i < columns.size(); ++i) row.push_back(query.value(i));
    rows.push_back(std::move(row));
  }
  if (!target.table.isEmpty() && !columns.contains(target.resultKey, Qt::CaseInsensitive)) target = {};
  return Recordset(connection, columns, std::move(rows), std::move(target));
}

bool startsName(QChar c) { return c.isLetter() || c == u'_'; }
bool continuesName(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

// The names of the form Table.Column that a statement writes outside quotes and literals, as
// [start, length) spans, last first so that they can be replaced in place.
std::vector<std::pair<qsizetype, qsizetype>> dottedNames(const QString& statement) {
  std::vector<std::pair<qsizetype, qsizetype>> spans;
  const qsizetype end = statement.size();
  qsizetype i = 0;
  while (i < end) {
    const QChar c = statement[i];
    if (c == u'\'' || c == u'"') {
      const qsizetype closing = statement.indexOf(c, i + 1);
      i = closing < 0 ? end : closing + 1;
      continue;
    }
    if (!startsName(c) || (i > 0 && continuesName(statement[i - 1]))) {
      ++i;
      continue;
    }
    const qsizetype start = i;
    bool dotted = false;
    for (;;) {
      while (i < end && continuesName(statement[i])) ++i;
      if (i + 1 >= end || statement[i] != u'.' || !startsName(statement[i + 1])) break;
      dotted = true;
      ++i;
    }
    if (dotted) spans.emplace(spans.begin(), start, i - start);
  }
  return spans;
}

// A saved query that joins tables names its columns as Jet did, "Objects.Name", and statements
// on it write such a name as it stands, without quotes: WHERE Containers.Name = ?. SQL would read
// that as column Name of a table Containers, so such a name is quoted here when the source has a
// column of that very name.
QString quoteDottedColumns(const QString& statement, const QStringList& columns) {
  QString quoted = statement;
  for (const auto& [start, length] : dottedNames(statement)) {
    const QString name = statement.mid(start, length);
    for (const QString& column : columns) {
      if (column.compare(name, Qt::CaseInsensitive) != 0) continue;
      quoted.replace(start, length, quotedName(column));
      break;
    }
  }
  return quoted;
}

}  // namespace

QueryDef::QueryDef(std::shared_ptr<DatabaseConnection> connection, const SavedQuery& query)
    : m_connection(std::move(connection)), m_query(std::make_unique<SavedQuery>(query)) {}

QueryDef::~QueryDef() = default;
QueryDef::QueryDef(QueryDef&&) noexcept = default;
QueryDef& QueryDef::operator=(QueryDef&&) noexcept = default;

const QString& QueryDef::Name() const { return m_query->name; }

void QueryDef::SetParameter(const QString& name, const QVariant& value) {
  for (const QString& declared : m_query->parameters) {
    if (declared.compare(name, Qt::CaseInsensitive) != 0) continue;
    m_values[declared] = value;
    return;
  }
  throw RuntimeFailure(Failure::ItemNotFound, QStringLiteral("parameter '%1' of query '%2'").arg(name, m_query->name));
}

std::map<QString, QVariant> QueryDef::boundPlaceholders() const {
  std::map<QString, QVariant> placeholders;
  for (const QString& declared : m_query->parameters) {
    const auto value = m_values.find(declared);
    if (value == m_values.end())
      throw RuntimeFailure(Failure::TooFewParameters, QStringLiteral("parameter '%1' of query '%2' is not set").arg(declared, m_query->name));
    placeholders[placeholderFor(declared)] = value->second;
  }
  return placeholders;
}

Recordset QueryDef::OpenRecordset() {
  QSqlQuery query = m_connection->runNamed(m_query->statement, boundPlaceholders());
  Recordset::Target target;
  if (!m_query->updateTable.isEmpty())
    target = {m_query->updateTable, m_connection->primaryKeyOf(m_query->updateTable), m_query->updateKey};
  return readRows(m_connection, query, target);
}

void QueryDef::Execute() { m_connection->runNamed(m_query->statement, boundPlaceholders()); }

void QueryDef::Close() { m_values.clear(); }

std::shared_ptr<Database> Database::OpenDatabase(const QString& designFileName) {
  return std::shared_ptr<Database>(new Database(std::make_shared<DatabaseConnection>(designFileName)));
}

Recordset Database::OpenRecordset(const QString& source, const QVariantList& values) {
  m_connection->requireOpen();
  static const QRegularExpression statement(QStringLiteral("^\\s*SELECT\\s"), QRegularExpression::CaseInsensitiveOption);
  if (statement.match(source).hasMatch()) return openStatement(source, values);
  if (const auto table = m_connection->findTable(source))
    return openStatement(QStringLiteral("SELECT * FROM %1").arg(quotedName(*table)), {});
  if (const auto query = m_connection->findSavedQuery(source)) return QueryDef(m_connection, *query).OpenRecordset();
  throw RuntimeFailure(Failure::TableNotFound, QStringLiteral("'%1'").arg(source));
}

// A statement on a single table writes its rows back to that table.
Recordset Database::openStatement(const QString& statementText, const QVariantList& values) {
  static const QRegularExpression singleTable(QStringLiteral("^\\s*SELECT\\s+\\*\\s+FROM\\s+(?:\"([^\"]+)\"|(\\w+))\\s*(?:WHERE\\b.*)?$"),
                                              QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  Recordset::Target target;
  QString statement = statementText;
  const QRegularExpressionMatch match = singleTable.match(statementText);
  if (match.hasMatch()) {
    const QString named = match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
    if (const auto table = m_connection->findTable(named)) {
      const QString key = m_connection->primaryKeyOf(*table);
      if (!key.isEmpty()) target = {*table, key, key};
    }
    if (!dottedNames(statement).empty()) statement = quoteDottedColumns(statement, m_connection->columnsOf(named));
  }
  QSqlQuery query = m_connection->run(statement, values);
  return readRows(m_connection, query, target);
}

QueryDef Database::QueryDefs(const QString& name) {
  m_connection->requireOpen();
  const auto query = m_connection->findSavedQuery(name);
  if (!query) throw RuntimeFailure(Failure::ItemNotFound, QStringLiteral("query '%1'").arg(name));
  return QueryDef(m_connection, *query);
}

void Database::Close() { m_connection->close(); }

}  // namespace fh
