#pragma once

#include <QString>
#include <memory>

namespace sv {

class PageLayout;

// One node of a table of contents layout.
class TOCNodeDef {
 public:
  static constexpr long Plain = 0;
  static constexpr long FileOrURL = 1;
  static constexpr long ContentDriven = 2;

  virtual ~TOCNodeDef() = default;

  virtual QString Key() const = 0;
  virtual long NodeType() const = 0;
  virtual void setNodeType(long value) = 0;
  virtual bool CustomIcon() const = 0;
  virtual void setCustomIcon(bool value) = 0;
  virtual bool MarkAsNew() const = 0;
  virtual void setMarkAsNew(bool value) = 0;
  virtual QString Caption() const = 0;
  virtual void setCaption(const QString& value) = 0;
  virtual QString DependantOn() const = 0;
  virtual void setDependantOn(const QString& value) = 0;
  virtual QString DependantOnNamespaceFilter() const = 0;
  virtual void setDependantOnNamespaceFilter(const QString& value) = 0;
  virtual long DependantCount() const = 0;
  virtual void setDependantCount(long value) = 0;
  virtual bool DependantStillProcessChildren() const = 0;
  virtual void setDependantStillProcessChildren(bool value) = 0;
  virtual QString FileNameTemplate() const = 0;
  virtual void setFileNameTemplate(const QString& value) = 0;
  virtual QString PageType() const = 0;
  virtual void setPageType(const QString& value) = 0;
  virtual QString NamespaceFilter() const = 0;
  virtual void setNamespaceFilter(const QString& value) = 0;
  virtual bool LinkToPage() const = 0;
  virtual void setLinkToPage(bool value) = 0;
  virtual bool IsDefault() const = 0;
  virtual void setIsDefault(bool value) = 0;
  virtual void setIconIndex(long value) = 0;
  virtual std::shared_ptr<TOCNodeDef> ParentNodeDef() const = 0;
  virtual void setParentNodeDef(const std::shared_ptr<TOCNodeDef>& parent) = 0;
  virtual std::shared_ptr<sv::PageLayout> PageLayout() const = 0;
  virtual void setPageLayout(const std::shared_ptr<sv::PageLayout>& layout) = 0;
  // Image keys by the number of children the node has.
  virtual QString GetImage(long childCount) const = 0;
  virtual QString GetExpandedImage(long childCount) const = 0;
};

}  // namespace sv
