#pragma once

#include <QMainWindow>
#include <QString>
#include <memory>

#include "studio/ProjectCodeSource.h"

class QAction;
class QLabel;
class QMenu;
class QStackedWidget;

namespace sv {

class AppConfig;
class ProjectEditor;
class ProjectEditorView;
class ProjectModel;

// The studio's window: one project at a time in a ProjectEditor, opened from a project file or a
// Doxygen XML folder, saved with Ctrl+S. The title carries "*" while something is unsaved, and
// nothing unsaved is dropped without asking: closing the window or opening another project
// offers Save, Discard (No) or Cancel. Boxes and pickers go through the services, so that a
// test can script them. The class is split in two: MainWindow.cpp (window, menus, title) and
// MainWindowFiles.cpp (open, save, ask).
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // The application name that chooses the settings branch of every component.
  static constexpr const char* AppName = "Scrivara5";

  explicit MainWindow(std::shared_ptr<AppConfig> config, QWidget* parent = nullptr);
  ~MainWindow() override;

  // Opens a project file or an XML folder in place of the project shown, after asking about
  // unsaved changes; reports a failure in a box and keeps what was open. Answers success.
  bool OpenPath(const QString& path);
  // Ctrl+S: to the project's file, or through Save As when it has none. Answers success.
  bool Save();
  bool SaveAs();
  // Asks about unsaved changes: true when they were saved or discarded, false on Cancel.
  bool MaybeSave();
  // Whether the project or the comment being edited holds changes not yet saved.
  bool IsDirty() const;

  std::shared_ptr<ProjectModel> Project() const { return mProject; }
  // Null while no project is open.
  ProjectEditor* Editor() const { return mEditor.get(); }
  ProjectEditorView* EditorView() const { return mView; }
  QAction* SaveAction() const { return mSave; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void createMenus();
  void fillRecentMenu();
  void updateTitle();
  void commentsChanged();
  void updateActions();
  void showProject(std::shared_ptr<ProjectModel> project, const ProjectCodeSource& codeSource);
  void closeProject();
  QString displayName() const;
  bool saveTo(const QString& path);
  void openFileChosen();
  void openFolderChosen();
  void restoreGeometrySetting();
  void storeGeometrySetting();

  std::shared_ptr<AppConfig> mConfig;
  std::shared_ptr<ProjectModel> mProject;
  ProjectCodeSource mCodeSource;
  // The comment editor forgets its Dirty when it moves to the next element, and a comment's
  // change need not mark the project; so the window remembers that comments changed until
  // they are saved.
  bool mCommentsChanged = false;
  std::unique_ptr<ProjectEditor> mEditor;
  ProjectEditorView* mView = nullptr;
  QStackedWidget* mCentral;
  QLabel* mWelcome;
  QMenu* mRecent = nullptr;
  QAction* mSave = nullptr;
  QAction* mSaveAs = nullptr;
};

}  // namespace sv
