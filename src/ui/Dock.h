#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <memory>
#include <vector>

#include "ui/DockBand.h"
#include "ui/DockCommand.h"
#include "ui/ImageList.h"
#include "ui/RedrawSwitch.h"

namespace sv {

// A dock of command bars held as state. Commands, popup entries included, are found by key
// without regard to case; keys are unique in the dock. Writing state from code raises nothing;
// the user* members raise what a person's action raises.
class Dock : public QObject {
  Q_OBJECT

 public:
  explicit Dock(QObject* parent = nullptr);
  ~Dock() override;

  // A key already taken raises DuplicateKey.
  DockBand* AddBand(const QString& key, const QString& caption = {});
  // Raises SubscriptOutOfRange for a missing key.
  DockBand* Band(const QString& key) const;
  DockBand* FindBand(const QString& key) const { return mBandKeys.value(key.toLower()); }
  std::vector<DockBand*> Bands() const;

  // Adds a command at the end of `band`, or on no band. An empty key raises InvalidCall, a key
  // already taken DuplicateKey.
  DockCommand* AddCommand(const QString& key, DockCommandType type, const QString& caption = {},
                          DockBand* band = nullptr);
  // Adds an entry at the end of a popup command.
  DockCommand* AddEntry(DockCommand* popup, const QString& key, DockCommandType type,
                        const QString& caption = {});
  // Removes a command, and the entries of a popup; raises SubscriptOutOfRange for a missing key.
  void RemoveCommand(const QString& key);
  // Removes every command; the bands stay, empty.
  void ClearCommands();
  bool Exists(const QString& key) const { return mKeys.contains(key.toLower()); }
  DockCommand* FindCommand(const QString& key) const { return mKeys.value(key.toLower()); }
  // Raises SubscriptOutOfRange for a missing key.
  DockCommand* Command(const QString& key) const;
  // Every command in the order added, popup entries included.
  std::vector<DockCommand*> Commands() const;
  int CommandCount() const { return static_cast<int>(mCommands.size()); }

  // True when a person can reach the command: it, its band and the popup holding it are shown
  // and enabled.
  bool IsAvailable(const DockCommand* command) const;

  // The dock's own list unless another was given; never null.
  sv::ImageList* ImageList() const;
  void setImageList(sv::ImageList* images) { mSharedImages = images; }

  bool Redraw() const { return mRedraw.Redraw(); }
  void setRedraw(bool value) { mRedraw.setRedraw(value); }
  void LockRedraw() { mRedraw.Lock(); }
  void UnlockRedraw() { mRedraw.Unlock(); }
  int RedrawLockCount() const { return mRedraw.LockCount(); }

  // A click on an available command. A toggle flips its Value, then CommandClick. A popup opens:
  // PopupWindowShowing. A popup entry becomes the popup's current entry (a toggle entry flips),
  // then CommandClick. An edit box only takes the focus. Answers whether the click reached a
  // command.
  bool userClick(const QString& key);
  // Types text into an available edit box, replacing what it held: CommandChange.
  bool userType(const QString& key, const QString& text);
  // A key pressed in an available edit box: CommandKeyDown, then CommandKeyUp.
  bool userPressKey(const QString& key, int keyCode, int shift = 0);

 signals:
  void CommandClick(sv::DockCommand* command);
  void PopupWindowShowing(sv::DockCommand* popup);
  void CommandChange(sv::DockCommand* command);
  void CommandKeyDown(sv::DockCommand* command, int* keyCode, int shift);
  void CommandKeyUp(sv::DockCommand* command, int* keyCode, int shift);

  // For renderers: the state changed.
  void commandChanged(sv::DockCommand* command);
  void commandsChanged();
  void bandChanged(sv::DockBand* band);
  void redrawChanged(bool redraw);

 private:
  DockCommand* add(const QString& key, DockCommandType type, const QString& caption);
  void remove(DockCommand* command);
  DockCommand* availableCommand(const QString& key, DockCommandType type) const;

  std::vector<std::unique_ptr<DockBand>> mBands;
  QHash<QString, DockBand*> mBandKeys;
  std::vector<std::unique_ptr<DockCommand>> mCommands;
  QHash<QString, DockCommand*> mKeys;
  sv::ImageList* mOwnImages;
  QPointer<sv::ImageList> mSharedImages;
  RedrawSwitch mRedraw;
};

}  // namespace sv
