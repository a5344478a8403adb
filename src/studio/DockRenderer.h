#pragma once

#include <QAction>
#include <QHash>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QWidget>
#include <vector>

#include "studio/ImageListIcons.h"
#include "ui/Dock.h"

class QToolBar;
class QVBoxLayout;

namespace sv {

// Draws a Dock as one QToolBar per band: buttons, toggles that show their pressed state, popups
// as menus whose entries are filled when they open (after PopupWindowShowing, so that the
// component can fill them first) and edit boxes as line edits. A person's clicks, typing and keys
// become the dock's user* actions. Commands on no band are not drawn.
class DockRenderer : public QWidget {
  Q_OBJECT

 public:
  explicit DockRenderer(Dock* dock, QWidget* parent = nullptr);

  Dock* Owner() const { return mDock; }
  // Null for a band or command not drawn (yet): popup entries exist while their menu is filled.
  QToolBar* ToolBarFor(const DockBand* band) const { return mBars.value(band); }
  QAction* ActionFor(const DockCommand* command) const { return mActions.value(command); }
  QLineEdit* EditFor(const DockCommand* command) const { return mEdits.value(command); }
  QMenu* MenuFor(const DockCommand* popup) const { return mMenus.value(popup); }

 private:
  void commandsChanged();
  void rebuild();
  void addCommand(QToolBar* bar, DockCommand* command);
  QAction* addAction(QWidget* owner, DockCommand* command);
  void addEdit(QToolBar* bar, DockCommand* command);
  void addPopup(QToolBar* bar, DockCommand* command);
  void fillMenu(QMenu* menu, const QString& popupKey);
  void showCommand(const DockCommand* command);
  void showBand(const DockBand* band);
  // Runs a user* action; the widgets it would rebuild are rebuilt once it has returned, since
  // the action may come from a widget that a rebuild deletes.
  template <class F>
  void userAction(F&& action);

  QPointer<Dock> mDock;
  QVBoxLayout* mLayout;
  std::vector<QToolBar*> mBarList;
  QHash<const DockBand*, QToolBar*> mBars;
  QHash<const DockCommand*, QPointer<QAction>> mActions;
  QHash<const DockCommand*, QPointer<QLineEdit>> mEdits;
  QHash<const DockCommand*, QPointer<QMenu>> mMenus;
  ImageListIcons mIcons;
  int mBusy = 0;
  bool mRebuildPending = false;
};

}  // namespace sv
