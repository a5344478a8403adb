#include <gtest/gtest.h>

#include "support/QtPrinters.h"

#include "model/Error.h"
#include "model/ModelFactory.h"
#include "project/core/CommentList.h"
#include "project/core/MemoryAppSettings.h"
#include "project/core/ModelItem.h"
#include "project/core/ProjectComment.h"
#include "project/core/ProjectModelFactory.h"
#include "project/core/TagDefinition.h"
#include "project/core/TagDefinitionSet.h"
#include "support/ModelText.h"
#include "support/ScopedModel.h"

namespace sv {
namespace {

std::shared_ptr<ProjectComment> comment(const QString& id, const QString& tag, long status) {
  auto c = std::make_shared<ProjectComment>(id);
  c->setTagIdentifier(tag);
  c->setStatus(status);
  return c;
}

long errorNumber(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(CommentListTest, TombstonesStayInTheListButNotInTheUndeletedOnes) {
  CommentList list;
  list.Add(comment("a", "##SUMMARY", CommentStatus::Unchanged), "a");
  list.Add(comment("b", "##REMARKS", CommentStatus::Deleted), "b");
  list.Add(comment("c", "##EXAMPLE", CommentStatus::New), "c");

  EXPECT_EQ(list.Count(), 3);
  EXPECT_EQ(list.UnDeletedCount(), 2);
  EXPECT_EQ(test::CommentsText(list), "##SUMMARY\n##REMARKS status=3\n##EXAMPLE status=2\n");
  const CommentCollection live = list.UnDeletedTaggedComments();
  ASSERT_EQ(live.Count(), 2);
  EXPECT_EQ(live.Item(1)->Id(), "a");
  EXPECT_EQ(live.Item("c")->Id(), "c");
  EXPECT_FALSE(live.Contains("b"));

  // A tombstone is still found by key until it is removed.
  ASSERT_NE(list.Item("b"), nullptr);
  list.Remove("b");
  EXPECT_EQ(list.Item("b"), nullptr);
  EXPECT_EQ(list.Count(), 2);
  EXPECT_EQ(list.UnDeletedCount(), 2);

  // Deleting a live comment turns it into a tombstone in place.
  list.Item("a")->setStatus(CommentStatus::Deleted);
  EXPECT_EQ(list.UnDeletedCount(), 1);
  EXPECT_EQ(list.Item(1)->Id(), "a");
}

TEST(CommentListTest, KeysIgnoreCaseAndMistakesRaiseTheClassicErrors) {
  CommentList list;
  list.Add(comment("Abc", "##", 0), "Abc");
  list.Add(comment("first", "##", 0), "first", 1);
  EXPECT_EQ(list.Item(1)->Id(), "first");
  EXPECT_EQ(list.Item("ABC")->Id(), "Abc");
  EXPECT_EQ(list.Item("missing"), nullptr);
  EXPECT_EQ(errorNumber([&] { list.Add(comment("x", "##", 0), "abc"); }),
            ErrorNumber::DuplicateKey);
  EXPECT_EQ(errorNumber([&] { list.Remove("missing"); }), ErrorNumber::InvalidCall);
  EXPECT_EQ(errorNumber([&] { list.Item(3); }), ErrorNumber::SubscriptOutOfRange);

  std::vector<QString> walked;
  for (const auto& c : list) walked.push_back(c->Id());
  EXPECT_EQ(walked, (std::vector<QString>{"first", "Abc"}));

  EXPECT_TRUE(list.Consolidated());
  list.setConsolidated(false);
  EXPECT_FALSE(list.Consolidated());
}

TEST(CommentListTest, CommentsHaveUniqueIdsAndFindTheDefinitionOfTheirTag) {
  const QString id = ProjectComment().Id();
  EXPECT_FALSE(id.isEmpty());
  EXPECT_FALSE(id.contains('|'));
  EXPECT_NE(id, ProjectComment().Id());
  EXPECT_EQ(ProjectComment("given").Id(), "given");

  auto tags = std::make_shared<TagDefinitionSet>();
  auto summary = std::make_shared<TagDefinition>("##SUMMARY");
  auto remarks = std::make_shared<TagDefinition>("##REMARKS");
  tags->Add(summary);
  tags->Add(remarks);
  ProjectComment c;
  c.setTagDefinitions(tags);
  EXPECT_EQ(c.TaggedCommentDef(), nullptr);
  c.setTagIdentifier("##summary");
  EXPECT_EQ(c.TaggedCommentDef(), summary);
  c.setTagIdentifier("##REMARKS");
  EXPECT_EQ(c.TaggedCommentDef(), remarks);
  // A definition set on the comment wins over its tag.
  c.setTaggedCommentDef(summary);
  EXPECT_EQ(c.TaggedCommentDef(), summary);

  // The comment does not keep its item alive.
  auto item = std::make_shared<ModelItem>("Class", "Geo.Circle", "Circle");
  c.setItem(item);
  EXPECT_EQ(c.Item(), item);
  item.reset();
  EXPECT_EQ(c.Item(), nullptr);
}

TEST(CommentListTest, TheFactoryMakesNewCommentsThatKnowTheConfiguredTags) {
  auto settings = std::make_shared<MemoryAppSettings>();
  auto tags = std::make_shared<TagDefinitionSet>();
  tags->Add(std::make_shared<TagDefinition>("##SUMMARY"));
  settings->setTaggedCommentDefs(tags);
  test::ScopedModel installed(std::make_shared<ProjectModelFactory>(settings));

  auto first = Model().NewTaggedComment();
  auto second = Model().NewTaggedComment();
  EXPECT_EQ(first->Status(), CommentStatus::New);
  EXPECT_NE(first->Id(), second->Id());
  first->setTagIdentifier("##SUMMARY");
  ASSERT_NE(first->TaggedCommentDef(), nullptr);
  EXPECT_EQ(first->TaggedCommentDef()->TagIdentifier(), "##SUMMARY");
  EXPECT_EQ(Model().NewTaggedComments()->Count(), 0);
  EXPECT_EQ(Model().AppSettings(), settings);
  EXPECT_EQ(errorNumber([] { Model().NewParserTemplate(); }), ErrorNumber::NotSupported);
}

}  // namespace
}  // namespace sv
