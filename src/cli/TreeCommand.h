#pragma once

class QTextStream;

namespace sv {

class CliSession;
class ProgressLine;
struct CliOptions;

// "scrivara tree": the project's code tree as the code tree control builds it in comment mode,
// opened to the asked depth, one node a line, indented by level, "+ " or "- " before a closed
// or open node with children and "*" before the text of a commented (bold) node. --select and
// --find select a node as the control does, open the path to it, and add a last line
// "selected: <qualified name>". Answers the exit code.
int RunTreeCommand(const CliOptions& options, CliSession& session, QTextStream& out,
                   QTextStream& err, ProgressLine& progress);

}  // namespace sv
