// ProjectView: walking the tree, search, selection by name, and the tree's own events.
#include "codetree/ProjectView.h"

#include <QStringList>

#include "codetree/TreeViewLock.h"
#include "foundation/CollectionHelpers.h"
#include "foundation/ErrorTrap.h"
#include "foundation/MessageBox.h"
#include "foundation/Services.h"
#include "model/Error.h"
#include "ui/Keys.h"

namespace sv {

namespace {

constexpr int kKeyN = 78;

// The tree in reading order: a node, its children, then what follows it.
TreeNode* readingNext(const TreeNode* node) {
  if (TreeNode* child = node->Child()) return child;
  for (; node; node = node->Parent())
    if (TreeNode* next = node->Next()) return next;
  return nullptr;
}

TreeNode* readingPrevious(const TreeNode* node) {
  TreeNode* previous = node->Previous();
  if (!previous) return node->Parent();
  while (TreeNode* last = previous->LastChild()) previous = last;
  return previous;
}

bool isPlaceholder(const TreeNode* node) {
  return node && node->Key().endsWith(ProjectView::kPlaceholderSuffix);
}

}  // namespace

// --- The walk --------------------------------------------------------------------------------

TreeNode* ProjectView::GetNextNode(TreeNode* n) {
  if (isPlaceholder(readingNext(n))) nodeExpanded(n);
  return readingNext(n);
}

TreeNode* ProjectView::GetPreviousNode(TreeNode* n) {
  TreeNode* previous = readingPrevious(n);
  if (!isPlaceholder(previous)) return previous;
  nodeExpanded(previous->Parent());
  return readingPrevious(n);
}

TreeNode* ProjectView::lastNode() const {
  TreeNode* node = mTree->LastNode();
  while (node && node->LastChild()) node = node->LastChild();
  return node;
}

void ProjectView::selectNode(TreeNode* node) {
  // The host follows the selection through NodeClick, as it does for a click.
  mTree->setSelectedItem(node);
  tvwProject_NodeClick(node);
}

void ProjectView::moveToItem(bool forward, bool skipBold) {
  TreeNode* selected = mTree->SelectedItem();
  if (!selected) return;
  const auto step = [&](TreeNode* n) { return forward ? GetNextNode(n) : GetPreviousNode(n); };
  for (TreeNode* n = step(selected); n; n = step(n)) {
    // Closed group folders are passed over; an open one is a stop.
    if (n->Image() == QLatin1String("Closed")) continue;
    if (skipBold && n->Bold()) continue;
    selectNode(n);
    return;
  }
}

void ProjectView::MoveToNextItem(bool skipBold) {
  Trap(this, "MoveToNextItem", [&] { moveToItem(true, skipBold); }, {{"SkipBold", skipBold}});
}

void ProjectView::MoveToPreviousItem(bool onlyNonBold) {
  Trap(this, "MoveToPreviousItem", [&] { moveToItem(false, onlyNonBold); },
       {{"OnlyNonBold", onlyNonBold}});
}

void ProjectView::NextItem(bool unCommented) {
  Trap(this, "NextItem", [&] { moveToItem(true, unCommented); }, {{"UnCommented", unCommented}});
}

void ProjectView::PreviousItem(bool unCommented) {
  Trap(this, "PreviousItem", [&] { moveToItem(false, unCommented); },
       {{"UnCommented", unCommented}});
}

// --- Search ----------------------------------------------------------------------------------

void ProjectView::FindNow() {
  Trap(this, "FindNow", [&] {
    const QString findValue = mDock->Command(QStringLiteral("FindValue"))->Text().toLower();
    SV_TRAP_LOCAL(findValue);
    if (findValue.isEmpty()) {
      Services::Message().ShowMessage(QStringLiteral("Please specify a value to search for"),
                                      Mb::Exclamation, QStringLiteral("No search value"));
      return;
    }
    TreeNode* selected = mTree->SelectedItem();
    TreeNode* startNode = selected ? GetNextNode(selected) : mTree->FirstNode();
    // With the last node selected the search starts over at the top.
    if (!startNode) startNode = mTree->FirstNode();
    TreeNode* found = nullptr;
    {
      const TreeViewLock lock(*this);
      TreeNode* n = startNode;
      while (n) {
        if (n->Text().contains(findValue, Qt::CaseInsensitive)) {
          found = n;
          break;
        }
        // Opening and closing again loads a branch's children without changing its look.
        if (!n->Expanded()) {
          n->setExpanded(true);
          n->setExpanded(false);
        }
        n = readingNext(n);
        if (n == startNode) break;
        if (!n) {
          n = mTree->FirstNode();
          if (n == startNode) break;
        }
      }
    }
    if (found) {
      selectNode(found);
      return;
    }
    Services::Message().ShowMessage(
        QStringLiteral("No more items were found matching the search criteria"), Mb::Information,
        QStringLiteral("Find Complete"));
  });
}

// --- Selection by name -----------------------------------------------------------------------

bool ProjectView::SelectItem(const QString& qualifiedName) {
  return Trap(this, "SelectItem", [&] { return internalSelectItem(qualifiedName, false); },
              {{"QualifiedName", qualifiedName}});
}

bool ProjectView::SelectNearestItem(const QString& qualifiedName) {
  return Trap(this, "SelectNearestItem", [&] { return internalSelectItem(qualifiedName, true); },
              {{"QualifiedName", qualifiedName}});
}

bool ProjectView::InternalSelectItem(const QString& qualifiedName, bool selectNearestIfNoMatch) {
  return Trap(
      this, "InternalSelectItem",
      [&] { return internalSelectItem(qualifiedName, selectNearestIfNoMatch); },
      {{"QualifiedName", qualifiedName}, {"SelectNearestIfNoMatch", selectNearestIfNoMatch}});
}

bool ProjectView::internalSelectItem(const QString& qualifiedName, bool selectNearestIfNoMatch) {
  if (TreeNode* node = mTree->Find(qualifiedName)) {
    selectNode(node);
    return true;
  }
  // Qualified names spell their path from the top, "~" between levels; only the nodes on that
  // path are opened.
  const QString sTmp = CollectionHelpers::GetField(qualifiedName, QStringLiteral(":"), 1);
  QString a;
  TreeNode* nn = nullptr;
  for (const QString& part : sTmp.split(QLatin1Char('~'))) {
    a = nn ? a + QLatin1Char('~') + part : part;
    TreeNode* node = mTree->Find(a);
    if (!node) {
      if (!selectNearestIfNoMatch) return false;
      break;
    }
    if (!node->Expanded()) node->setExpanded(true);
    // Namespaces hang under an assembly's children; they must exist before the next step.
    if (node->Tag() == QLatin1String("Assembly"))
      for (int index = 0; index < node->ChildCount(); ++index)
        node->Children().Item(index)->setExpanded(true);
    nn = node;
  }
  if (!nn) return false;
  selectNode(nn);
  return true;
}

// --- Tree path -------------------------------------------------------------------------------

// The path is the selected key on the first line, then the keys of the open nodes, parents
// before children, one a line.
QString ProjectView::GetTreePath() {
  return Trap(this, "GetTreePath", [&] {
    QStringList lines;
    TreeNode* selected = mTree->SelectedItem();
    lines << (selected ? selected->Key() : QString());
    std::vector<TreeNode*> open;
    for (TreeNode* top : mTree->TopNodes()) open.push_back(top);
    for (std::size_t index = 0; index < open.size(); ++index) {
      TreeNode* node = open[index];
      if (!node->Expanded()) continue;
      lines << node->Key();
      for (TreeNode* child : node->Children()) open.push_back(child);
    }
    return lines.join(QLatin1Char('\n'));
  });
}

void ProjectView::SetTreePath(const QString& path) {
  Trap(this, "SetTreePath", [&] {
    const QStringList lines = path.split(QLatin1Char('\n'));
    for (qsizetype index = 1; index < lines.size(); ++index) {
      TreeNode* node = mTree->Find(lines[index]);
      if (node && !node->Expanded()) node->setExpanded(true);
    }
    if (TreeNode* selected = mTree->Find(lines.value(0))) mTree->setSelectedItem(selected);
  });
}

void ProjectView::setSelectedItem(TreeNode* node) {
  Trap(this, "SelectedItem", [&] { mTree->setSelectedItem(node); });
}

void ProjectView::StartLabelEdit() {
  Trap(this, "StartLabelEdit", [&] { mTree->StartLabelEdit(); });
}

// --- The tree's events -----------------------------------------------------------------------

void ProjectView::tvwProject_Expanding(TreeNode* node, bool* cancel) {
  (void)cancel;
  Trap(this, "tvwProject_Expanding", [&] { nodeExpanded(node); });
}

void ProjectView::tvwProject_NodeClick(TreeNode* node) {
  Trap(this, "tvwProject_NodeClick", [&] {
    if (AutoExpandChildren()) node->setExpanded(true);
    TreeNode* selected = mTree->SelectedItem();
    mDock->Command(QStringLiteral("Next"))->setEnabled(selected != lastNode());
    mDock->Command(QStringLiteral("Previous"))->setEnabled(selected != mTree->FirstNode());
    mTree->SetFocus();
    emit NodeClick(node);
  });
}

void ProjectView::tvwProject_NodeCheck(TreeNode* node) {
  Trap(this, "tvwProject_NodeCheck", [&] {
    emit NodeCheck(node);
    nodeChecked(node);
    emit Change();
  });
}

void ProjectView::tvwProject_KeyUp(int* keyCode, int shift) {
  Trap(this, "tvwProject_KeyUp",
       [&] {
         if (*keyCode == kKeyN && (shift & ShiftMask::Ctrl)) {
           *keyCode = 0;
           return;
         }
         if (mReverseCheck && mReverseCheckNode) {
           mReverseCheckNode->setChecked(!mReverseCheckNode->Checked());
           mReverseCheck = false;
         }
         emit KeyUp(keyCode, shift);
       },
       {{"KeyCode", *keyCode}, {"Shift", shift}});
}

}  // namespace sv
