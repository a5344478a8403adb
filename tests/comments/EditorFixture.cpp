#include "EditorFixture.h"

#include "LayoutTemplate.h"
#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "model/TaggedComment.h"
#include "project/core/DefinitionSet.h"
#include "project/core/MemoryAppSettings.h"
#include "project/core/ProjectModelFactory.h"
#include "project/model/ProjectModel.h"
#include "support/ModelText.h"
#include "ui/Dock.h"
#include "ui/ExplorerBar.h"
#include "ui/PropertyList.h"
#include "widgets/EBCheckBoxes.h"

namespace sv::test {

namespace {

const char* const kModel = R"(
definitions sv.net caption=".NET"
  Assembly moniker=asm flags=r
    SV:NameSpace moniker=ns
      SV:Class moniker=cls
        SV:Method moniker=mem
        SV:Property moniker=prop
        SV:Parameter moniker=param
definitions sv.vbsource caption="Source code"
  VBProject moniker=vbp flags=r
    SV:Component moniker=comp
      SV:Variable moniker=var
      SV:UDT moniker=udt
tags designer=SVContentDesigners5.dsrHTMLEdit
  ##SUMMARY name=Summary caption=Description group=Common xml=summary image=summary namespaces=SV:NameSpace,SV:Class,SV:Method,SV:Property,SV:Component general description="What the element is for."
  ##REMARKS name=Remarks caption=Remarks group=Common xml=remarks image=remarks namespaces=SV:Class,SV:Method,SV:Property
  ##RETURNS name=Returns caption=Returns group=Common xml=returns image=returns namespaces=SV:Method
  ##VALUE name=Value caption=Value group=Common xml=value image=value namespaces=SV:Property
  ##EXAMPLE name=Example caption=Example group=Samples xml=example image=example namespaces=SV:Class,SV:Method
  ##OVERLOADS name=Overloads caption=Overloads group=Common xml=overloads image=overloads namespaces=SV:Method
  ##DEFAULTCONSTRUCTORSUMMARY name="Default constructor" caption="Default Constructor" group=Common xml=summary image=defaultconstructorsummary namespaces=SV:Class
  ##HISTORY name=History caption=History group=Common xml=history image=remarks qualifier=name namespaces=SV:Class
  ##NOPAGE name="No page" caption="No Page" xml=nopage designer={None} namespaces=SV:Class
  ##PARAM name=Parameter xml=param namespaces=SV:Method
  ##SEEALSO name="See Also" xml=seealso namespaces=SV:Class,SV:Method,SV:Property
  ##EXCEPTION name=Exception xml=exception namespaces=SV:Method
  ##AUTHOR name=Author xml=author qualifier=name namespaces=SV:Class
  ##INTERNAL name=Internal xml=internal exclude=x namespaces=SV:Class
  ##NOTE name=Note namespaces=SV:Class
  ##EXCLUDE name="Exclude from documentation" caption=Exclude design=f xml=exclude namespaces=SV:Class,SV:Method description="Leaves the element out."
  ##HIDDEN name=Hidden design=f xml=hidden namespaces=SV:Class
items
  asm Geometry
    ns Geometry.Shapes qn=Geometry.Shapes type=NameSpace
      cls Circle component
        ##SUMMARY "A round shape." id=c1
        ##SEEALSO "Square" id=c2
        ##NOTE "Not listed in XML mode." id=c3
        mem Area member type=Block
          ##PARAM "The radius." id=c4
          param radius type=Parameter
        mem Draw member type=Block overloaded
        mem Move member type=Block overloadblocks
        mem _ctor() member explicit
      cls Square component
        ##EXCLUDE id=c5
        ##HISTORY "Renamed in 2.0." id=c6
        ##AUTHOR "Ann" id=c7
        mem New() member
      prop Radius member type=Property
items definitions=sv.vbsource
  vbp Tools project
    comp Tools.Main component qn=Tools.Main
      var Count qn=Tools.Main.Count type=Variable
      udt Point qn=Tools.Main.Point type=UDT
        var X qn=Tools.Main.Point.X type=Variable
)";

}  // namespace

EditorFixture::EditorFixture() : model(QString::fromUtf8(kModel)), scopedModel(model.Factory()) {
  auto pages = std::make_shared<LayoutTemplate>("Web", model.Definitions());
  pages->AddLayout("Standard", "Standard", "SV:Class,SV:Method");
  model.AppSettings()->Templates()->Add(pages, "Web");
  editor.setAppPath(QStringLiteral(SV_SOURCE_DIR "/data"));
  editor.setSVProject(model.Project());
  auto record = [this](const QString& text) { events << text; };
  QObject::connect(&editor, &CommentEditor::DirtyStateChanged, [this, record] {
    record(QStringLiteral("DirtyStateChanged %1").arg(editor.Dirty()));
  });
  QObject::connect(&editor, &CommentEditor::TaggedCommentAdded, [record](auto item, auto comment) {
    record(QStringLiteral("TaggedCommentAdded %1 %2 status=%3")
               .arg(item->Name().value_or(QString()), comment->TagIdentifier())
               .arg(comment->Status()));
  });
  QObject::connect(&editor, &CommentEditor::TaggedCommentDeleted,
                   [record](auto item, auto comment, const QString& key) {
                     record(QStringLiteral("TaggedCommentDeleted %1 %2 key=%3")
                                .arg(item->Name().value_or(QString()), comment->TagIdentifier(),
                                     key == comment->Id() ? QStringLiteral("Id") : key));
                   });
  QObject::connect(&editor, &CommentEditor::TaggedCommentChanged,
                   [record](auto item, auto comment, const QString&) {
                     record(QStringLiteral("TaggedCommentChanged %1 %2 \"%3\"")
                                .arg(item->Name().value_or(QString()), comment->TagIdentifier(),
                                     comment->Text()));
                   });
  QObject::connect(&editor, &CommentEditor::UpdateItemImage, [record](auto def, auto item) {
    record(
        QStringLiteral("UpdateItemImage %1 %2").arg(def->Key(), item->Name().value_or(QString())));
  });
}

EditorFixture::~EditorFixture() = default;

void EditorFixture::Load(const QString& qualifiedName, const QString& defKey) {
  std::shared_ptr<NamespaceDef> def = model.Definitions("sv.net")->Item(defKey);
  if (!def) def = model.Definitions("sv.vbsource")->Item(defKey);
  editor.Load(def, model.Item(qualifiedName), model.Roots().front().second);
}

std::string EditorFixture::Bar() const {
  return editor.eb()->Dump().toStdString();
}

std::string EditorFixture::List() {
  if (!editor.TagsListExists()) return "(no list)";
  return editor.TagsList()->Dump().toStdString();
}

std::string EditorFixture::Toolbar() const {
  QStringList lines;
  auto describe = [](const DockCommand* command) {
    QString line = command->BeginGroup() ? QStringLiteral("| ") : QString();
    line += command->Key();
    if (command->Value() == 1) line += QStringLiteral("=1");
    if (!command->Image().isEmpty()) line += QStringLiteral(" {") + command->Image() + '}';
    if (!command->Enabled()) line += QStringLiteral(" (disabled)");
    return line;
  };
  for (const DockCommand* command :
       editor.DockCommentTypes()->Band(CommentEditor::ToolbarBand)->Commands()) {
    lines << describe(command);
    for (const DockCommand* entry : command->Entries()) {
      QString line = QStringLiteral("  ") + describe(entry);
      if (command->CurrentEntry() == entry) line += QStringLiteral(" (current)");
      lines << line;
    }
  }
  return lines.join('\n').toStdString();
}

std::string EditorFixture::Flags() const {
  QStringList lines;
  const EBCheckBoxes* boxes = editor.CheckBoxes();
  for (int index = 1; index < boxes->Count(); ++index)
    lines << QStringLiteral("[%1] %2 <%3>")
                 .arg(boxes->Item(index)->Value() == 1 ? QStringLiteral("x") : QStringLiteral(" "),
                      boxes->Captions().value(index), boxes->Item(index)->Tag());
  return lines.join('\n').toStdString();
}

std::string EditorFixture::Comments(const QString& qualifiedName) const {
  return CommentsText(*model.Item(qualifiedName)->TaggedComments()).toStdString();
}

std::string EditorFixture::TakeEvents() {
  const QString text = events.join('\n');
  events.clear();
  return text.toStdString();
}

}  // namespace sv::test
