#include "studio/DockRenderer.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "studio/KeyForwardingLineEdit.h"
#include "studio/RenderedWidgets.h"

namespace sv {

DockRenderer::DockRenderer(Dock* dock, QWidget* parent)
    : QWidget(parent), mDock(dock), mLayout(new QVBoxLayout(this)) {
  mLayout->setContentsMargins(0, 0, 0, 0);
  mLayout->setSpacing(0);
  RenderedWidgets::Register(dock, this);
  connect(dock, &Dock::commandsChanged, this, &DockRenderer::commandsChanged);
  connect(dock, &Dock::commandChanged, this, &DockRenderer::showCommand);
  connect(dock, &Dock::bandChanged, this, &DockRenderer::showBand);
  connect(dock, &Dock::redrawChanged, this, &QWidget::setUpdatesEnabled);
  rebuild();
}

template <class F>
void DockRenderer::userAction(F&& action) {
  ++mBusy;
  action();
  if (--mBusy > 0 || !mRebuildPending) return;
  QMetaObject::invokeMethod(this, &DockRenderer::rebuild, Qt::QueuedConnection);
}

void DockRenderer::commandsChanged() {
  if (mBusy > 0) {
    mRebuildPending = true;
    return;
  }
  rebuild();
}

void DockRenderer::rebuild() {
  mRebuildPending = false;
  for (QToolBar* bar : mBarList) delete bar;
  mBarList.clear();
  mBars.clear();
  mActions.clear();
  mEdits.clear();
  mMenus.clear();
  for (DockBand* band : mDock->Bands()) {
    auto* bar = new QToolBar(band->Caption(), this);
    mLayout->addWidget(bar);
    mBarList.push_back(bar);
    mBars.insert(band, bar);
    for (DockCommand* command : band->Commands()) addCommand(bar, command);
    showBand(band);
  }
}

void DockRenderer::addCommand(QToolBar* bar, DockCommand* command) {
  if (command->BeginGroup()) bar->addSeparator();
  switch (command->Type()) {
    case DockCommandType::Edit:
      addEdit(bar, command);
      break;
    case DockCommandType::Popup:
      addPopup(bar, command);
      break;
    case DockCommandType::Button:
    case DockCommandType::Check:
      bar->addAction(addAction(bar, command));
      break;
  }
  showCommand(command);
}

QAction* DockRenderer::addAction(QWidget* owner, DockCommand* command) {
  auto* action = new QAction(owner);
  action->setCheckable(command->Type() == DockCommandType::Check);
  const QString key = command->Key();
  connect(action, &QAction::triggered, this, [this, key] {
    userAction([&] { mDock->userClick(key); });
    // Qt has flipped a toggle on its own; show what the dock decided.
    showCommand(mRebuildPending ? nullptr : mDock->FindCommand(key));
  });
  mActions.insert(command, action);
  return action;
}

void DockRenderer::addEdit(QToolBar* bar, DockCommand* command) {
  const QString key = command->Key();
  auto* edit = new KeyForwardingLineEdit(
      [this, key](int code, int shift) {
        userAction([&] { mDock->userPressKey(key, code, shift); });
      },
      bar);
  connect(edit, &QLineEdit::textEdited, this,
          [this, key](const QString& text) { userAction([&] { mDock->userType(key, text); }); });
  mEdits.insert(command, edit);
  mActions.insert(command, bar->addWidget(edit));
}

void DockRenderer::addPopup(QToolBar* bar, DockCommand* command) {
  QAction* action = addAction(bar, command);
  auto* menu = new QMenu(bar);
  action->setMenu(menu);
  bar->addAction(action);
  if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action)))
    button->setPopupMode(QToolButton::InstantPopup);
  mMenus.insert(command, menu);
  const QString key = command->Key();
  connect(menu, &QMenu::aboutToShow, this, [this, menu, key] {
    userAction([&] { mDock->userClick(key); });
    fillMenu(menu, key);
  });
}

void DockRenderer::fillMenu(QMenu* menu, const QString& popupKey) {
  menu->clear();
  const DockCommand* popup = mDock->FindCommand(popupKey);
  if (!popup) return;
  for (DockCommand* entry : popup->Entries()) {
    if (entry->BeginGroup()) menu->addSeparator();
    menu->addAction(addAction(menu, entry));
    showCommand(entry);
  }
}

void DockRenderer::showCommand(const DockCommand* command) {
  QAction* action = command ? mActions.value(command) : nullptr;
  if (!action) return;
  action->setText(command->Caption());
  action->setToolTip(command->ToolTipText().isEmpty() ? command->Caption()
                                                      : command->ToolTipText());
  action->setIcon(mIcons.Icon(mDock->ImageList(), command->Image()));
  action->setEnabled(command->Enabled());
  action->setVisible(command->Visible());
  if (action->isCheckable()) action->setChecked(command->Value() == 1);
  QLineEdit* edit = mEdits.value(command);
  if (edit && edit->text() != command->Text()) edit->setText(command->Text());
}

void DockRenderer::showBand(const DockBand* band) {
  QToolBar* bar = mBars.value(band);
  if (!bar) return;
  bar->setWindowTitle(band->Caption());
  bar->setVisible(band->Visible());
}

}  // namespace sv
