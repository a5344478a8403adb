#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <pugixml.hpp>

#include "ProjectDump.h"
#include "model/AdditionalFiles.h"
#include "model/ProjectVariables.h"
#include "model/TOCChoice.h"
#include "model/TaggedComments.h"
#include "project/core/ProjectComment.h"
#include "project/file/ProjectReader.h"
#include "project/file/ProjectWriter.h"
#include "project/model/ProjectDocType.h"
#include "project/model/ProjectDocTypes.h"
#include "project/model/ProjectModel.h"

namespace sv {
namespace {

QByteArray readFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& text) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(text);
}

std::shared_ptr<ProjectComment> addComment(ProjectModel& project, const QString& item,
                                           const QString& id, const QString& tag,
                                           const QString& text) {
  auto comment = std::make_shared<ProjectComment>(id);
  comment->setTagIdentifier(tag);
  comment->setText(text);
  project.CommentsFor(item)->Add(comment, id);
  return comment;
}

// A project with something in every part of the file.
std::shared_ptr<ProjectModel> sampleProject() {
  auto project = std::make_shared<ProjectModel>();
  project->setLocale(1031);
  project->setOutputFolder(QStringLiteral("out/html"));
  project->setExtractUntaggedEvents(true);
  project->setCommunityProjectKey(QStringLiteral("geo-42"));
  auto web = project->ProjectDocTypeList()->Add(QStringLiteral("html"), QStringLiteral("Web site"),
                                                QStringLiteral("Web"));
  web->setSelected(true);
  web->TOCChoice()->setSource(TOCChoice::SourceCustom);
  web->TOCChoice()->setDefinitionName(QStringLiteral("Mine"));
  project->ProjectDocTypeList()->Add(QStringLiteral("chm"), QStringLiteral("Help file"),
                                     QStringLiteral("Chm"));
  project->DocTypes()->setHelpTemplatesFrom(web);
  project->NamespaceExclusions()->Add(QStringLiteral("geo~detail"), QStringLiteral("geo~detail"));
  project->ModelCommentProfiles()->Add(QStringLiteral("Standard"), QStringLiteral("std"));
  project->ElementNamespaces()->Add(true, QStringLiteral("sv.net"));
  project->ElementNamespaces()->Add(false, QStringLiteral("sv.vbsource"));
  project->Variables()->Add(QStringLiteral("Copyright"))->setValue(QStringLiteral("(c) Ann"));
  project->Variables()->Add(QStringLiteral("Footer"));
  auto logo = std::make_shared<AdditionalFile>();
  logo->setFileName(QStringLiteral("logo.png"));
  logo->setSourceFolder(QStringLiteral("images"));
  project->AdditionalFiles()->Add(logo);
  auto filter = std::make_shared<ExcludeFilter>();
  filter->setPattern(QStringLiteral("*Impl"));
  project->ExcludeFilters()->Add(filter);
  auto ignored = std::make_shared<IgnoreRelationship>();
  ignored->setModuleName(QStringLiteral("Shapes"));
  ignored->setProcedureName(QStringLiteral("Dump"));
  project->IgnoreRelationships()->Add(ignored, QStringLiteral("Shapes.Dump"));
  project->DiagramStyle()->setBold(true);
  project->DiagramStyle()->setObjectFillColor(0x123456);
  project->CommentOptions()->setDrillCommentFiles(true);
  project->CommunityConnection()->setServerURL(QStringLiteral("https://docs.example.org"));
  auto summary = addComment(*project, QStringLiteral("geo~Circle"), QStringLiteral("c1"),
                            QStringLiteral("##SUMMARY"), QStringLiteral("A <b>round</b> shape."));
  summary->setXMLCommentType(QStringLiteral("summary"));
  auto param = addComment(*project, QStringLiteral("geo~Circle~setRadius"), QStringLiteral("c2"),
                          QStringLiteral("##PARAM"), QStringLiteral("  spaces & \"quotes\"\r\n"));
  param->setQualifier(QStringLiteral("radius"));
  param->setStatus(CommentStatus::Changed);
  param->setIsHidden(true);
  return project;
}

class ProjectFileTest : public ::testing::Test {
 protected:
  QString path(const QString& name) const { return mDir.filePath(name); }
  QStringList files() const {
    return QDir(mDir.path()).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
  }

  // The Error a call raises; fails the test when it raises none.
  template <class F>
  static Error errorOf(F&& call) {
    try {
      call();
    } catch (const Error& error) {
      return error;
    }
    ADD_FAILURE() << "no error raised";
    return Error(0, QString());
  }

 private:
  QTemporaryDir mDir;
};

TEST_F(ProjectFileTest, SavedProjectLoadsBackEqualAndNotDirty) {
  auto project = sampleProject();
  ASSERT_TRUE(project->Dirty());
  ProjectWriter::Save(*project, path(QStringLiteral("geo.svproj")));
  EXPECT_FALSE(project->Dirty());
  EXPECT_EQ(project->FileName(), path(QStringLiteral("geo.svproj")));

  auto loaded = ProjectReader::Load(path(QStringLiteral("geo.svproj")));
  EXPECT_FALSE(loaded->Dirty());
  EXPECT_EQ(test::DumpProject(*loaded), test::DumpProject(*project));
  EXPECT_EQ(test::DumpComments(*loaded),
            "geo~Circle\n"
            "  c1 ##SUMMARY [0  summary shown]: A <b>round</b> shape.\n"
            "geo~Circle~setRadius\n"
            "  c2 ##PARAM [1 radius  hidden]:   spaces & \"quotes\"\r\n");
  const QByteArray first = readFile(path(QStringLiteral("geo.svproj")));

  // Change a setting and a comment, save over the file, and read it again.
  loaded->setLocale(1036);
  loaded->FindComments(QStringLiteral("GEO~circle"))
      ->Item(QStringLiteral("c1"))
      ->setText(QStringLiteral("Round."));
  ASSERT_TRUE(loaded->Dirty());
  ProjectWriter::Save(*loaded);
  EXPECT_FALSE(loaded->Dirty());
  auto again = ProjectReader::Load(path(QStringLiteral("geo.svproj")));
  EXPECT_EQ(test::DumpProject(*again), test::DumpProject(*loaded));
  EXPECT_EQ(again->Locale(), 1036);
  EXPECT_EQ(again->FindComments(QStringLiteral("geo~Circle"))->Item(1)->Text(), "Round.");
  EXPECT_EQ(readFile(path(QStringLiteral("geo.svproj.bak"))), first);
  EXPECT_EQ(files(), QStringList({"geo.svproj", "geo.svproj.bak"}));
}

TEST_F(ProjectFileTest, FileIsReadableXmlWithAVersion) {
  ProjectModel project;
  addComment(project, QStringLiteral("geo~Circle"), QStringLiteral("c1"),
             QStringLiteral("##SUMMARY"), QStringLiteral("Round."));
  const QString text = QString::fromUtf8(ProjectWriter::ProjectText(project));
  EXPECT_TRUE(
      text.startsWith(QStringLiteral("<?xml version=\"1.0\"?>\n"
                                     "<ScrivaraProject version=\"1.0\">\n"
                                     "  <Settings>\n"
                                     "    <Setting name=\"RemoveAfterCompile\">false")))
      << qPrintable(text);
  EXPECT_TRUE(text.contains(QStringLiteral("collectionFillColor=\"0xE1FFFF\"")));
  EXPECT_TRUE(
      text.contains(QStringLiteral("  <Comments>\n"
                                   "    <Item name=\"geo~Circle\">\n"
                                   "      <Comment id=\"c1\" tag=\"##SUMMARY\">Round."
                                   "</Comment>\n"
                                   "    </Item>\n"
                                   "  </Comments>\n")))
      << qPrintable(text);
}

TEST_F(ProjectFileTest, UnknownElementsAndAttributesSurviveASave) {
  const QString file = path(QStringLiteral("future.svproj"));
  writeFile(
      file,
      "<?xml version=\"1.0\"?>\n"
      "<ScrivaraProject version=\"1.7\" flavour=\"future\">\n"
      "  <Settings>\n"
      "    <Setting name=\"Locale\">1031</Setting>\n"
      "    <Setting name=\"FutureSetting\">42</Setting>\n"
      "  </Settings>\n"
      "  <Signing key=\"abc\"><Certificate>xyz</Certificate></Signing>\n"
      "  <DocTypes>\n"
      "    <DocType key=\"html\" caption=\"Web\" template=\"Web\" selected=\"true\" "
      "colour=\"blue\"><TOC source=\"1\" definition=\"Mine\" depth=\"3\"/><Extra/></DocType>\n"
      "  </DocTypes>\n"
      "  <Comments>\n"
      "    <Item name=\"geo~Circle\" reviewed=\"yes\">\n"
      "      <Comment id=\"c1\" tag=\"##SUMMARY\" mood=\"happy\">Round.</Comment>\n"
      "    </Item>\n"
      "  </Comments>\n"
      "</ScrivaraProject>\n");
  auto project = ProjectReader::Load(file);
  EXPECT_EQ(project->Locale(), 1031);
  EXPECT_EQ(project->ProjectDocTypeList()->Find(QStringLiteral("html"))->TOCChoice()->Source(), 1);
  EXPECT_EQ(test::DumpComments(*project), "geo~Circle\n  c1 ##SUMMARY [0   shown]: Round.");

  project->setLocale(1036);
  ProjectWriter::Save(*project);
  const QByteArray saved = readFile(file);
  pugi::xml_document document;
  ASSERT_TRUE(document.load_buffer(saved.constData(), static_cast<std::size_t>(saved.size())));
  const auto value = [&document](const char* xpath) {
    const pugi::xpath_node found = document.select_node(xpath);
    if (found.attribute()) return QString::fromUtf8(found.attribute().value());
    return QString::fromUtf8(found.node().text().as_string());
  };
  EXPECT_EQ(value("/ScrivaraProject/@flavour"), "future");
  EXPECT_EQ(value("/ScrivaraProject/@version"), "1.0");
  EXPECT_EQ(value("/ScrivaraProject/Settings/Setting[@name='Locale']"), "1036");
  EXPECT_EQ(value("/ScrivaraProject/Settings/Setting[@name='FutureSetting']"), "42");
  EXPECT_EQ(value("/ScrivaraProject/Signing[@key='abc']/Certificate"), "xyz");
  EXPECT_EQ(value("/ScrivaraProject/DocTypes/DocType[@key='html']/@colour"), "blue");
  EXPECT_EQ(value("/ScrivaraProject/DocTypes/DocType[@key='html']/TOC/@depth"), "3");
  EXPECT_TRUE(document.select_node("/ScrivaraProject/DocTypes/DocType[@key='html']/Extra"));
  EXPECT_EQ(value("/ScrivaraProject/Comments/Item[@name='geo~Circle']/@reviewed"), "yes");
  EXPECT_EQ(value("/ScrivaraProject/Comments/Item/Comment[@id='c1']/@mood"), "happy");

  // A second round changes nothing more.
  ProjectWriter::Save(*ProjectReader::Load(file));
  EXPECT_EQ(readFile(file), saved);
}

TEST_F(ProjectFileTest, MalformedFileNamesLineAndColumnAndStaysAsItWas) {
  const QString file = path(QStringLiteral("bad.svproj"));
  const QByteArray broken =
      "<?xml version=\"1.0\"?>\n"
      "<ScrivaraProject version=\"1.0\">\n"
      "  <Settings>\n"
      "  </Setings>\n"
      "</ScrivaraProject>\n";
  writeFile(file, broken);
  Error error = errorOf([&] { ProjectReader::Load(file); });
  EXPECT_EQ(error.Number(), ErrorNumber::BadFileFormat);
  EXPECT_EQ(error.Description(), file + ":4:5: Start-end tags mismatch");
  EXPECT_EQ(readFile(file), broken);

  writeFile(file,
            "<ScrivaraProject version=\"1.0\">\n"
            "  <DocTypes>\n"
            "    <DocType key=\"html\" selected=\"maybe\"/>\n"
            "  </DocTypes>\n"
            "</ScrivaraProject>\n");
  error = errorOf([&] { ProjectReader::Load(file); });
  EXPECT_EQ(error.Description(),
            file + ":3:5: The attribute selected must be true or false, not \"maybe\".");

  writeFile(file,
            "<ScrivaraProject version=\"1.0\">\n"
            "  <Settings><Setting name=\"Locale\">German</Setting></Settings>\n"
            "</ScrivaraProject>\n");
  error = errorOf([&] { ProjectReader::Load(file); });
  EXPECT_EQ(error.Description(), file + ":2:13: The setting Locale cannot be \"German\".");

  writeFile(file, "<ScrivaraProject version=\"2.0\"/>\n");
  error = errorOf([&] { ProjectReader::Load(file); });
  EXPECT_EQ(error.Description(),
            file +
                ":1:1: The file was written by a newer version of Scrivara (format 2.0); "
                "this version reads format 1.x only.");

  writeFile(file, "<Project version=\"1.0\"/>\n");
  error = errorOf([&] { ProjectReader::Load(file); });
  EXPECT_EQ(error.Description(), file + ":1:1: The root element must be <ScrivaraProject>.");

  error = errorOf([&] { ProjectReader::Load(path(QStringLiteral("missing.svproj"))); });
  EXPECT_EQ(error.Number(), ErrorNumber::FileNotFound);
}

TEST_F(ProjectFileTest, FailedSaveLeavesTheOldFileWhole) {
  const QString file = path(QStringLiteral("geo.svproj"));
  auto project = sampleProject();
  ProjectWriter::Save(*project, file);
  const QByteArray old = readFile(file);

  project->setLocale(1036);
  for (const auto step :
       {AtomicFile::Step::Write, AtomicFile::Step::Backup, AtomicFile::Step::Commit}) {
    const Error error = errorOf([&] {
      ProjectWriter::Save(*project, {}, [step](AtomicFile::Step at) { return at == step; });
    });
    EXPECT_TRUE(error.Description().contains(QStringLiteral("could not be saved")))
        << qPrintable(error.Description());
    EXPECT_TRUE(error.Description().endsWith(QStringLiteral("The previous version is unchanged.")));
    EXPECT_EQ(readFile(file), old);
    EXPECT_TRUE(project->Dirty());
    // Only a failed rename comes after the backup, which then holds the old file too.
    EXPECT_EQ(files().filter(QStringLiteral("geo.svproj.")),
              QStringList(step == AtomicFile::Step::Commit ? QStringList{"geo.svproj.bak"}
                                                           : QStringList{}))
        << "no temporary file left";
  }

  // A real failure: the backup's place is taken by a folder.
  QFile::remove(file + QStringLiteral(".bak"));
  ASSERT_TRUE(QDir(path(QString())).mkpath(QStringLiteral("geo.svproj.bak/keep")));
  const Error error = errorOf([&] { ProjectWriter::Save(*project); });
  EXPECT_TRUE(error.Description().contains(QStringLiteral("geo.svproj.bak")))
      << qPrintable(error.Description());
  EXPECT_EQ(readFile(file), old);
  EXPECT_EQ(ProjectReader::Load(file)->Locale(), 1031);
}

TEST_F(ProjectFileTest, ContentFilesHoldTheCommentsOfTheirRoot) {
  auto project = sampleProject();
  project->AddContentFile(QStringLiteral("circle.svc"), QStringLiteral("geo~Circle"),
                          project->ProjectDocTypeList()->Find(QStringLiteral("html")));
  addComment(*project, QStringLiteral("geo~Square"), QStringLiteral("s1"),
             QStringLiteral("##SUMMARY"), QStringLiteral("Four sides."));
  ProjectWriter::Save(*project, path(QStringLiteral("geo.svproj")));

  const QString projectText = QString::fromUtf8(readFile(path(QStringLiteral("geo.svproj"))));
  const QString contentText = QString::fromUtf8(readFile(path(QStringLiteral("circle.svc"))));
  EXPECT_TRUE(projectText.contains(
      QStringLiteral("<ContentFile root=\"geo~Circle\" file=\"circle.svc\" docType=\"html\" />")));
  EXPECT_TRUE(projectText.contains(QStringLiteral("geo~Square")));
  EXPECT_FALSE(projectText.contains(QStringLiteral("Item name=\"geo~Circle")));
  EXPECT_TRUE(contentText.startsWith(
      QStringLiteral("<?xml version=\"1.0\"?>\n<ScrivaraContent version=\"1.0\" "
                     "root=\"geo~Circle\">\n  <Item name=\"geo~Circle\">")))
      << qPrintable(contentText);
  EXPECT_TRUE(contentText.contains(QStringLiteral("<Item name=\"geo~Circle~setRadius\">")));

  auto loaded = ProjectReader::Load(path(QStringLiteral("geo.svproj")));
  EXPECT_EQ(test::DumpProject(*loaded), test::DumpProject(*project));

  // A content file not written yet holds nothing; a broken one is named.
  ASSERT_TRUE(QFile::remove(path(QStringLiteral("circle.svc"))));
  EXPECT_EQ(test::DumpComments(*ProjectReader::Load(path(QStringLiteral("geo.svproj")))),
            "geo~Square\n  s1 ##SUMMARY [0   shown]: Four sides.");
  writeFile(path(QStringLiteral("circle.svc")), "<ScrivaraContent version=\"1.0\">\n<Item>");
  const Error error = errorOf([&] { ProjectReader::Load(path(QStringLiteral("geo.svproj"))); });
  EXPECT_TRUE(error.Description().startsWith(path(QStringLiteral("circle.svc")) + ":2:"))
      << qPrintable(error.Description());
}

TEST_F(ProjectFileTest, SavePurgesDeletedComments) {
  auto project = sampleProject();
  project->FindComments(QStringLiteral("geo~Circle"))
      ->Item(QStringLiteral("c1"))
      ->setStatus(CommentStatus::Deleted);
  ProjectWriter::Save(*project, path(QStringLiteral("geo.svproj")));
  EXPECT_EQ(project->FindComments(QStringLiteral("geo~Circle"))->Count(), 0);
  EXPECT_EQ(test::DumpComments(*ProjectReader::Load(path(QStringLiteral("geo.svproj")))),
            "geo~Circle~setRadius\n  c2 ##PARAM [1 radius  hidden]:   spaces & \"quotes\"\r\n");

  ProjectModel unnamed;
  EXPECT_EQ(errorOf([&] { ProjectWriter::Save(unnamed); }).Number(), ErrorNumber::InvalidCall);
}

}  // namespace
}  // namespace sv
