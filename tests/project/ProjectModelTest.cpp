#include <gtest/gtest.h>

#include <QStringList>

#include "ProjectDump.h"
#include "foundation/FilePath.h"
#include "foundation/MessageBox.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceProvider.h"
#include "model/ProjectVariables.h"
#include "model/TOCChoice.h"
#include "model/TOCDefinition.h"
#include "model/TaggedComments.h"
#include "model/Template.h"
#include "project/core/Definition.h"
#include "project/core/DefinitionSet.h"
#include "project/core/MemoryAppSettings.h"
#include "project/core/ProjectComment.h"
#include "project/core/ProjectModelFactory.h"
#include "project/model/ContentFile.h"
#include "project/model/ProjectDocType.h"
#include "project/model/ProjectDocTypes.h"
#include "project/model/ProjectModel.h"
#include "support/FakeServices.h"
#include "support/ScopedModel.h"

namespace sv {
namespace {

// A provider the project only hands on; any call on it is a mistake.
class UnusedProvider : public NamespaceProvider {
 public:
  std::shared_ptr<ItemCollection> GetItems(const std::shared_ptr<NamespaceDef>&,
                                           const std::shared_ptr<CodeItem>&,
                                           const QString&) override {
    ADD_FAILURE() << "GetItems";
    return nullptr;
  }
  std::shared_ptr<sv::DDP> DDP() const override {
    ADD_FAILURE() << "DDP";
    return nullptr;
  }
  std::shared_ptr<CodeItem> GetRootItem(const std::shared_ptr<NamespaceDef>&,
                                        const QString&) override {
    ADD_FAILURE() << "GetRootItem";
    return nullptr;
  }
  std::shared_ptr<CodeItem> GetItem(const QString&) override {
    ADD_FAILURE() << "GetItem";
    return nullptr;
  }
  QString GetRelevantContentFilter(const std::shared_ptr<CodeItem>&) override {
    ADD_FAILURE() << "GetRelevantContentFilter";
    return {};
  }
};

class NamedLayout : public TOCDefinition {
 public:
  explicit NamedLayout(QString name) : mName(std::move(name)) {}
  QString Name() const override { return mName; }
  std::shared_ptr<KeyedCollection<std::shared_ptr<TOCNodeDef>>> NodeDefs() const override {
    return nullptr;
  }

 private:
  QString mName;
};

// A template with named layouts and kinds of item, and nothing else.
class LayoutTemplate : public Template {
 public:
  LayoutTemplate(QString name, const QStringList& layouts, const QStringList& kinds)
      : mName(std::move(name)) {
    for (const QString& layout : layouts)
      mLayouts->Add(std::make_shared<NamedLayout>(layout), layout);
    for (const QString& kind : kinds) mKinds->Adopt(std::make_shared<Definition>(kind));
  }
  QString Name() const override { return mName; }
  std::shared_ptr<KeyedCollection<std::shared_ptr<TOCDefinition>>> TOCDefinitions() const override {
    return mLayouts;
  }
  std::shared_ptr<KeyedCollection<std::shared_ptr<TemplateVariable>>> Variables() const override {
    return nullptr;
  }
  std::shared_ptr<NamespaceDefs> NameSpaces() const override { return mKinds; }
  QString Features() const override { return {}; }
  std::shared_ptr<KeyedCollection<std::shared_ptr<PageLayout>>> PageLayouts() const override {
    return nullptr;
  }
  QString Flags() const override { return {}; }

 private:
  QString mName;
  std::shared_ptr<KeyedCollection<std::shared_ptr<TOCDefinition>>> mLayouts =
      std::make_shared<KeyedCollection<std::shared_ptr<TOCDefinition>>>();
  std::shared_ptr<DefinitionSet> mKinds = std::make_shared<DefinitionSet>(mName, mName, QString());
};

QString keys(const NamespaceDefs& defs) {
  QStringList keys;
  for (const auto& def : defs) keys << def->Key();
  return keys.join(QLatin1Char(' '));
}

TEST(ProjectModelTest, SettingsComeFromOneTableAndOnlyChangesMakeTheProjectDirty) {
  for (std::size_t i = 0; i < kSettingCount; ++i)
    EXPECT_EQ(static_cast<std::size_t>(SettingTable()[i].id), i) << SettingTable()[i].name;

  ProjectModel project;
  EXPECT_EQ(test::DumpProject(project).section(QLatin1Char('\n'), 0, 0), "DocTypes help=");
  EXPECT_TRUE(project.ClearBeforeBuild());
  EXPECT_EQ(project.Locale(), 1033);
  EXPECT_EQ(project.HTMLHelpVersion(), "1.4");
  EXPECT_FALSE(project.Dirty());

  project.setClearBeforeBuild(true);
  project.setLocale(1033);
  project.setOutputLanguage(QStringLiteral("English"));
  EXPECT_FALSE(project.Dirty()) << "setting an equal value changes nothing";

  project.setLocale(1031);
  EXPECT_TRUE(project.Dirty());
  EXPECT_EQ(project.SettingValue(Setting::Locale).toInt(), 1031);

  project.setDirty(false);
  project.setSettingValue(*SettingByName(QStringLiteral("outputfolder")), QStringLiteral("out"));
  project.setShowProtectedFriendMembers(true);
  project.setPageNestingLevels(4);
  EXPECT_TRUE(project.Dirty());
  EXPECT_EQ(project.OutputFolder(), "out");
  EXPECT_EQ(test::DumpProject(project).section(QLatin1Char('\n'), 0, 3),
            "Locale=1031\nShowProtectedMembers=true\nShowFriendMembers=true\n"
            "PageNestingLevels=4");

  try {
    project.setSettingValue(Setting::PageNestingLevels, QStringLiteral("deep"));
    FAIL() << "a word is no number";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.Description(), "PageNestingLevels cannot be set to \"deep\"");
  }
  EXPECT_EQ(project.PageNestingLevels(), 4);
  EXPECT_FALSE(SettingByName(QStringLiteral("NoSuchSetting")));
}

TEST(ProjectModelTest, ProvidersAreFoundByNameWithoutRegardToCase) {
  ProjectModel project;
  auto provider = std::make_shared<UnusedProvider>();
  project.AddNamespaceProvider(QStringLiteral("sv.Doxygen"), provider);
  EXPECT_EQ(project.GetNamespaceProvider(QStringLiteral("SV.DOXYGEN")), provider);
  EXPECT_EQ(project.GetNamespaceProvider(QStringLiteral("sv.net")), nullptr);

  auto replacement = std::make_shared<UnusedProvider>();
  project.AddNamespaceProvider(QStringLiteral("sv.doxygen"), replacement);
  EXPECT_EQ(project.GetNamespaceProvider(QStringLiteral("sv.Doxygen")), replacement);
}

TEST(ProjectModelTest, CommentStoreAnswersOneCollectionPerItem) {
  ProjectModel project;
  EXPECT_EQ(project.FindComments(QStringLiteral("geo~Circle")), nullptr);
  const auto circle = project.CommentsFor(QStringLiteral("geo~Circle"));
  auto comment = std::make_shared<ProjectComment>(QStringLiteral("c1"));
  comment->setTagIdentifier(QStringLiteral("##SUMMARY"));
  comment->setText(QStringLiteral("A round shape."));
  circle->Add(comment, comment->Id());
  project.CommentsFor(QStringLiteral("geo~Square"));

  EXPECT_EQ(project.CommentsFor(QStringLiteral("GEO~circle")), circle);
  EXPECT_EQ(project.CommentedItems(), QStringList({"geo~Circle", "geo~Square"}));
  EXPECT_EQ(test::DumpComments(project), "geo~Circle\n  c1 ##SUMMARY [0   shown]: A round shape.");

  // Replacing an item's collection keeps the item's place in the store.
  project.setDirty(false);
  project.setCommentsFor(QStringLiteral("geo~circle"), project.CommentsFor(QStringLiteral("x")));
  EXPECT_TRUE(project.Dirty());
  EXPECT_EQ(project.CommentedItems(), QStringList({"geo~Circle", "geo~Square", "x"}));
  EXPECT_EQ(project.FindComments(QStringLiteral("geo~Circle"))->Count(), 0);
}

TEST(ProjectModelTest, DocumentTypesKeepTemplateAndContentsChoice) {
  auto settings = std::make_shared<MemoryAppSettings>();
  settings->Templates()->Add(
      std::make_shared<LayoutTemplate>(QStringLiteral("Web"), QStringList{"Standard", "Flat"},
                                       QStringList{"Project", "Class"}),
      QStringLiteral("Web"));
  settings->Templates()->Add(std::make_shared<LayoutTemplate>(QStringLiteral("Chm"), QStringList{},
                                                              QStringList{"project", "Member"}),
                             QStringLiteral("Chm"));
  test::ScopedModel model(std::make_shared<ProjectModelFactory>(settings));

  ProjectModel project;
  auto docTypes = project.ProjectDocTypeList();
  auto web =
      docTypes->Add(QStringLiteral("html"), QStringLiteral("Web site"), QStringLiteral("Web"));
  auto help =
      docTypes->Add(QStringLiteral("chm"), QStringLiteral("Help file"), QStringLiteral("Chm"));
  EXPECT_TRUE(project.Dirty());
  project.setDirty(false);

  web->setSelected(true);
  web->TOCChoice()->setDefinitionName(QStringLiteral("flat"));
  EXPECT_TRUE(project.Dirty());
  EXPECT_EQ(web->Template()->Name(), "Web");
  EXPECT_EQ(web->TOCChoice()->TOCDefinition()->Name(), "Flat");
  EXPECT_EQ(help->TOCChoice()->TOCDefinition(), nullptr) << "the template has no layouts";
  EXPECT_EQ(docTypes->Add(QStringLiteral("pdf"), QString(), QStringLiteral("Print"))->Template(),
            nullptr)
      << "no template of that name";
  docTypes->Remove(QStringLiteral("pdf"));

  EXPECT_EQ(project.DocTypes()->Item(QStringLiteral("HTML")), web);
  EXPECT_EQ(project.DocTypes()->Item(QStringLiteral("pdf")), nullptr);
  EXPECT_EQ(project.DocTypes()->Lookup(QStringLiteral("chm")), help);
  const auto selected = project.DocTypes()->SelectedDocTypes();
  ASSERT_EQ(selected->Count(), 1);
  EXPECT_EQ(selected->Item(1), web);
  EXPECT_EQ(project.DocTypes()->NameSpaces(), web->NamespaceDefs());

  // Several selected types merge their kinds; the first type's definition of a key wins.
  help->setSelected(true);
  const auto merged = project.DocTypes()->NameSpaces();
  EXPECT_EQ(keys(*merged), "Project Class Member");
  EXPECT_EQ(merged->Item(QStringLiteral("PROJECT")), web->NamespaceDefs()->Item(1));

  project.DocTypes()->setHelpTemplatesFrom(help);
  docTypes->Remove(QStringLiteral("chm"));
  EXPECT_EQ(project.DocTypes()->HelpTemplatesFrom(), nullptr);
  EXPECT_EQ(test::DumpProject(project).section(QLatin1Char('\n'), 0, 1),
            "DocTypes help=\n  html \"Web site\" template=Web selected toc=2:flat");
}

TEST(ProjectModelTest, RecordsVariablesAndContentFiles) {
  ProjectModel project;
  project.setFileName(QStringLiteral("/work/docs/geometry.svproj"));

  const auto circle = project.Variables()->Add(QStringLiteral("Copyright"));
  EXPECT_FALSE(circle->HasValue());
  EXPECT_EQ(project.VariableDefaultValue(QStringLiteral("Copyright"), QStringLiteral("(c)")),
            "(c)");
  EXPECT_EQ(project.VariableDefaults().at(QStringLiteral("Copyright")), "(c)");
  project.setDirty(false);
  circle->setValue(QStringLiteral("(c) 2024 Ann"));
  EXPECT_TRUE(project.Dirty());
  EXPECT_EQ(project.VariableDefaultValue(QStringLiteral("copyright"), QStringLiteral("(c)")),
            "(c) 2024 Ann");

  project.AddContentFile(QStringLiteral("geometry.svc"), QStringLiteral("geo~geometry"));
  project.AddContentFile(QStringLiteral("shapes.svc"), QStringLiteral("geo~geometry~shapes"));
  EXPECT_EQ(project.ContentFileFor(QStringLiteral("geo~geometry~shapes~Circle"))->FileName(),
            "shapes.svc");
  EXPECT_EQ(project.ContentFileFor(QStringLiteral("geo~geometry~Unit"))->FileName(),
            "geometry.svc");
  EXPECT_EQ(project.ContentFileFor(QStringLiteral("geo~geometryX")), nullptr);
  EXPECT_EQ(project.ContentFileFor(QStringLiteral("geo")), nullptr);

  EXPECT_EQ(project.ProjectFile()->FileName(), "geometry.svproj");
  EXPECT_EQ(project.GetProjectFilePath(FilePath(QStringLiteral("/work/docs/img/logo.png"))),
            "img/logo.png");
  EXPECT_EQ(project.GetProjectFilePath(FilePath(QStringLiteral("/etc/logo.png"))), "/etc/logo.png");

  project.UpdateDefaultsFromComponents();
  EXPECT_EQ(project.CHMFileName(), "geometry.chm");
  project.setCHMFileName(QStringLiteral("kept.chm"));
  project.UpdateDefaultsFromComponents();
  EXPECT_EQ(project.CHMFileName(), "kept.chm");
}

TEST(ProjectModelTest, ShowMessageGoesThroughTheMessageService) {
  test::FakeServices services;
  services.message->Script({Mb::IdNo});
  ProjectModel project;
  EXPECT_EQ(project.ShowMessage(QStringLiteral("Save changes?"), Mb::YesNo | Mb::Question,
                                QStringLiteral("Scrivara")),
            Mb::IdNo);
  EXPECT_EQ(services.message->Last(), "Scrivara|36|Save changes?");
}

}  // namespace
}  // namespace sv
