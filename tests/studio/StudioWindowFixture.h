#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QTemporaryDir>
#include <memory>
#include <string>

#include "StudioTestKit.h"
#include "support/FakeServices.h"
#include "support/ScopedModel.h"
#include "support/TempSettings.h"

namespace sv {
class AppConfig;
class MainWindow;
class TreeNode;
}  // namespace sv

namespace sv::test {

// A person's session with the studio: settings in a temporary folder, scripted boxes and
// pickers, our model over the shipped configuration, and a copy of the bundled sample project
// whose code source points at the XML this build made of the sample.
class StudioWindowFixture : public ::testing::Test {
 protected:
  StudioWindowFixture();
  ~StudioWindowFixture() override;

  // A new window, shown, with nothing open.
  std::unique_ptr<MainWindow> NewWindow() const;
  // Opens the sample's path in the window; a failure fails the test.
  void OpenSample(MainWindow& window) const;

  // Lets the event loop run, as it does between two things a person does: deferred layouts
  // and deletions happen.
  static void Settle();
  // Opens the tree down to the node of a qualified name and clicks it, all through the tree's
  // widget; answers the node.
  static TreeNode* ClickNode(MainWindow& window, const QString& qualifiedName);
  // Types into the page the comment editor shows, which must be an HTML editor.
  static void TypeIntoPage(MainWindow& window, const QString& text);
  // The comments the open project holds for an item, one "TAG: text" per line.
  static std::string CommentsOf(const MainWindow& window, const QString& qualifiedName);
  // Whether the tree widget draws the node of a qualified name in bold.
  static bool ShownBold(const MainWindow& window, const QString& qualifiedName);

  QString SamplePath() const { return mFolder.filePath(QStringLiteral("geometry.svproj")); }
  QString Folder() const { return mFolder.path(); }

  TempSettings settings;
  FakeServices services;
  std::shared_ptr<AppConfig> config;

 private:
  ScopedModel mModel;
  QTemporaryDir mFolder;
};

}  // namespace sv::test
