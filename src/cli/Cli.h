#pragma once

#include <QStringList>

class QTextStream;

namespace sv {

// Runs one command of the scrivara tool: the arguments without the program's name, the
// streams for results and for errors and progress. Answers the exit code: 0 on success, 1 when
// the command failed, 2 for a mistake in the arguments. Progress lines are drawn only when
// asked, as they overwrite themselves on a terminal.
int RunCli(const QStringList& arguments, QTextStream& out, QTextStream& err, bool progress);

// The tool's usage text.
QString CliUsage();

}  // namespace sv
