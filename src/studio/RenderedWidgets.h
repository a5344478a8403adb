#pragma once

#include <QtGlobal>

class QObject;
class QWidget;

namespace sv {

// Which widget draws which state object, so that services handed a state object or a component
// (a dialog's owner, the window a tip points at) can find something to place their window by.
// Renderers register themselves; an entry goes when either side is destroyed.
class RenderedWidgets {
 public:
  static void Register(QObject* state, QWidget* widget);
  // The object itself when it is a widget; else the widget drawing it or its nearest drawn
  // ancestor; else the application's active window, which may be null.
  static QWidget* WidgetFor(QObject* object);
  // A state object's Visible flag. Showing a widget is its window's business, so the flag only
  // hides, and takes back a hide of its own.
  static void ApplyVisible(QWidget* widget, bool visible);
  // A state object's back and fore colours (0xRRGGBB or system colours) as the widget's palette.
  static void ApplyColours(QWidget* widget, quint32 back, quint32 fore);
};

}  // namespace sv
