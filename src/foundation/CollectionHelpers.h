#pragma once

#include "foundation/IgnoreErrors.h"
#include "model/KeyedCollection.h"
#include "model/ModelTypes.h"

#include <QString>
#include <QVariant>
#include <type_traits>

class QObject;

namespace sv {

// Shared helpers for keys, texts and file dialogs.
class CollectionHelpers {
 public:
  template <class T>
  static bool CollectionKeyExists(const KeyedCollection<T>& collection, const QString& key) {
    return collection.Contains(key);
  }

  // Whether Item(key) of a keyed object (definitions, an image list, a tree's nodes) finds
  // something: a lookup that fails or answers null counts as absent.
  template <class Keyed>
  static bool ObjectKeyExists(const Keyed& object, const QString& key) {
    return IgnoreErrors([&] { return !IsNothing(object.Item(key)); }).value_or(false);
  }

  // The text before the first ":", or all of it when there is none.
  static QString TextBeforeColon(const QString& key);
  // The text behind the first ":", or nothing when there is none.
  static QString TextAfterColon(const QString& key);
  // Field `index` (from 1) of a text split on a whole separator; empty past the last field.
  static QString GetField(const QString& text, const QString& separator, int index);
  // Empty, null or never set.
  static bool IsBlank(const QVariant& value);
  // The parts of a text split on a whole delimiter, unkeyed; an empty text has none.
  static StringCollection SplitToCollection(const QString& text, const QString& delimiter);
  // A path that names an existing file or folder.
  static bool IsValidPath(const QString& path);
  // File pickers. A filter is "Description|*.ext|Description|*.a;*.b". Empty means cancelled.
  static QString BrowseForSave(const QString& title, const QString& filter,
                               const QString& initialPath, QObject* owner = nullptr);
  static QString BrowseForOpen(const QString& title, const QString& filter,
                               const QString& initialPath, QObject* owner = nullptr);
  // The position (from 1) of `find` in `text` at or after `start`, 0 when it is not there or
  // `text` is empty. An empty `find` is found at `start`. Compare 1 ignores case, 0 does not. A
  // start below 1 is an invalid call.
  static int FindText(int start, const QString& text, const QString& find, int compare);

 private:
  template <class T>
  static bool IsNothing(const T& value) {
    if constexpr (std::is_pointer_v<T>) {
      return value == nullptr;
    } else if constexpr (requires { value.get(); }) {
      return value.get() == nullptr;
    } else {
      return false;
    }
  }
};

}  // namespace sv
