#include <gtest/gtest.h>

#include "support/QtPrinters.h"

#include "project/core/Definition.h"
#include "project/core/DefinitionSet.h"
#include "project/core/MemoryDDP.h"
#include "project/core/MemoryProvider.h"
#include "project/core/ModelItem.h"
#include "support/ModelBuilder.h"

namespace sv {
namespace {

using test::ModelBuilder;

QString names(const std::shared_ptr<ItemCollection>& items) {
  if (!items) return "null";
  QStringList out;
  for (const auto& item : *items) out << *item->QualifiedName();
  return out.join(' ');
}

const char* kModel = R"(
definitions sv.test
  Root
    Namespace
      Class
        Method
        Property
items
  Root Geo
    Namespace Shapes
      Class Square
      Class Circle
        Property Radius
        Method Draw
        Method Area
      Class Line
    Namespace Paths
)";

TEST(MemoryProviderTest, GetItemsAnswersTheChildrenOfOneDefinitionInTheirOrder) {
  ModelBuilder model(kModel);
  auto& provider = *model.Provider();
  const auto circle = model.Item("Geo.Shapes.Circle");

  EXPECT_EQ(names(provider.GetItems(model.Def("Method"), circle, "scope=public,")),
            "Geo.Shapes.Circle.Draw Geo.Shapes.Circle.Area");
  EXPECT_EQ(provider.LastFilter(), "scope=public,");
  EXPECT_EQ(names(provider.GetItems(model.Def("property"), circle, "")),
            "Geo.Shapes.Circle.Radius");
  EXPECT_EQ(names(provider.GetItems(model.Def("Class"), model.Item("Geo.Shapes"), "x")),
            "Geo.Shapes.Square Geo.Shapes.Circle Geo.Shapes.Line");
  // Nothing of that definition under the parent: null.
  EXPECT_EQ(names(provider.GetItems(model.Def("Class"), model.Item("Geo.Paths"), "y")), "null");
  EXPECT_EQ(names(provider.GetItems(model.Def("Root"), nullptr, "")), "Geo");
  EXPECT_EQ(provider.GetItemsCalls(), 5);
  EXPECT_EQ(provider.LastFilter(), "");

  // The answer is the caller's to change.
  auto items = provider.GetItems(model.Def("Method"), circle, "");
  items->Remove(1);
  EXPECT_EQ(provider.GetItems(model.Def("Method"), circle, "")->Count(), 2);
}

TEST(MemoryProviderTest, ItemsAndRootsAreFoundByName) {
  ModelBuilder model(kModel);
  auto& provider = *model.Provider();
  EXPECT_EQ(provider.ItemCount(), 9);
  EXPECT_EQ(provider.GetItem("Geo.Shapes.Circle.Draw")->Name(), "Draw");
  EXPECT_EQ(provider.GetItem("geo.shapes"), nullptr);  // qualified names compare exactly
  EXPECT_EQ(provider.GetItem("Geo.Nothing"), nullptr);

  auto root = model.Def("Root");
  auto other = std::make_shared<ModelItem>("Root", "Other", "Other");
  provider.AddRoot(root, other, "other-moniker");
  EXPECT_EQ(provider.GetRootItem(root, "Geo"), model.Item("Geo"));
  EXPECT_EQ(provider.GetRootItem(root, "OTHER-MONIKER"), other);
  EXPECT_EQ(provider.GetRootItem(root, ""), model.Item("Geo"));
  EXPECT_EQ(provider.GetRootItem(root, "none"), nullptr);
  EXPECT_EQ(names(provider.GetItems(root, nullptr, "")), "Geo Other");

  // The same name under a second parent: both parents list it, GetItem keeps the first.
  auto copy = std::make_shared<ModelItem>("Class", "Geo.Shapes.Circle", "Circle");
  provider.Add(model.Def("Class"), copy, model.Item("Geo.Paths"));
  EXPECT_EQ(names(provider.GetItems(model.Def("Class"), model.Item("Geo.Paths"), "")),
            "Geo.Shapes.Circle");
  EXPECT_NE(provider.GetItem("Geo.Shapes.Circle"), copy);

  provider.setRelevantContentFilter("Geo.Shapes", "shapes/*");
  EXPECT_EQ(provider.GetRelevantContentFilter(model.Item("Geo.Shapes")), "shapes/*");
  EXPECT_EQ(provider.GetRelevantContentFilter(model.Item("Geo.Paths")), "");
  EXPECT_EQ(provider.GetRelevantContentFilter(nullptr), "");
}

TEST(MemoryProviderTest, TheDdpResolvesAndCaptionsByRule) {
  ModelBuilder model(kModel);
  auto ddp = model.Provider()->DDP();
  auto& memory = *model.Ddp();
  const auto cls = model.Def("Class");
  const auto circle = model.Item("Geo.Shapes.Circle");
  const auto square = model.Item("Geo.Shapes.Square");

  memory.AddRule("Geo.Shapes.Circle", model.Def("Namespace"));
  memory.setCaption("[Name]", "by expression");
  memory.setItemCaption("Geo.Shapes.Circle", "Circle (2D)");

  EXPECT_EQ(ddp->ResolveNamespaceDef(cls, square, "Class", nullptr), cls);
  EXPECT_EQ(ddp->EvaluateCaption("[Name]"), "by expression");
  EXPECT_EQ(ddp->EvaluateCaption("[Other]"), "[Other]");
  EXPECT_EQ(ddp->ResolveNamespaceDef(cls, circle, "Class", square), model.Def("Namespace"));
  EXPECT_EQ(ddp->EvaluateCaption("[Name]"), "Circle (2D)");
  EXPECT_EQ(memory.LastResolved(), "Geo.Shapes.Circle");

  ddp->SetParentContext(square);
  EXPECT_EQ(memory.ParentContext(), square);
}

TEST(MemoryProviderTest, ASyntheticModelHasEveryItemInPlace) {
  const ModelBuilder model = test::BuildSyntheticModel(3, 4, 5);
  auto& provider = *model.Provider();
  EXPECT_EQ(provider.ItemCount(), 1 + 3 + 3 * 4 + 3 * 4 * 5);
  EXPECT_EQ(names(provider.GetItems(model.Def("Namespace"), model.Item("Synthetic"), "")),
            "Synthetic.Ns1 Synthetic.Ns2 Synthetic.Ns3");
  const auto members =
      provider.GetItems(model.Def("Member"), model.Item("Synthetic.Ns3.Class4"), "");
  ASSERT_EQ(members->Count(), 5);
  EXPECT_EQ(*members->Item(5)->QualifiedName(), "Synthetic.Ns3.Class4.Member5");
  EXPECT_EQ(members->Item(5)->Access(), "Public");
  EXPECT_EQ(model.Definitions()->Name(), "sv.synthetic");
}

}  // namespace
}  // namespace sv
