#pragma once

#include <memory>
#include <utility>

#include "project/core/MemberItem.h"
#include "project/core/ModelItem.h"
#include "project/model/ProjectModel.h"

namespace sv {

// An item of the Doxygen code model. Its comments are not its own: they live in the project's
// store under its qualified name, so that they outlive the item, survive a new Doxygen run and
// are saved with the project. Without a project the item keeps them itself.
template <class Base>
class DoxygenItem : public Base {
 public:
  template <class... Args>
  explicit DoxygenItem(std::weak_ptr<ProjectModel> project, Args&&... args)
      : Base(std::forward<Args>(args)...), mProject(std::move(project)) {}

  std::shared_ptr<sv::TaggedComments> TaggedComments() const override {
    const auto project = mProject.lock();
    if (!project) return Base::TaggedComments();
    return project->CommentsFor(this->QualifiedName().value_or(QString()));
  }
  void setTaggedComments(std::shared_ptr<sv::TaggedComments> comments) override {
    const auto project = mProject.lock();
    if (!project) return Base::setTaggedComments(std::move(comments));
    project->setCommentsFor(this->QualifiedName().value_or(QString()), std::move(comments));
  }

 private:
  std::weak_ptr<ProjectModel> mProject;
};

// Namespaces, types and the project itself.
using DoxygenScopeItem = DoxygenItem<ModelItem>;
// Functions, variables, enum values...: anything that carries Access inside its scope.
using DoxygenMemberItem = DoxygenItem<MemberItem>;

}  // namespace sv
