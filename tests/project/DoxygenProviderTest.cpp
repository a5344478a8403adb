#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include "model/CodeMember.h"
#include "model/DDP.h"
#include "model/Error.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/TaggedComments.h"
#include "project/config/AppConfig.h"
#include "project/core/CommentList.h"
#include "project/core/ModelItem.h"
#include "project/core/ProjectComment.h"
#include "project/doxygen/DoxygenIndex.h"
#include "project/doxygen/DoxygenProvider.h"
#include "project/model/ProjectModel.h"

namespace sv {
namespace {

const QString kAll = QStringLiteral(
    "IgnoreNamespaceIncludeFlag=true,scope=private+public+friend+protected,IncludeInherited=False");
const QString kPublic =
    QStringLiteral("IgnoreNamespaceIncludeFlag=true,scope=public,IncludeInherited=False");

QString SampleXml() {
  return QStringLiteral(SV_BINARY_DIR) + QStringLiteral("/samples/geometry/xml");
}

// The shipped definitions of C++ code.
std::shared_ptr<NamespaceDefs> CppDefinitions() {
  static const auto config = std::make_shared<AppConfig>(QStringLiteral(SV_SOURCE_DIR "/data"));
  return config->NamespaceDefs(QStringLiteral("sv.cpp"));
}

// A provider over the sample library with its comments in a project.
struct Sample {
  Sample()
      : project(std::make_shared<ProjectModel>()),
        defs(CppDefinitions()),
        provider(DoxygenProvider::Open(SampleXml(), QStringLiteral("geometry"), project)) {}

  std::shared_ptr<NamespaceDef> def(const char* key) const {
    return defs->Item(QLatin1String(key));
  }
  std::shared_ptr<CodeItem> item(const char* qualifiedName) const {
    return provider->GetItem(QString::fromLatin1(qualifiedName));
  }
  // The names GetItems answers for one kind under a parent, joined by spaces.
  std::string names(const char* kind, const char* parent, const QString& filter = kAll) const {
    QStringList out;
    const auto items = provider->GetItems(def(kind), item(parent), filter);
    for (const auto& child : *items) out << child->Name().value_or(QStringLiteral("?"));
    return out.join(QLatin1Char(' ')).toStdString();
  }
  int filesRead() const { return provider->Index().FilesRead(); }

  std::shared_ptr<ProjectModel> project;
  std::shared_ptr<NamespaceDefs> defs;
  std::shared_ptr<DoxygenProvider> provider;
};

// An item as one line: its kind, name, access and member marks.
QString Line(const CodeItem& item) {
  QString line = item.TypeName() + QLatin1Char(' ') + item.Name().value_or(QString());
  if (const auto access = item.Access()) line += QLatin1Char(' ') + *access;
  if (const auto* member = dynamic_cast<const CodeMember*>(&item)) {
    if (member->Overloaded()) line += QStringLiteral(" overloaded");
    if (member->IsExplicit()) line += QStringLiteral(" declared");
  }
  return line;
}

// The code tree the provider answers, walked by the definitions as a tree control walks it.
void Walk(DoxygenProvider& provider, const std::shared_ptr<NamespaceDef>& def,
          const std::shared_ptr<CodeItem>& item, const QString& filter, int depth,
          QStringList& out) {
  out << QString(depth * 2, QLatin1Char(' ')) + Line(*item);
  for (const auto& childDef : *def->ChildDefs()) {
    const auto children = provider.GetItems(childDef, item, filter);
    for (const auto& child : *children) Walk(provider, childDef, child, filter, depth + 1, out);
  }
}

std::string Tree(Sample& sample, const QString& filter) {
  QStringList lines;
  const auto root = sample.provider->GetRootItem(sample.def("Project"), QString());
  Walk(*sample.provider, sample.def("Project"), root, filter, 0, lines);
  return (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toStdString();
}

TEST(DoxygenProviderTest, AnswersTheSampleLibraryKindByKindInDeclarationOrder) {
  Sample sample;
  EXPECT_EQ(Tree(sample, kAll), R"(Project geometry
  Namespace geometry
    Namespace io
      Class SvgWriter PUBLIC
        Enum Style PUBLIC
          EnumValue Outline PUBLIC
          EnumValue Filled PUBLIC
        Constructor SvgWriter PUBLIC declared
        Function write PUBLIC overloaded
        Function write PUBLIC overloaded
        Function written PUBLIC
        Function styleAttribute PRIVATE
        Variable mOut PRIVATE
        Variable mStyle PRIVATE
        Variable mWritten PRIVATE
      Function toText PUBLIC
    Namespace shapes
      Class Circle PUBLIC
        Class Builder PUBLIC
          Constructor Builder PUBLIC
          Function centre PUBLIC overloaded
          Function centre PUBLIC overloaded
          Function radius PUBLIC
          Function build PUBLIC
          Variable mCentre PRIVATE
          Variable mRadius PRIVATE
        Constructor Circle PUBLIC overloaded declared
        Constructor Circle PUBLIC overloaded declared
        Constructor Circle PUBLIC overloaded declared
        Function area PUBLIC
        Function perimeter PUBLIC
        Function name PUBLIC
        Function radius PUBLIC
        Function setRadius PUBLIC
        Variable mRadius PRIVATE
      Class Polygon PUBLIC
        Enum Winding PUBLIC
          EnumValue Clockwise PUBLIC
          EnumValue CounterClockwise PUBLIC
        Typedef Corners PUBLIC
        Constructor Polygon PUBLIC
        Function area PUBLIC
        Function perimeter PUBLIC
        Function addCorner PUBLIC overloaded
        Function addCorner PUBLIC overloaded
        Function corners PUBLIC
        Function winding PUBLIC
        Function regular PUBLIC
        Function signedArea PROTECTED
        Variable mCorners PRIVATE
      Class Shape PUBLIC
        Constructor Shape PROTECTED overloaded declared
        Constructor Shape PROTECTED overloaded declared
        Function ~Shape PUBLIC
        Function area PUBLIC
        Function perimeter PUBLIC
        Function name PUBLIC
        Function moveBy PUBLIC overloaded
        Function moveBy PUBLIC overloaded
        Function origin PUBLIC
        Function id PUBLIC
        Function originChanged PROTECTED
        Function nextId PRIVATE
        Variable mOrigin PRIVATE
        Variable mId PRIVATE
    Struct Point PUBLIC
      Constructor Point PUBLIC
      Variable x PUBLIC
      Variable y PUBLIC
    Enum Unit PUBLIC
      EnumValue Millimetre PUBLIC
      EnumValue Centimetre PUBLIC
      EnumValue Inch PUBLIC
    Typedef Length PUBLIC
    Function distance PUBLIC
    Function operator+ PUBLIC
    Function operator* PUBLIC overloaded
    Function operator* PUBLIC overloaded
    Function convert PUBLIC
    Function millimetresPer PUBLIC
  Function geometry_version PUBLIC
)");
}

TEST(DoxygenProviderTest, FollowsTheScopeAndInheritanceThatTheTreeAsksFor) {
  Sample sample;
  const char* circle = "geometry~geometry~shapes~Circle";
  EXPECT_EQ(sample.names("Variable", circle, kPublic), "");
  EXPECT_EQ(sample.names("Variable", circle), "mRadius");
  EXPECT_EQ(sample.names("Function", "geometry~geometry~shapes~Shape",
                         QStringLiteral("scope=public+protected")),
            "~Shape area perimeter name moveBy moveBy origin id originChanged");
  // A class inherits what its bases offer and it does not declare itself; constructors,
  // the destructor and private members stay behind.
  EXPECT_EQ(sample.names("Function", circle,
                         QStringLiteral("scope=public+protected,IncludeInherited=True")),
            "area perimeter name radius setRadius moveBy moveBy origin id originChanged");
  EXPECT_EQ(sample.names("Function", circle, QStringLiteral("scope=public,includeinherited=true")),
            "area perimeter name radius setRadius moveBy moveBy origin id");
  // Words the provider does not know are passed over; no scope shows every access.
  EXPECT_EQ(sample.names("Variable", circle, QStringLiteral("whatever,includeall=true,")),
            "mRadius");
  // A kind that does not hang under the parent answers an empty collection.
  EXPECT_EQ(sample.names("Namespace", circle), "");
  EXPECT_EQ(sample.names("EnumValue", "geometry~geometry~Length"), "");
}

TEST(DoxygenProviderTest, ReadsACompoundFileOnlyWhenItsMembersAreAskedFor) {
  Sample sample;
  EXPECT_EQ(sample.filesRead(), 0);
  EXPECT_EQ(sample.names("Namespace", "geometry~geometry"), "io shapes");
  EXPECT_EQ(sample.names("Class", "geometry~geometry~shapes"), "Circle Polygon Shape");
  EXPECT_EQ(sample.filesRead(), 0);
  EXPECT_EQ(sample.names("Constructor", "geometry~geometry~shapes~Polygon"), "Polygon");
  EXPECT_EQ(sample.filesRead(), 1);
  // A member's name leads straight to its class's file.
  const auto setRadius = sample.item("geometry~geometry~shapes~Circle~setRadius");
  ASSERT_TRUE(setRadius);
  EXPECT_EQ(setRadius->TypeName(), QStringLiteral("Function"));
  EXPECT_EQ(sample.filesRead(), 2);
  // The nested class's access comes from the class that holds it.
  EXPECT_EQ(sample.item("geometry~geometry~shapes~Circle~Builder")->Access(),
            std::optional(QStringLiteral("PUBLIC")));
  EXPECT_EQ(sample.filesRead(), 2);
}

TEST(DoxygenProviderTest, HandsOutOneItemPerQualifiedName) {
  Sample sample;
  const auto root = sample.provider->GetRootItem(sample.def("Project"), QString());
  EXPECT_EQ(root, sample.provider->GetRootItem(sample.def("Project"), QStringLiteral("geometry")));
  EXPECT_EQ(root, sample.item("geometry"));
  EXPECT_EQ(root->QualifiedName(), std::optional(QStringLiteral("geometry")));
  EXPECT_FALSE(root->Access());

  const auto overloads = sample.provider->GetItems(
      sample.def("Function"), sample.item("geometry~geometry~shapes~Shape"), kAll);
  const auto moveBy = sample.item("geometry~geometry~shapes~Shape~moveBy(const Point&)");
  ASSERT_TRUE(moveBy);
  EXPECT_EQ(moveBy,
            overloads->Item(QStringLiteral("geometry~geometry~shapes~Shape~moveBy(const Point&)")));
  EXPECT_EQ(sample.item("geometry~geometry~Unit~Inch")->TypeName(), QStringLiteral("EnumValue"));
  EXPECT_EQ(sample.item("geometry~geometry~Unit~Inch"), sample.item("geometry~geometry~Unit~Inch"));
  // A moniker that is a qualified name roots the tree at that scope.
  EXPECT_EQ(
      sample.provider->GetRootItem(sample.def("Project"), QStringLiteral("geometry~geometry~io")),
      sample.item("geometry~geometry~io"));

  for (const char* missing :
       {"geometry~nowhere", "other~geometry", "geometry~geometry~shapes~Circle~nothing", ""})
    EXPECT_FALSE(sample.item(missing)) << missing;
  // The top holds only the project; an item of another provider has no children here.
  EXPECT_EQ(sample.provider->GetItems(sample.def("Class"), nullptr, kAll)->Count(), 0);
  EXPECT_EQ(sample.provider->GetItems(sample.def("Project"), nullptr, kAll)->Item(1), root);
  const auto stranger = std::make_shared<ModelItem>(
      QStringLiteral("Class"), QStringLiteral("geometry~x"), QStringLiteral("x"));
  EXPECT_FALSE(sample.provider->GetItems(sample.def("Function"), stranger, kAll));
}

TEST(DoxygenProviderTest, KeepsCommentsAndFlagsInTheProject) {
  Sample sample;
  sample.project->NamespaceExclusions()->Add(QStringLiteral("geometry~geometry~io"),
                                             QStringLiteral("geometry~geometry~io"));
  auto stored = sample.project->CommentsFor(QStringLiteral("geometry~geometry~shapes~Circle"));
  stored->Add(std::make_shared<ProjectComment>(QStringLiteral("c1")), QStringLiteral("c1"));

  const auto circle = sample.item("geometry~geometry~shapes~Circle");
  EXPECT_EQ(circle->TaggedComments(), stored);
  EXPECT_EQ(circle->TaggedComments()->Count(), 1);
  // A comment added through the item is the project's, and so is a replaced collection.
  const auto area = sample.item("geometry~geometry~shapes~Circle~area");
  area->TaggedComments()->Add(std::make_shared<ProjectComment>(QStringLiteral("c2")),
                              QStringLiteral("c2"));
  EXPECT_EQ(
      sample.project->FindComments(QStringLiteral("geometry~geometry~shapes~Circle~area"))->Count(),
      1);
  auto replaced = std::make_shared<CommentList>();
  area->setTaggedComments(replaced);
  EXPECT_EQ(sample.project->FindComments(QStringLiteral("geometry~geometry~shapes~Circle~area")),
            replaced);

  EXPECT_EQ(sample.item("geometry~geometry~io")->ExcludeFlag(), std::optional(true));
  EXPECT_EQ(circle->IncludeFlag(), std::optional(true));
  circle->setExcludeFlag(true);
  EXPECT_EQ(circle->ExcludeFlag(), std::optional(true));
  const auto root = sample.item("geometry");
  EXPECT_EQ(root->RootFlag(), std::optional(false));
  root->setRootFlag(true);
  EXPECT_EQ(root->RootFlag(), std::optional(true));
  EXPECT_FALSE(circle->RootFlag());
}

TEST(DoxygenProviderTest, ResolvesEachItemToTheDefinitionOfItsOwnKind) {
  Sample sample;
  const auto ddp = sample.provider->DDP();
  const auto point = sample.item("geometry~geometry~Point");
  EXPECT_EQ(ddp->ResolveNamespaceDef(sample.def("Class"), point, QStringLiteral("cpp.class"),
                                     sample.item("geometry~geometry")),
            sample.def("Struct"));
  EXPECT_EQ(ddp->EvaluateCaption(QStringLiteral("[Kind] [Name] in [QualifiedName]")),
            QStringLiteral("Struct Point in geometry~geometry~Point"));
  const auto shape = sample.item("geometry~geometry~shapes~Shape");
  EXPECT_EQ(
      ddp->ResolveNamespaceDef(sample.def("Class"), shape, QStringLiteral("cpp.class"), nullptr),
      sample.def("Class"));
}

TEST(DoxygenProviderTest, ReportsAMissingCompoundFileWhenItIsNeeded) {
  QTemporaryDir copy;
  const QDir from(SampleXml());
  for (const QString& name : from.entryList(QDir::Files))
    QFile::copy(from.filePath(name), copy.filePath(name));
  auto provider = DoxygenProvider::Open(copy.path(), QStringLiteral("geometry"));
  const auto circle = provider->GetItem(QStringLiteral("geometry~geometry~shapes~Circle"));
  ASSERT_TRUE(circle);
  for (const QString& name : QDir(copy.path()).entryList({QStringLiteral("class*Circle.xml")}))
    QFile::remove(copy.filePath(name));
  try {
    provider->GetItems(CppDefinitions()->Item(QStringLiteral("Function")), circle, kAll);
    FAIL() << "no error";
  } catch (const Error& e) {
    EXPECT_EQ(e.Number(), ErrorNumber::FileNotFound);
    EXPECT_TRUE(e.Description().contains(QStringLiteral("Circle.xml")))
        << e.Description().toStdString();
  }
  EXPECT_THROW(DoxygenProvider::Open(copy.filePath(QStringLiteral("none")), QStringLiteral("x")),
               Error);
}

}  // namespace
}  // namespace sv
