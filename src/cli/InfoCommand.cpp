#include "cli/InfoCommand.h"

#include <QMap>
#include <QTextStream>

#include "cli/CliOptions.h"
#include "cli/CliProject.h"
#include "model/AdditionalFiles.h"
#include "model/DocTypes.h"
#include "model/TaggedComments.h"
#include "project/doxygen/DoxygenIndex.h"
#include "project/doxygen/DoxygenProvider.h"
#include "project/model/ProjectModel.h"

namespace sv {
namespace {

void PrintSettings(const ProjectModel& project, QTextStream& out) {
  out << "Settings:\n";
  for (const SettingDef& def : SettingTable())
    out << "  " << def.name << " = " << SettingText(def.id, project.SettingValue(def.id)) << '\n';
}

void PrintRecords(const ProjectModel& project, QTextStream& out) {
  int commented = 0;
  int comments = 0;
  for (const QString& name : project.CommentedItems()) {
    const int count = project.FindComments(name)->UnDeletedCount();
    comments += count;
    commented += count > 0 ? 1 : 0;
  }
  out << "Records:\n"
      << "  Document types = " << project.DocTypes()->Count() << '\n'
      << "  Excluded items = " << project.NamespaceExclusions()->Count() << '\n'
      << "  Additional files = " << project.AdditionalFiles()->Count() << '\n'
      << "  Content files = " << project.CommentFiles()->Count() << '\n'
      << "  Commented items = " << commented << '\n'
      << "  Comments = " << comments << '\n';
}

void PrintCode(const DoxygenIndex& index, QTextStream& out) {
  QMap<QString, int> compounds;
  qsizetype members = 0;
  for (int id = 1; id < index.Count(); ++id) {
    const DoxygenIndexCompound& compound = index.Compound(id);
    if (compound.parent < 0) continue;
    ++compounds[KindWord(compound.kind)];
    members += index.Members(id).size();
  }
  out << "Code:\n"
      << "  Folder = " << index.Folder() << '\n'
      << "  Root = " << index.RootName() << '\n';
  for (auto it = compounds.cbegin(); it != compounds.cend(); ++it)
    out << "  " << it.key() << " = " << it.value() << '\n';
  out << "  members = " << members << '\n';
}

}  // namespace

int RunInfoCommand(const CliOptions& options, QTextStream& out) {
  const auto project = OpenCliProject(options);
  const auto provider = CodeProviderOf(*project);
  out << "Project = "
      << (project->FileName().isEmpty() ? QStringLiteral("(none)") : project->FileName()) << '\n';
  PrintSettings(*project, out);
  PrintRecords(*project, out);
  PrintCode(provider->Index(), out);
  out.flush();
  return 0;
}

}  // namespace sv
