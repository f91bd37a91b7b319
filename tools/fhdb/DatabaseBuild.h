#pragma once

#include <QString>
#include <QStringList>

namespace fh::fhdb {

// What building a database did.
struct BuildReport {
  int playersKept = 0;
};

// Builds `target` anew from the SQL source files, in order. When the old file holds players, their
// rows (Users, UserContainers, HomeCheckupAnswers) are carried into the new file and each is given the
// container rows that are new to the world; the old file is replaced only when all of that worked.
// Fails with a RuntimeFailure that says what went wrong, leaving the old file as it was.
BuildReport buildDatabase(const QString& target, const QStringList& sources);

// The SQL sources of the bundled world under `folder`: schema.sql, queries.sql, then content/*.sql by name.
QStringList worldSources(const QString& folder);

}  // namespace fh::fhdb
