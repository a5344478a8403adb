#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <vector>

namespace sv {

class DesignerControl;
class IContentDesigner;

// The panel the designers stand in, held as state. It owns their controls, ordered from back
// to front; control names are unique and compare without regard to case.
class DesignerContainer : public QObject {
  Q_OBJECT

 public:
  explicit DesignerContainer(QObject* parent = nullptr);
  ~DesignerContainer() override;

  bool Visible() const { return mVisible; }
  void setVisible(bool value);
  // The name of the control the panel sits in; empty while it sits on the editor itself.
  const QString& Container() const { return mContainer; }
  void setContainer(const QString& value);
  int Width() const { return mWidth; }
  int Height() const { return mHeight; }
  // Raises Resize when the size changes.
  void setSize(int width, int height);

  // Adds a control in front of the others; a name already taken raises DuplicateKey.
  DesignerControl* Add(const QString& name, std::shared_ptr<IContentDesigner> object);
  // Null when there is none of that name.
  DesignerControl* Find(const QString& name) const;
  // Removes and deletes a control; a missing name raises SubscriptOutOfRange.
  void Remove(const QString& name);
  // Back to front.
  std::vector<DesignerControl*> Controls() const { return mControls; }
  DesignerControl* Front() const { return mControls.empty() ? nullptr : mControls.back(); }
  void BringToFront(DesignerControl* control);

 signals:
  void Resize();
  // For renderers: the panel or its list of controls changed.
  void changed();

 private:
  std::vector<DesignerControl*> mControls;
  QString mContainer;
  bool mVisible = false;
  int mWidth = 0;
  int mHeight = 0;
};

}  // namespace sv
