#include "platform/data/SqlScript.h"

#include "platform/base/Failure.h"
#include "platform/data/DatabaseConnection.h"
#include "platform/files/FileNames.h"

#include <QFile>
#include <QFileInfo>

namespace fh {

std::vector<SqlStatement> splitSqlStatements(const QString& source) {
  std::vector<SqlStatement> statements;
  QString current;
  int line = 1;
  int startLine = 1;
  auto finish = [&] {
    if (!current.trimmed().isEmpty()) statements.push_back({current.trimmed(), startLine});
    current.clear();
  };
  for (qsizetype i = 0; i < source.size(); ++i) {
    const QChar c = source[i];
    const QChar next = i + 1 < source.size() ? source[i + 1] : QChar();
    if (current.trimmed().isEmpty()) startLine = line;
    if (c == u'-' && next == u'-') {  // a comment to the end of the line
      while (i < source.size() && source[i] != u'\n') ++i;
      --i;
      continue;
    }
    if (c == u'/' && next == u'*') {
      for (i += 2; i < source.size() && !(source[i] == u'*' && i + 1 < source.size() && source[i + 1] == u'/'); ++i)
        if (source[i] == u'\n') ++line;
      ++i;
      current += u' ';
      continue;
    }
    if (c == u'\'' || c == u'"') {  // a quoted text or name runs to its closing quote; doubled quotes stay inside
      current += c;
      for (++i; i < source.size(); ++i) {
        current += source[i];
        if (source[i] == u'\n') ++line;
        if (source[i] == c) {
          if (i + 1 < source.size() && source[i + 1] == c) current += source[++i];
          else break;
        }
      }
      continue;
    }
    if (c == u'\n') ++line;
    if (c == u';') {
      finish();
      continue;
    }
    current += c;
  }
  finish();
  return statements;
}

void createDatabaseFile(const QString& designFileName, const QStringList& sourceFiles) {
  const QString path = resolveFileName(designFileName);
  if (QFileInfo::exists(path)) throw RuntimeFailure(Failure::PathFileAccess, path + QStringLiteral(" is there already"));
  {
    QFile empty(path);
    if (!empty.open(QIODevice::WriteOnly)) throw RuntimeFailure(Failure::PathFileAccess, path);
  }
  try {
    DatabaseConnection connection(path);
    connection.beginPendingInsert();
    for (const QString& sourceFile : sourceFiles) {
      QFile file(sourceFile);
      if (!file.open(QIODevice::ReadOnly)) throw RuntimeFailure(Failure::FileNotFound, sourceFile);
      for (const SqlStatement& statement : splitSqlStatements(QString::fromUtf8(file.readAll()))) {
        try {
          connection.execute(statement.text);
        } catch (const RuntimeFailure& failure) {
          throw RuntimeFailure(Failure::DatabaseFailure, QStringLiteral("%1:%2: %3").arg(sourceFile).arg(statement.line).arg(failure.message()));
        }
      }
    }
    connection.endPendingInsert(true);
  } catch (...) {
    QFile::remove(path);
    throw;
  }
}

}  // namespace fh
