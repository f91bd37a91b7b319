#include "Fhdb.h"

#include "DatabaseBuild.h"
#include "Subcommands.h"

#include "platform/base/Failure.h"
#include "platform/base/Values.h"
#include "platform/data/Database.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace fh::fhdb {

using tools::UsageProblem;

namespace {

const char* const kUsage =
    "Usage:\n"
    "  fhdb create DIR [SQL ...]              build DIR/Fernhollow.mdb from SQL sources (the bundled\n"
    "                                         world's when none are named); players in an old file are kept,\n"
    "                                         with a dated copy of it, and a file that can't be read is refused\n"
    "  fhdb query FILE NAME [Param=Value ...] print the rows of a saved query, a table or a SELECT statement\n"
    "  fhdb exec FILE NAME [Param=Value ...]  run an action query\n"
    "  fhdb users FILE                        list the players with their shot, play time and win\n"
    "  fhdb --help                            show this help\n"
    "\n"
    "Rows are printed as tab-separated text under a header line; Null shows as NULL.\n";


QVariant parameterValue(const QString& text) {
  bool whole = false;
  const qlonglong number = text.toLongLong(&whole);
  if (whole) return number;
  bool real = false;
  const double value = text.toDouble(&real);
  return real ? QVariant(value) : QVariant(text);
}

void setParameters(QueryDef& query, const QStringList& assignments) {
  for (const QString& assignment : assignments) {
    const qsizetype equals = assignment.indexOf(u'=');
    if (equals <= 0) throw UsageProblem{QStringLiteral("'%1' is no parameter; write Name=Value").arg(assignment)};
    query.SetParameter(assignment.left(equals), parameterValue(assignment.mid(equals + 1)));
  }
}

std::shared_ptr<Database> openFile(const QString& file) {
  if (!QFileInfo(file).isFile()) throw UsageProblem{QStringLiteral("there is no database file %1").arg(file)};
  return Database::OpenDatabase(QFileInfo(file).absoluteFilePath());
}

QString shown(const FieldValue& value) {
  if (value.isNull()) return QStringLiteral("NULL");
  // One row a line: line ends and tabs inside a text are shown as escapes.
  return value.toText().replace(u'\\', QStringLiteral("\\\\")).replace(u'\t', QStringLiteral("\\t"))
      .replace(u'\r', QStringLiteral("\\r")).replace(u'\n', QStringLiteral("\\n"));
}

void printRows(Recordset& rows, const QStringList& columns, QTextStream& out) {
  out << columns.join(u'\t') << '\n';
  for (; !rows.IsEOF(); rows.MoveNext()) {
    QStringList cells;
    for (const QString& column : columns) cells << shown(rows.Field(column));
    out << cells.join(u'\t') << '\n';
  }
}

int query(const QStringList& args, QTextStream& out) {
  if (args.size() < 2) throw UsageProblem{QStringLiteral("query needs a database file and a name")};
  auto db = openFile(args[0]);
  const QString& name = args[1];
  const QStringList assignments = args.mid(2);
  static const QRegularExpression select(QStringLiteral("^\\s*SELECT\\s"), QRegularExpression::CaseInsensitiveOption);
  const bool isStatement = select.match(name).hasMatch();
  Recordset rows = [&] {
    if (isStatement || !assignments.isEmpty()) {
      if (isStatement && !assignments.isEmpty()) throw UsageProblem{QStringLiteral("a statement takes no parameters")};
      if (isStatement) return db->OpenRecordset(name);
      QueryDef saved = db->QueryDefs(name);
      setParameters(saved, assignments);
      return saved.OpenRecordset();
    }
    return db->OpenRecordset(name);
  }();
  printRows(rows, rows.ColumnNames(), out);
  return 0;
}

int exec(const QStringList& args, QTextStream& out) {
  if (args.size() < 2) throw UsageProblem{QStringLiteral("exec needs a database file and a query name")};
  auto db = openFile(args[0]);
  QueryDef action = db->QueryDefs(args[1]);
  setParameters(action, args.mid(2));
  action.Execute();
  out << "done: " << action.Name() << '\n';
  return 0;
}

int users(const QStringList& args, QTextStream& out) {
  if (args.size() != 1) throw UsageProblem{QStringLiteral("users needs a database file")};
  auto db = openFile(args[0]);
  Recordset rows = db->OpenRecordset(QStringLiteral("SELECT * FROM Users ORDER BY ID"));
  out << "ID\tUser Name\tCurrent Shot\tPlay Time\tWon\n";
  for (; !rows.IsEOF(); rows.MoveNext()) {
    out << rows.Field(QStringLiteral("ID")).toLong() << '\t' << rows.Field(QStringLiteral("User Name")).toText() << '\t'
        << rows.Field(QStringLiteral("Current Shot")).toI16() << '\t'
        << formatClock(rows.Field(QStringLiteral("ElapsedTime")).toSingle()) << '\t'
        << (rows.Field(QStringLiteral("HasWonGame")).toBool() ? "yes" : "no") << '\n';
  }
  return 0;
}

int create(const QStringList& args, QTextStream& out) {
  if (args.isEmpty()) throw UsageProblem{QStringLiteral("create needs the folder to build the database in")};
  if (!QFileInfo(args[0]).isDir()) throw UsageProblem{QStringLiteral("there is no folder %1").arg(args[0])};
  QStringList sources = args.mid(1);
  if (sources.isEmpty()) sources = worldSources(QStringLiteral(FH_WORLD_DATABASE_SOURCES));
  for (const QString& source : sources)
    if (!QFileInfo(source).isFile()) throw UsageProblem{QStringLiteral("there is no SQL source %1").arg(source)};
  const QString target = QDir(args[0]).absoluteFilePath(QStringLiteral("Fernhollow.mdb"));
  const BuildReport report = buildDatabase(target, sources);
  out << "built " << target;
  if (report.playersKept > 0) out << ", keeping " << report.playersKept << (report.playersKept == 1 ? " player" : " players");
  out << '\n';
  if (!report.copyKept.isEmpty()) out << "the file as it was is kept in " << report.copyKept << '\n';
  return 0;
}

}  // namespace

int runFhdb(const QStringList& arguments, QTextStream& out, QTextStream& err) {
  try {
    return tools::runSubcommands(QStringLiteral("fhdb"), kUsage,
                                 {{QStringLiteral("create"), [&](const QStringList& args) { return create(args, out); }},
                                  {QStringLiteral("query"), [&](const QStringList& args) { return query(args, out); }},
                                  {QStringLiteral("exec"), [&](const QStringList& args) { return exec(args, out); }},
                                  {QStringLiteral("users"), [&](const QStringList& args) { return users(args, out); }}},
                                 arguments, out, err);
  } catch (const DatabaseRefused& refusal) {
    err << "fhdb: " << refusal.text << '\n';
    return 1;
  } catch (const RuntimeFailure& failure) {
    err << "fhdb: " << failure.message() << '\n';
    return 1;
  }
}

}  // namespace fh::fhdb
