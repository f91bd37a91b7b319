#include "DatabaseBuild.h"

#include "platform/base/Failure.h"
#include "platform/data/DatabaseConnection.h"
#include "platform/data/SqlScript.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>

#include <map>

// The game database is an SQLite file, and rebuilding it in place works on the engine's own catalogue
// (sqlite_master, sqlite_sequence) and its ATTACH, VACUUM INTO and BEGIN IMMEDIATE: this is the one
// piece of the project that knows the file engine beyond the data layer.
namespace fh::fhdb {

namespace {

// The tables whose rows belong to players rather than to the world.
const QStringList kPlayerTables = {QStringLiteral("Users"), QStringLiteral("UserContainers"), QStringLiteral("HomeCheckupAnswers")};
const QString kWorldSchema = QStringLiteral("world");

int playerCount(DatabaseConnection& db) {
  QSqlQuery count = db.run(QStringLiteral("SELECT COUNT(*) FROM Users"));
  return count.next() ? count.value(0).toInt() : 0;
}

// Refuses a file that doesn't read as a whole game database.
void requireGameDatabase(const QString& target) {
  const auto refuse = [&target](const QString& why) {
    throw DatabaseRefused{QStringLiteral("%1 can't be read as a game database (%2). It was left as it is; move it aside to build a new one")
                              .arg(QDir::toNativeSeparators(target), why)};
  };
  DatabaseConnection db(target);
  if (const QString damage = db.damage(); !damage.isEmpty()) refuse(damage);
  if (!db.findTable(QStringLiteral("Users"))) refuse(QStringLiteral("it holds no table Users"));
}

// A copy of the file as it stands, named for the moment it was made.
QString keepDatedCopy(DatabaseConnection& db, const QString& target) {
  const QString stem = target + QDateTime::currentDateTime().toString(QStringLiteral("'.'yyyy-MM-dd-HHmmss"));
  // Two rebuilds within a second each keep their copy.
  QString copy = stem + QStringLiteral(".bak");
  for (int second = 2; QFileInfo::exists(copy); ++second) copy = stem + QStringLiteral("-%1.bak").arg(second);
  db.run(QStringLiteral("VACUUM INTO ?"), {copy});
  return copy;
}

QStringList namesOf(DatabaseConnection& db, const QString& statement) {
  QStringList names;
  QSqlQuery rows = db.run(statement);
  while (rows.next()) names << rows.value(0).toString();
  return names;
}

bool hasTable(DatabaseConnection& db, const QString& schema, const QString& table) {
  QSqlQuery found = db.run(QStringLiteral("SELECT 1 FROM %1.sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE").arg(schema), {table});
  return found.next();
}

// The counters of the tables whose IDs are never given twice, so that the new tables go on from them.
std::map<QString, qlonglong> idCounters(DatabaseConnection& db) {
  std::map<QString, qlonglong> counters;
  if (!hasTable(db, QStringLiteral("main"), QStringLiteral("sqlite_sequence"))) return counters;
  QSqlQuery rows = db.run(QStringLiteral("SELECT name, seq FROM main.sqlite_sequence"));
  while (rows.next()) counters[rows.value(0).toString()] = rows.value(1).toLongLong();
  return counters;
}

void restoreIdCounters(DatabaseConnection& db, const std::map<QString, qlonglong>& counters) {
  if (!hasTable(db, QStringLiteral("main"), QStringLiteral("sqlite_sequence"))) return;
  for (const auto& [table, seq] : counters) {
    if (!hasTable(db, QStringLiteral("main"), table)) continue;
    db.run(QStringLiteral("UPDATE main.sqlite_sequence SET seq = ? WHERE name = ? AND seq < ?"), {seq, table, seq});
    db.run(QStringLiteral("INSERT INTO main.sqlite_sequence (name, seq) SELECT ?, ? WHERE NOT EXISTS "
                          "(SELECT 1 FROM main.sqlite_sequence WHERE name = ?)"),
           {table, seq, table});
  }
}

// The players' rows go back into the new tables, column by column where both have the column.
void carryPlayerRows(DatabaseConnection& db, const QString& table) {
  const QString kept = QStringLiteral("kept_") + table;
  if (!hasTable(db, QStringLiteral("temp"), kept)) return;
  if (!hasTable(db, QStringLiteral("main"), table))
    throw RuntimeFailure(Failure::TableNotFound, QStringLiteral("the new world has no table %1 for the players' rows").arg(table));
  const QStringList targetColumns = db.columnsOf(table);
  QStringList shared;
  for (const QString& column : db.columnsOf(QStringLiteral("temp.") + kept))
    if (targetColumns.contains(column, Qt::CaseInsensitive)) shared << quotedName(column);
  const QString columns = shared.join(QStringLiteral(", "));
  db.run(QStringLiteral("INSERT INTO main.%1 (%2) SELECT %2 FROM temp.%3").arg(quotedName(table), columns, quotedName(kept)));
  db.run(QStringLiteral("DROP TABLE temp.%1").arg(quotedName(kept)));
}

// Containers that are new to the world get their rows for every kept player.
void giveNewContainers(DatabaseConnection& db) {
  const auto makeRows = db.findSavedQuery(QStringLiteral("Make New User"));
  if (!makeRows) throw RuntimeFailure(Failure::ItemNotFound, QStringLiteral("the new world has no query 'Make New User'"));
  for (const QString& id : namesOf(db, QStringLiteral("SELECT ID FROM main.Users")))
    db.runNamed(makeRows->statement, {{placeholderFor(QStringLiteral("User ID")), id.toLongLong()}});
}

int replaceWorld(DatabaseConnection& db) {
  const int players = playerCount(db);
  for (const QString& table : kPlayerTables) {
    if (!hasTable(db, QStringLiteral("main"), table)) continue;
    db.run(QStringLiteral("CREATE TEMP TABLE %1 AS SELECT * FROM main.%2").arg(quotedName(QStringLiteral("kept_") + table), quotedName(table)));
  }
  const std::map<QString, qlonglong> counters = idCounters(db);

  for (const QString& view : namesOf(db, QStringLiteral("SELECT name FROM main.sqlite_master WHERE type = 'view'")))
    db.run(QStringLiteral("DROP VIEW main.%1").arg(quotedName(view)));
  for (const QString& table : namesOf(db, QStringLiteral("SELECT name FROM main.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'")))
    db.run(QStringLiteral("DROP TABLE main.%1").arg(quotedName(table)));

  // The new world's objects in the order it made them, tables before what stands on them.
  for (const QString& create : namesOf(db, QStringLiteral("SELECT sql FROM %1.sqlite_master WHERE sql IS NOT NULL AND name NOT LIKE 'sqlite_%' "
                                                          "ORDER BY CASE type WHEN 'table' THEN 0 WHEN 'index' THEN 1 ELSE 2 END, rowid")
                                                .arg(kWorldSchema)))
    db.run(create);
  for (const QString& table : namesOf(db, QStringLiteral("SELECT name FROM %1.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'").arg(kWorldSchema)))
    db.run(QStringLiteral("INSERT INTO main.%1 SELECT * FROM %2.%1").arg(quotedName(table), kWorldSchema));

  for (const QString& table : kPlayerTables) carryPlayerRows(db, table);
  restoreIdCounters(db, counters);
  if (players > 0) giveNewContainers(db);
  return players;
}

}  // namespace

BuildReport buildDatabase(const QString& target, const QStringList& sources) {
  const bool existing = QFileInfo::exists(target);
  if (existing) requireGameDatabase(target);

  const QString fresh = target + QStringLiteral(".new");
  QFile::remove(fresh);
  createDatabaseFile(fresh, sources);
  if (!existing) {
    if (!QFile::rename(fresh, target)) {
      QFile::remove(fresh);
      throw RuntimeFailure(Failure::PathFileAccess, QStringLiteral("%1 could not be written").arg(target));
    }
    return {};
  }

  BuildReport report;
  try {
    DatabaseConnection db(target);
    if (playerCount(db) > 0) report.copyKept = keepDatedCopy(db, target);
    db.run(QStringLiteral("ATTACH DATABASE ? AS %1").arg(kWorldSchema), {fresh});
    // The world is swapped from under the players' rows, so its links go unchecked on this one
    // connection (the setting can't change inside the transaction): checked, dropping the old tables
    // would take the players' rows along or be refused, and a container or question that the new
    // world lacks would refuse a player's row for it. The rows come back whole; one that names what
    // the world dropped is read by nothing, and is there again if a later world brings that back.
    db.execute(QStringLiteral("PRAGMA foreign_keys = OFF"));
    // The write lock is taken at once: a game's writes wait until the new world is whole.
    db.execute(QStringLiteral("BEGIN IMMEDIATE"));
    try {
      report.playersKept = replaceWorld(db);
      db.execute(QStringLiteral("COMMIT"));
    } catch (...) {
      db.execute(QStringLiteral("ROLLBACK"));
      throw;
    }
    db.execute(QStringLiteral("DETACH DATABASE %1").arg(kWorldSchema));
  } catch (...) {
    QFile::remove(fresh);
    throw;
  }
  QFile::remove(fresh);
  return report;
}

QStringList worldSources(const QString& folder) {
  const QDir dir(folder);
  QStringList sources{dir.filePath(QStringLiteral("schema.sql")), dir.filePath(QStringLiteral("queries.sql"))};
  const QDir content(dir.filePath(QStringLiteral("content")));
  for (const QString& file : content.entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name)) sources << content.filePath(file);
  return sources;
}

}  // namespace fh::fhdb
