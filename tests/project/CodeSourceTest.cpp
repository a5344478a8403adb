#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "model/CodeItem.h"
#include "model/Error.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "project/doxygen/CodeSources.h"
#include "project/doxygen/DoxygenProvider.h"
#include "project/file/ProjectReader.h"
#include "project/file/ProjectWriter.h"
#include "project/model/ProjectModel.h"

namespace sv {
namespace {

const QString kSampleXml = QStringLiteral(SV_BINARY_DIR "/samples/geometry/xml");

void WriteFile(const QString& path, const QString& text) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(text.toUtf8());
}

QString ReadFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString ProjectText(const QString& xml,
                    const QString& root = QStringLiteral(" root=\"geometry\"")) {
  return QStringLiteral(
             "<ScrivaraProject version=\"1.0\">\n"
             "  <CodeSource provider=\"doxygen\" xml=\"%1\"%2/>\n"
             "  <Comments>\n"
             "    <Item name=\"geometry~geometry~shapes~Circle\">\n"
             "      <Comment id=\"c1\" tag=\"##SUMMARY\" xmlType=\"summary\">Round.</Comment>\n"
             "    </Item>\n"
             "  </Comments>\n"
             "</ScrivaraProject>\n")
      .arg(xml, root);
}

TEST(CodeSourceTest, AProjectOpensItsCodeAndItsItemsCarryTheProjectsComments) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("geo.svproj"));
  // The XML folder is taken relative to the project file.
  WriteFile(path, ProjectText(QDir(folder.path()).relativeFilePath(kSampleXml)));

  const auto project = ProjectReader::Load(path);
  EXPECT_FALSE(project->Dirty());
  const auto provider = project->GetNamespaceProvider(QStringLiteral("Doxygen"));
  ASSERT_NE(provider, nullptr);
  const auto circle = provider->GetItem(QStringLiteral("geometry~geometry~shapes~Circle"));
  ASSERT_NE(circle, nullptr);
  ASSERT_EQ(circle->TaggedComments()->Count(), 1);
  EXPECT_EQ(circle->TaggedComments()->Item(1)->Text(), QStringLiteral("Round."));

  // A comment typed on an item is the project's, and saving keeps the code source as it was.
  project->setLocale(1036);
  ProjectWriter::Save(*project, path);
  const QString saved = ReadFile(path);
  EXPECT_TRUE(saved.contains(QStringLiteral("<CodeSource provider=\"doxygen\" xml=\"") +
                             QDir(folder.path()).relativeFilePath(kSampleXml) +
                             QStringLiteral("\" root=\"geometry\"")))
      << saved.toStdString();
  EXPECT_EQ(ProjectReader::Load(path)->CodeSource(), project->CodeSource());
}

TEST(CodeSourceTest, ACodeSourceThatCannotBeReadRefusesTheLoadAndNamesTheIndex) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("geo.svproj"));
  WriteFile(path, ProjectText(QStringLiteral("missing/xml")));
  try {
    ProjectReader::Load(path);
    FAIL() << "a missing index loaded";
  } catch (const Error& e) {
    EXPECT_TRUE(e.Description().contains(folder.filePath(QStringLiteral("missing/xml/index.xml"))))
        << e.Description().toStdString();
  }

  WriteFile(path, QStringLiteral("<ScrivaraProject version=\"1.0\">\n"
                                 "  <CodeSource provider=\"ctags\" xml=\"x\"/>\n"
                                 "</ScrivaraProject>\n"));
  try {
    ProjectReader::Load(path);
    FAIL() << "an unknown provider loaded";
  } catch (const Error& e) {
    EXPECT_EQ(e.Description(), path + QStringLiteral(":2:3: The code provider ctags is unknown."));
  }
}

TEST(CodeSourceTest, AnXmlFolderOpensAsAProjectNamedForItsCode) {
  const auto project = CodeSources::OpenXmlFolder(kSampleXml);
  EXPECT_FALSE(project->Dirty());
  EXPECT_TRUE(project->FileName().isEmpty());
  const auto provider = std::dynamic_pointer_cast<DoxygenProvider>(
      project->GetNamespaceProvider(CodeSources::Doxygen()));
  ASSERT_NE(provider, nullptr);
  // Doxygen writes into <output>/xml: the output folder names the root.
  EXPECT_NE(provider->GetItem(QStringLiteral("geometry~geometry~Unit")), nullptr);
  const auto renamed = CodeSources::OpenXmlFolder(kSampleXml, QStringLiteral("geo"));
  EXPECT_NE(std::dynamic_pointer_cast<DoxygenProvider>(
                renamed->GetNamespaceProvider(CodeSources::Doxygen()))
                ->GetItem(QStringLiteral("geo~geometry~Unit")),
            nullptr);
}

}  // namespace
}  // namespace sv
