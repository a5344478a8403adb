#include "ui/TreeView.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "model/Error.h"
#include "ui/Keys.h"

namespace sv {
namespace {

std::string dump(const TreeView& tree, TreeDumpOptions options = {}) {
  return tree.Dump(options).toStdString();
}

TreeDumpOptions withKeys() {
  TreeDumpOptions options;
  options.keys = true;
  return options;
}

// Records the tree's events as short lines, in the order raised.
struct TreeLog {
  explicit TreeLog(TreeView& tree) {
    auto name = [](TreeNode* node) { return node ? node->Text() : QStringLiteral("-"); };
    QObject::connect(&tree, &TreeView::Expanding, [this, name](TreeNode* n, bool*) {
      add("Expanding " + name(n) + (n->Expanded() ? " open" : " shut"));
    });
    QObject::connect(&tree, &TreeView::Expand, [this, name](TreeNode* n) {
      add("Expand " + name(n) + (n->Expanded() ? " open" : " shut"));
    });
    QObject::connect(&tree, &TreeView::Collapse,
                     [this, name](TreeNode* n) { add("Collapse " + name(n)); });
    QObject::connect(&tree, &TreeView::NodeClick, [this, name](TreeNode* n) {
      add("NodeClick " + name(n) + (n->Selected() ? " selected" : ""));
    });
    QObject::connect(&tree, &TreeView::NodeDblClick,
                     [this, name](TreeNode* n) { add("NodeDblClick " + name(n)); });
    QObject::connect(&tree, &TreeView::NodeCheck, [this, name](TreeNode* n) {
      add("NodeCheck " + name(n) + (n->Checked() ? " ticked" : " unticked"));
    });
    QObject::connect(&tree, &TreeView::Click, [this] { add("Click"); });
    QObject::connect(&tree, &TreeView::DblClick, [this] { add("DblClick"); });
    QObject::connect(&tree, &TreeView::MouseDown, [this] { add("MouseDown"); });
    QObject::connect(&tree, &TreeView::MouseUp, [this] { add("MouseUp"); });
    QObject::connect(&tree, &TreeView::KeyDown, [this](int* code, int shift) {
      add(QStringLiteral("KeyDown %1 %2").arg(*code).arg(shift));
    });
    QObject::connect(&tree, &TreeView::KeyPress,
                     [this](int* ascii) { add(QStringLiteral("KeyPress %1").arg(*ascii)); });
    QObject::connect(&tree, &TreeView::KeyUp, [this](int* code, int shift) {
      add(QStringLiteral("KeyUp %1 %2").arg(*code).arg(shift));
    });
    QObject::connect(&tree, &TreeView::BeforeLabelEdit, [this] { add("BeforeLabelEdit"); });
    QObject::connect(&tree, &TreeView::AfterLabelEdit, [this](bool*, QString* text) {
      add("AfterLabelEdit " + (text->isNull() ? QStringLiteral("(null)") : *text));
    });
  }
  void add(const QString& line) { lines << line; }
  std::string take() {
    std::string text = lines.join(QStringLiteral(", ")).toStdString();
    lines.clear();
    return text;
  }
  QStringList lines;
};

TEST(TreeViewTest, AddsNodesByRelationshipAndPrintsThem) {
  TreeView tree;
  TreeNode* a = tree.AddChild(nullptr, "A", "Alpha", "Namespace");
  TreeNode* c = tree.AddChild(a, "A~C", "Charlie");
  tree.Add(c, TreeRelationship::Previous, "A~B", "Bravo");
  tree.Add(c, TreeRelationship::Next, "A~D", "Delta");
  tree.Add(c, TreeRelationship::First, "A~0", "Zero");
  tree.Add(c, TreeRelationship::Last, "A~E", "Echo");
  tree.Add(nullptr, TreeRelationship::First, "Top", "Top");
  tree.Add(a, TreeRelationship::Next, "Z", "Zulu");
  tree.Item("a~b")->setBold(true);

  EXPECT_EQ(dump(tree, withKeys()),
            "Top <Top>\n"
            "+ Alpha <A>\n"
            "  Zero <A~0>\n"
            "  *Bravo <A~B>\n"
            "  Charlie <A~C>\n"
            "  Delta <A~D>\n"
            "  Echo <A~E>\n"
            "Zulu <Z>\n");
  EXPECT_EQ(tree.Count(), 8);

  tree.setCheckBoxes(true);
  a->setChecked(true);
  a->setExpandedImage("Open");
  TreeDumpOptions options;
  options.images = true;
  options.depth = 1;
  EXPECT_EQ(dump(tree, options), "[ ] Top\n+ [x] Alpha {Namespace/Open}\n[ ] Zulu\n");
}

TEST(TreeViewTest, KeysAreUniqueAndFoundWithoutRegardToCase) {
  TreeView tree;
  TreeNode* a = tree.AddChild(nullptr, "Geo::Point", "Point");
  EXPECT_EQ(tree.Find("geo::POINT"), a);
  EXPECT_TRUE(tree.Exists("GEO::point"));
  EXPECT_EQ(tree.Find("Geo::Line"), nullptr);
  TreeNode* umlaut = tree.AddChild(nullptr, QStringLiteral("\u00C4rger"), "Umlaut");
  EXPECT_EQ(tree.Find(QStringLiteral("\u00E4RGER")), umlaut);
  EXPECT_EQ(tree.Find(QStringLiteral("\u00E4rger2")), nullptr);
  tree.Remove(umlaut);

  try {
    tree.AddChild(a, "GEO::POINT", "again");
    FAIL() << "a taken key was accepted";
  } catch (const Error& e) {
    EXPECT_EQ(e.Number(), ErrorNumber::DuplicateKey);
  }
  EXPECT_EQ(a->ChildCount(), 0);
  EXPECT_EQ(tree.Count(), 1);
  EXPECT_THROW(tree.Item("missing"), Error);

  a->setKey("Geo::Pt");
  EXPECT_EQ(tree.Find("geo::point"), nullptr);
  EXPECT_EQ(tree.Find("GEO::PT"), a);
  EXPECT_THROW(tree.setKeysIgnoreCase(false), Error);

  TreeView exact;
  exact.setKeysIgnoreCase(false);
  exact.AddChild(nullptr, "point", "lower");
  exact.AddChild(nullptr, "Point", "upper");
  EXPECT_EQ(exact.Find("Point")->Text(), "upper");
  EXPECT_EQ(exact.Find("POINT"), nullptr);
}

TEST(TreeViewTest, WalksSiblingsParentsAndPaths) {
  TreeView tree;
  TreeNode* root = tree.AddChild(nullptr, "R", "Root");
  TreeNode* first = tree.AddChild(root, "1", "One");
  TreeNode* third = tree.AddChild(root, "3", "Three");
  TreeNode* second = tree.Add(third, TreeRelationship::Previous, "2", "Two");
  TreeNode* leaf = tree.AddChild(second, "2.1", "Leaf");

  EXPECT_EQ(first->Next(), second);
  EXPECT_EQ(second->Next(), third);
  EXPECT_EQ(third->Next(), nullptr);
  EXPECT_EQ(third->Previous(), second);
  EXPECT_EQ(first->Previous(), nullptr);
  EXPECT_EQ(third->FirstSibling(), first);
  EXPECT_EQ(first->LastSibling(), third);
  EXPECT_EQ(third->SiblingIndex(), 2);
  EXPECT_EQ(root->Child(), first);
  EXPECT_EQ(root->LastChild(), third);
  EXPECT_EQ(root->Children().Item(1), second);
  EXPECT_EQ(root->Parent(), nullptr);
  EXPECT_EQ(leaf->Parent(), second);
  EXPECT_EQ(leaf->Root(), root);
  EXPECT_EQ(leaf->FullPath(), "Root\\Two\\Leaf");
  EXPECT_TRUE(root->Contains(leaf));
  EXPECT_FALSE(first->Contains(leaf));
  EXPECT_EQ(tree.FirstNode(), root);
  EXPECT_EQ(tree.LastNode(), root);

  QStringList order;
  for (TreeNode* node : tree.AllNodes()) order << node->Key();
  EXPECT_EQ(order.join(' ').toStdString(), "R 1 2 2.1 3");

  tree.Remove(first);
  EXPECT_EQ(second->Previous(), nullptr);
  EXPECT_EQ(second->SiblingIndex(), 0);
  EXPECT_EQ(third->SiblingIndex(), 1);
}

TEST(TreeViewTest, RemovingABranchFreesItsKeysAndPassesTheSelectionOn) {
  TreeView tree;
  TreeNode* root = tree.AddChild(nullptr, "R", "Root");
  TreeNode* a = tree.AddChild(root, "A", "A");
  tree.AddChild(tree.AddChild(a, "A~1", "A1"), "A~1~x", "x");
  TreeNode* b = tree.AddChild(root, "B", "B");
  tree.setSelectedItem(tree.Find("A~1~x"));

  tree.Remove(a);
  EXPECT_EQ(tree.Count(), 2);
  EXPECT_FALSE(tree.Exists("A"));
  EXPECT_FALSE(tree.Exists("a~1~X"));
  EXPECT_EQ(tree.SelectedItem(), b) << "the next sibling takes the selection";

  TreeNode* again = tree.AddChild(root, "A~1", "back");
  EXPECT_EQ(tree.Find("A~1"), again);

  tree.Remove("A~1");
  EXPECT_EQ(tree.SelectedItem(), b);
  tree.Remove(b);
  EXPECT_EQ(tree.SelectedItem(), root) << "without a next sibling the parent takes it";

  TreeNode* other = tree.AddChild(nullptr, "S", "Second");
  tree.setSelectedItem(other);
  tree.Remove(other);
  EXPECT_EQ(tree.SelectedItem(), root) << "at the top the previous sibling takes it";

  tree.Clear();
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_EQ(tree.SelectedItem(), nullptr);
  EXPECT_FALSE(tree.Exists("R"));
  EXPECT_EQ(dump(tree), "");
}

TEST(TreeViewTest, ExpandingComesBeforeTheNodeOpensAndMayCancel) {
  TreeView tree;
  TreeLog log(tree);
  TreeNode* ns = tree.AddChild(nullptr, "N", "Ns");
  tree.AddChild(ns, "N_dummy", "");
  bool refuse = false;
  // The lazy load of a code tree: children replace the placeholder while the node opens.
  QObject::connect(&tree, &TreeView::Expanding, [&](TreeNode* node, bool* cancel) {
    if (refuse) {
      *cancel = true;
      return;
    }
    if (node->ChildCount() != 1 || !node->Child()->Key().endsWith("_dummy")) return;
    TreeNode* placeholder = node->Child();
    tree.AddChild(node, "N~a", "a");
    tree.AddChild(node, "N~b", "b");
    tree.Remove(placeholder);
  });

  refuse = true;
  tree.userExpand(ns);
  EXPECT_EQ(log.take(), "Expanding Ns shut");
  EXPECT_FALSE(ns->Expanded());

  refuse = false;
  tree.userExpand(ns);
  EXPECT_EQ(log.take(), "Expanding Ns shut, Expand Ns open");
  EXPECT_EQ(dump(tree), "- Ns\n  a\n  b\n");

  tree.userExpand(ns);
  EXPECT_EQ(log.take(), "") << "an open node does not open again";
  tree.userCollapse(ns);
  EXPECT_EQ(log.take(), "Collapse Ns");
  ns->setExpanded(true);
  EXPECT_EQ(log.take(), "Expanding Ns shut, Expand Ns open") << "from code as well";

  tree.userExpand(tree.Find("N~a"));
  tree.Find("N~b")->setExpanded(true);
  EXPECT_EQ(log.take(), "") << "a node without children raises nothing";
}

TEST(TreeViewTest, ANodeOpenedByItsOwnExpandingHandlerRaisesExpandOnce) {
  TreeView tree;
  TreeLog log(tree);
  TreeNode* ns = tree.AddChild(nullptr, "N", "Ns");
  tree.AddChild(ns, "N_dummy", "");
  ns->setExpandOnLoad(true);
  QObject::connect(&tree, &TreeView::Expanding, [&tree](TreeNode* node, bool*) {
    if (!node->Child()->Key().endsWith("_dummy")) return;
    tree.Remove(node->Child());
    tree.AddChild(node, "N~a", "a");
    if (node->ExpandOnLoad() && !node->Expanded()) node->setExpanded(true);
  });
  tree.userExpand(ns);
  EXPECT_EQ(log.take(), "Expanding Ns shut, Expanding Ns shut, Expand Ns open");
  EXPECT_TRUE(ns->Expanded());
}

TEST(TreeViewTest, TicksFromCodeAreSilentAndTheUsersTickRaisesNodeCheck) {
  TreeView tree;
  TreeLog log(tree);
  TreeNode* node = tree.AddChild(nullptr, "A", "A");

  tree.userToggleCheck(node);
  EXPECT_EQ(log.take(), "") << "no boxes, nothing to tick";
  EXPECT_FALSE(node->Checked());

  tree.setCheckBoxes(true);
  node->setChecked(true);
  node->setChecked(false);
  EXPECT_EQ(log.take(), "");

  tree.userToggleCheck(node);
  EXPECT_EQ(log.take(), "NodeCheck A ticked");
  tree.userToggleCheck(node);
  EXPECT_EQ(log.take(), "NodeCheck A unticked");

  tree.setSelectedItem(node);
  tree.userPressKey(KeyCode::Space);
  EXPECT_EQ(log.take(), "KeyDown 32 0, NodeCheck A ticked, KeyPress 32, KeyUp 32 0");
}

TEST(TreeViewTest, ClicksAndKeysRaiseTheirEventsInOrder) {
  TreeView tree;
  TreeLog log(tree);
  TreeNode* root = tree.AddChild(nullptr, "R", "Root");
  TreeNode* child = tree.AddChild(root, "C", "Child");
  TreeNode* next = tree.AddChild(nullptr, "N", "Next");

  tree.userClick(root);
  EXPECT_EQ(log.take(), "MouseDown, MouseUp, NodeClick Root selected, Click");
  EXPECT_EQ(tree.SelectedItem(), root);
  EXPECT_TRUE(tree.HasFocus());
  tree.setSelectedItem(next);
  EXPECT_EQ(log.take(), "") << "selecting from code raises nothing";

  tree.userDoubleClick(root);
  EXPECT_EQ(log.take(),
            "MouseDown, MouseUp, NodeClick Root selected, Click, DblClick, NodeDblClick Root, "
            "Expanding Root shut, Expand Root open");

  tree.userPressKey(KeyCode::Down);
  EXPECT_EQ(log.take(), "KeyDown 40 0, NodeClick Child selected, KeyUp 40 0");
  tree.userPressKey(KeyCode::Down);
  tree.userPressKey(KeyCode::Down);
  EXPECT_EQ(tree.SelectedItem(), next) << "the last node stays selected";
  log.take();
  tree.userPressKey(KeyCode::Up);
  EXPECT_EQ(tree.SelectedItem(), child);
  tree.userPressKey(KeyCode::Left);
  EXPECT_EQ(tree.SelectedItem(), root);
  log.take();
  tree.userPressKey(KeyCode::Left);
  EXPECT_EQ(log.take(), "KeyDown 37 0, Collapse Root, KeyUp 37 0");

  tree.userPressKey('N', ShiftMask::Ctrl);
  EXPECT_EQ(log.take(), "KeyDown 78 2, KeyPress 14, KeyUp 78 2");
  tree.userPressKey('N', ShiftMask::Shift);
  EXPECT_EQ(log.take(), "KeyDown 78 1, KeyPress 78, KeyUp 78 1");

  // A KeyDown handler that clears the key code stops the key's action.
  QObject::connect(&tree, &TreeView::KeyDown, [](int* code, int) { *code = 0; });
  tree.userPressKey(KeyCode::Right);
  EXPECT_EQ(log.take(), "KeyDown 39 0, KeyUp 39 0");
  EXPECT_FALSE(root->Expanded());
}

TEST(TreeViewTest, LabelEditsFollowTheEditMode) {
  TreeView tree;
  TreeLog log(tree);
  TreeNode* node = tree.AddChild(nullptr, "A", "Old");
  bool refuse = false;
  QObject::connect(&tree, &TreeView::AfterLabelEdit, [&](bool* cancel, QString* text) {
    *cancel = refuse;
    if (!text->isNull()) *text = text->trimmed();
  });

  EXPECT_TRUE(tree.userEditLabel(node, " New "));
  EXPECT_EQ(log.take(), "BeforeLabelEdit, AfterLabelEdit  New ");
  EXPECT_EQ(node->Text(), "New");

  refuse = true;
  EXPECT_FALSE(tree.userEditLabel(node, "Refused"));
  EXPECT_EQ(node->Text(), "New");
  log.take();

  refuse = false;
  tree.setLabelEdit(LabelEditMode::Manual);
  EXPECT_FALSE(tree.userEditLabel(node, "Typed"));
  EXPECT_EQ(log.take(), "");
  tree.setSelectedItem(node);
  tree.StartLabelEdit();
  EXPECT_EQ(tree.EditingNode(), node);
  tree.userCancelLabelEdit();
  EXPECT_EQ(log.take(), "BeforeLabelEdit, AfterLabelEdit (null)");
  EXPECT_EQ(tree.EditingNode(), nullptr);
  tree.StartLabelEdit();
  EXPECT_TRUE(tree.userEditLabel(node, "Typed"));
  EXPECT_EQ(node->Text(), "Typed");
}

TEST(TreeViewTest, RedrawLocksAreCountedAndMustBalance) {
  TreeView tree;
  QStringList changes;
  QObject::connect(&tree, &TreeView::redrawChanged,
                   [&](bool on) { changes << (on ? "on" : "off"); });
  tree.LockRedraw();
  tree.LockRedraw();
  EXPECT_EQ(tree.RedrawLockCount(), 2);
  tree.UnlockRedraw();
  EXPECT_FALSE(tree.Redraw());
  tree.UnlockRedraw();
  EXPECT_TRUE(tree.Redraw());
  EXPECT_EQ(tree.RedrawLockCount(), 0);
  EXPECT_EQ(changes.join(' ').toStdString(), "off on");
  EXPECT_THROW(tree.UnlockRedraw(), Error);

  tree.setRedraw(false);
  EXPECT_FALSE(tree.Redraw());
  EXPECT_EQ(tree.RedrawLockCount(), 0);
}

TEST(TreeViewTest, MovesABranchWithItsKeys) {
  TreeView tree;
  TreeNode* a = tree.AddChild(nullptr, "A", "A");
  TreeNode* b = tree.AddChild(nullptr, "B", "B");
  TreeNode* a1 = tree.AddChild(a, "A1", "A1");
  tree.AddChild(a1, "A1x", "x");

  tree.Move(a1, b, TreeRelationship::Child);
  EXPECT_EQ(dump(tree), "A\n+ B\n  + A1\n    x\n");
  EXPECT_EQ(tree.Find("a1x")->Root(), b);
  tree.Move(a1, b, TreeRelationship::Previous);
  EXPECT_EQ(dump(tree), "A\n+ A1\n  x\nB\n");
  EXPECT_THROW(tree.Move(a1, tree.Find("A1x"), TreeRelationship::Child), Error);
  EXPECT_EQ(dump(tree), "A\n+ A1\n  x\nB\n");
}

TEST(TreeViewTest, DumpsABranchOrWhatIsVisible) {
  TreeView tree;
  TreeNode* a = tree.AddChild(nullptr, "A", "A");
  TreeNode* b = tree.AddChild(a, "B", "B");
  tree.AddChild(b, "C", "C");
  a->setExpanded(true);

  TreeDumpOptions visible;
  visible.visibleOnly = true;
  EXPECT_EQ(dump(tree, visible), "- A\n  + B\n");
  EXPECT_TRUE(b->IsVisible());
  EXPECT_FALSE(tree.Find("C")->IsVisible());
  tree.Find("C")->EnsureVisible();
  EXPECT_EQ(dump(tree, visible), "- A\n  - B\n    C\n");

  TreeDumpOptions branch;
  branch.from = b;
  EXPECT_EQ(dump(tree, branch), "- B\n  C\n");
}

TEST(TreeViewTest, ImageListsHoldKeyedAndOverlaidImages) {
  TreeView tree;
  ImageList* images = tree.ImageList();
  images->Add("Class", QStringLiteral("class.png"), "OVERLAY");
  images->Add("Private", QStringLiteral("private.png"));
  const ImageList::ListImage& made = images->AddOverlay("Class_private", "Class", "Private");
  EXPECT_EQ(made.BaseKey, "Class");
  EXPECT_EQ(made.OverlayKey, "Private");
  EXPECT_EQ(made.Index, 3);
  EXPECT_TRUE(images->Exists("class_PRIVATE"));
  EXPECT_EQ(images->Item(1).Tag, "OVERLAY");
  EXPECT_THROW(images->AddOverlay("x", "Class", "Missing"), Error);
  EXPECT_THROW(images->Add("CLASS"), Error);

  images->Remove("Class");
  EXPECT_EQ(images->Item("Class_private").Index, 2);
  EXPECT_EQ(images->Count(), 2);

  ImageList shared;
  tree.setImageList(&shared);
  EXPECT_EQ(tree.ImageList(), &shared);
}

}  // namespace
}  // namespace sv
