#include "StudioWindowFixture.h"

#include <QFile>
#include <QStringList>
#include <QTest>

#include "codetree/ProjectEditor.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "project/config/AppConfig.h"
#include "project/core/ProjectModelFactory.h"
#include "project/model/ProjectModel.h"
#include "studio/CommentEditorPane.h"
#include "studio/HtmlEditorRenderer.h"
#include "studio/MainWindow.h"
#include "studio/ProjectEditorView.h"
#include "studio/TreeRenderer.h"
#include "ui/TreeView.h"

namespace sv::test {

namespace {

std::shared_ptr<AppConfig> shippedConfig() {
  return std::make_shared<AppConfig>(QStringLiteral(SV_SOURCE_DIR "/data/"));
}

// The sample project as it ships, with its code source moved to this build's XML.
QByteArray sampleText() {
  QFile file(QStringLiteral(SV_SOURCE_DIR "/samples/geometry/geometry.svproj"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QByteArray text = file.readAll();
  const QByteArray shipped = "xml=\"../../build/release/samples/geometry/xml\"";
  EXPECT_TRUE(text.contains(shipped));
  text.replace(shipped, "xml=\"" SV_SAMPLE_XML_DIR "\"");
  return text;
}

TreeRenderer& treeOf(const MainWindow& window) {
  return *window.EditorView()->Tree();
}

}  // namespace

StudioWindowFixture::StudioWindowFixture()
    : config(shippedConfig()), mModel(std::make_shared<ProjectModelFactory>(config)) {
  TempSettings::Write(SamplePath(), sampleText());
}

StudioWindowFixture::~StudioWindowFixture() = default;

std::unique_ptr<MainWindow> StudioWindowFixture::NewWindow() const {
  auto window = std::make_unique<MainWindow>(config);
  window->resize(1000, 700);
  window->show();
  return window;
}

void StudioWindowFixture::OpenSample(MainWindow& window) const {
  ASSERT_TRUE(window.OpenPath(SamplePath())) << services.message->Last().toStdString();
}

void StudioWindowFixture::Settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

TreeNode* StudioWindowFixture::ClickNode(MainWindow& window, const QString& qualifiedName) {
  TreeRenderer& widget = treeOf(window);
  TreeView& tree = *widget.Tree();
  const QStringList parts = qualifiedName.split(QLatin1Char('~'));
  QString path;
  for (qsizetype index = 0; index + 1 < parts.size(); ++index) {
    path += (index == 0 ? QString() : QStringLiteral("~")) + parts[index];
    TreeNode* above = tree.Find(path);
    EXPECT_NE(above, nullptr) << path.toStdString();
    // What a click on the node's expander does.
    if (above && !above->Expanded()) widget.expandItem(widget.ItemFor(above));
  }
  TreeNode* node = tree.Find(qualifiedName);
  EXPECT_NE(node, nullptr) << qualifiedName.toStdString();
  if (!node) return nullptr;
  QTreeWidgetItem* item = widget.ItemFor(node);
  widget.scrollToItem(item);
  Settle();
  QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.visualItemRect(item).center());
  Settle();
  return node;
}

void StudioWindowFixture::TypeIntoPage(MainWindow& window, const QString& text) {
  auto* page = qobject_cast<HtmlEditorRenderer*>(window.EditorView()->Comments()->CurrentPage());
  ASSERT_NE(page, nullptr) << "the comment editor shows no HTML page";
  page->setFocus();
  page->moveCursor(QTextCursor::End);
  QTest::keyClicks(page, text);
  Settle();
}

std::string StudioWindowFixture::CommentsOf(const MainWindow& window,
                                            const QString& qualifiedName) {
  const auto comments = window.Project()->FindComments(qualifiedName);
  if (!comments) return "(none)";
  QStringList lines;
  for (const auto& comment : comments->UnDeletedTaggedComments())
    lines << comment->TagIdentifier() + QStringLiteral(": ") + comment->Text();
  return lines.join(QLatin1Char('\n')).toStdString();
}

bool StudioWindowFixture::ShownBold(const MainWindow& window, const QString& qualifiedName) {
  TreeRenderer& widget = treeOf(window);
  const TreeNode* node = widget.Tree()->Find(qualifiedName);
  return node && widget.ItemFor(node) && widget.ItemFor(node)->font(0).bold();
}

}  // namespace sv::test
