#pragma once

#include <QObject>
#include <QString>

#include "foundation/Dumpable.h"

namespace sv {

// A small window that fits itself around a tip text. The label sizes itself to the text; the
// window keeps the label's margins on every side. Sizes are in pixels.
class frmTipPopup : public QObject, public Dumpable {
  Q_OBJECT

 public:
  struct Label {
    int Left = 4;
    int Top = 4;
    int Width = 0;
    int Height = 0;
    QString Caption;
    QString Font = QStringLiteral("Tahoma, 8");
  };

  explicit frmTipPopup(QObject* parent = nullptr);

  QString ModuleName() const override { return QStringLiteral("frmTipPopup"); }
  QString DumpMembers() const override;

  const QString& TipText() const { return Tip.Caption; }
  void setTipText(const QString& value);

  const Label& TipLabel() const { return Tip; }
  int Width() const { return mWidth; }
  int Height() const { return mHeight; }

 signals:
  // For renderers: the text or the size changed.
  void changed();

 private:
  Label Tip;
  int mWidth = 8;
  int mHeight = 8;
};

}  // namespace sv
