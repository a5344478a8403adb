#include "studio/PropertyListRenderer.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "studio/KeyForwardingLineEdit.h"
#include "studio/QtConvert.h"
#include "studio/RenderedWidgets.h"
#include "ui/Keys.h"

namespace sv {

namespace {

constexpr int kCaptionColumn = 0;
constexpr int kValueColumn = 1;
const char* const kButtonKey = "svButtonKey";

}  // namespace

PropertyListRenderer::PropertyListRenderer(PropertyList* list, QWidget* parent)
    : QWidget(parent),
      mList(list),
      mMessage(new QLabel(this)),
      mRows(new QTreeWidget(this)),
      mButtonBar(new QWidget(this)),
      mRowButton(new QToolButton(mButtonBar)),
      mDescription(new QTextBrowser(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mMessage);
  layout->addWidget(mRows, 1);
  layout->addWidget(mButtonBar);
  layout->addWidget(mDescription);
  auto* buttons = new QHBoxLayout(mButtonBar);
  buttons->setContentsMargins(0, 0, 0, 0);
  buttons->addStretch();
  buttons->addWidget(mRowButton);
  mRowButton->setText(QStringLiteral("..."));
  mRows->setColumnCount(2);
  mRows->setExpandsOnDoubleClick(false);
  mRows->setEditTriggers(QAbstractItemView::NoEditTriggers);
  mRows->header()->setStretchLastSection(true);
  mRows->installEventFilter(this);
  RenderedWidgets::Register(list, this);

  connect(list, &PropertyList::rowsChanged, this, &PropertyListRenderer::rebuild);
  connect(list, &PropertyList::rowChanged, this, &PropertyListRenderer::showRow);
  connect(list, &PropertyList::listChanged, this, &PropertyListRenderer::showList);
  connect(list, &PropertyList::editChanged, this, &PropertyListRenderer::showEdit);
  connect(list, &PropertyList::redrawChanged, this, &QWidget::setUpdatesEnabled);

  connect(mRows, &QTreeWidget::currentItemChanged, this, &PropertyListRenderer::currentChanged);
  connect(mRows, &QTreeWidget::itemPressed, this, &PropertyListRenderer::itemPressed);
  connect(mRows, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
    if (const PropertyRow* row = rowOf(item)) mList->userDoubleClick(row->Key());
  });
  connect(mRows, &QTreeWidget::itemExpanded, this,
          [this](QTreeWidgetItem* item) { headingOpened(item, true); });
  connect(mRows, &QTreeWidget::itemCollapsed, this,
          [this](QTreeWidgetItem* item) { headingOpened(item, false); });
  connect(mRowButton, &QToolButton::clicked, this, [this] { mList->userClickRowButton(); });
  rebuild();
}

QToolButton* PropertyListRenderer::ButtonFor(const QString& key) const {
  if (key.isEmpty()) return mRowButton;
  for (QToolButton* button : mButtons)
    if (button->property(kButtonKey).toString().compare(key, Qt::CaseInsensitive) == 0)
      return button;
  return nullptr;
}

void PropertyListRenderer::rebuild() {
  const QSignalBlocker blocker(mRows);
  mRows->clear();
  mItems.clear();
  mRowOf.clear();
  mEditor = nullptr;
  mEditorRow = nullptr;
  QTreeWidgetItem* heading = nullptr;
  for (PropertyRow* row : mList->Rows()) {
    const bool isHeading = row->Kind() == PropertyRowKind::Heading;
    auto* item = isHeading || !heading ? new QTreeWidgetItem(mRows) : new QTreeWidgetItem(heading);
    if (isHeading) heading = item;
    mItems.insert(row, item);
    mRowOf.insert(item, row);
    showRow(row);
  }
  showList();
  showEdit();
}

void PropertyListRenderer::rebuildButtons() {
  for (QToolButton* button : mButtons) delete button;
  mButtons.clear();
  auto* layout = static_cast<QHBoxLayout*>(mButtonBar->layout());
  int position = 0;
  for (const PropertyListButton& button : mList->Buttons()) {
    auto* widget = new QToolButton(mButtonBar);
    widget->setText(button.ToolTip);
    widget->setToolTip(button.ToolTip);
    widget->setProperty(kButtonKey, button.Key);
    const QString key = button.Key;
    connect(widget, &QToolButton::clicked, this, [this, key] { mList->userClickButton(key); });
    layout->insertWidget(position++, widget);
    mButtons.push_back(widget);
  }
}

void PropertyListRenderer::showRow(const PropertyRow* row) {
  QTreeWidgetItem* item = mItems.value(row);
  if (!item) return;
  const QSignalBlocker blocker(mRows);
  const bool heading = row->Kind() == PropertyRowKind::Heading;
  item->setText(kCaptionColumn, row->Caption());
  item->setText(kValueColumn, heading ? QString() : row->Value().toString());
  QFont font = mRows->font();
  font.setBold(heading);
  font.setItalic(row->IsAddRow());
  item->setFont(kCaptionColumn, font);
  item->setForeground(kCaptionColumn, QtConvert::ToQColor(row->ForeColor()));
  item->setToolTip(kValueColumn, heading ? QString() : row->Value().toString());
  // Rows without a key cannot be reached by a person's click.
  item->setFlags(row->Key().isEmpty() ? Qt::ItemIsEnabled
                                      : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  item->setHidden(row->Hidden());
  if (heading) {
    item->setFirstColumnSpanned(true);
    item->setExpanded(row->Expanded());
  }
}

void PropertyListRenderer::showList() {
  if (mButtons.size() != mList->Buttons().size()) rebuildButtons();
  QStringList headers;
  for (const PropertyColumn& column : mList->Columns()) headers << column.Caption;
  if (headers.size() < 2) headers = {tr("Property"), tr("Value")};
  mRows->setHeaderLabels(headers);

  const QString message = !mList->Text().isEmpty() ? mList->Text()
                          : mList->Count() == 0    ? mList->EmptyMessage()
                                                   : QString();
  mMessage->setText(message);
  mMessage->setHidden(message.isEmpty());
  setEnabled(mList->Enabled());
  RenderedWidgets::ApplyVisible(this, mList->Visible());

  const PropertyRow* selected = mList->SelectedItem();
  {
    const QSignalBlocker blocker(mRows);
    QTreeWidgetItem* item = selected ? mItems.value(selected) : nullptr;
    mRows->setCurrentItem(item);
    if (!item) mRows->clearSelection();
  }
  for (std::size_t i = 0; i < mButtons.size(); ++i)
    mButtons[i]->setVisible(selected && mList->Buttons()[i].Visible);
  mRowButton->setVisible(selected && selected->HasButton());
  mDescription->setHtml(selected ? selected->Description() : QString());
  mDescription->setVisible(mList->DescriptionVisible());
  mDescription->setFixedHeight(mList->DescriptionHeight());
}

void PropertyListRenderer::showEdit() {
  const PropertyRow* row = mList->EditingRow();
  if (row && row == mEditorRow && mEditor) {
    if (mEditor->text() != mList->EditText()) mEditor->setText(mList->EditText());
    return;
  }
  // The old cell goes with deleteLater, so a key typed into it may close it safely.
  if (QTreeWidgetItem* old = mItems.value(mEditorRow)) mRows->removeItemWidget(old, kValueColumn);
  mEditor = nullptr;
  mEditorRow = nullptr;
  QTreeWidgetItem* item = row ? mItems.value(row) : nullptr;
  if (!item) return;
  auto* editor =
      new KeyForwardingLineEdit([this](int code, int shift) { mList->userPressKey(code, shift); });
  editor->setText(mList->EditText());
  connect(editor, &QLineEdit::textEdited, this,
          [this](const QString& text) { mList->userType(text); });
  mRows->setItemWidget(item, kValueColumn, editor);
  editor->setFocus();
  mEditor = editor;
  mEditorRow = row;
}

void PropertyListRenderer::currentChanged(QTreeWidgetItem* item) {
  const PropertyRow* row = rowOf(item);
  if (row && !row->Key().isEmpty()) mList->userSelect(row->Key());
  // A refused selection puts the list's own back.
  if (mList->SelectedItem() != row) showList();
}

void PropertyListRenderer::itemPressed(QTreeWidgetItem* item, int column) {
  const PropertyRow* row = rowOf(item);
  if (column != kValueColumn || !row || row != mList->SelectedItem()) return;
  mList->BeginEdit();
}

void PropertyListRenderer::headingOpened(QTreeWidgetItem* item, bool open) {
  const PropertyRow* row = rowOf(item);
  if (!row || row->Expanded() == open) return;
  const QString key = row->Key();
  if (key.isEmpty()) {
    showRow(row);
    return;
  }
  if (open)
    mList->userExpand(key);
  else
    mList->userCollapse(key);
  if (const PropertyRow* still = mList->Find(key)) showRow(still);
}

bool PropertyListRenderer::eventFilter(QObject* watched, QEvent* event) {
  if (watched != mRows || event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  const int code = QtConvert::ToKeyCode(key->key());
  if (code == 0) return false;
  mList->userPressKey(code, QtConvert::ToShiftMask(key->modifiers()));
  if (code == KeyCode::F2) mList->BeginEdit();
  return false;
}

}  // namespace sv
