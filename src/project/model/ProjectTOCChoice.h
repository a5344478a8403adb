#pragma once

#include <QString>
#include <memory>

#include "model/TOCChoice.h"

namespace sv {

class DocType;

// The table of contents a document type uses: a layout of its template (Source 2) or a custom
// one (Source 1), named by DefinitionName. The definition object is looked up in the template
// by that name unless one was set directly.
class ProjectTOCChoice : public TOCChoice {
 public:
  ProjectTOCChoice(std::weak_ptr<const DocType> docType, std::shared_ptr<bool> dirty)
      : mDocType(std::move(docType)), mDirty(std::move(dirty)) {}

  std::shared_ptr<sv::TOCDefinition> TOCDefinition() const override;
  void setTOCDefinition(const std::shared_ptr<sv::TOCDefinition>& definition) override;
  long Source() const override { return mSource; }
  void setSource(long value) override;
  QString DefinitionName() const override { return mDefinitionName; }
  void setDefinitionName(const QString& value) override;

 private:
  std::weak_ptr<const DocType> mDocType;
  std::shared_ptr<bool> mDirty;
  std::shared_ptr<sv::TOCDefinition> mDefinition;
  long mSource = SourceTemplate;
  QString mDefinitionName;
};

}  // namespace sv
