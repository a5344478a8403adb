#include "project/model/ProjectDocTypes.h"

#include <algorithm>
#include <vector>

#include "model/NamespaceDef.h"
#include "project/core/DefinitionSet.h"
#include "project/model/ProjectDocType.h"

namespace sv {

std::shared_ptr<DocType> ProjectDocTypes::Item(int index) const {
  return mTypes.Item(index);
}

std::shared_ptr<DocType> ProjectDocTypes::Item(const QString& key) const {
  return Find(key);
}

std::shared_ptr<ProjectDocType> ProjectDocTypes::Find(const QString& key) const {
  return mTypes.Find(key).value_or(nullptr);
}

std::shared_ptr<DocTypes> ProjectDocTypes::SelectedDocTypes() const {
  // The selection is a snapshot; changing it does not change this project.
  auto selected = std::make_shared<ProjectDocTypes>(std::make_shared<bool>(false));
  for (const auto& docType : mTypes)
    if (docType->Selected()) selected->mTypes.Add(docType, docType->Key());
  if (mHelpTemplatesFrom && selected->mTypes.Contains(mHelpTemplatesFrom->Key()))
    selected->mHelpTemplatesFrom = mHelpTemplatesFrom;
  return selected;
}

void ProjectDocTypes::setHelpTemplatesFrom(const std::shared_ptr<DocType>& docType) {
  if (mHelpTemplatesFrom == docType) return;
  mHelpTemplatesFrom = docType;
  *mDirty = true;
}

std::shared_ptr<DocType> ProjectDocTypes::Lookup(const QString& templateName) const {
  for (const auto& docType : mTypes)
    if (docType->TemplateName().compare(templateName, Qt::CaseInsensitive) == 0) return docType;
  return nullptr;
}

std::shared_ptr<NamespaceDefs> ProjectDocTypes::NameSpaces() const {
  std::vector<std::shared_ptr<NamespaceDefs>> sets;
  for (const auto& docType : mTypes)
    if (auto defs = docType->Selected() ? docType->NamespaceDefs() : nullptr)
      if (std::find(sets.begin(), sets.end(), defs) == sets.end()) sets.push_back(defs);
  if (sets.empty()) return nullptr;
  if (sets.size() == 1) return sets.front();
  // The first set lends its name and root; later sets add the kinds it lacks.
  const auto& first = *sets.front();
  auto merged =
      std::make_shared<DefinitionSet>(first.Name(), first.Caption(), first.ViewOptionFlags());
  for (const auto& defs : sets)
    for (const auto& def : *defs)
      if (!merged->Item(def->Key())) merged->Add(def, def->Key());
  return merged;
}

std::shared_ptr<ProjectDocType> ProjectDocTypes::Add(const QString& key, const QString& caption,
                                                     const QString& templateName) {
  if (auto existing = Find(key)) return existing;
  auto docType = ProjectDocType::Create(key, caption, templateName, mDirty);
  mTypes.Add(docType, key);
  *mDirty = true;
  return docType;
}

void ProjectDocTypes::Remove(const QString& key) {
  if (!mTypes.Contains(key)) return;
  if (mHelpTemplatesFrom && mHelpTemplatesFrom->Key().compare(key, Qt::CaseInsensitive) == 0)
    mHelpTemplatesFrom.reset();
  mTypes.Remove(key);
  *mDirty = true;
}

}  // namespace sv
