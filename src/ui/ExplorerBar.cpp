#include "ui/ExplorerBar.h"

#include <QStringList>

#include "model/Error.h"

namespace sv {

namespace {

[[noreturn]] void missingKey() {
  Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Element not found"));
}

}  // namespace

ExplorerBar::ExplorerBar(QObject* parent)
    : QObject(parent),
      mOwnImages(new sv::ImageList(this)),
      mRedraw([this](bool redraw) { emit redrawChanged(redraw); }) {}

ExplorerBar::~ExplorerBar() = default;

std::size_t ExplorerBar::positionOf(const QString& key) const {
  for (std::size_t i = 0; i < mGroups.size(); ++i)
    if (mGroups[i]->Key().compare(key, Qt::CaseInsensitive) == 0) return i;
  missingKey();
}

ExplorerBarGroup* ExplorerBar::AddGroup(const QString& key, const QString& caption,
                                        const QString& before) {
  if (FindGroup(key))
    Raise(ErrorNumber::DuplicateKey, QStringLiteral("Key is not unique in collection"));
  std::size_t at = before.isEmpty() ? mGroups.size() : positionOf(before);
  auto inserted =
      mGroups.insert(mGroups.begin() + static_cast<std::ptrdiff_t>(at),
                     std::unique_ptr<ExplorerBarGroup>(new ExplorerBarGroup(this, key, caption)));
  emit groupsChanged();
  return inserted->get();
}

void ExplorerBar::RemoveGroup(const QString& key) {
  std::size_t at = positionOf(key);
  forgetSelection(mGroups[at].get(), nullptr);
  mGroups.erase(mGroups.begin() + static_cast<std::ptrdiff_t>(at));
  emit groupsChanged();
}

void ExplorerBar::ClearGroups() {
  mSelected = nullptr;
  mGroups.clear();
  emit groupsChanged();
}

ExplorerBarGroup* ExplorerBar::FindGroup(const QString& key) const {
  for (const auto& group : mGroups)
    if (group->Key().compare(key, Qt::CaseInsensitive) == 0) return group.get();
  return nullptr;
}

ExplorerBarGroup* ExplorerBar::Group(const QString& key) const {
  ExplorerBarGroup* group = FindGroup(key);
  if (!group) missingKey();
  return group;
}

ExplorerBarGroup* ExplorerBar::Group(int index) const {
  if (index < 0 || index >= GroupCount()) missingKey();
  return mGroups[static_cast<std::size_t>(index)].get();
}

std::vector<ExplorerBarGroup*> ExplorerBar::Groups() const {
  std::vector<ExplorerBarGroup*> groups;
  for (const auto& group : mGroups) groups.push_back(group.get());
  return groups;
}

bool ExplorerBar::holds(const ExplorerBarItem* item) const {
  for (const auto& group : mGroups)
    for (const auto& owned : group->mItems)
      if (owned.get() == item) return true;
  return false;
}

ExplorerBarItem* ExplorerBar::FindItem(const QString& key) const {
  for (const auto& group : mGroups)
    if (ExplorerBarItem* item = group->FindItem(key)) return item;
  return nullptr;
}

void ExplorerBar::setSelectedItem(ExplorerBarItem* item) {
  if (item && item->Bar() != this)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("The item belongs to another bar"));
  if (item == mSelected) return;
  mSelected = item;
  emit SelChange(item);
}

void ExplorerBar::forgetSelection(const ExplorerBarGroup* group, const ExplorerBarItem* item) {
  if (!mSelected) return;
  if (mSelected == item || mSelected->Group() == group) mSelected = nullptr;
}

void ExplorerBar::setBackColor(quint32 value) {
  if (value == mBackColor) return;
  mBackColor = value;
  emit barChanged();
}

void ExplorerBar::setItemTextColor(std::optional<quint32> value) {
  if (value == mItemTextColor) return;
  mItemTextColor = value;
  emit barChanged();
}

void ExplorerBar::setFont(const QString& value) {
  if (value == mFont) return;
  mFont = value;
  emit barChanged();
}

void ExplorerBar::setStyle(int value) {
  if (value == mStyle) return;
  mStyle = value;
  emit barChanged();
}

void ExplorerBar::setWidth(int value) {
  if (value == mWidth) return;
  mWidth = value;
  emit barChanged();
}

void ExplorerBar::setVisible(bool value) {
  if (value == mVisible) return;
  mVisible = value;
  emit barChanged();
}

void ExplorerBar::setEnabled(bool value) {
  if (value == mEnabled) return;
  mEnabled = value;
  emit barChanged();
}

sv::ImageList* ExplorerBar::ImageList() const {
  return mSharedImages ? mSharedImages.data() : mOwnImages;
}

void ExplorerBar::Refresh() {
  ++mRefreshCount;
  emit refreshed();
}

QString ExplorerBar::Dump() const {
  QStringList lines;
  for (const auto& group : mGroups) {
    if (!group->Visible()) continue;
    lines << QStringLiteral("%1 %2 <%3>")
                 .arg(group->Expanded() ? QStringLiteral("-") : QStringLiteral("+"),
                      group->Caption(), group->Key());
    for (const ExplorerBarItem* item : group->Items()) {
      if (!item->Visible()) continue;
      QString line = QStringLiteral("  ");
      if (item->Selected()) line += QStringLiteral("* ");
      if (item->Ticked()) line += QStringLiteral("[x] ");
      line += item->Caption() + QStringLiteral(" <") + item->Key() + QStringLiteral(">");
      if (!item->Image().isEmpty())
        line += QStringLiteral(" {") + item->Image() + QStringLiteral("}");
      if (!item->Enabled()) line += QStringLiteral(" (disabled)");
      lines << line;
    }
  }
  return lines.join(QLatin1Char('\n'));
}

bool ExplorerBar::userClickItem(ExplorerBarItem* item) {
  if (!item || item->Bar() != this || !item->IsAvailable()) return false;
  setSelectedItem(item);
  // A SelChange handler may have rebuilt the bar; the click then has no item left to report.
  if (!holds(item)) return true;
  emit ItemClick(item);
  return true;
}

bool ExplorerBar::userClickItem(const QString& key) {
  ExplorerBarItem* item = FindItem(key);
  if (!item) missingKey();
  return userClickItem(item);
}

bool ExplorerBar::userToggleGroup(const QString& key) {
  ExplorerBarGroup* group = Group(key);
  if (!mVisible || !mEnabled || !group->Visible() || !group->Enabled()) return false;
  group->setExpanded(!group->Expanded());
  if (group->Expanded())
    emit GroupExpand(group);
  else
    emit GroupCollapse(group);
  return true;
}

}  // namespace sv
