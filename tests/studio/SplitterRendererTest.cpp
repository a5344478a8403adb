#include "studio/SplitterRenderer.h"

#include <gtest/gtest.h>

#include <QTest>

#include "StudioTestKit.h"

namespace sv {
namespace {

TEST(SplitterRendererTest, ThePositionIsShownAndADragIsOneUserDrag) {
  Splitter splitter;
  splitter.setPosition(40);
  QStringList events;
  QObject::connect(&splitter, &Splitter::AfterDrag, [&] {
    events << QStringLiteral("AfterDrag %1").arg(splitter.Position(), 0, 'f', 0);
  });
  SplitterRenderer view(&splitter, new QWidget, new QWidget);
  view.resize(1000 + view.handleWidth(), 300);
  view.show();
  EXPECT_EQ(view.sizes(), (QList<int>{400, 600}));

  splitter.setPosition(25);
  EXPECT_EQ(view.sizes(), (QList<int>{250, 750}));
  view.resize(2000 + view.handleWidth(), 300);
  EXPECT_EQ(view.sizes(), (QList<int>{500, 1500})) << "the share stays as the window grows";
  EXPECT_TRUE(events.isEmpty()) << "nothing a person did";

  QSplitterHandle* handle = view.handle(1);
  const QPoint grip = handle->rect().center();
  QTest::mousePress(handle, Qt::LeftButton, {}, grip);
  // Positions are the handle's own, and the handle follows the mouse.
  QTest::mouseMove(handle, grip + QPoint(500, 0));
  QTest::mouseRelease(handle, Qt::LeftButton, {}, grip);
  EXPECT_EQ(events.join(", "), "AfterDrag 50");
  EXPECT_EQ(view.sizes(), (QList<int>{1000, 1000}));

  // A click on the handle that moves nothing is no drag.
  QTest::mouseClick(view.handle(1), Qt::LeftButton, {}, view.handle(1)->rect().center());
  EXPECT_EQ(events.size(), 1);

  splitter.setVisible(false);
  EXPECT_FALSE(view.isVisible());
}

}  // namespace
}  // namespace sv
