#include "studio/Screenshot.h"

#include <gtest/gtest.h>

#include <QImage>

#include "StudioWindowFixture.h"
#include "studio/MainWindow.h"
#include "studio/StudioOptions.h"

namespace sv {
namespace {

using test::StudioWindowFixture;

TEST(StudioOptionsTest, TheCommandLineNamesAProjectAndAScreenshot) {
  auto parse = [](const QStringList& arguments) {
    QString error;
    const StudioOptions options =
        StudioOptions::Parse(QStringList{QStringLiteral("scrivara-studio")} + arguments, &error);
    if (!error.isEmpty()) return QStringLiteral("error: ") + error;
    return QStringLiteral("path=%1 screenshot=%2 select=%3")
        .arg(options.path, options.screenshot, options.select);
  };
  EXPECT_EQ(parse({}), "path= screenshot= select=");
  EXPECT_EQ(parse({"p.svproj"}), "path=p.svproj screenshot= select=");
  EXPECT_EQ(parse({"--screenshot", "out.png", "--select", "a~b", "p.svproj"}),
            "path=p.svproj screenshot=out.png select=a~b");
  EXPECT_EQ(parse({"--screenshot"}), "error: --screenshot needs a value");
  EXPECT_EQ(parse({"--select", "a~b"}), "error: --select goes with --screenshot");
  EXPECT_EQ(parse({"--verbose"}), "error: unknown option --verbose");
  EXPECT_EQ(parse({"a.svproj", "b.svproj"}), "error: one project at a time: a.svproj and b.svproj");
}

class ScreenshotTest : public StudioWindowFixture {};

TEST_F(ScreenshotTest, TheWindowIsDrawnAtTheScreenshotSizeIntoAPng) {
  auto window = NewWindow();
  OpenSample(*window);
  const QString file = Folder() + QStringLiteral("/shots/start.png");
  EXPECT_EQ(Screenshot::Take(*window, file), QString());
  const QImage picture(file);
  ASSERT_FALSE(picture.isNull());
  EXPECT_EQ(picture.size() / picture.devicePixelRatio(),
            QSize(Screenshot::Width, Screenshot::Height));
  // Not a blank picture: the tree and the bar are drawn in more than one colour.
  EXPECT_NE(picture.pixelColor(5, 5), picture.pixelColor(60, 60));

  // A folder path that runs through a file cannot be written.
  EXPECT_NE(Screenshot::Take(*window, file + QStringLiteral("/into/a/file.png")), QString());
}

}  // namespace
}  // namespace sv
