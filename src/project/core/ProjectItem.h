#pragma once

#include <memory>

#include "model/VBProject.h"
#include "project/core/ModelItemBase.h"

namespace sv {

// A source code project: it lists its components and records the load switches a tree sets.
class ProjectItem : public ModelItemBase<VBProject> {
 public:
  ProjectItem(QString qualifiedName, QString name)
      : ModelItemBase(QStringLiteral("Project"), std::move(qualifiedName), std::move(name)),
        mComponents(std::make_shared<ItemCollection>()) {}

  bool SelectiveLoad() const { return mSelectiveLoad; }
  void setSelectiveLoad(bool value) override { mSelectiveLoad = value; }
  bool LoadAllComponents() const { return mLoadAllComponents; }
  void setLoadAllComponents(bool value) override { mLoadAllComponents = value; }
  std::shared_ptr<ItemCollection> Components() const override { return mComponents; }

 private:
  bool mSelectiveLoad = true;
  bool mLoadAllComponents = false;
  std::shared_ptr<ItemCollection> mComponents;
};

}  // namespace sv
