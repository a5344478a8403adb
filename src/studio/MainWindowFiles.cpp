// Opening, saving and the question before anything unsaved would be dropped.
#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include "codetree/ProjectEditor.h"
#include "comments/CommentEditor.h"
#include "foundation/MessageBox.h"
#include "foundation/Services.h"
#include "model/Error.h"
#include "project/file/ProjectWriter.h"
#include "project/model/ProjectModel.h"
#include "studio/MainWindow.h"
#include "studio/ProjectLoader.h"
#include "studio/RecentFiles.h"

namespace sv {

namespace {
const QString kProjectFilter = QStringLiteral("Scrivara projects|*.svproj|All files|*");
const QString kProjectSuffix = QStringLiteral("svproj");
}  // namespace

void MainWindow::openFileChosen() {
  const QString start = mProject && !mProject->FileName().isEmpty()
                            ? QFileInfo(mProject->FileName()).absolutePath()
                            : QDir::homePath();
  const QString path =
      Services::Picker().PickOpenFile(tr("Open Project"), kProjectFilter, start, this);
  if (!path.isEmpty()) OpenPath(path);
}

void MainWindow::openFolderChosen() {
  const QString path =
      Services::Picker().PickFolder(tr("Open Doxygen XML Folder"), QDir::homePath(), this);
  if (!path.isEmpty()) OpenPath(path);
}

bool MainWindow::OpenPath(const QString& path) {
  if (!MaybeSave()) return false;
  LoadedProject loaded = ProjectLoader::LoadWithProgress(path, this);
  if (!loaded.project) {
    Services::Message().ShowMessage(
        tr("Could not open %1.\n\n%2").arg(QDir::toNativeSeparators(path), loaded.error),
        Mb::OK | Mb::Critical, QApplication::applicationName());
    return false;
  }
  const ProjectCodeSource codeSource = ProjectCodeSource::Of(*loaded.project, path);
  showProject(std::move(loaded.project), codeSource);
  RecentFiles::Add(path);
  return true;
}

bool MainWindow::Save() {
  if (!mProject) return false;
  if (mProject->FileName().isEmpty()) return SaveAs();
  return saveTo(mProject->FileName());
}

bool MainWindow::SaveAs() {
  if (!mProject) return false;
  // A new project file goes beside the folder of its XML by default.
  const QString suggested =
      !mProject->FileName().isEmpty() ? mProject->FileName()
      : mCodeSource.xmlFolder.isEmpty()
          ? QDir::home().filePath(QStringLiteral("project.") + kProjectSuffix)
          : QFileInfo(mCodeSource.xmlFolder)
                .absoluteDir()
                .filePath(mCodeSource.root + QLatin1Char('.') + kProjectSuffix);
  QString path =
      Services::Picker().PickSaveFile(tr("Save Project As"), kProjectFilter, suggested, this);
  if (path.isEmpty()) return false;
  if (QFileInfo(path).suffix().isEmpty()) path += QLatin1Char('.') + kProjectSuffix;
  return saveTo(path);
}

bool MainWindow::saveTo(const QString& path) {
  // What is being typed belongs in the file too.
  mEditor->CommentEditorControl()->CommitEdit();
  try {
    mCodeSource.ApplyTo(*mProject, path);
    ProjectWriter::Save(*mProject, path);
  } catch (const Error& error) {
    Services::Message().ShowMessage(
        tr("Could not save %1.\n\n%2").arg(QDir::toNativeSeparators(path), error.Description()),
        Mb::OK | Mb::Critical, QApplication::applicationName());
    return false;
  }
  mEditor->CommentEditorControl()->setDirty(false);
  mCommentsChanged = false;
  RecentFiles::Add(mProject->FileName());
  updateTitle();
  return true;
}

bool MainWindow::MaybeSave() {
  if (mEditor) mEditor->CommentEditorControl()->CommitEdit();
  if (!IsDirty()) return true;
  const int answer = Services::Message().ShowMessage(
      tr("%1 has unsaved changes.\n\nSave them? Choose Yes to save, No to discard them, or Cancel "
         "to go back.")
          .arg(displayName()),
      Mb::YesNoCancel | Mb::Exclamation, QApplication::applicationName());
  if (answer == Mb::IdYes) return Save();
  return answer == Mb::IdNo;
}

}  // namespace sv
