#pragma once

#include <QString>
#include <QStringList>

namespace fh::fhdb {

// A file that is there but doesn't read as a game database: it is never replaced.
struct DatabaseRefused {
  QString text;
};

// What building a database did.
struct BuildReport {
  int playersKept = 0;
  QString copyKept;  // the dated copy made of a file that held players, or empty
};

// Builds `target` from the SQL source files, in order.
//
// A new file is simply written. An existing one must read as a game database; one that doesn't
// (damaged, cut short, not a database at all) is refused with DatabaseRefused, which says why, and
// is left exactly as it was. When it holds players, a dated copy of it is kept beside it first. The
// world is then replaced inside the file itself, in one transaction: the players' rows (Users,
// UserContainers, HomeCheckupAnswers) stay, each player gets the rows of containers that are new to
// the world, and a game that has the file open goes on with the new world in the same file. If
// anything fails, the transaction leaves the file as it was.
BuildReport buildDatabase(const QString& target, const QStringList& sources);

// The SQL sources of the bundled world under `folder`: schema.sql, queries.sql, then content/*.sql by name.
QStringList worldSources(const QString& folder);

}  // namespace fh::fhdb
