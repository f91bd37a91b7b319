#pragma once

#include <QString>
#include <QStringList>

namespace fh {

// One statement of an SQL source file, with the line it starts on.
struct SqlStatement {
  QString text;
  int line = 1;
};

// Splits SQL source text at the semicolons between statements; semicolons inside quotes and
// comments don't count, and comments are left out.
std::vector<SqlStatement> splitSqlStatements(const QString& source);

// Makes a new database file from SQL source files run in order, all or nothing. A statement the
// database refuses is "Database operation failed" with the file, the line and the database's words.
void createDatabaseFile(const QString& designFileName, const QStringList& sourceFiles);

}  // namespace fh
