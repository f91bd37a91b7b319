#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>

#include <functional>
#include <vector>

// What the command-line tools share: a first word that names what to do, a usage text, and the
// exit codes 0 done, 1 the work failed, 2 the command line must be mended.
namespace fh::tools {

// Thrown for what the person at the command line must mend: arguments, a missing folder or file.
struct UsageProblem {
  QString text;
};

// A word of a tool and what it runs with the words after it; it gives the exit code.
struct Subcommand {
  QString word;
  std::function<int(const QStringList& arguments)> run;
};

// Runs the subcommand that the first argument names. "--help" and "-h" print the usage. A missing
// or unknown word, and a UsageProblem thrown by the subcommand, are told with the usage and give 2.
// Whatever else the subcommand throws goes on up, for the tool to tell in its own words.
int runSubcommands(const QString& tool, const char* usage, const std::vector<Subcommand>& subcommands,
                   const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace fh::tools
