#include <gtest/gtest.h>

#include "support/QtPrinters.h"

#include "model/Error.h"
#include "model/ModelFactory.h"
#include "project/core/ComponentItem.h"
#include "project/core/Definition.h"
#include "project/core/DefinitionSet.h"
#include "project/core/MemberItem.h"
#include "project/core/MemoryAppSettings.h"
#include "project/core/MemoryDDP.h"
#include "project/core/MemoryProvider.h"
#include "project/core/ProjectComment.h"
#include "project/core/ProjectItem.h"
#include "project/core/ProjectModelFactory.h"
#include "project/core/TagDefinition.h"
#include "project/core/TagDefinitionSet.h"
#include "project/model/ProjectModel.h"
#include "support/ModelBuilder.h"
#include "support/ModelText.h"
#include "support/ScopedModel.h"

namespace sv {
namespace {

using test::ModelBuilder;

const char* kDefinitions = R"(
// Notes and blank lines are skipped.
definitions sv.vbsource caption="Source code" view=pift
  Project moniker=proj image=project flags=r CanExclude=false
    Component GroupedInComments group=Modules LoadChildrenOnAdd
      Member flags=f caption="[Name]" Selectable=false
    Namespace provider=other
      @Namespace
      @Component
definitions sv.net
  Assembly PreloadChildren PreloadChildrenInSelection GroupedInSelection
)";

TEST(ModelBuilderTest, DefinitionsReadBackAsDescribed) {
  ModelBuilder model(kDefinitions);
  EXPECT_EQ(test::DefinitionsText(*model.Definitions()),
            "definitions sv.vbsource caption=\"Source code\" view=pift\n"
            "  Project moniker=proj flags=r CanExclude=false\n"
            "    Component group=Modules LoadChildrenOnAdd GroupedInComments\n"
            "      Member flags=f caption=[Name] Selectable=false\n"
            "    Namespace provider=other\n"
            "      @Namespace\n"
            "      @Component\n");
  EXPECT_EQ(test::DefinitionsText(*model.Definitions("sv.net")),
            "definitions sv.net\n"
            "  Assembly PreloadChildren PreloadChildrenInSelection GroupedInSelection\n");

  const auto member = model.Def("Member");
  EXPECT_EQ(member->Owner(), model.Definitions());
  EXPECT_EQ(model.Def("proj"), model.Definitions()->Item(1));
  EXPECT_EQ(model.Def("Project")->ImageName(), "project");
  EXPECT_EQ(member->ImageName(), "member");
  EXPECT_EQ(member->ProviderName(), "memory");

  // Both sets are in the settings, and the project hands out the provider under every name.
  EXPECT_EQ(model.AppSettings()->NamespaceDefs("sv.net"), model.Definitions("sv.net"));
  EXPECT_EQ(model.Project()->GetNamespaceProvider("memory"), model.Provider());
  EXPECT_EQ(model.Project()->GetNamespaceProvider("other"), model.Provider());
  EXPECT_EQ(model.Project()->GetNamespaceProvider("third"), nullptr);
}

const char* kItems = R"-(
definitions sv.vbsource
  Project moniker=proj
    Component
      Member
    Class
tags designer=SV.TextDesigner
  ##SUMMARY name=Summary caption=Summary group=General xml=summary,remarks namespaces="proj, Member" general
  ##OBSOLETE name="Obsolete flag" design=f exclude=x qualifier=name designer={None} image=obsolete description="Marks it" format=2
items
  proj Geometry project moniker=geo include access=Public
    ##SUMMARY "The \"geometry\" library." id=s1 xml=summary
    Component Shapes component include
      Member Draw member access=Private overloaded explicit
        ##OBSOLETE status=3 hidden qualifier=Draw
        comment CUSTOM "Own tag" status=2
      Member Size access=Public type=Property member overloadblocks
    Class Helper qn=Geo::Helper root=false exclude nocomments caption="Helper (static)" resolve=Component filter=helpers/* group=Geometry
)-";

TEST(ModelBuilderTest, ItemsAndCommentsReadBackAsDescribed) {
  ModelBuilder model(kItems);
  EXPECT_EQ(test::ItemsText(model),
            "Project Geometry project access=Public include\n"
            "  ##SUMMARY \"The \\\"geometry\\\" library.\" xml=summary\n"
            "  Component Shapes component include\n"
            "    Member Draw member access=Private overloaded explicit\n"
            "      ##OBSOLETE status=3 hidden qualifier=Draw\n"
            "      CUSTOM \"Own tag\" status=2\n"
            "    Member Size member access=Public type=Property overloadblocks\n"
            "  Class Helper qn=Geo::Helper root=false exclude nocomments\n");

  auto project = model.ItemAs<ProjectItem>("Geometry");
  ASSERT_NE(project, nullptr);
  EXPECT_EQ(project->Components()->Count(), 1);
  EXPECT_EQ(project->Components()->Item(1), model.Item("Geometry.Shapes"));
  EXPECT_NE(model.ItemAs<ComponentItem>("Geometry.Shapes"), nullptr);
  EXPECT_TRUE(model.ItemAs<MemberItem>("Geometry.Shapes.Draw")->Overloaded());
  EXPECT_EQ(model.Provider()->GetRootItem(model.Def("proj"), "geo"), project);

  // What the line said for the provider and its DDP.
  const auto helper = model.Item("Geo::Helper");
  EXPECT_EQ(helper->VBProjectGroup(), project);
  EXPECT_EQ(model.Provider()->GetRelevantContentFilter(helper), "helpers/*");
  EXPECT_EQ(model.Ddp()->ResolveNamespaceDef(model.Def("Class"), helper, "Class", project),
            model.Def("Component"));
  EXPECT_EQ(model.Ddp()->EvaluateCaption("[Name]"), "Helper (static)");

  // Comments hang on their item, know their tag and are in the project's store.
  const auto summary = model.Comment("s1");
  EXPECT_EQ(summary->Item(), project);
  EXPECT_EQ(summary->TaggedCommentDef(), model.Tags()->Item("##SUMMARY"));
  EXPECT_EQ(project->TaggedComments()->Item("s1"), summary);
  const auto drawComments = model.Item("Geometry.Shapes.Draw")->TaggedComments();
  EXPECT_EQ(drawComments->UnDeletedCount(), 1);
  EXPECT_EQ(drawComments->Item(2)->TaggedCommentDef(), nullptr);
  EXPECT_EQ(model.Project()->FindComments("Geometry.Shapes.Draw"), drawComments);
  EXPECT_EQ(model.Project()->FindComments("Geometry.Shapes"), nullptr);
  EXPECT_FALSE(model.Project()->Dirty());
}

TEST(ModelBuilderTest, TagsCarryEveryField) {
  ModelBuilder model(kItems);
  const auto& tags = *model.Tags();
  EXPECT_EQ(tags.DefaultDesignerProgID(), "SV.TextDesigner");
  ASSERT_EQ(tags.Count(), 2);
  const auto summary = tags.Item(1);
  EXPECT_EQ(summary->Name(), "Summary");
  EXPECT_EQ(summary->Caption(), "Summary");
  EXPECT_EQ(summary->GroupName(), "General");
  EXPECT_EQ(summary->XMLCommentTypes(), "summary,remarks");
  EXPECT_EQ(summary->NameSpaces(), "proj, Member");
  EXPECT_TRUE(summary->IsGeneral());
  EXPECT_EQ(summary->DesignFlag(), "");
  const auto flag = tags.Item("##obsolete");
  EXPECT_EQ(flag->Name(), "Obsolete flag");
  EXPECT_EQ(flag->DesignFlag(), "f");
  EXPECT_EQ(flag->ExcludeFlags(), "x");
  EXPECT_EQ(flag->Qualifier(), "name");
  EXPECT_EQ(flag->DesignerProgID(), "{None}");
  EXPECT_EQ(flag->ImageName(), "obsolete");
  EXPECT_EQ(flag->Description(), "Marks it");
  EXPECT_EQ(flag->DescriptionFormat().toString(), "2");
  EXPECT_FALSE(flag->IsGeneral());
  EXPECT_EQ(tags.Item("##MISSING"), nullptr);

  // The builder's factory makes comments that know these tags.
  test::ScopedModel installed(model.Factory());
  auto fresh = Model().NewTaggedComment();
  fresh->setTagIdentifier("##OBSOLETE");
  EXPECT_EQ(fresh->TaggedCommentDef(), flag);
  EXPECT_EQ(Model().AppSettings(), model.AppSettings());
}

QString errorOf(const QString& description) {
  try {
    ModelBuilder model(description);
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::BadFileFormat);
    return error.Description();
  }
  return "no error";
}

TEST(ModelBuilderTest, AMistakeNamesItsLine) {
  const QString defs = "definitions sv.test\n  Class\n    Member\n";
  EXPECT_EQ(errorOf(defs + "items\n  Clas Circle\n"),
            "Model description, line 5: unknown definition \"Clas\": Clas Circle");
  EXPECT_EQ(errorOf(defs + "items\n  Class Circle colour=red\n"),
            "Model description, line 5: unknown option \"colour\": Class Circle colour=red");
  EXPECT_EQ(errorOf(defs + "items\n  Class Circle\n    ##SUMMARY status=7\n"),
            "Model description, line 6: status takes 0 to 3: ##SUMMARY status=7");
  EXPECT_EQ(errorOf(defs + "items\n  ##SUMMARY \"Nowhere\"\n"),
            "Model description, line 5: a comment must hang under an item: ##SUMMARY \"Nowhere\"");
  EXPECT_EQ(errorOf("\n\tdefinitions x\n"),
            "Model description, line 2: indent with spaces, not tabs: definitions x");
  EXPECT_EQ(errorOf("classes\n"),
            "Model description, line 1: expected definitions, tags or items: classes");
}

TEST(ModelBuilderTest, LookupsOfWhatWasNotDescribedRaise) {
  ModelBuilder model(kItems);
  for (const auto& lookup : std::vector<std::function<void()>>{
           [&] { model.Item("Nothing"); }, [&] { model.Comment("nope"); },
           [&] { model.Def("Nothing"); }, [&] { model.Definitions("sv.none"); }}) {
    try {
      lookup();
      ADD_FAILURE() << "a missing thing was found";
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), ErrorNumber::SubscriptOutOfRange);
    }
  }
}

}  // namespace
}  // namespace sv
