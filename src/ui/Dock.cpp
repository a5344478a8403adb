#include "ui/Dock.h"

#include <algorithm>

#include "model/Error.h"

namespace sv {

namespace {

template <class T>
void erase(std::vector<T*>& list, const T* item) {
  list.erase(std::remove(list.begin(), list.end(), item), list.end());
}

[[noreturn]] void missingKey() {
  Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Element not found"));
}

}  // namespace

Dock::Dock(QObject* parent)
    : QObject(parent),
      mOwnImages(new sv::ImageList(this)),
      mRedraw([this](bool redraw) { emit redrawChanged(redraw); }) {}

Dock::~Dock() = default;

DockBand* Dock::AddBand(const QString& key, const QString& caption) {
  if (mBandKeys.contains(key.toLower()))
    Raise(ErrorNumber::DuplicateKey, QStringLiteral("Key is not unique in collection"));
  mBands.push_back(std::unique_ptr<DockBand>(new DockBand(this, key, caption)));
  DockBand* band = mBands.back().get();
  mBandKeys.insert(key.toLower(), band);
  emit commandsChanged();
  return band;
}

DockBand* Dock::Band(const QString& key) const {
  DockBand* band = FindBand(key);
  if (!band) missingKey();
  return band;
}

std::vector<DockBand*> Dock::Bands() const {
  std::vector<DockBand*> bands;
  for (const auto& band : mBands) bands.push_back(band.get());
  return bands;
}

DockCommand* Dock::add(const QString& key, DockCommandType type, const QString& caption) {
  if (key.isEmpty()) Raise(ErrorNumber::InvalidCall, QStringLiteral("A command needs a key"));
  if (Exists(key))
    Raise(ErrorNumber::DuplicateKey, QStringLiteral("Key is not unique in collection"));
  mCommands.push_back(std::unique_ptr<DockCommand>(new DockCommand(this, key, type, caption)));
  DockCommand* command = mCommands.back().get();
  mKeys.insert(key.toLower(), command);
  return command;
}

DockCommand* Dock::AddCommand(const QString& key, DockCommandType type, const QString& caption,
                              DockBand* band) {
  if (band && band->Owner() != this)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("The band belongs to another dock"));
  DockCommand* command = add(key, type, caption);
  command->mBand = band;
  if (band) band->mCommands.push_back(command);
  emit commandsChanged();
  return command;
}

DockCommand* Dock::AddEntry(DockCommand* popup, const QString& key, DockCommandType type,
                            const QString& caption) {
  if (!popup || popup->Owner() != this || popup->Type() != DockCommandType::Popup)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("Entries belong in a popup of this dock"));
  DockCommand* command = add(key, type, caption);
  command->mPopup = popup;
  popup->mEntries.push_back(command);
  emit commandsChanged();
  return command;
}

void Dock::remove(DockCommand* command) {
  while (!command->mEntries.empty()) remove(command->mEntries.back());
  if (command->mBand) erase(command->mBand->mCommands, command);
  if (DockCommand* popup = command->mPopup) {
    erase(popup->mEntries, command);
    if (popup->mCurrentEntry == command) popup->mCurrentEntry = nullptr;
  }
  mKeys.remove(command->Key().toLower());
  mCommands.erase(std::find_if(mCommands.begin(), mCommands.end(),
                               [command](const auto& owned) { return owned.get() == command; }));
}

void Dock::RemoveCommand(const QString& key) {
  remove(Command(key));
  emit commandsChanged();
}

void Dock::ClearCommands() {
  for (const auto& band : mBands) band->mCommands.clear();
  mKeys.clear();
  mCommands.clear();
  emit commandsChanged();
}

DockCommand* Dock::Command(const QString& key) const {
  DockCommand* command = FindCommand(key);
  if (!command) missingKey();
  return command;
}

std::vector<DockCommand*> Dock::Commands() const {
  std::vector<DockCommand*> commands;
  for (const auto& command : mCommands) commands.push_back(command.get());
  return commands;
}

bool Dock::IsAvailable(const DockCommand* command) const {
  for (; command; command = command->Popup()) {
    if (!command->Visible() || !command->Enabled()) return false;
    if (command->Band() && !command->Band()->Visible()) return false;
  }
  return true;
}

sv::ImageList* Dock::ImageList() const {
  return mSharedImages ? mSharedImages.data() : mOwnImages;
}

DockCommand* Dock::availableCommand(const QString& key, DockCommandType type) const {
  DockCommand* command = Command(key);
  if (!IsAvailable(command) || command->Type() != type) return nullptr;
  return command;
}

bool Dock::userClick(const QString& key) {
  DockCommand* command = Command(key);
  if (!IsAvailable(command)) return false;
  switch (command->Type()) {
    case DockCommandType::Edit:
      return true;
    case DockCommandType::Popup:
      emit PopupWindowShowing(command);
      return true;
    case DockCommandType::Check:
      command->setValue(command->Value() == 0 ? 1 : 0);
      break;
    case DockCommandType::Button:
      break;
  }
  if (command->Popup()) command->Popup()->setCurrentEntry(command);
  emit CommandClick(command);
  return true;
}

bool Dock::userType(const QString& key, const QString& text) {
  DockCommand* command = availableCommand(key, DockCommandType::Edit);
  if (!command) return false;
  command->setText(text);
  emit CommandChange(command);
  return true;
}

bool Dock::userPressKey(const QString& key, int keyCode, int shift) {
  DockCommand* command = availableCommand(key, DockCommandType::Edit);
  if (!command) return false;
  int downCode = keyCode;
  emit CommandKeyDown(command, &downCode, shift);
  int upCode = keyCode;
  emit CommandKeyUp(command, &upCode, shift);
  return true;
}

}  // namespace sv
