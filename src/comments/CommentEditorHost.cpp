#include "comments/CommentEditorHost.h"

#include "comments/CommentEditor.h"
#include "comments/CommentPages.h"
#include "comments/IContentDesigner.h"
#include "foundation/ErrorTrap.h"
#include "foundation/FilePath.h"
#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/NamespaceProvider.h"
#include "model/SVProject.h"
#include "model/TaggedComment.h"
#include "model/TaggedCommentDef.h"
#include "model/TaggedComments.h"

namespace sv {

void CommentEditorHost::TaggedCommentAdded(const std::shared_ptr<CodeItem>& Item,
                                           const std::shared_ptr<TaggedComment>& comment) {
  Trap(&mEditor, "IContentDesignerHost_TaggedCommentAdded", [&] {
    mEditor.AddTaggedComment(Item, comment);
    const auto def = mEditor.definitionOf(*comment);
    if (def && def->IsGeneral()) mEditor.Pages().UpdateDescription(Item, false);
  });
}

void CommentEditorHost::TaggedCommentChanged(const std::shared_ptr<CodeItem>& Item,
                                             const std::shared_ptr<TaggedComment>& comment) {
  mEditor.ChangeTaggedComment(Item, comment);
}

void CommentEditorHost::TaggedCommentDeleted(const std::shared_ptr<CodeItem>& Item,
                                             const std::shared_ptr<TaggedComment>& comment) {
  mEditor.DeleteTaggedComment(Item, comment, comment ? comment->Id() : QString());
}

QString CommentEditorHost::AppName() const {
  return mEditor.AppName();
}

QString CommentEditorHost::BaseURL() const {
  return Trap(&mEditor, "IContentDesignerHost_BaseURL", [&]() -> QString {
    if (!mEditor.BaseURL().isEmpty()) return mEditor.BaseURL();
    const auto project = mEditor.SVProject();
    const auto file = project ? project->ProjectFile() : nullptr;
    if (!file) return {};
    QString folder = file->Folder();
    folder.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // An absolute folder begins with the slash that stands third in "file:///".
    if (folder.startsWith(QLatin1Char('/'))) folder.remove(0, 1);
    return QStringLiteral("file:///") + folder;
  });
}

std::shared_ptr<sv::Template> CommentEditorHost::Template() const {
  return mEditor.InPlaceTemplate();
}

std::shared_ptr<sv::NamespaceDef> CommentEditorHost::NamespaceDef() const {
  return mEditor.CurrentNamespaceDef();
}

std::shared_ptr<CodeItem> CommentEditorHost::CurrentItem() const {
  return mEditor.CurrentCodeElement();
}

std::shared_ptr<CodeItem> CommentEditorHost::CurrentRootItem() const {
  return mEditor.CurrentRootItem();
}

std::shared_ptr<CodeItem> CommentEditorHost::GetObjectFromQualifiedName(
    const QString& QualifiedName) {
  return Trap(&mEditor, "IContentDesignerHost_GetObjectFromQualifiedName",
              [&]() -> std::shared_ptr<CodeItem> {
                const auto provider = mEditor.provider();
                return provider ? provider->GetItem(QualifiedName) : nullptr;
              },
              {{"QualifiedName", QualifiedName}});
}

long CommentEditorHost::CommentType() const {
  return mEditor.CommentType();
}

bool CommentEditorHost::IsDotNet() const {
  const auto def = mEditor.CurrentNamespaceDef();
  if (!def) return false;
  // Our keys carry the short prefix of their set ("NET:Class"); the set's name says .NET.
  const QString set =
      def->Owner() ? def->Owner()->Name() : def->Key().section(QLatin1Char(':'), 0, 0);
  return set.compare(QLatin1String("sv.net"), Qt::CaseInsensitive) == 0;
}

QString CommentEditorHost::BuildLink(const QString& ExistingLink, bool GetCaption, QString* Caption,
                                     bool ShowExternalLinkTypes, const QString& DialogCaption,
                                     const QString& TipPrefix, bool AddHTMLExtension) {
  QString LinkCategory;
  return BuildLinkEx(ExistingLink, GetCaption, Caption, ShowExternalLinkTypes, DialogCaption,
                     TipPrefix, AddHTMLExtension, false, &LinkCategory);
}

QString CommentEditorHost::BuildLinkEx(const QString& ExistingLink, bool GetCaption,
                                       QString* Caption, bool ShowExternalLinkTypes,
                                       const QString& DialogCaption, const QString& TipPrefix,
                                       bool AddHTMLExtension, bool GetLinkCategory,
                                       QString* LinkCategory) {
  return Trap(&mEditor, "IContentDesignerHost_BuildLinkEx",
              [&] {
                QString NewLink;
                QString caption = Caption ? *Caption : QString();
                QString category = LinkCategory ? *LinkCategory : QString();
                emit mEditor.BuildLinkRequestEx(ExistingLink, GetCaption, &caption, &NewLink,
                                                ShowExternalLinkTypes, DialogCaption, TipPrefix,
                                                AddHTMLExtension, GetLinkCategory, &category);
                if (Caption) *Caption = caption;
                if (LinkCategory) *LinkCategory = category;
                return NewLink;
              },
              {{"ExistingLink", ExistingLink}});
}

QString CommentEditorHost::GetDesignBannerContent() {
  return Trap(&mEditor, "IContentDesignerHost_GetDesignBannerContent", [&] {
    QString banner;
    const auto comments = mEditor.TaggedComments();
    if (!comments) return banner;
    for (const auto& comment : *comments) {
      if (const auto designer = mEditor.GetDesignerObject(comment->TagIdentifier()))
        banner += designer->GetDesignBannerContent(comment);
    }
    return banner;
  });
}

long CommentEditorHost::ToolbarStyle() const {
  return mEditor.ToolbarStyle();
}

QStringList CommentEditorHost::ModuleNames(const QString&) const {
  return mEditor.Modules();
}

QStringList CommentEditorHost::ProjectNames() const {
  if (!mEditor.ProjectName().isEmpty()) return {mEditor.ProjectName()};
  const auto root = mEditor.CurrentRootItem();
  return {root ? root->Name().value_or(QString()) : QString()};
}

}  // namespace sv
