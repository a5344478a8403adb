#include "cli/Cli.h"

#include <QTextStream>

#include "cli/CliOptions.h"
#include "cli/CliSession.h"
#include "cli/InfoCommand.h"
#include "cli/ProgressLine.h"
#include "cli/TreeCommand.h"
#include "model/Error.h"

namespace sv {

QString CliUsage() {
  return QStringLiteral(
      "Usage: scrivara COMMAND (PROJECT | --doxygen-xml DIR [--root NAME]) [options]\n"
      "\n"
      "Commands:\n"
      "  tree   print the code tree (--depth N, --select QUALIFIEDNAME, --find TEXT,\n"
      "         --grouped, --private)\n"
      "  info   print the project's settings and counts\n"
      "\n"
      "--doxygen-xml DIR reads the code from a Doxygen XML folder instead of a project file;\n"
      "its root name is --root, or the name of the folder that holds DIR.\n");
}

int RunCli(const QStringList& arguments, QTextStream& out, QTextStream& err, bool progress) {
  CliOptions options;
  try {
    options = CliOptions::Parse(arguments);
  } catch (const Error& e) {
    err << "scrivara: " << e.Description() << "\n\n" << CliUsage();
    err.flush();
    return 2;
  }
  if (options.command == QLatin1String("help")) {
    out << CliUsage();
    out.flush();
    return 0;
  }
  ProgressLine line(err, progress);
  try {
    CliSession session(err);
    if (options.command == QLatin1String("info")) return RunInfoCommand(options, out);
    return RunTreeCommand(options, session, out, err, line);
  } catch (const Error& e) {
    line.Clear();
    err << "scrivara: " << e.Description() << '\n';
    err.flush();
    return 1;
  }
}

}  // namespace sv
