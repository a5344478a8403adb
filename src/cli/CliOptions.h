#pragma once

#include <QString>
#include <QStringList>

namespace sv {

// The command line of the scrivara tool, parsed.
struct CliOptions {
  QString command;     // "tree", "info", "help"
  QString project;     // a project file
  QString doxygenXml;  // a Doxygen XML folder that stands in for a project file
  QString root;        // the root name for doxygenXml; its parent folder's name when empty
  int depth = 2;       // tree levels opened below the top
  QString select;      // a qualified name to select
  QString find;        // a text to search for
  bool grouped = false;
  bool showPrivate = false;

  // Raises InvalidCall with a message that says what is wrong.
  static CliOptions Parse(const QStringList& arguments);
};

}  // namespace sv
