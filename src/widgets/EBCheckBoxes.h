#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "foundation/Dumpable.h"
#include "ui/CheckBox.h"
#include "ui/ExplorerBar.h"

namespace sv {

// Places check boxes in the client panes of explorer bar items, one below the other, and keeps
// their captions fitted to the bar's width. The boxes form one control array: index 0 is the
// hidden template whose height every box takes, and never carries a flag.
class EBCheckBoxes : public QObject, public Dumpable {
  Q_OBJECT

 public:
  // Scale modes of containers: what one unit of a coordinate is.
  enum ScaleMode {
    Twips = 1,
    Points = 2,
    Pixels = 3,
    Characters = 4,
    Inches = 5,
    Millimetres = 6,
    Centimetres = 7
  };

  explicit EBCheckBoxes(QObject* parent = nullptr);
  ~EBCheckBoxes() override;

  QString ModuleName() const override { return QStringLiteral("EBCheckBoxes"); }
  QString DumpMembers() const override;

  // With a visual theme active, the bar takes the theme's fill colour for its item panes.
  void SetupExplorerBar(ExplorerBar* control);
  // Adds a box at the foot of the item's client pane and answers it (null on failure).
  CheckBox* AddCheckbox(ExplorerBar* control, ExplorerBarItem* item, const QString& caption,
                        const QString& tag, const QString& toolTipText);
  // Makes the item's client pane, and the item, tall enough for `count` boxes.
  void ResizeToItems(int count, ExplorerBarItem* item);
  // Widens every box to the bar's width and fits its caption to it.
  void ResizeCheckboxes(ExplorerBar* control);
  // The text cut with an end ellipsis to fit the control's width, less the check mark.
  QString FitTextByRect(const CheckBox* control, const QString& text);
  // Unloads every box but the template; client panes keep their count.
  void Clear();

  // A plain conversion through twips, at 15 twips a pixel whatever the screen says. An
  // unknown scale mode raises InvalidCall.
  static double ScaleX(double value, int fromScale, int toScale);
  static double ScaleY(double value, int fromScale, int toScale);

  // The control array, template included; indexes outside it raise SubscriptOutOfRange.
  int Count() const { return static_cast<int>(CheckBoxes.size()); }
  CheckBox* Item(int index) const;
  // The full captions, by box index; the boxes show them shortened.
  const QStringList& Captions() const { return mCheckBoxCaptions; }

 signals:
  // A box of the array raised Click.
  void Click(int index);

 private:
  static double scale(double value, int fromScale, int toScale, bool vertical);
  int scaleModeOf(const CheckBox* box) const;

  std::vector<std::unique_ptr<CheckBox>> CheckBoxes;
  QStringList mCheckBoxCaptions;
  QPointer<ExplorerBar> mBar;  // the bar the boxes were last placed in
};

}  // namespace sv
