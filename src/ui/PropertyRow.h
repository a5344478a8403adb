#pragma once

#include <QString>
#include <QVariant>
#include <vector>

#include "ui/SystemColors.h"

namespace sv {

class PropertyList;

enum class PropertyRowKind { Item = 0, Heading = 1 };

// The editor a row's value cell opens.
namespace PropertyEditor {
inline constexpr int Number = 5;
inline constexpr int Date = 7;
inline constexpr int Text = 8;
inline constexpr int Boolean = 11;
inline constexpr int File = 103;
inline constexpr int Color = 104;
inline constexpr int List = 105;
}  // namespace PropertyEditor

// One entry of a row's drop-down list: what it shows and what it stores.
struct PropertyListEntry {
  QString Display;
  QString Value;
  bool operator==(const PropertyListEntry&) const = default;
};

// One row of a PropertyList, owned by it. Writing Value from code raises the list's Change when
// the value changes, as the classic control does; other writes raise nothing.
class PropertyRow {
 public:
  PropertyRow(const PropertyRow&) = delete;
  PropertyRow& operator=(const PropertyRow&) = delete;

  PropertyList* List() const { return mList; }
  const QString& Key() const { return mKey; }
  // One-based position among the list's rows.
  int Index() const;
  PropertyRowKind Kind() const { return mKind; }

  const QString& Name() const { return mName; }
  void setName(const QString& value);
  const QString& Caption() const { return mCaption; }
  void setCaption(const QString& value);
  const QVariant& Value() const { return mValue; }
  void setValue(const QVariant& value);
  // The value the row was loaded with; Modified compares against it.
  const QVariant& UnchangedValue() const { return mUnchangedValue; }
  void setUnchangedValue(const QVariant& value) { mUnchangedValue = value; }
  bool Modified() const { return mValue != mUnchangedValue; }
  // HTML shown in the list's description pane while the row is selected.
  const QString& Description() const { return mDescription; }
  void setDescription(const QString& value);
  quint32 ForeColor() const { return mForeColor; }
  void setForeColor(quint32 value);
  const QString& Image() const { return mImage; }
  void setImage(const QString& value);
  const QVariant& Tag() const { return mTag; }
  void setTag(const QVariant& value) { mTag = value; }
  // A row that offers something to add rather than showing something that exists.
  bool IsAddRow() const { return mIsAddRow; }
  void setIsAddRow(bool value);
  bool Hidden() const { return mHidden; }
  void setHidden(bool value);
  // Headings only: an open heading shows the rows up to the next heading.
  bool Expanded() const { return mExpanded; }
  void setExpanded(bool value);

  // See PropertyEditor.
  int EditorType() const { return mEditorType; }
  void setEditorType(int value);
  // The row shows a button that opens an editor of the host's (BeforeExtendedEdit).
  bool HasButton() const { return mHasButton; }
  void setHasButton(bool value);
  // A list editor accepts text that is not among its entries.
  bool FreeText() const { return mFreeText; }
  void setFreeText(bool value) { mFreeText = value; }
  // The value is edited as plain text.
  bool PlainText() const { return mPlainText; }
  void setPlainText(bool value) { mPlainText = value; }
  // How a colour editor writes its value.
  int ColorFormat() const { return mColorFormat; }
  void setColorFormat(int value) { mColorFormat = value; }
  const std::vector<PropertyListEntry>& ListEntries() const { return mListEntries; }
  void AddListEntry(const QString& display, const QString& value);
  void ClearListEntries();

  bool Selected() const;
  // Selecting from code raises nothing.
  void setSelected(bool value);
  // False when the row is hidden or lies under a closed heading.
  bool IsShown() const;

 private:
  friend class PropertyList;
  PropertyRow(PropertyList* list, const QString& key, const QString& caption, PropertyRowKind kind)
      : mList(list), mKey(key), mKind(kind), mCaption(caption) {}
  void changed();

  PropertyList* mList;
  QString mKey;
  PropertyRowKind mKind;
  QString mName;
  QString mCaption;
  QVariant mValue;
  QVariant mUnchangedValue;
  QString mDescription;
  QString mImage;
  QVariant mTag;
  quint32 mForeColor = SystemColor::WindowText;
  std::vector<PropertyListEntry> mListEntries;
  int mEditorType = PropertyEditor::Text;
  int mColorFormat = 0;
  bool mIsAddRow = false;
  bool mHidden = false;
  bool mExpanded = true;
  bool mHasButton = false;
  bool mFreeText = true;
  bool mPlainText = true;
};

}  // namespace sv
