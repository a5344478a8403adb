#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QTextStream>

#include "cli/Cli.h"

namespace sv {
namespace {

const QString kSampleXml = QStringLiteral(SV_BINARY_DIR "/samples/geometry/xml");

// What one run of the tool printed, and its exit code.
struct Outcome {
  int code = 0;
  QString out;
  QString err;
};

Outcome RunTool(const QStringList& arguments) {
  Outcome run;
  QTextStream out(&run.out);
  QTextStream err(&run.err);
  run.code = RunCli(arguments, out, err, false);
  return run;
}

// The bundled sample's project file, pointed at the sample XML of this build.
class SampleProject {
 public:
  SampleProject() {
    QFile source(QStringLiteral(SV_SOURCE_DIR "/samples/geometry/geometry.svproj"));
    EXPECT_TRUE(source.open(QIODevice::ReadOnly));
    QString text = QString::fromUtf8(source.readAll());
    text.replace(QStringLiteral("../../build/release/samples/geometry/xml"), kSampleXml);
    Write(text);
  }
  void Write(const QString& text) const {
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text.toUtf8());
  }
  QString Path() const { return mFolder.filePath(QStringLiteral("geometry.svproj")); }

 private:
  QTemporaryDir mFolder;
};

TEST(CliTest, TreePrintsTheSampleAsTheControlBuildsItWithCommentedItemsMarked) {
  SampleProject sample;
  const Outcome run = RunTool({"tree", sample.Path(), "--depth", "4"});
  ASSERT_EQ(run.code, 0) << run.err.toStdString();
  const QString& out = run.out;
  // Root, namespaces, classes and members, one a line, indented by depth.
  EXPECT_TRUE(out.startsWith(QStringLiteral("- geometry\n"))) << out.toStdString();
  EXPECT_TRUE(out.contains(QStringLiteral("\n  - *geometry\n")));
  EXPECT_TRUE(out.contains(QStringLiteral("\n    - shapes\n")));
  EXPECT_TRUE(out.contains(QStringLiteral("\n      - *Circle\n")));
  EXPECT_TRUE(out.contains(QStringLiteral("\n      - Polygon\n")));
  // Circle::area carries a comment in the project, Circle::perimeter none.
  EXPECT_TRUE(out.contains(QStringLiteral("\n        *area\n")));
  EXPECT_TRUE(out.contains(QStringLiteral("\n        perimeter\n")));
  // Private members stay out of the tree unless asked for.
  const Outcome withPrivate = RunTool({"tree", sample.Path(), "--depth", "4", "--private"});
  ASSERT_EQ(withPrivate.code, 0);
  EXPECT_GT(withPrivate.out.count(QLatin1Char('\n')), out.count(QLatin1Char('\n')));

  // The depth limits what is opened.
  const Outcome shallow = RunTool({"tree", sample.Path(), "--depth", "1"});
  EXPECT_FALSE(shallow.out.contains(QStringLiteral("shapes")));
  EXPECT_TRUE(shallow.out.contains(QStringLiteral("+ *geometry")));
}

TEST(CliTest, SelectAndFindOpenOnlyThePathToTheirItem) {
  SampleProject sample;
  const Outcome select = RunTool(
      {"tree", sample.Path(), "--depth", "0", "--select", "geometry~geometry~shapes~Circle~area"});
  ASSERT_EQ(select.code, 0) << select.err.toStdString();
  EXPECT_TRUE(select.out.contains(QStringLiteral("*area")));
  EXPECT_FALSE(select.out.contains(QStringLiteral("SvgWriter")));
  EXPECT_TRUE(
      select.out.endsWith(QStringLiteral("selected: geometry~geometry~shapes~Circle~area\n")))
      << select.out.toStdString();

  const Outcome find = RunTool({"tree", sample.Path(), "--depth", "0", "--find", "toText"});
  ASSERT_EQ(find.code, 0) << find.err.toStdString();
  EXPECT_TRUE(find.out.contains(QStringLiteral("selected: geometry~geometry~io~toText")))
      << find.out.toStdString();

  const Outcome missing =
      RunTool({"tree", sample.Path(), "--select", "geometry~geometry~NoSuchThing"});
  EXPECT_EQ(missing.code, 1);
  EXPECT_TRUE(missing.err.contains(QStringLiteral("no item geometry~geometry~NoSuchThing")));
}

TEST(CliTest, InfoPrintsSettingsRecordsAndCodeCounts) {
  SampleProject sample;
  const Outcome run = RunTool({"info", sample.Path()});
  ASSERT_EQ(run.code, 0) << run.err.toStdString();
  EXPECT_TRUE(run.out.contains(QStringLiteral("Project = ") + sample.Path()));
  EXPECT_TRUE(run.out.contains(QStringLiteral("  OutputLanguage = English\n")));
  EXPECT_TRUE(run.out.contains(QStringLiteral("  Document types = 1\n")));
  EXPECT_TRUE(run.out.contains(QStringLiteral("  Commented items = 6\n")));
  EXPECT_TRUE(run.out.contains(QStringLiteral("  Comments = 7\n")));
  EXPECT_TRUE(run.out.contains(QStringLiteral("  namespace = 3\n")));
  EXPECT_TRUE(run.out.contains(QStringLiteral("  Root = geometry\n")));
}

TEST(CliTest, BadInputGoesToTheErrorStreamWithItsPlaceAndANonZeroCode) {
  const Outcome noArguments = RunTool({});
  EXPECT_EQ(noArguments.code, 2);
  EXPECT_TRUE(noArguments.err.contains(QStringLiteral("no command given")));
  EXPECT_TRUE(noArguments.err.contains(QStringLiteral("Usage: scrivara")));
  EXPECT_EQ(RunTool({"tree", "a.svproj", "--depth", "x"}).code, 2);
  EXPECT_EQ(RunTool({"tree", "a.svproj", "--doxygen-xml", "x"}).code, 2);
  EXPECT_EQ(RunTool({"frobnicate", "a.svproj"}).code, 2);

  const Outcome missingFile = RunTool({"tree", "/no/such/project.svproj"});
  EXPECT_EQ(missingFile.code, 1);
  EXPECT_TRUE(missingFile.err.contains(QStringLiteral("/no/such/project.svproj")));
  EXPECT_TRUE(missingFile.out.isEmpty());

  SampleProject sample;
  sample.Write(
      QStringLiteral("<ScrivaraProject version=\"1.0\">\n  <Settings>\n</ScrivaraProject>\n"));
  const Outcome malformed = RunTool({"info", sample.Path()});
  EXPECT_EQ(malformed.code, 1);
  EXPECT_TRUE(malformed.err.contains(sample.Path())) << malformed.err.toStdString();
  EXPECT_TRUE(malformed.err.contains(QStringLiteral("geometry.svproj:3:")))
      << malformed.err.toStdString();

  const Outcome noIndex = RunTool({"tree", "--doxygen-xml", "/no/such/xml"});
  EXPECT_EQ(noIndex.code, 1);
  EXPECT_TRUE(noIndex.err.contains(QStringLiteral("/no/such/xml/index.xml")))
      << noIndex.err.toStdString();
}

// The installed tool, on the Doxygen XML of a third-party header it has never seen.
TEST(CliTest, TheToolReadsTheDoxygenXmlOfARealLibrary) {
  QProcess tool;
  tool.start(QStringLiteral(SV_SCRIVARA),
             {"tree", "--doxygen-xml", QStringLiteral(SV_PUGIXML_XML), "--depth", "3", "--select",
              "pugixml~pugi~xml_document~load_string"});
  ASSERT_TRUE(tool.waitForFinished(60000));
  const QString out = QString::fromUtf8(tool.readAllStandardOutput());
  const QString err = QString::fromUtf8(tool.readAllStandardError());
  ASSERT_EQ(tool.exitCode(), 0) << err.toStdString();
  EXPECT_TRUE(out.startsWith(QStringLiteral("- pugixml\n"))) << out.left(400).toStdString();
  EXPECT_TRUE(out.contains(QStringLiteral("  - pugi\n")));
  EXPECT_TRUE(out.contains(QStringLiteral("xml_node")));
  EXPECT_TRUE(out.contains(QStringLiteral("selected: pugixml~pugi~xml_document~load_string")))
      << out.right(400).toStdString();
}

}  // namespace
}  // namespace sv
