#include "Subcommands.h"

namespace fh::tools {

int runSubcommands(const QString& tool, const char* usage, const std::vector<Subcommand>& subcommands,
                   const QStringList& arguments, QTextStream& out, QTextStream& err) {
  const QString command = arguments.value(0);
  if (command == QLatin1String("--help") || command == QLatin1String("-h")) {
    out << usage;
    return 0;
  }
  try {
    for (const Subcommand& subcommand : subcommands)
      if (command == subcommand.word) return subcommand.run(arguments.mid(1));
    throw UsageProblem{command.isEmpty() ? QStringLiteral("no command given") : QStringLiteral("unknown command '%1'").arg(command)};
  } catch (const UsageProblem& problem) {
    err << tool << ": " << problem.text << "\n\n" << usage;
    return 2;
  }
}

}  // namespace fh::tools
