#pragma once

#include <QObject>
#include <QString>
#include <memory>

namespace sv {

class IContentDesigner;

// The place of one designer on the comment editor, held as state: its name (the designer's
// class without dots, or "HTMLEdit" for the one the editor starts with), whether it is shown,
// the editor's mark in Tag, its area inside the container, and the designer itself as Object.
class DesignerControl : public QObject {
  Q_OBJECT

 public:
  DesignerControl(QString name, std::shared_ptr<IContentDesigner> object,
                  QObject* parent = nullptr);
  ~DesignerControl() override;

  const QString& Name() const { return mName; }
  bool Visible() const { return mVisible; }
  void setVisible(bool value);
  const QString& Tag() const { return mTag; }
  void setTag(const QString& value) { mTag = value; }
  const std::shared_ptr<IContentDesigner>& Object() const { return mObject; }

  int Left() const { return mLeft; }
  int Top() const { return mTop; }
  int Width() const { return mWidth; }
  int Height() const { return mHeight; }
  void Move(int left, int top, int width, int height);

  // Gives the keyboard focus to the designer's editor, when it has one.
  void SetEditFocus();

 signals:
  // For renderers: the state changed.
  void changed();

 private:
  QString mName;
  std::shared_ptr<IContentDesigner> mObject;
  QString mTag;
  bool mVisible = false;
  int mLeft = 0;
  int mTop = 0;
  int mWidth = 0;
  int mHeight = 0;
};

}  // namespace sv
