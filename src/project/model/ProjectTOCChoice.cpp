#include "project/model/ProjectTOCChoice.h"

#include "model/DocType.h"
#include "model/TOCDefinition.h"
#include "model/Template.h"

namespace sv {

std::shared_ptr<TOCDefinition> ProjectTOCChoice::TOCDefinition() const {
  if (mDefinition) return mDefinition;
  const auto docType = mDocType.lock();
  const auto owner = docType ? docType->Template() : nullptr;
  if (!owner || !owner->TOCDefinitions()) return nullptr;
  return owner->TOCDefinitions()->Find(mDefinitionName).value_or(nullptr);
}

void ProjectTOCChoice::setTOCDefinition(const std::shared_ptr<sv::TOCDefinition>& definition) {
  mDefinition = definition;
  setDefinitionName(definition ? definition->Name() : QString());
}

void ProjectTOCChoice::setSource(long value) {
  if (mSource == value) return;
  mSource = value;
  *mDirty = true;
}

void ProjectTOCChoice::setDefinitionName(const QString& value) {
  if (mDefinitionName == value) return;
  mDefinitionName = value;
  if (mDefinition && mDefinition->Name() != value) mDefinition.reset();
  *mDirty = true;
}

}  // namespace sv
