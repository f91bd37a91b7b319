#include "DatabaseBuild.h"

#include "platform/Database.h"
#include "platform/DatabaseConnection.h"
#include "platform/Failure.h"
#include "platform/SqlScript.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QSqlRecord>

namespace fh::fhdb {

namespace {

// The tables whose rows belong to players rather than to the world.
const QStringList kPlayerTables = {QStringLiteral("Users"), QStringLiteral("UserContainers"), QStringLiteral("HomeCheckupAnswers")};

int playerCount(DatabaseConnection& db) {
  if (!db.findTable(QStringLiteral("Users"))) return 0;
  QSqlQuery count = db.run(QStringLiteral("SELECT COUNT(*) FROM Users"));
  return count.next() ? count.value(0).toInt() : 0;
}

// Copies the rows of one table, column by column where both files have the column.
void copyRows(DatabaseConnection& from, DatabaseConnection& to, const QString& tableName) {
  const auto source = from.findTable(tableName);
  const auto target = to.findTable(tableName);
  if (!source) return;
  if (!target)
    throw RuntimeFailure(Failure::TableNotFound, QStringLiteral("the new world has no table %1 for the players' rows").arg(tableName));
  const QStringList targetColumns = to.columnsOf(*target);
  QStringList shared;
  for (const QString& column : from.columnsOf(*source))
    if (targetColumns.contains(column, Qt::CaseInsensitive)) shared << column;
  QStringList quoted;
  for (const QString& column : shared) quoted << quotedName(column);
  const QString insert = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                             .arg(quotedName(*target), quoted.join(QStringLiteral(", ")),
                                  QStringList(shared.size(), QStringLiteral("?")).join(QStringLiteral(", ")));
  QSqlQuery rows = from.run(QStringLiteral("SELECT %1 FROM %2").arg(quoted.join(QStringLiteral(", ")), quotedName(*source)));
  while (rows.next()) {
    QVariantList values;
    for (int i = 0; i < shared.size(); ++i) values << rows.value(i);
    to.run(insert, values);
  }
}

int carryPlayers(const QString& oldFile, const QString& newFile) {
  DatabaseConnection from(oldFile);
  const int players = playerCount(from);
  if (players == 0) return 0;
  {
    DatabaseConnection to(newFile);
    for (const QString& table : kPlayerTables) copyRows(from, to, table);
  }
  // Containers that are new to the world get their rows for every kept player.
  auto db = Database::OpenDatabase(newFile);
  Recordset users = db->OpenRecordset(QStringLiteral("Users"));
  for (; !users.IsEOF(); users.MoveNext()) {
    QueryDef makeRows = db->QueryDefs(QStringLiteral("Make New User"));
    makeRows.SetParameter(QStringLiteral("User ID"), users.Field(QStringLiteral("ID")).toLong());
    makeRows.Execute();
  }
  db->Close();
  return players;
}

}  // namespace

BuildReport buildDatabase(const QString& target, const QStringList& sources) {
  const QString fresh = target + QStringLiteral(".new");
  QFile::remove(fresh);
  BuildReport report;
  try {
    createDatabaseFile(fresh, sources);
    if (QFileInfo(target).isFile()) report.playersKept = carryPlayers(target, fresh);
  } catch (...) {
    QFile::remove(fresh);
    throw;
  }
  // Replace the old file only now, when the new one holds everything.
  const QString previous = target + QStringLiteral(".old");
  QFile::remove(previous);
  if (QFileInfo(target).isFile() && !QFile::rename(target, previous))
    throw RuntimeFailure(Failure::PathFileAccess, QStringLiteral("%1 could not be replaced").arg(target));
  if (!QFile::rename(fresh, target)) {
    QFile::rename(previous, target);
    throw RuntimeFailure(Failure::PathFileAccess, QStringLiteral("%1 could not be written").arg(target));
  }
  QFile::remove(previous);
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
