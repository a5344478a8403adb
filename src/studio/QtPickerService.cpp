#include "studio/QtPickerService.h"

#include <QFileDialog>
#include <QStringList>

#include "studio/RenderedWidgets.h"

namespace sv {

QString QtPickerService::ToQtFilter(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts).join(' ');
    filters << parts[i] + QStringLiteral(" (") + patterns + QLatin1Char(')');
  }
  return filters.join(QStringLiteral(";;"));
}

QString QtPickerService::PickFolder(const QString& title, const QString& initialDir,
                                    QObject* owner) {
  return QFileDialog::getExistingDirectory(RenderedWidgets::WidgetFor(owner), title, initialDir);
}

QString QtPickerService::PickOpenFile(const QString& title, const QString& filter,
                                      const QString& initialPath, QObject* owner) {
  return QFileDialog::getOpenFileName(RenderedWidgets::WidgetFor(owner), title, initialPath,
                                      ToQtFilter(filter));
}

QString QtPickerService::PickSaveFile(const QString& title, const QString& filter,
                                      const QString& initialPath, QObject* owner) {
  return QFileDialog::getSaveFileName(RenderedWidgets::WidgetFor(owner), title, initialPath,
                                      ToQtFilter(filter));
}

}  // namespace sv
