#include <benchmark/benchmark.h>

#include <QString>
#include <vector>

#include "ui/TreeView.h"

namespace {

std::vector<QString> childKeys(int count) {
  std::vector<QString> keys;
  keys.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) keys.push_back(QStringLiteral("Geometry::Shape~Member%1").arg(i));
  return keys;
}

// The lazy load of one big class: children arrive under a placeholder, which then goes.
void BM_AddChildrenToOneNode(benchmark::State& state) {
  const auto keys = childKeys(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    sv::TreeView tree;
    sv::TreeNode* parent = tree.AddChild(nullptr, "Geometry::Shape", "Shape", "Class");
    sv::TreeNode* placeholder = tree.AddChild(parent, "Geometry::Shape_dummy", "");
    tree.LockRedraw();
    for (const QString& key : keys) tree.AddChild(parent, key, key, "Method");
    tree.UnlockRedraw();
    tree.Remove(placeholder);
    benchmark::DoNotOptimize(parent->ChildCount());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_AddChildrenToOneNode)->Arg(10'000);

void BM_FindKey(benchmark::State& state) {
  const auto keys = childKeys(static_cast<int>(state.range(0)));
  sv::TreeView tree;
  sv::TreeNode* parent = tree.AddChild(nullptr, "Geometry::Shape", "Shape");
  for (const QString& key : keys) tree.AddChild(parent, key, key);
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(tree.Find(keys[i]));
    i = (i + 7919) % keys.size();
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FindKey)->Arg(10'000)->Arg(200'000);

// A whole model: 200 classes of 1,000 members each, then a walk over every sibling.
void BM_BuildAndWalkLargeTree(benchmark::State& state) {
  const auto members = childKeys(1'000);
  for (auto _ : state) {
    sv::TreeView tree;
    sv::TreeNode* ns = tree.AddChild(nullptr, "Geometry", "Geometry");
    for (int c = 0; c < 200; ++c) {
      const QString cls = QStringLiteral("Geometry::Class%1").arg(c);
      sv::TreeNode* node = tree.AddChild(ns, cls, cls);
      for (const QString& member : members) tree.AddChild(node, cls + member, member);
    }
    int visited = 0;
    for (sv::TreeNode* cls = ns->Child(); cls; cls = cls->Next())
      for (sv::TreeNode* member = cls->Child(); member; member = member->Next()) ++visited;
    benchmark::DoNotOptimize(visited);
  }
  state.SetItemsProcessed(state.iterations() * 200'201);
}
BENCHMARK(BM_BuildAndWalkLargeTree)->Unit(benchmark::kMillisecond);

}  // namespace
