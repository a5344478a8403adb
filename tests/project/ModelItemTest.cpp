#include <gtest/gtest.h>

#include "support/QtPrinters.h"

#include "model/Error.h"
#include "project/core/ComponentItem.h"
#include "project/core/MemberItem.h"
#include "project/core/ModelItem.h"
#include "project/core/ProjectItem.h"

namespace sv {
namespace {

long errorNumber(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(ModelItemTest, OptionalMembersExistOnlyWhenGiven) {
  auto item = std::make_shared<ModelItem>("Class", "Geo.Circle", "Circle");
  EXPECT_EQ(item->TypeName(), "Class");
  EXPECT_EQ(item->QualifiedName(), "Geo.Circle");
  EXPECT_EQ(item->Name(), "Circle");
  EXPECT_EQ(item->Access(), std::nullopt);
  ASSERT_NE(item->TaggedComments(), nullptr);
  EXPECT_EQ(item->RootFlag(), std::nullopt);
  EXPECT_EQ(item->IncludeFlag(), std::nullopt);
  EXPECT_EQ(item->ExcludeFlag(), std::nullopt);
  EXPECT_EQ(item->VBProjectGroup(), nullptr);

  // Writing a member the item lacks is what a caller that tolerates absence ignores.
  EXPECT_EQ(errorNumber([&] { item->setRootFlag(true); }), ErrorNumber::NotSupported);
  EXPECT_EQ(errorNumber([&] { item->setIncludeFlag(true); }), ErrorNumber::NotSupported);
  try {
    item->setExcludeFlag(true);
    ADD_FAILURE() << "an absent ExcludeFlag was written";
  } catch (const Error& error) {
    EXPECT_TRUE(error.Description().contains("ExcludeFlag"));
  }

  item->addRootFlag();
  item->addExcludeFlag(true);
  item->setAccess("Private");
  EXPECT_EQ(item->RootFlag(), false);
  item->setRootFlag(true);
  EXPECT_EQ(item->RootFlag(), true);
  EXPECT_EQ(item->ExcludeFlag(), true);
  EXPECT_EQ(item->Access(), "Private");

  item->setTaggedComments(nullptr);
  EXPECT_EQ(item->TaggedComments(), nullptr);
}

TEST(ModelItemTest, EachKindAnswersItsOwnMembers) {
  auto project = std::make_shared<ProjectItem>("Geo", "Geo");
  auto component = std::make_shared<ComponentItem>("Geo.Shapes", "Shapes");
  auto member = std::make_shared<MemberItem>("Geo.Shapes.Draw", "Draw");
  std::vector<std::shared_ptr<CodeItem>> items{project, component, member};
  QStringList names;
  for (const auto& item : items) names << item->TypeName();
  EXPECT_EQ(names.join(','), "Project,Component,Member");
  EXPECT_EQ(MemberItem("x", "x", "Property").TypeName(), "Property");

  // The kinds are told apart by type, as the components do.
  EXPECT_NE(std::dynamic_pointer_cast<VBProject>(items[0]), nullptr);
  EXPECT_NE(std::dynamic_pointer_cast<VBComponent>(items[1]), nullptr);
  EXPECT_NE(std::dynamic_pointer_cast<CodeMember>(items[2]), nullptr);
  EXPECT_EQ(std::dynamic_pointer_cast<CodeMember>(items[0]), nullptr);

  // A component always has IncludeFlag.
  EXPECT_EQ(component->IncludeFlag(), false);
  component->setIncludeFlag(true);
  EXPECT_EQ(component->IncludeFlag(), true);

  project->Components()->Add(component, "Geo.Shapes");
  project->setSelectiveLoad(false);
  project->setLoadAllComponents(true);
  EXPECT_FALSE(project->SelectiveLoad());
  EXPECT_TRUE(project->LoadAllComponents());
  EXPECT_EQ(project->Components()->Item(1), component);

  member->setOverloaded(true);
  member->setHasOverloadBlocks(true);
  EXPECT_TRUE(member->Overloaded());
  EXPECT_FALSE(member->IsExplicit());
  EXPECT_TRUE(member->HasOverloadBlocks());

  // Group and parent are not kept alive by the item.
  auto group = std::make_shared<ModelItem>("Group", "All", "All");
  project->setVBProjectGroup(group);
  member->setParent(component);
  EXPECT_EQ(project->VBProjectGroup(), group);
  EXPECT_EQ(member->Parent(), component);
  group.reset();
  EXPECT_EQ(project->VBProjectGroup(), nullptr);
}

}  // namespace
}  // namespace sv
