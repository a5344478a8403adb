#pragma once

class QTextStream;

namespace sv {

struct CliOptions;

// "scrivara info": the project's file and code source, each setting as "Name = value", and
// counts of its records, its comments and its code (read from the index only). Answers the
// exit code.
int RunInfoCommand(const CliOptions& options, QTextStream& out);

}  // namespace sv
