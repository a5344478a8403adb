#include <gtest/gtest.h>

#include "support/QtPrinters.h"

#include "model/Error.h"
#include "project/core/Definition.h"
#include "project/core/DefinitionSet.h"
#include "project/core/MemoryAppSettings.h"
#include "support/ModelBuilder.h"
#include "support/ModelText.h"

namespace sv {
namespace {

std::shared_ptr<Definition> def(const QString& key, const QString& moniker) {
  auto d = std::make_shared<Definition>(key);
  d->setTypeMoniker(moniker);
  d->setImageName(key.toLower());
  d->setProviderName("memory");
  return d;
}

TEST(DefinitionSetTest, LookupsByIndexKeyAndMoniker) {
  auto set = std::make_shared<DefinitionSet>("sv.net", "Assemblies", "pift");
  auto root = def("Assembly", "asm");
  auto cls = def("Class", "T:Class");
  set->Adopt(root);
  set->Adopt(cls);
  set->Add(def("Other", "T:Class"), "Other");

  EXPECT_EQ(set->Name(), "sv.net");
  EXPECT_EQ(set->Caption(), "Assemblies");
  EXPECT_EQ(set->ViewOptionFlags(), "pift");
  EXPECT_EQ(set->Count(), 3);
  EXPECT_EQ(set->Item(1), root);  // the root definition
  EXPECT_EQ(set->Item("CLASS"), cls);
  EXPECT_EQ(set->Item("missing"), nullptr);
  // Monikers are key-like words: compared without regard to case; the first match wins.
  EXPECT_EQ(set->ItemByMoniker("t:class"), cls);
  EXPECT_EQ(set->ItemByMoniker("nothing"), nullptr);
  try {
    set->Add(def("class", "x"), "class");
    ADD_FAILURE() << "a duplicate key was accepted";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::DuplicateKey);
  }
  try {
    set->Item(4);
    ADD_FAILURE() << "index 4 answered";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::SubscriptOutOfRange);
  }

  // Adopted definitions know their owner without keeping it alive; an added one has none.
  EXPECT_EQ(cls->Owner(), set);
  EXPECT_EQ(set->Item("Other")->Owner(), nullptr);
  std::weak_ptr<DefinitionSet> watch = set;
  set.reset();
  EXPECT_TRUE(watch.expired());
  EXPECT_EQ(cls->Owner(), nullptr);
}

TEST(DefinitionSetTest, ChildDefinitionsFormATreeThatMayRecurse) {
  auto set = std::make_shared<DefinitionSet>("sv.test", "", "");
  auto ns = def("Namespace", "ns");
  auto cls = def("Class", "cls");
  set->Adopt(ns);
  set->Adopt(cls);
  ns->AddChild(ns);  // namespaces nest
  ns->AddChild(cls);
  cls->AddChild(cls);

  EXPECT_EQ(test::DefinitionsText(*set),
            "definitions sv.test\n"
            "  Namespace moniker=ns\n"
            "    @Namespace\n"
            "    Class moniker=cls\n"
            "      @Class\n");
  EXPECT_EQ(ns->ChildDefs()->Item(2), cls);
  EXPECT_EQ(ns->ChildDefs()->Count(), 2);

  // The owning set ends the cycles when it goes (a leak would fail the sanitizer run).
  std::weak_ptr<Definition> watch = ns;
  ns.reset();
  cls.reset();
  set.reset();
  EXPECT_TRUE(watch.expired());
}

TEST(DefinitionSetTest, EveryMemberHasASetter) {
  Definition d("Class");
  EXPECT_TRUE(d.CanExclude());
  EXPECT_TRUE(d.Selectable());
  EXPECT_FALSE(d.Prepared());
  d.setPrepared(true);
  d.setCanExclude(false);
  d.setSelectable(false);
  d.setPreloadChildren(true);
  d.setPreloadChildrenInSelection(true);
  d.setLoadChildrenOnAdd(true);
  d.setGroupedInComments(true);
  d.setGroupedInSelection(true);
  d.setGroupCaption("Classes");
  d.setCaptionExpression("[Name]");
  d.setFlags("fr");
  d.setProviderName("doxygen");
  EXPECT_TRUE(d.Prepared());
  EXPECT_FALSE(d.CanExclude());
  EXPECT_FALSE(d.Selectable());
  EXPECT_TRUE(d.PreloadChildren() && d.PreloadChildrenInSelection() && d.LoadChildrenOnAdd());
  EXPECT_TRUE(d.GroupedInComments() && d.GroupedInSelection());
  EXPECT_EQ(d.GroupCaption() + d.CaptionExpression() + d.Flags() + d.ProviderName(),
            "Classes[Name]frdoxygen");
}

TEST(DefinitionSetTest, AppSettingsHandOutSetsByKey) {
  MemoryAppSettings settings;
  auto first = std::make_shared<DefinitionSet>("sv.net", "", "");
  auto second = std::make_shared<DefinitionSet>("sv.net", "again", "");
  EXPECT_EQ(settings.NamespaceDefs("sv.net"), nullptr);
  settings.setNamespaceDefs("sv.net", first);
  EXPECT_EQ(settings.NamespaceDefs("SV.NET"), first);
  settings.setNamespaceDefs("sv.net", second);
  EXPECT_EQ(settings.NamespaceDefs("sv.net"), second);
  ASSERT_NE(settings.ProjectViewSettings(), nullptr);
  settings.ProjectViewSettings()->setGrouped(true);
  EXPECT_TRUE(settings.ProjectViewSettings()->Grouped());
  EXPECT_EQ(settings.TaggedCommentDefs()->Count(), 0);
}

}  // namespace
}  // namespace sv
