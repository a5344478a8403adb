#include "ProjectEditorFixture.h"

#include <vector>

#include "codetree/ProjectView.h"
#include "codetree/UIHelpers.h"
#include "comments/CommentEditor.h"
#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "model/PageLayout.h"
#include "model/TaggedComment.h"
#include "project/core/DefinitionSet.h"
#include "project/core/MemoryAppSettings.h"
#include "project/core/ProjectModelFactory.h"
#include "project/model/ProjectModel.h"
#include "support/ModelText.h"
#include "ui/TreeView.h"

namespace sv::test {

namespace {

const char* const kModel = R"(
definitions sv.net caption=".NET"
  Assembly moniker=asm flags=r
    SV:NameSpace moniker=ns
      SV:Class moniker=cls
        SV:Method moniker=mem group=Methods GroupedInComments
tags designer=SVContentDesigners5.dsrHTMLEdit
  ##SUMMARY name=Summary caption=Description group=Common xml=summary image=summary namespaces=SV:NameSpace,SV:Class,SV:Method general
  ##REMARKS name=Remarks caption=Remarks group=Common xml=remarks image=remarks namespaces=SV:Class,SV:Method
  ##SEEALSO name="See Also" xml=seealso namespaces=SV:Class,SV:Method
  ##PARAM name=Parameter xml=param namespaces=SV:Method
  ##EXCLUDE name="Exclude from documentation" caption=Exclude design=f xml=exclude namespaces=SV:Class,SV:Method
items
  asm Geometry qn=Geometry
    ns Shapes qn=Geometry~Shapes type=NameSpace
      ##SUMMARY "Two-dimensional shapes." id=n1
      cls Circle qn=Geometry~Shapes~Circle type=Class
        ##SUMMARY "A round shape." id=c1
        ##SEEALSO "Square" id=c2
        mem Area qn=Geometry~Shapes~Circle~Area type=Method
          ##PARAM "The radius." id=m1
        mem Draw qn=Geometry~Shapes~Circle~Draw type=Method
      cls Square qn=Geometry~Shapes~Square type=Class
        mem Area qn=Geometry~Shapes~Square~Area type=Method
      cls "Unit Circle" qn="Geometry~Shapes~Unit Circle" type=Class
    ns Tools qn=Geometry~Tools_namespace type=NameSpace
)";

class Layout : public PageLayout {
 public:
  Layout(QString name, QString nameSpaces, QString fileNameTemplate)
      : mName(std::move(name)),
        mNameSpaces(std::move(nameSpaces)),
        mFileNameTemplate(std::move(fileNameTemplate)) {}
  QString Name() const override { return mName; }
  bool Enabled() const override { return true; }
  void setEnabled(bool) override {}
  QString NameSpaces() const override { return mNameSpaces; }
  QString Caption() const override { return mName; }
  QString FileNameTemplate() const override { return mFileNameTemplate; }

 private:
  QString mName;
  QString mNameSpaces;
  QString mFileNameTemplate;
};

QString itemName(const std::shared_ptr<CodeItem>& item) {
  return item ? item->QualifiedName().value_or(QString()) : QStringLiteral("(none)");
}

}  // namespace

void RecordingWrapper::lockrefresh() {
  ++depth;
  calls << QStringLiteral("lock");
}

void RecordingWrapper::unlockrefresh() {
  --depth;
  calls << QStringLiteral("unlock");
}

void RecordingWrapper::unlockrefreshabsolute() {
  depth = 0;
  calls << QStringLiteral("unlockabsolute");
}

void RecordingWrapper::BindTo(bool reset, HtmlEditor* editor) {
  (void)reset;
  boundTo = editor;
}

std::string RecordingWrapper::Take() {
  const QString text = calls.join(QLatin1Char(' '));
  calls.clear();
  return text.toStdString();
}

void LinkTemplate::AddLayout(const QString& name, const QString& nameSpaces,
                             const QString& fileNameTemplate) {
  mLayouts->Add(std::make_shared<Layout>(name, nameSpaces, fileNameTemplate), name);
}

ProjectEditorFixture::ProjectEditorFixture()
    : model(QString::fromUtf8(kModel)),
      scopedModel(model.Factory()),
      pages(std::make_shared<LinkTemplate>(model.Definitions())) {
  // The clipboard is the application's; each test starts with an empty one.
  UIHelpers::Shared().ClearCopiedComments();
  pages->AddLayout(QStringLiteral("Standard"), QStringLiteral("SV:Class,SV:Method"));
  pages->AddLayout(QStringLiteral("Members"), QStringLiteral("SV:Class"),
                   QStringLiteral("%%ItemQualifiedName%%_members.html"));
  pages->AddLayout(QStringLiteral("Syntax"), QStringLiteral("SV:Method"),
                   QStringLiteral("%%itemqualifiedname%%_syntax.html"));

  commentEditor().setAppPath(QStringLiteral(SV_SOURCE_DIR "/data"));
  view().setGrouped(true);
  editor.setSVProject(model.Project());
  editor.setInPlaceTemplate(pages);
  editor.BindToWrapper(&wrapper);
  editor.LoadFromNamespaceDefs(model.Definitions(), {});

  auto record = [this](const QString& text) { events << text; };
  QObject::connect(&editor, &ProjectEditor::TaggedCommentAdded, [record](auto item, auto comment) {
    record(
        QStringLiteral("TaggedCommentAdded %1 %2").arg(itemName(item), comment->TagIdentifier()));
  });
  QObject::connect(&editor, &ProjectEditor::TaggedCommentDeleted,
                   [record](auto item, auto comment, const QString&) {
                     record(QStringLiteral("TaggedCommentDeleted %1 %2")
                                .arg(itemName(item), comment->TagIdentifier()));
                   });
  QObject::connect(&editor, &ProjectEditor::TaggedCommentChanged,
                   [record](auto item, auto comment, const QString&) {
                     record(QStringLiteral("TaggedCommentChanged %1 %2 \"%3\"")
                                .arg(itemName(item), comment->TagIdentifier(), comment->Text()));
                   });
  QObject::connect(&editor, &ProjectEditor::NodeClickNameSpaceDef, [record](auto node, auto def) {
    record(QStringLiteral("NodeClickNameSpaceDef %1 %2").arg(node->Key(), def->Key()));
  });
  QObject::connect(&editor, &ProjectEditor::ItemPopulated,
                   [record](auto item, const QString& filter) {
                     record(QStringLiteral("ItemPopulated %1 %2").arg(itemName(item), filter));
                   });
}

ProjectEditorFixture::~ProjectEditorFixture() = default;

ProjectView& ProjectEditorFixture::view() const {
  return *editor.ProjectViewControl();
}

CommentEditor& ProjectEditorFixture::commentEditor() const {
  return *editor.CommentEditorControl();
}

TreeView& ProjectEditorFixture::tree() const {
  return *view().tvwProject();
}

TreeNode* ProjectEditorFixture::node(const QString& key) const {
  return tree().Find(key);
}

void ProjectEditorFixture::click(const QString& key) {
  // Open the branches on the path from the top; the node may then sit in a closed folder.
  const QStringList parts = key.split(QLatin1Char('~'));
  QString path;
  for (qsizetype index = 0; index + 1 < parts.size(); ++index) {
    path = index == 0 ? parts[index] : path + QLatin1Char('~') + parts[index];
    if (TreeNode* above = node(path); above && !above->Expanded()) tree().userExpand(above);
  }
  TreeNode* target = node(key);
  ASSERT_NE(target, nullptr) << key.toStdString();
  std::vector<TreeNode*> closed;
  for (TreeNode* above = target->Parent(); above; above = above->Parent())
    if (!above->Expanded()) closed.push_back(above);
  for (auto it = closed.rbegin(); it != closed.rend(); ++it) tree().userExpand(*it);
  tree().userClick(target);
}

std::string ProjectEditorFixture::shown() const {
  TreeDumpOptions options;
  options.visibleOnly = true;
  return tree().Dump(options).toStdString();
}

std::string ProjectEditorFixture::selected() const {
  const TreeNode* selection = tree().SelectedItem();
  return selection ? selection->Key().toStdString() : std::string("(none)");
}

std::string ProjectEditorFixture::element() const {
  return itemName(commentEditor().CurrentCodeElement()).toStdString();
}

std::string ProjectEditorFixture::copyPaste() const {
  const auto state = [](bool on) { return on ? "on" : "off"; };
  return std::string("Copy ") + state(view().CopyCommentsEnabled()) + ", Paste " +
         state(view().PasteCommentsEnabled());
}

std::string ProjectEditorFixture::comments(const QString& qualifiedName) const {
  return CommentsText(*model.Item(qualifiedName)->TaggedComments()).toStdString();
}

std::string ProjectEditorFixture::TakeEvents() {
  const QString text = events.join(QLatin1Char('\n'));
  events.clear();
  return text.toStdString();
}

}  // namespace sv::test
