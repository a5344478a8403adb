#pragma once

#include <QObject>
#include <QString>
#include <optional>

#include "ui/SystemColors.h"

namespace sv {

// A check box held as state. As with the classic control, Click is raised whenever Value
// changes, whether code wrote it or a person clicked; writing the value it already has raises
// nothing. Geometry is in the container's scale units.
class CheckBox : public QObject {
  Q_OBJECT

 public:
  explicit CheckBox(QObject* parent = nullptr);

  // 0 clear, 1 ticked. Raises Click when it changes.
  int Value() const { return mValue; }
  void setValue(int value);
  const QString& Caption() const { return mCaption; }
  void setCaption(const QString& value);
  const QString& ToolTipText() const { return mToolTipText; }
  void setToolTipText(const QString& value);
  const QString& Tag() const { return mTag; }
  void setTag(const QString& value) { mTag = value; }
  bool Enabled() const { return mEnabled; }
  void setEnabled(bool value);
  bool Visible() const { return mVisible; }
  void setVisible(bool value);
  quint32 BackColor() const { return mBackColor; }
  void setBackColor(quint32 value);
  quint32 ForeColor() const { return mForeColor; }
  void setForeColor(quint32 value);
  const QString& Font() const { return mFont; }
  void setFont(const QString& value);
  // The name of the container the box sits in; empty for its form.
  const QString& Container() const { return mContainer; }
  void setContainer(const QString& value);
  int TabIndex() const { return mTabIndex; }
  void setTabIndex(int value) { mTabIndex = value; }
  // The box's index in its control array, or -1 for a box on its own.
  int Index() const { return mIndex; }
  void setIndex(int value) { mIndex = value; }

  int Left() const { return mLeft; }
  int Top() const { return mTop; }
  int Width() const { return mWidth; }
  int Height() const { return mHeight; }
  void setHeight(int value);
  // Keeps the height unless one is given.
  void Move(int left, int top, int width, std::optional<int> height = std::nullopt);

  // The look of the moment: the mouse is over it, pressed on it, or it has the focus.
  bool Hot() const { return mHot; }
  void setHot(bool value);
  bool Pressed() const { return mPressed; }
  void setPressed(bool value);
  bool Focused() const { return mFocused; }
  void setFocused(bool value);

  // Asks for a repaint now; counted so that a test can see it.
  void Refresh();
  int RefreshCount() const { return mRefreshCount; }

  // A click on a shown, enabled box: it takes the focus and its value flips, raising Click.
  bool userClick();
  // Space toggles as a click does; other keys do nothing. Needs the box shown and enabled.
  bool userPressKey(int keyCode);

 signals:
  void Click();

  // For renderers: the state changed.
  void changed();
  void refreshed();

 private:
  template <class T>
  void write(T& member, const T& value);

  int mValue = 0;
  QString mCaption;
  QString mToolTipText;
  QString mTag;
  QString mFont = QStringLiteral("Tahoma, 8");
  QString mContainer;
  quint32 mBackColor = SystemColor::ButtonFace;
  quint32 mForeColor = SystemColor::ButtonText;
  int mTabIndex = 0;
  int mIndex = -1;
  int mLeft = 0;
  int mTop = 0;
  int mWidth = 1215;
  int mHeight = 255;
  int mRefreshCount = 0;
  bool mEnabled = true;
  bool mVisible = true;
  bool mHot = false;
  bool mPressed = false;
  bool mFocused = false;
};

}  // namespace sv
