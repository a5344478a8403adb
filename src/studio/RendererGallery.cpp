#include "studio/RendererGallery.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "studio/CheckBoxRenderer.h"
#include "studio/CorvaCheckboxRenderer.h"
#include "studio/DockRenderer.h"
#include "studio/ExplorerBarRenderer.h"
#include "studio/ListBoxRenderer.h"
#include "studio/PropertyListRenderer.h"
#include "studio/TreeRenderer.h"

namespace sv {

RendererGallery::RendererGallery(QWidget* parent) : QWidget(parent), mEvents(new QLabel(this)) {
  setWindowTitle(tr("Scrivara Studio - widget gallery"));
  auto* grid = new QGridLayout(this);
  grid->addWidget(makeDock(), 0, 0, 1, 3);
  grid->addWidget(makeTree(), 1, 0);
  grid->addWidget(makeExplorerBar(), 1, 1);
  grid->addWidget(makePropertyList(), 1, 2);
  grid->addWidget(makeChecks(), 2, 0, 1, 3);
  grid->addWidget(mEvents, 3, 0, 1, 3);
  resize(900, 600);
}

void RendererGallery::report(const QString& event) {
  mEvents->setText(event);
}

QWidget* RendererGallery::makeTree() {
  auto* tree = new TreeView(this);
  tree->setCheckBoxes(true);
  TreeNode* project = tree->AddChild(nullptr, QStringLiteral("p"), tr("Geometry project"));
  project->setBold(true);
  TreeNode* shapes = tree->AddChild(project, QStringLiteral("shapes"), tr("Shapes (opens late)"));
  tree->AddChild(shapes, {}, QStringLiteral("..."));
  TreeNode* hidden = tree->AddChild(project, QStringLiteral("x"), tr("Excluded item"));
  hidden->setForeColor(0x808080);
  project->setExpanded(true);
  // The placeholder gives way to the real children when the node first opens.
  connect(tree, &TreeView::Expanding, this, [this, tree](TreeNode* node, bool*) {
    if (node->Key() != QStringLiteral("shapes") || node->Child()->Key() != QString()) return;
    tree->Remove(node->Child());
    for (const QString& name : {tr("Circle"), tr("Square"), tr("Triangle")})
      tree->AddChild(node, name.toLower(), name);
    report(tr("Expanding: loaded %1").arg(node->Text()));
  });
  connect(tree, &TreeView::NodeCheck, this,
          [this](TreeNode* node) { report(tr("NodeCheck: %1").arg(node->Text())); });
  connect(tree, &TreeView::NodeClick, this,
          [this](TreeNode* node) { report(tr("NodeClick: %1").arg(node->Text())); });
  return new TreeRenderer(tree, this);
}

QWidget* RendererGallery::makeDock() {
  auto* dock = new Dock(this);
  DockBand* band = dock->AddBand(QStringLiteral("main"), tr("Main"));
  dock->AddCommand(QStringLiteral("save"), DockCommandType::Button, tr("Save"), band);
  dock->AddCommand(QStringLiteral("preview"), DockCommandType::Check, tr("Preview"), band);
  DockCommand* view =
      dock->AddCommand(QStringLiteral("view"), DockCommandType::Popup, tr("View"), band);
  dock->AddEntry(view, QStringLiteral("members"), DockCommandType::Check, tr("Members"));
  dock->AddEntry(view, QStringLiteral("files"), DockCommandType::Check, tr("Files"));
  DockCommand* find =
      dock->AddCommand(QStringLiteral("find"), DockCommandType::Edit, tr("Find"), band);
  find->setBeginGroup(true);
  connect(dock, &Dock::CommandClick, this, [this](DockCommand* command) {
    report(tr("CommandClick: %1 (value %2)").arg(command->Key()).arg(command->Value()));
  });
  connect(dock, &Dock::CommandChange, this,
          [this](DockCommand* command) { report(tr("CommandChange: %1").arg(command->Text())); });
  return new DockRenderer(dock, this);
}

QWidget* RendererGallery::makeExplorerBar() {
  auto* bar = new ExplorerBar(this);
  ExplorerBarGroup* pages = bar->AddGroup(QStringLiteral("pages"), tr("Pages"));
  pages->AddItem(QStringLiteral("summary"), tr("Summary"))->setTicked(true);
  pages->AddItem(QStringLiteral("remarks"), tr("Remarks"));
  ExplorerBarGroup* links = bar->AddGroup(QStringLiteral("links"), tr("Links"));
  links->AddItem(QStringLiteral("seealso"), tr("See also"));
  connect(bar, &ExplorerBar::ItemClick, this,
          [this](ExplorerBarItem* item) { report(tr("ItemClick: %1").arg(item->Key())); });
  return new ExplorerBarRenderer(bar, this);
}

QWidget* RendererGallery::makePropertyList() {
  auto* list = new PropertyList(this);
  list->Add(QStringLiteral("general"), tr("General"), PropertyRowKind::Heading);
  PropertyRow* title = list->Add(QStringLiteral("title"), tr("Title"));
  title->setValue(tr("Circle"));
  title->setDescription(tr("<b>Title</b>: the page's heading."));
  list->Add(QStringLiteral("author"), tr("Author"))->setHasButton(true);
  list->AddButton(QStringLiteral("remove"), 0, tr("Remove"));
  connect(list, &PropertyList::Change, this, [this](PropertyRow* row) {
    report(tr("Change: %1 = %2").arg(row->Caption(), row->Value().toString()));
  });
  return new PropertyListRenderer(list, this);
}

QWidget* RendererGallery::makeChecks() {
  auto* panel = new QWidget(this);
  auto* layout = new QVBoxLayout(panel);
  auto* box = new CheckBox(this);
  box->setCaption(tr("Plain check box"));
  connect(box, &CheckBox::Click, this,
          [this, box] { report(tr("CheckBox Click: %1").arg(box->Value())); });
  layout->addWidget(new CheckBoxRenderer(box, panel));
  auto* corva = new CorvaCheckbox(this);
  corva->setCaption(tr("Self-drawn check box"));
  connect(corva, &CorvaCheckbox::Click, this,
          [this, corva] { report(tr("CorvaCheckbox Click: %1").arg(corva->Value())); });
  layout->addWidget(new CorvaCheckboxRenderer(corva, panel));
  auto* list = new ListBox(this);
  list->setStyle(ListStyle::CheckBox);
  for (const QString& text : {tr("Public"), tr("Protected"), tr("Private")}) list->AddItem(text);
  connect(list, &ListBox::ItemCheck, this,
          [this](int index) { report(tr("ItemCheck: %1").arg(index)); });
  layout->addWidget(new ListBoxRenderer(list, panel));
  return panel;
}

}  // namespace sv
