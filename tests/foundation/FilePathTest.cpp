#include "foundation/FilePath.h"

#include "model/Error.h"
#include "support/TempSettings.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QStringList>
#include <QTemporaryDir>

namespace sv {
namespace {

// "Folder | FileName | BaseName | Extension" of a path.
QString Parts(const FilePath& path) {
  return QStringList{path.Folder(), path.FileName(), path.BaseName(), path.Extension()}.join(" | ");
}

TEST(FilePathTest, AFullPathAnswersItsParts) {
  EXPECT_EQ(Parts(FilePath("/home/ann/help/guide.tar.gz")),
            "/home/ann/help/ | guide.tar.gz | guide.tar | gz");
  EXPECT_EQ(Parts(FilePath("/home/ann/.profile")), "/home/ann/ | .profile | .profile | ");
  EXPECT_EQ(Parts(FilePath("/home/ann/Makefile")), "/home/ann/ | Makefile | Makefile | ");
  EXPECT_EQ(Parts(FilePath("/home/ann/help/")), "/home/ann/help/ |  |  | ");
  EXPECT_EQ(Parts(FilePath("guide.chm")), " | guide.chm | guide | chm");
  EXPECT_EQ(Parts(FilePath("/guide.chm")), "/ | guide.chm | guide | chm");
  EXPECT_EQ(Parts(FilePath("")), " |  |  | ");
  EXPECT_EQ(FilePath("/home/ann/help/guide.chm").FullPath(), "/home/ann/help/guide.chm");
  // A backslash is an ordinary character of a name here.
  EXPECT_EQ(Parts(FilePath("/tmp/a\\b.txt")), "/tmp/ | a\\b.txt | a\\b | txt");
}

TEST(FilePathTest, FoldersTakeTheirNormalForm) {
  FilePath path;
  const QStringList given{"/home/ann/help",
                          "/home//ann/./help/",
                          "/home/ann/x/../help",
                          "help/../out",
                          "~/help",
                          "~",
                          "/",
                          ""};
  QStringList normal;
  for (const QString& folder : given) {
    path.setFolder(folder);
    normal << path.Folder();
  }
  const QString home = QDir::homePath();
  EXPECT_EQ(normal, (QStringList{"/home/ann/help/", "/home/ann/help/", "/home/ann/help/", "out/",
                                 home + "/help/", home + "/", "/", ""}));

  // A path that ends in a dot step names a folder.
  EXPECT_EQ(Parts(FilePath("/home/ann/help/..")), "/home/ann/ |  |  | ");
  EXPECT_EQ(FilePath("~/help/guide.chm").FullPath(), home + "/help/guide.chm");
}

TEST(FilePathTest, FolderAndExtensionChangeAlone) {
  FilePath path("/home/ann/help/guide.chm");
  path.setExtension("hxs");
  EXPECT_EQ(path.FullPath(), "/home/ann/help/guide.hxs");
  path.setExtension(".chm");
  EXPECT_EQ(path.FullPath(), "/home/ann/help/guide.chm");
  path.setExtension("");
  EXPECT_EQ(path.FullPath(), "/home/ann/help/guide");
  path.setExtension("chm");
  path.setFolder("/srv/out");
  EXPECT_EQ(path.FullPath(), "/srv/out/guide.chm");

  FilePath hidden("/home/ann/.config");
  hidden.setExtension("bak");
  EXPECT_EQ(hidden.FileName(), ".config.bak");
}

TEST(FilePathTest, FoldersAreCreatedOnDemand) {
  QTemporaryDir temp;
  ASSERT_TRUE(temp.isValid());
  FilePath path(temp.filePath("out/html/index.htm"));
  EXPECT_FALSE(path.FolderExists());
  path.CreateFolder();
  EXPECT_TRUE(path.FolderExists());
  EXPECT_TRUE(QFileInfo(temp.filePath("out/html")).isDir());
  path.CreateFolder();  // already there: nothing to do
  EXPECT_FALSE(FilePath("index.htm").FolderExists());

  test::TempSettings::Write(temp.filePath("plain-file"), "x");
  FilePath blocked(temp.filePath("plain-file/sub/index.htm"));
  EXPECT_FALSE(blocked.FolderExists());
  try {
    blocked.CreateFolder();
    FAIL() << "a folder under a file was created";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::PathNotFound);
    EXPECT_EQ(error.Description(), "Path not found: " + temp.filePath("plain-file/sub/"));
  }
}

}  // namespace
}  // namespace sv
