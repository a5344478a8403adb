#include "studio/RenderedWidgets.h"

#include <QApplication>
#include <QHash>
#include <QPalette>
#include <QPointer>
#include <QWidget>

#include "studio/QtConvert.h"

namespace sv {

namespace {

QHash<const QObject*, QPointer<QWidget>>& registry() {
  static QHash<const QObject*, QPointer<QWidget>> widgets;
  return widgets;
}

}  // namespace

void RenderedWidgets::Register(QObject* state, QWidget* widget) {
  registry().insert(state, widget);
  QObject::connect(state, &QObject::destroyed, [state] { registry().remove(state); });
}

QWidget* RenderedWidgets::WidgetFor(QObject* object) {
  for (QObject* current = object; current; current = current->parent()) {
    if (auto* widget = qobject_cast<QWidget*>(current)) return widget;
    if (QWidget* drawn = registry().value(current)) return drawn;
  }
  return QApplication::activeWindow();
}

void RenderedWidgets::ApplyColours(QWidget* widget, quint32 back, quint32 fore) {
  QPalette colours = widget->palette();
  colours.setColor(QPalette::Window, QtConvert::ToQColor(back));
  colours.setColor(QPalette::WindowText, QtConvert::ToQColor(fore));
  widget->setPalette(colours);
}

void RenderedWidgets::ApplyVisible(QWidget* widget, bool visible) {
  static const char* const kHiddenByState = "svHiddenByState";
  if (!visible) {
    widget->setProperty(kHiddenByState, true);
    widget->hide();
    return;
  }
  if (!widget->property(kHiddenByState).toBool()) return;
  widget->setProperty(kHiddenByState, false);
  widget->show();
}

}  // namespace sv
