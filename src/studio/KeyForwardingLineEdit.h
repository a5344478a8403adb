#pragma once

#include <QLineEdit>
#include <functional>

namespace sv {

// A line edit that hands each key with a widget-set key code to its owner before editing with
// it, so that a state object sees KeyDown for the keys typed into its edit box.
class KeyForwardingLineEdit : public QLineEdit {
  Q_OBJECT

 public:
  using KeyHandler = std::function<void(int keyCode, int shift)>;
  KeyForwardingLineEdit(KeyHandler onKey, QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  KeyHandler mOnKey;
};

}  // namespace sv
