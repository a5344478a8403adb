#include "project/model/ProjectDocType.h"

#include "foundation/IgnoreErrors.h"
#include "model/AppSettings.h"
#include "model/ModelFactory.h"
#include "model/Template.h"
#include "project/model/ProjectTOCChoice.h"

namespace sv {

ProjectDocType::ProjectDocType(QString key, QString caption, QString templateName,
                               std::shared_ptr<bool> dirty)
    : mKey(std::move(key)),
      mCaption(std::move(caption)),
      mTemplateName(std::move(templateName)),
      mDirty(std::move(dirty)) {}

std::shared_ptr<ProjectDocType> ProjectDocType::Create(const QString& key, const QString& caption,
                                                       const QString& templateName,
                                                       std::shared_ptr<bool> dirty) {
  std::shared_ptr<ProjectDocType> docType(new ProjectDocType(key, caption, templateName, dirty));
  docType->mTOCChoice = std::make_shared<ProjectTOCChoice>(docType, std::move(dirty));
  return docType;
}

std::shared_ptr<TOCChoice> ProjectDocType::TOCChoice() const {
  return mTOCChoice;
}

std::shared_ptr<NamespaceDefs> ProjectDocType::NamespaceDefs() const {
  const auto owner = Template();
  return owner ? owner->NameSpaces() : nullptr;
}

std::shared_ptr<Template> ProjectDocType::Template() const {
  if (mTemplate) return mTemplate;
  // Without an installed model there are no application templates to look in.
  const auto settings = IgnoreErrors([] { return Model().AppSettings(); }).value_or(nullptr);
  const auto templates = settings ? settings->Templates() : nullptr;
  if (!templates) return nullptr;
  return templates->Find(mTemplateName).value_or(nullptr);
}

void ProjectDocType::setTemplate(std::shared_ptr<sv::Template> value) {
  mTemplate = std::move(value);
  if (mTemplate) setTemplateName(mTemplate->Name());
}

void ProjectDocType::setTemplateName(const QString& value) {
  if (mTemplateName == value) return;
  mTemplateName = value;
  if (mTemplate && mTemplate->Name() != value) mTemplate.reset();
  *mDirty = true;
}

void ProjectDocType::setSelected(bool value) {
  if (mSelected == value) return;
  mSelected = value;
  *mDirty = true;
}

}  // namespace sv
