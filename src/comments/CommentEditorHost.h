#pragma once

#include "comments/IContentDesignerHost.h"

namespace sv {

class CommentEditor;

// CommentEditor as the host of its designers. The members live on an object of their own
// because several of them share a name with CommentEditor's events and properties
// (TaggedCommentAdded, AppName, BaseURL) yet mean something else.
class CommentEditorHost final : public IContentDesignerHost {
 public:
  explicit CommentEditorHost(CommentEditor& editor) : mEditor(editor) {}

  // Part of adding: the description follows a general tag.
  void TaggedCommentAdded(const std::shared_ptr<CodeItem>& Item,
                          const std::shared_ptr<TaggedComment>& comment) override;
  void TaggedCommentChanged(const std::shared_ptr<CodeItem>& Item,
                            const std::shared_ptr<TaggedComment>& comment) override;
  void TaggedCommentDeleted(const std::shared_ptr<CodeItem>& Item,
                            const std::shared_ptr<TaggedComment>& comment) override;
  QString AppName() const override;
  QString BaseURL() const override;
  std::shared_ptr<sv::Template> Template() const override;
  std::shared_ptr<sv::NamespaceDef> NamespaceDef() const override;
  std::shared_ptr<CodeItem> CurrentParentItem() const override { return nullptr; }
  std::shared_ptr<CodeItem> CurrentItem() const override;
  std::shared_ptr<CodeItem> CurrentRootItem() const override;
  std::shared_ptr<CodeItem> GetObjectFromQualifiedName(const QString& QualifiedName) override;
  long CommentType() const override;
  bool IsDotNet() const override;
  QString BuildLink(const QString& ExistingLink, bool GetCaption, QString* Caption,
                    bool ShowExternalLinkTypes, const QString& DialogCaption,
                    const QString& TipPrefix, bool AddHTMLExtension) override;
  QString BuildLinkEx(const QString& ExistingLink, bool GetCaption, QString* Caption,
                      bool ShowExternalLinkTypes, const QString& DialogCaption,
                      const QString& TipPrefix, bool AddHTMLExtension, bool GetLinkCategory,
                      QString* LinkCategory) override;
  QString GetDesignBannerContent() override;
  long ToolbarStyle() const override;
  QStringList ModuleNames(const QString& ProjectName) const override;
  QStringList ProjectNames() const override;

 private:
  CommentEditor& mEditor;
};

}  // namespace sv
