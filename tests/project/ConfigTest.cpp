#include <gtest/gtest.h>

#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <functional>
#include <optional>

#include "support/QtPrinters.h"

#include "model/AttributeDef.h"
#include "model/ElementDef.h"
#include "model/Error.h"
#include "model/ModelFactory.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/TaggedComment.h"
#include "model/TaggedCommentDef.h"
#include "model/TaggedCommentDefs.h"
#include "project/config/AppConfig.h"
#include "project/config/AppDataFolder.h"
#include "project/config/InstallProjectModel.h"

namespace sv {
namespace {

const QString kDataFolder = QStringLiteral(SV_SOURCE_DIR "/data");

// Sets an environment variable for the life of a test and puts the old value back.
class ScopedEnv {
 public:
  ScopedEnv(const char* name, const QString& value) : mName(name) {
    if (qEnvironmentVariableIsSet(name)) mOld = qEnvironmentVariable(name);
    qputenv(name, value.toUtf8());
  }
  ~ScopedEnv() {
    if (mOld)
      qputenv(mName, mOld->toUtf8());
    else
      qunsetenv(mName);
  }

 private:
  const char* mName;
  std::optional<QString> mOld;
};

QStringList TagIds(const TaggedCommentDefs& tags,
                   const std::function<bool(const TaggedCommentDef&)>& test) {
  QStringList ids;
  for (const auto& tag : tags)
    if (test(*tag)) ids << tag->TagIdentifier();
  return ids;
}

TEST(ConfigTest, ShippedDefinitionSetsHangTogether) {
  const AppConfig config(kDataFolder);
  EXPECT_EQ(config.NamespaceDefsNames(), QStringList({"sv.cpp", "sv.net", "sv.vbsource"}));
  EXPECT_EQ(config.NamespaceDefs("missing"), nullptr);
  const auto cpp = config.NamespaceDefs("SV.CPP");
  ASSERT_NE(cpp, nullptr);
  EXPECT_EQ(cpp->Item(1)->ProviderName(), "doxygen");
  EXPECT_EQ(cpp->Item("Enum")->ChildDefs()->Item(1)->Key(), "EnumValue");

  for (const QString& name : config.NamespaceDefsNames()) {
    const auto set = config.NamespaceDefs(name);
    const QString provider = set->Item(1)->ProviderName();
    for (const auto& def : *set) {
      SCOPED_TRACE((name + ' ' + def->Key()).toStdString());
      // The tree finds a node's definition again from its tag, and from a child definition.
      EXPECT_EQ(set->ItemByMoniker(def->TypeMoniker().toUpper()), def);
      EXPECT_EQ(def->Owner(), set);
      EXPECT_EQ(def->ProviderName(), provider);
      for (const auto& child : *def->ChildDefs()) EXPECT_EQ(set->Item(child->Key()), child);
    }
    // Item 1 is a root that cannot be unticked.
    EXPECT_EQ(set->Item(1)->Flags(), "r");
    EXPECT_FALSE(set->Item(1)->CanExclude());
  }
  // Source projects: a kind's moniker is its key.
  const auto source = config.NamespaceDefs("sv.vbsource");
  ASSERT_NE(source, nullptr);
  EXPECT_EQ(source->ItemByMoniker("SV:Variable"), source->Item("SV:Variable"));
  EXPECT_FALSE(source->Item("SV:EnumMember")->Selectable());
}

TEST(ConfigTest, ShippedTagsOfferPagesFlagsAndIcons) {
  const AppConfig config(kDataFolder);
  const auto tags = config.TaggedCommentDefs();
  EXPECT_EQ(tags->DefaultDesignerProgID(), "SVContentDesigners5.dsrHTMLEdit");
  const auto summary = tags->Item("##summary");
  ASSERT_NE(summary, nullptr);
  EXPECT_EQ(summary->Caption(), "Description");  // the page that holds the implicit "##" too
  EXPECT_EQ(tags->Item("##SEEALSO")->XMLCommentTypes(), "seealso,see");
  EXPECT_EQ(tags->Item("##NOTHING"), nullptr);
  EXPECT_EQ(TagIds(*tags, [](const TaggedCommentDef& tag) { return tag.DesignFlag() == "f"; }),
            QStringList({"##EXCLUDE", "##EXCLUDEINTERNAL", "##OBSOLETE", "##PRELIMINARY"}));
  // In source projects a variable offers the tags of a property.
  EXPECT_TRUE(tags->Item("##VALUE")->NameSpaces().split(',').contains("SV:Property"));
  EXPECT_FALSE(tags->Item("##VALUE")->NameSpaces().split(',').contains("SV:Variable"));

  const QDir icons(kDataFolder + "/icons/commenttypes");
  for (const auto& tag : *tags) {
    SCOPED_TRACE(tag->TagIdentifier().toStdString());
    // Lists are kept without blanks: entries are matched up to the next comma.
    EXPECT_FALSE(tag->NameSpaces().contains(' '));
    EXPECT_FALSE(tag->NameSpaces().isEmpty());
    EXPECT_TRUE(icons.exists(tag->ImageName() + ".png"));
    // A bar item shows whether its page has content with the "_ticked" picture.
    if (!tag->Caption().isEmpty()) {
      EXPECT_TRUE(icons.exists(tag->ImageName() + "_ticked.png"));
    }
    EXPECT_EQ(tag->DesignerProgID(), tag->DesignFlag() == "f" ? "{None}" : "");
  }
  // Every kind of every set can be described.
  const QStringList summaryKinds = summary->NameSpaces().split(',');
  for (const QString& name : config.NamespaceDefsNames())
    for (const auto& def : *config.NamespaceDefs(name))
      EXPECT_TRUE(summaryKinds.contains(def->TypeMoniker(), Qt::CaseInsensitive))
          << def->TypeMoniker().toStdString();
}

TEST(ConfigTest, ShippedElementsUseOnlyKnownAttributeTypes) {
  const AppConfig config(kDataFolder);
  const auto elements = config.ElementDefs();
  ASSERT_GE(elements->Count(), 10);
  const auto tag = elements->Item("taggedcomment")->Attributes()->Item("TAG");
  EXPECT_TRUE(tag->Required());
  EXPECT_EQ(tag->ListType(), "taggedcommentdefs");
  EXPECT_TRUE(elements->Item("metacharset")->ExcludedFromPage());
  // Every type is one the element builder knows.
  const QStringList types{"text", "list", "date", "color", "number", "boolean", "file"};
  for (const auto& element : *elements)
    for (const auto& attribute : *element->Attributes())
      EXPECT_TRUE(types.contains(attribute->Type())) << attribute->Name().toStdString();
}

// A small configuration written to a temporary folder, one file at a time replaceable, for the
// errors a broken file must report.
class ConfigFolder {
 public:
  ConfigFolder() {
    QDir(mDir.path()).mkpath("config/namespaces");
    Write("config/namespaces/sv.test.xml",
          "<definitionSet version=\"1.0\" name=\"sv.test\" provider=\"memory\">\n"
          "  <definition key=\"Root\" moniker=\"t.root\" flags=\"r\">\n"
          "    <child key=\"Leaf\"/>\n"
          "  </definition>\n"
          "  <definition key=\"Leaf\" moniker=\"t.leaf\"/>\n"
          "</definitionSet>\n");
    Write("config/tags.xml",
          "<tags version=\"1.0\">\n"
          "  <kinds name=\"both\" namespaces=\"t.root, Leaf\"/>\n"
          "  <tag id=\"##A\" name=\"A\" namespaces=\"@both\"/>\n"
          "</tags>\n");
    Write("config/elements.xml",
          "<elements version=\"1.0\">\n"
          "  <element name=\"e\" namespaces=\"{Blank},t.leaf\">\n"
          "    <attribute name=\"a\" type=\"list\" listType=\"values\" values=\"x,y:Why\"/>\n"
          "  </element>\n"
          "</elements>\n");
  }

  QString Path() const { return mDir.path(); }
  QString File(const QString& name) const { return mDir.path() + "/config/" + name; }
  void Write(const QString& name, const QByteArray& text) const {
    QFile file(mDir.path() + '/' + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text);
  }
  // The error that reading the folder raises, as "number: description".
  QString Failure() const {
    try {
      AppConfig config(Path());
      return QStringLiteral("no error");
    } catch (const Error& error) {
      return QString::number(error.Number()) + ": " + error.Description();
    }
  }

 private:
  QTemporaryDir mDir;
};

TEST(ConfigTest, BrokenFilesAreReportedWithFileLineAndColumn) {
  {
    const ConfigFolder folder;
    const AppConfig config(folder.Path());
    EXPECT_EQ(config.TaggedCommentDefs()->Item("##A")->NameSpaces(), "t.root,Leaf");
    EXPECT_EQ(config.ElementDefs()->Item("e")->NameSpaces(), "{Blank},t.leaf");
    EXPECT_EQ(config.NamespaceDefs("sv.test")->Item("Root")->ChildDefs()->Item(1)->Key(), "Leaf");
  }
  const auto failure = [](const char* file, const QByteArray& text) {
    const ConfigFolder folder;
    folder.Write(QStringLiteral("config/") + file, text);
    return folder.Failure().replace(folder.File({}), "");
  };
  const QString bad = QString::number(ErrorNumber::BadFileFormat) + ": ";

  EXPECT_EQ(failure("namespaces/sv.test.xml",
                    "<definitionSet version=\"1.0\" name=\"sv.test\" provider=\"memory\">\n"
                    "  <definition key=\"Root\">\n"
                    "    <child key=\"Leaf\"/>\n"
                    "    <child key=\"Twig\"/>\n"
                    "  </definition>\n"
                    "  <definition key=\"Leaf\"/>\n"
                    "</definitionSet>\n"),
            bad +
                "namespaces/sv.test.xml:4:5: The definition Root lists the child Twig, which "
                "sv.test does not define.");
  EXPECT_EQ(failure("namespaces/sv.test.xml",
                    "<definitionSet version=\"1.0\" name=\"sv.test\" provider=\"memory\">\n"
                    "  <definition key=\"Root\" groupd=\"Roots\"/>\n"
                    "</definitionSet>\n"),
            bad + "namespaces/sv.test.xml:2:3: The element <definition> has no attribute groupd.");
  EXPECT_EQ(failure("namespaces/sv.test.xml",
                    "<definitionSet version=\"1.0\" name=\"sv.test\" provider=\"memory\">\n"
                    "  <definition key=\"Root\" flags=\"rx\"/>\n"
                    "</definitionSet>\n"),
            bad +
                "namespaces/sv.test.xml:2:3: The attribute flags may hold only the letters "
                "\"ftr\", not \"rx\".");
  EXPECT_EQ(failure("namespaces/sv.test.xml",
                    "<definitionSet version=\"1.0\" name=\"sv.test\">\n"
                    "  <definition key=\"Root\"/>\n"
                    "  <definition key=\"root\"/>\n"
                    "</definitionSet>\n"),
            bad +
                "namespaces/sv.test.xml:2:3: The definition Root names no provider, nor does "
                "its set.");
  EXPECT_EQ(failure("namespaces/sv.test.xml",
                    "<definitionSet version=\"2.0\" name=\"sv.test\" provider=\"memory\"/>\n"),
            bad +
                "namespaces/sv.test.xml:1:1: The file was written by a newer version of "
                "Scrivara (format 2.0); this version reads format 1.x only.");
  EXPECT_EQ(failure("tags.xml",
                    "<tags version=\"1.0\">\n"
                    "  <tag id=\"##A\" name=\"A\n"
                    "</tags>\n"),
            bad + "tags.xml:2:23: Error parsing element attribute");
  EXPECT_EQ(failure("tags.xml",
                    "<tags version=\"1.0\">\n"
                    "  <tag id=\"##A\" name=\"A\" namespaces=\"t.leaf,t.twig\"/>\n"
                    "</tags>\n"),
            bad +
                "tags.xml:2:3: The attribute namespaces names t.twig, which no definition "
                "set defines.");
  EXPECT_EQ(failure("tags.xml",
                    "<tags version=\"1.0\">\n"
                    "  <tag id=\"##A\" name=\"A\" namespaces=\"@leaves\"/>\n"
                    "</tags>\n"),
            bad + "tags.xml:2:3: The list @leaves is not defined above.");
  EXPECT_EQ(failure("tags.xml",
                    "<tags version=\"1.0\">\n"
                    "  <tag id=\"##A\" name=\"A\"/>\n"
                    "  <tag id=\"##a\" name=\"Again\"/>\n"
                    "</tags>\n"),
            bad + "tags.xml:3:3: The tag ##a is defined twice.");
  EXPECT_EQ(failure("tags.xml", "<tags version=\"1.0\">\n  <tag id=\"##A\"/>\n</tags>\n"),
            bad + "tags.xml:2:3: The element <tag> needs a name attribute.");
  EXPECT_EQ(failure("elements.xml",
                    "<elements version=\"1.0\">\n"
                    "  <element name=\"e\">\n"
                    "    <attribute name=\"a\" type=\"colour\"/>\n"
                    "  </element>\n"
                    "</elements>\n"),
            bad +
                "elements.xml:3:5: The attribute type must be one of text, list, date, color, "
                "number, boolean, file, not \"colour\".");
  EXPECT_EQ(failure("elements.xml",
                    "<elements version=\"1.0\">\n"
                    "  <element name=\"e\">\n"
                    "    <attribute name=\"a\" type=\"list\" listType=\"values\"/>\n"
                    "  </element>\n"
                    "</elements>\n"),
            bad + "elements.xml:3:5: A list of listType values needs its values.");
  EXPECT_EQ(failure("elements.xml",
                    "<elements version=\"1.0\">\n"
                    "  <element name=\"e\">text</element>\n"
                    "</elements>\n"),
            bad + "elements.xml:2:21: The element <element> holds no text.");

  {
    const ConfigFolder folder;
    QFile::remove(folder.File("tags.xml"));
    EXPECT_EQ(folder.Failure(), QString::number(ErrorNumber::FileNotFound) + ": The file " +
                                    folder.File("tags.xml") + " does not exist.");
  }
  {
    const ConfigFolder folder;
    QFile::copy(folder.File("namespaces/sv.test.xml"), folder.File("namespaces/sv.copy.xml"));
    EXPECT_EQ(folder.Failure(), bad + folder.File("namespaces/sv.test.xml") +
                                    ": the definition set sv.test is defined in another file too.");
  }
}

TEST(ConfigTest, HostsFindTheDataAndInstallTheModel) {
  const QTemporaryDir temp;
  const ScopedEnv tmpdir("TMPDIR", temp.path());
  {
    const ScopedEnv unset("SCRIVARA_DATA_DIR", "");
    // A test program is not installed, so the source tree answers.
    EXPECT_EQ(AppDataFolder(), QDir::cleanPath(kDataFolder) + '/');
  }
  {
    const ScopedEnv chosen("SCRIVARA_DATA_DIR", temp.path() + "/elsewhere//");
    EXPECT_EQ(AppDataFolder(), temp.path() + "/elsewhere/");
  }

  const auto previous = InstallModel(nullptr);
  {
    const ScopedEnv chosen("SCRIVARA_DATA_DIR", temp.path() + "/nothing");
    EXPECT_THROW(InstallProjectModel(), Error);
    EXPECT_THROW(Model(), Error);  // nothing was installed
  }
  const auto config = InstallProjectModel(kDataFolder);
  EXPECT_EQ(Model().AppSettings(), config);
  // New comments find their definitions in the shipped tags.
  const auto comment = Model().NewTaggedComment();
  comment->setTagIdentifier("##RETURNS");
  ASSERT_NE(comment->TaggedCommentDef(), nullptr);
  EXPECT_EQ(comment->TaggedCommentDef()->Caption(), "Returns");
  InstallModel(previous);

  EXPECT_EQ(config->AppPath(), QDir::cleanPath(kDataFolder) + '/');
  EXPECT_TRUE(QFileInfo::exists(config->AppPath() + "icons/commenttypes/summary.png"));
  EXPECT_EQ(config->Templates()->Count(), 0);
  // One set of view options for every tree.
  config->ProjectViewSettings()->setShowPrivate(true);
  EXPECT_TRUE(config->ProjectViewSettings()->ShowPrivate());
  EXPECT_FALSE(config->ProjectViewSettings()->Grouped());

  const QString scratch = config->TempFolder();
  EXPECT_EQ(scratch, QDir::cleanPath(temp.path()) + QStringLiteral("/scrivara-%1/").arg(getuid()));
  const QFileInfo info(scratch);
  EXPECT_TRUE(info.isDir());
  EXPECT_EQ(info.permissions() & (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther |
                                  QFile::WriteOther | QFile::ReadGroup),
            QFile::ReadOwner | QFile::WriteOwner);
  EXPECT_EQ(config->TempFolder(), scratch);
}

}  // namespace
}  // namespace sv
