#include "DesignerFixture.h"

#include "comments/DesignerContainer.h"
#include "comments/DesignerControl.h"
#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "model/TaggedComment.h"
#include "project/config/InstallProjectModel.h"
#include "project/core/DefinitionSet.h"
#include "project/model/ProjectModel.h"
#include "support/ModelText.h"

namespace sv::test {

namespace {

const char* const kModel = R"(
definitions sv.cpp caption="C++ code"
  Project moniker=cpp.project flags=r
    Namespace moniker=cpp.namespace
      Class moniker=cpp.class
        Function moniker=cpp.function
definitions sv.net caption=".NET"
  NET:Class moniker=net.class
items
  Project Geometry project
    Namespace geo qn=geo type=Namespace
      Class Circle component qn=geo::Circle type=Class
        ##SUMMARY "A round shape." id=c1
        ##REMARKS "<P>Old markup" id=c2
        Function Area member qn=geo::Circle::Area type=Function
      Class Square component qn=geo::Square type=Class
        ##SEEALSO "geo::Circle" hidden id=c3
)";

}  // namespace

std::string RecordingWrapper::Take() {
  const QString text = calls.join('\n');
  calls.clear();
  return text.toStdString();
}

DesignerFixture::DesignerFixture()
    : previousModel(InstallModel(nullptr)), model(QString::fromUtf8(kModel)) {
  InstallProjectModel(QStringLiteral(SV_SOURCE_DIR "/data"));
  editor.setAppName(QStringLiteral("Scrivara"));
  editor.setAppPath(QStringLiteral(SV_SOURCE_DIR "/data"));
  editor.setSVProject(model.Project());
  auto record = [this](const QString& text) { events << text; };
  QObject::connect(&editor, &CommentEditor::DirtyStateChanged, [this, record] {
    record(QStringLiteral("DirtyStateChanged %1").arg(editor.Dirty()));
  });
  QObject::connect(&editor, &CommentEditor::TaggedCommentAdded, [record](auto item, auto comment) {
    record(QStringLiteral("TaggedCommentAdded %1 %2 \"%3\" status=%4")
               .arg(item->Name().value_or(QString()), comment->TagIdentifier(), comment->Text())
               .arg(comment->Status()));
  });
  QObject::connect(&editor, &CommentEditor::TaggedCommentDeleted,
                   [record](auto item, auto comment, const QString& key) {
                     record(QStringLiteral("TaggedCommentDeleted %1 %2 key=%3")
                                .arg(item->Name().value_or(QString()), comment->TagIdentifier(),
                                     key == comment->Id() ? QStringLiteral("Id") : key));
                   });
  QObject::connect(
      &editor, &CommentEditor::TaggedCommentChanged,
      [record](auto item, auto comment, const QString& key) {
        record(QStringLiteral("TaggedCommentChanged %1 %2 \"%3\" key=%4")
                   .arg(item->Name().value_or(QString()), comment->TagIdentifier(), comment->Text(),
                        key == comment->Id() ? QStringLiteral("Id") : key));
      });
  QObject::connect(&editor, &CommentEditor::ActiveDesignerChanged, [this, record] {
    if (!watchDesigner) return;
    record(editor.ActiveDesigner() ? QStringLiteral("ActiveDesignerChanged")
                                   : QStringLiteral("ActiveDesignerChanged none"));
  });
}

DesignerFixture::~DesignerFixture() {
  editor.Terminate();
  InstallModel(previousModel);
}

void DesignerFixture::Load(const QString& qualifiedName, const QString& defKey) {
  editor.Load(model.Definitions()->Item(defKey), model.Item(qualifiedName),
              model.Roots().front().second);
}

std::string DesignerFixture::Comments(const QString& qualifiedName) const {
  return CommentsText(*model.Item(qualifiedName)->TaggedComments()).toStdString();
}

std::string DesignerFixture::TakeEvents() {
  const QString text = events.join('\n');
  events.clear();
  return text.toStdString();
}

std::string DesignerFixture::Controls() const {
  QStringList lines;
  const DesignerContainer* panel = editor.DesignerPanel();
  for (const DesignerControl* control : panel->Controls()) {
    QString line = control->Name();
    if (control->Visible()) line += QStringLiteral(" (visible)");
    if (control == panel->Front()) line += QStringLiteral(" (front)");
    lines << line;
  }
  return lines.join('\n').toStdString();
}

}  // namespace sv::test
