#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "model/ModelTypes.h"

namespace sv {

class NamespaceDef;
class Template;

// What a designer may ask of the control that hosts it (CommentEditor). Comments enter, change
// and leave an element only through the first three members.
class IContentDesignerHost {
 public:
  virtual ~IContentDesignerHost() = default;

  virtual void TaggedCommentAdded(const std::shared_ptr<CodeItem>& Item,
                                  const std::shared_ptr<TaggedComment>& comment) = 0;
  virtual void TaggedCommentChanged(const std::shared_ptr<CodeItem>& Item,
                                    const std::shared_ptr<TaggedComment>& comment) = 0;
  virtual void TaggedCommentDeleted(const std::shared_ptr<CodeItem>& Item,
                                    const std::shared_ptr<TaggedComment>& comment) = 0;
  virtual QString AppName() const = 0;
  // The base of relative links in pages: the host's BaseURL, or else the project's folder as a
  // file URL with forward slashes.
  virtual QString BaseURL() const = 0;
  virtual std::shared_ptr<sv::Template> Template() const = 0;
  virtual std::shared_ptr<sv::NamespaceDef> NamespaceDef() const = 0;
  // Always null.
  virtual std::shared_ptr<CodeItem> CurrentParentItem() const = 0;
  virtual std::shared_ptr<CodeItem> CurrentItem() const = 0;
  virtual std::shared_ptr<CodeItem> CurrentRootItem() const = 0;
  // The item of a qualified name from the current definition's provider; null when unknown.
  virtual std::shared_ptr<CodeItem> GetObjectFromQualifiedName(const QString& QualifiedName) = 0;
  virtual long CommentType() const = 0;
  // The current definition comes from the .NET set.
  virtual bool IsDotNet() const = 0;
  // Asks the host for a link; answers the new link, empty when the author cancelled.
  virtual QString BuildLink(const QString& ExistingLink, bool GetCaption, QString* Caption,
                            bool ShowExternalLinkTypes, const QString& DialogCaption,
                            const QString& TipPrefix, bool AddHTMLExtension) = 0;
  virtual QString BuildLinkEx(const QString& ExistingLink, bool GetCaption, QString* Caption,
                              bool ShowExternalLinkTypes, const QString& DialogCaption,
                              const QString& TipPrefix, bool AddHTMLExtension, bool GetLinkCategory,
                              QString* LinkCategory) = 0;
  // The banners of all comments of the element, in their order, joined.
  virtual QString GetDesignBannerContent() = 0;
  virtual long ToolbarStyle() const = 0;
  // The host's module names; the project name is not used.
  virtual QStringList ModuleNames(const QString& ProjectName) const = 0;
  virtual QStringList ProjectNames() const = 0;
};

}  // namespace sv
