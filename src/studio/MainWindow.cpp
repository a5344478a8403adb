#include "studio/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QStackedWidget>

#include "codetree/ProjectEditor.h"
#include "codetree/ProjectView.h"
#include "comments/CommentEditor.h"
#include "foundation/MessageBox.h"
#include "foundation/Services.h"
#include "foundation/modProjectView.h"
#include "project/config/AppConfig.h"
#include "project/model/ProjectModel.h"
#include "studio/CodeItemIcons.h"
#include "studio/ProjectEditorView.h"
#include "studio/RecentFiles.h"
#include "studio/RendererGallery.h"
#include "ui/TreeView.h"

namespace sv {

namespace {
const QString kWindowPositions = QStringLiteral("WindowPositions");
const QString kGeometryValue = QStringLiteral("StudioMainWindow");
}  // namespace

MainWindow::MainWindow(std::shared_ptr<AppConfig> config, QWidget* parent)
    : QMainWindow(parent),
      mConfig(std::move(config)),
      mCentral(new QStackedWidget(this)),
      mWelcome(new QLabel(this)) {
  mWelcome->setText(
      tr("<p>Open a documentation project with <b>File &gt; Open Project</b> (Ctrl+O),<br>"
         "or a folder of Doxygen XML with <b>File &gt; Open Doxygen XML Folder</b>.</p>"));
  mWelcome->setAlignment(Qt::AlignCenter);
  mCentral->addWidget(mWelcome);
  setCentralWidget(mCentral);
  createMenus();
  restoreGeometrySetting();
  updateTitle();
  updateActions();
}

MainWindow::~MainWindow() {
  closeProject();
}

void MainWindow::createMenus() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  QAction* open = file->addAction(tr("&Open Project..."), this, &MainWindow::openFileChosen);
  open->setShortcut(QKeySequence::Open);
  QAction* folder =
      file->addAction(tr("Open Doxygen &XML Folder..."), this, &MainWindow::openFolderChosen);
  folder->setShortcut(QKeySequence(tr("Ctrl+Shift+O")));
  mRecent = file->addMenu(tr("Open &Recent"));
  connect(mRecent, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
  file->addSeparator();
  mSave = file->addAction(tr("&Save"), this, &MainWindow::Save);
  mSave->setShortcut(QKeySequence::Save);
  mSaveAs = file->addAction(tr("Save &As..."), this, &MainWindow::SaveAs);
  mSaveAs->setShortcut(QKeySequence(tr("Ctrl+Shift+S")));
  file->addSeparator();
  QAction* quit = file->addAction(tr("&Quit"), this, &QWidget::close);
  quit->setShortcut(QKeySequence::Quit);

  QMenu* go = menuBar()->addMenu(tr("&Go"));
  QAction* next = go->addAction(tr("&Next Uncommented Item"), this, [this] {
    if (mEditor) mEditor->NextItem(true);
  });
  next->setShortcut(QKeySequence(tr("F8")));
  QAction* previous = go->addAction(tr("&Previous Uncommented Item"), this, [this] {
    if (mEditor) mEditor->PreviousItem(true);
  });
  previous->setShortcut(QKeySequence(tr("Shift+F8")));

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  help->addAction(tr("Widget &Gallery"), this, [this] {
    auto* gallery = new RendererGallery(this);
    gallery->setWindowFlag(Qt::Window);
    gallery->setAttribute(Qt::WA_DeleteOnClose);
    gallery->show();
  });
  help->addAction(tr("&About Scrivara Studio"), this, [this] {
    Services::Message().ShowMessage(
        tr("Scrivara Studio %1\nWrites the comments of a code base's documentation.")
            .arg(QApplication::applicationVersion()),
        Mb::OK | Mb::Information, QApplication::applicationName());
  });
}

void MainWindow::fillRecentMenu() {
  mRecent->clear();
  const QStringList paths = RecentFiles::List();
  for (const QString& path : paths)
    mRecent->addAction(path, this, [this, path] { OpenPath(path); });
  if (paths.isEmpty()) mRecent->addAction(tr("(none)"))->setEnabled(false);
}

QString MainWindow::displayName() const {
  if (!mProject) return {};
  if (!mProject->FileName().isEmpty()) return QFileInfo(mProject->FileName()).fileName();
  return tr("%1 (not saved)").arg(mCodeSource.root);
}

bool MainWindow::IsDirty() const {
  if (!mProject) return false;
  return mCommentsChanged || mProject->Dirty() ||
         (mEditor && mEditor->CommentEditorControl()->Dirty());
}

void MainWindow::commentsChanged() {
  mCommentsChanged = true;
  updateTitle();
}

void MainWindow::updateTitle() {
  const QString application = QApplication::applicationName();
  if (!mProject) {
    setWindowTitle(application);
    return;
  }
  setWindowTitle(displayName() + (IsDirty() ? QStringLiteral("*") : QString()) +
                 QStringLiteral(" - ") + application);
}

void MainWindow::updateActions() {
  mSave->setEnabled(mProject != nullptr);
  mSaveAs->setEnabled(mProject != nullptr);
}

void MainWindow::showProject(std::shared_ptr<ProjectModel> project,
                             const ProjectCodeSource& codeSource) {
  closeProject();
  mProject = std::move(project);
  mCodeSource = codeSource;
  mEditor = std::make_unique<ProjectEditor>();
  mEditor->setAppName(QLatin1String(AppName));
  mEditor->ReloadSettings();
  mEditor->setSVProject(mProject);
  const auto definitions = mConfig->NamespaceDefs(QStringLiteral("sv.cpp"));
  CodeItemIcons::Install(*mEditor->ProjectViewControl()->ImageList(), *definitions);
  mEditor->LoadFromNamespaceDefs(definitions, QString());
  // A project of one root opens on its first level, as a person would open it first.
  TreeView* tree = mEditor->ProjectViewControl()->tvwProject();
  if (tree->TopNodes().Count() == 1 && !tree->FirstNode()->Expanded())
    tree->userExpand(tree->FirstNode());
  mView = new ProjectEditorView(mEditor.get(), mCentral);
  mCentral->addWidget(mView);
  mCentral->setCurrentWidget(mView);

  // Whatever may leave something unsaved passes one of these.
  ProjectEditor* editor = mEditor.get();
  connect(editor, &ProjectEditor::TaggedCommentAdded, this, &MainWindow::commentsChanged);
  connect(editor, &ProjectEditor::TaggedCommentDeleted, this, &MainWindow::commentsChanged);
  connect(editor, &ProjectEditor::TaggedCommentChanged, this, &MainWindow::commentsChanged);
  connect(editor->CommentEditorControl(), &CommentEditor::DirtyStateChanged, this,
          &MainWindow::updateTitle);
  connect(editor->ProjectViewControl(), &ProjectView::AfterCommand, this, &MainWindow::updateTitle);
  connect(editor->ProjectViewControl(), &ProjectView::NodeClick, this, &MainWindow::updateTitle);
  updateTitle();
  updateActions();
}

void MainWindow::closeProject() {
  // The view goes first: it draws the editor's state objects.
  if (mView) {
    mCentral->removeWidget(mView);
    delete mView;
    mView = nullptr;
  }
  if (mEditor) {
    mEditor->Terminate();
    mEditor.reset();
  }
  mProject.reset();
  mCodeSource = {};
  mCommentsChanged = false;
  mCentral->setCurrentWidget(mWelcome);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!MaybeSave()) {
    event->ignore();
    return;
  }
  storeGeometrySetting();
  closeProject();
  updateTitle();
  event->accept();
}

void MainWindow::restoreGeometrySetting() {
  const QString stored =
      GetAppValue(kGeometryValue, QString(), Conversion::Text, kWindowPositions).toString();
  if (stored.isEmpty() || !restoreGeometry(QByteArray::fromBase64(stored.toLatin1())))
    resize(1100, 700);
}

void MainWindow::storeGeometrySetting() {
  SetAppValue(kGeometryValue, QString::fromLatin1(saveGeometry().toBase64()), kWindowPositions);
}

}  // namespace sv
