#include "platform/data/DatabaseConnection.h"

#include "platform/base/Failure.h"
#include "platform/files/FileNames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlIndex>
#include <QSqlRecord>
#include <QUuid>

#include <sys/stat.h>

namespace fh {

namespace {

const QString kDriver = QStringLiteral("QSQLITE");
// Long enough for another copy of the game, or a rebuild of the world, to finish its write; short
// enough that a child isn't left looking at a frozen window.
const QString kBusyTimeout = QStringLiteral("QSQLITE_BUSY_TIMEOUT=3000");

FileIdentity identityOf(const QString& path) {
  struct stat info {};
  if (::stat(QFile::encodeName(path).constData(), &info) != 0) return {};
  return {static_cast<unsigned long long>(info.st_dev), static_cast<unsigned long long>(info.st_ino)};
}

[[noreturn]] void failWith(const QSqlQuery& query, const QString& statement) {
  throw RuntimeFailure(Failure::DatabaseFailure, query.lastError().text() + QStringLiteral(" in: ") + statement);
}

}  // namespace

QString quotedName(const QString& name) { return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"'; }

QString placeholderFor(const QString& parameter) { return u':' + QString(parameter).replace(u' ', u'_'); }

DatabaseConnection::DatabaseConnection(const QString& designFileName)
    : m_connectionName(QStringLiteral("fh-") + QUuid::createUuid().toString(QUuid::WithoutBraces)) {
  const QString path = resolveFileName(designFileName);
  // The embedded engine would make an empty file where there is none; the game needs its own.
  if (!QFileInfo(path).isFile()) throw RuntimeFailure(Failure::DatabaseFileNotFound, designFileName);
  QSqlDatabase db = QSqlDatabase::addDatabase(kDriver, m_connectionName);
  db.setDatabaseName(path);
  db.setConnectOptions(kBusyTimeout);
  if (!db.open()) {
    const QString reason = db.lastError().text();
    db = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connectionName);
    throw RuntimeFailure(Failure::DatabaseFailure, designFileName + QStringLiteral(": ") + reason);
  }
  m_path = path;
  m_identity = identityOf(path);
  m_open = true;
  // The links the schema declares are kept, and that keeps the players' data whole: a removed
  // player's rows go with the player, also from a table the removal steps don't name, and a row for
  // a player or a container that isn't there (a game still open for a player removed at another
  // screen) is refused and told, not written where nothing reads it. Without this the engine only
  // reads the declarations.
  execute(QStringLiteral("PRAGMA foreign_keys = ON"));
  makeViewsOfSavedQueries();
}

DatabaseConnection::~DatabaseConnection() {
  close();
  QSqlDatabase::removeDatabase(m_connectionName);
}

void DatabaseConnection::close() {
  if (!m_open) return;
  m_open = false;
  QSqlDatabase db = QSqlDatabase::database(m_connectionName, false);
  if (m_insertPending) db.rollback();
  db.close();
}

void DatabaseConnection::requireOpen() const {
  if (!m_open) throw RuntimeFailure(Failure::ObjectClosed, QStringLiteral("the database is closed"));
}

void DatabaseConnection::requireSameFile() const {
  if (identityOf(m_path) == m_identity) return;
  throw RuntimeFailure(Failure::DatabaseFileNotFound,
                       QStringLiteral("%1 was removed or replaced while it was open, so nothing more can be saved in it")
                           .arg(QDir::toNativeSeparators(m_path)));
}

void DatabaseConnection::keepFailure(const RuntimeFailure& failure) {
  if (!m_keptFailure) m_keptFailure = failure;
}

void DatabaseConnection::throwKeptFailure() const {
  if (!m_keptFailure) return;
  const RuntimeFailure failure = *m_keptFailure;
  m_keptFailure.reset();
  throw failure;
}

QString DatabaseConnection::damage() const {
  requireOpen();
  QSqlQuery check(QSqlDatabase::database(m_connectionName, false));
  if (!check.exec(QStringLiteral("PRAGMA quick_check"))) return check.lastError().databaseText();
  const QString verdict = check.next() ? check.value(0).toString() : QStringLiteral("the check gave no answer");
  return verdict == QLatin1String("ok") ? QString() : verdict;
}

QSqlQuery DatabaseConnection::newQuery() const {
  requireOpen();
  requireSameFile();
  throwKeptFailure();
  return QSqlQuery(QSqlDatabase::database(m_connectionName, false));
}

QSqlQuery DatabaseConnection::prepared(const QString& statement) const {
  QSqlQuery query = newQuery();
  query.setForwardOnly(true);
  if (!query.prepare(statement)) failWith(query, statement);
  return query;
}

QSqlQuery DatabaseConnection::run(const QString& statement, const QVariantList& values) const {
  QSqlQuery query = prepared(statement);
  for (const QVariant& value : values) query.addBindValue(value);
  if (!query.exec()) failWith(query, statement);
  return query;
}

void DatabaseConnection::execute(const QString& statement) const {
  QSqlQuery query = newQuery();
  if (!query.exec(statement)) failWith(query, statement);
}

QSqlQuery DatabaseConnection::runNamed(const QString& statement, const std::map<QString, QVariant>& placeholders) const {
  QSqlQuery query = prepared(statement);
  for (const auto& [placeholder, value] : placeholders) query.bindValue(placeholder, value);
  if (!query.exec()) failWith(query, statement);
  return query;
}

std::optional<QString> DatabaseConnection::findTable(const QString& name) const {
  requireOpen();
  const QStringList tables = QSqlDatabase::database(m_connectionName, false).tables(QSql::Tables);
  for (const QString& table : tables)
    if (table.compare(name, Qt::CaseInsensitive) == 0) return table;
  return std::nullopt;
}

std::optional<SavedQuery> DatabaseConnection::findSavedQuery(const QString& name) const {
  QSqlQuery found = run(QStringLiteral("SELECT Name, Statement, UpdateTable, UpdateKey FROM SavedQueries"));
  while (found.next()) {
    if (found.value(0).toString().compare(name, Qt::CaseInsensitive) != 0) continue;
    SavedQuery query{found.value(0).toString(), found.value(1).toString(), {}, found.value(2).toString(),
                     found.value(3).toString()};
    QSqlQuery parameters = run(QStringLiteral("SELECT Query, Name FROM SavedQueryParameters"));
    while (parameters.next())
      if (parameters.value(0).toString().compare(query.name, Qt::CaseInsensitive) == 0)
        query.parameters << parameters.value(1).toString();
    return query;
  }
  return std::nullopt;
}

QString DatabaseConnection::primaryKeyOf(const QString& table) const {
  const QSqlIndex key = QSqlDatabase::database(m_connectionName, false).primaryIndex(table);
  return key.isEmpty() ? QString() : key.fieldName(0);
}

QStringList DatabaseConnection::columnsOf(const QString& table) const {
  const QSqlRecord record = QSqlDatabase::database(m_connectionName, false).record(table);
  QStringList columns;
  for (int i = 0; i < record.count(); ++i) columns << record.fieldName(i);
  return columns;
}

bool DatabaseConnection::beginPendingInsert() {
  if (m_insertPending) return false;
  if (!QSqlDatabase::database(m_connectionName, false).transaction()) return false;
  m_insertPending = true;
  return true;
}

void DatabaseConnection::endPendingInsert(bool keep) {
  if (!m_insertPending) return;
  m_insertPending = false;
  QSqlDatabase db = QSqlDatabase::database(m_connectionName, false);
  if (keep ? !db.commit() : !db.rollback())
    throw RuntimeFailure(Failure::DatabaseFailure, db.lastError().text());
}

// Saved queries that take no parameters and give rows can be named in statements like tables.
void DatabaseConnection::makeViewsOfSavedQueries() {
  if (!findTable(QStringLiteral("SavedQueries"))) return;
  QSqlQuery all = run(QStringLiteral("SELECT Name, Statement FROM SavedQueries WHERE NOT EXISTS "
                                     "(SELECT 1 FROM SavedQueryParameters WHERE SavedQueryParameters.Query = SavedQueries.Name)"));
  std::vector<std::pair<QString, QString>> views;
  while (all.next()) {
    const QString statement = all.value(1).toString().trimmed();
    if (statement.startsWith(QStringLiteral("SELECT"), Qt::CaseInsensitive)) views.emplace_back(all.value(0).toString(), statement);
  }
  for (const auto& [name, statement] : views) {
    if (findTable(name)) continue;
    execute(QStringLiteral("CREATE TEMPORARY VIEW %1 AS %2").arg(quotedName(name), statement));
  }
}

}  // namespace fh
