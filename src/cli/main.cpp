#include <unistd.h>
#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

#include "cli/Cli.h"

int main(int argc, char* argv[]) {
  QCoreApplication app(argc, argv);
  QTextStream out(stdout);
  QTextStream err(stderr);
  const bool progress = isatty(fileno(stderr)) != 0;
  return sv::RunCli(app.arguments().mid(1), out, err, progress);
}
