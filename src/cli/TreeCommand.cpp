#include "cli/TreeCommand.h"

#include <QTextStream>
#include <vector>

#include "cli/CliOptions.h"
#include "cli/CliProject.h"
#include "cli/CliSession.h"
#include "cli/ProgressLine.h"
#include "codetree/ProjectView.h"
#include "project/model/ProjectModel.h"
#include "ui/Dock.h"
#include "ui/DockCommand.h"
#include "ui/TreeView.h"

namespace sv {
namespace {

// Opens the tree level by level, as a person clicking every expander would.
void ExpandToDepth(TreeView& tree, int depth, ProgressLine& progress) {
  std::vector<TreeNode*> level;
  for (TreeNode* node : tree.TopNodes()) level.push_back(node);
  int opened = 0;
  for (int at = 0; at < depth && !level.empty(); ++at) {
    std::vector<TreeNode*> next;
    for (TreeNode* node : level) {
      if (!node->Child()) continue;
      progress.Show(QStringLiteral("Opening %1 (%2 nodes open)").arg(node->Key()).arg(opened));
      if (!node->Expanded()) tree.userExpand(node);
      ++opened;
      for (TreeNode* child : node->Children()) next.push_back(child);
    }
    level = std::move(next);
  }
  progress.Clear();
}

// Runs the control's own search through its Find bar.
void Find(ProjectView& view, const QString& text) {
  Dock& dock = *view.dksProjectView();
  dock.Command(QStringLiteral("FindValue"))->setText(text);
  view.FindNow();
}

}  // namespace

int RunTreeCommand(const CliOptions& options, CliSession& session, QTextStream& out,
                   QTextStream& err, ProgressLine& progress) {
  progress.Show(QStringLiteral("Reading the code index"));
  const auto project = OpenCliProject(options);
  CodeProviderOf(*project);
  progress.Clear();

  ProjectView view;
  view.setSupportsSelection(false);
  view.InitProperties();
  view.setSVProject(project);
  view.setGrouped(options.grouped);
  view.setShowPrivate(options.showPrivate);
  view.LoadFromNamespaceDefs(session.CppDefinitions(), QString(), true);
  TreeView& tree = *view.tvwProject();
  ExpandToDepth(tree, options.depth, progress);

  bool missing = false;
  if (!options.select.isEmpty() && !view.SelectItem(options.select)) {
    err << "scrivara: no item " << options.select << " in the code tree\n";
    missing = true;
  }
  if (!options.find.isEmpty()) {
    TreeNode* before = tree.SelectedItem();
    progress.Show(QStringLiteral("Searching for %1").arg(options.find));
    Find(view, options.find);
    progress.Clear();
    missing = missing || tree.SelectedItem() == before;
  }
  TreeNode* selected = tree.SelectedItem();
  if (selected) selected->EnsureVisible();

  TreeDumpOptions dump;
  dump.visibleOnly = true;
  out << tree.Dump(dump);
  if (selected) out << "selected: " << selected->Key() << '\n';
  out.flush();
  err.flush();
  return missing || session.Failures() > 0 ? 1 : 0;
}

}  // namespace sv
