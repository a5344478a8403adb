#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QListWidget>
#include <QStringList>
#include <QTreeWidget>
#include <memory>

#include "support/QtPrinters.h"

namespace sv::test {

// The application object the renderers need, for the whole run. It goes before the exit
// handlers run, because Qt's own globals are gone by then.
class QtAppEnvironment : public ::testing::Environment {
 public:
  void SetUp() override { mApp = std::make_unique<QApplication>(mArgc, mArgv); }
  void TearDown() override { mApp.reset(); }

 private:
  int mArgc = 1;
  char mName[16] = "sv_studio_tests";
  char* mArgv[2] = {mName, nullptr};
  std::unique_ptr<QApplication> mApp;
};

inline ::testing::Environment* const kQtApp =
    ::testing::AddGlobalTestEnvironment(new QtAppEnvironment);

inline void dumpItem(QStringList& lines, const QTreeWidgetItem* item, int level) {
  QString line(level * 2, QLatin1Char(' '));
  if (item->childCount() > 0)
    line += item->isExpanded() ? QStringLiteral("- ") : QStringLiteral("+ ");
  const QVariant check = item->data(0, Qt::CheckStateRole);
  if (check.isValid())
    line += check.toInt() == Qt::Checked ? QStringLiteral("[x] ") : QStringLiteral("[ ] ");
  if (item->font(0).bold()) line += QLatin1Char('*');
  line += item->text(0);
  for (int column = 1; column < item->columnCount(); ++column)
    if (!item->text(column).isEmpty()) line += QStringLiteral(" = ") + item->text(column);
  if (item->isHidden()) line += QStringLiteral(" (hidden)");
  if (item->isSelected()) line += QStringLiteral(" <selected>");
  lines << line;
  for (int i = 0; i < item->childCount(); ++i) dumpItem(lines, item->child(i), level + 1);
}

// What a tree widget shows, in the marks TreeView::Dump uses ("- "/"+ " open or closed with
// children, "[x] "/"[ ] " ticks, "*" bold), plus further columns, hidden and selected items.
inline QString DumpWidget(const QTreeWidget& tree) {
  QStringList lines;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) dumpItem(lines, tree.topLevelItem(i), 0);
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

inline QString DumpWidget(const QListWidget& list) {
  QStringList lines;
  for (int i = 0; i < list.count(); ++i) {
    const QListWidgetItem* item = list.item(i);
    QString line;
    const QVariant check = item->data(Qt::CheckStateRole);
    if (check.isValid())
      line += check.toInt() == Qt::Checked ? QStringLiteral("[x] ") : QStringLiteral("[ ] ");
    line += item->text();
    if (item->isSelected()) line += QStringLiteral(" <selected>");
    if (list.currentRow() == i) line += QStringLiteral(" <focus>");
    lines << line;
  }
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

}  // namespace sv::test
