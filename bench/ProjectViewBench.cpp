#include <benchmark/benchmark.h>

#include <sys/resource.h>

#include <QString>
#include <memory>

#include "codetree/ProjectView.h"
#include "project/core/DefinitionSet.h"
#include "project/core/ProjectModelFactory.h"
#include "project/model/ProjectModel.h"
#include "support/ModelBuilder.h"
#include "support/ScopedModel.h"

namespace {

using sv::test::ModelBuilder;

// 10 namespaces x 200 classes x 100 members (200,000 items), then a namespace "Wide" of 10,000
// classes. Qualified names spell the path with "~"; one member, "Needle", closes Ns5~Class200
// so that a search has a single match far down the tree.
ModelBuilder makeModel() {
  ModelBuilder built(
      QStringLiteral("definitions sv.bench caption=Bench view=pift\n"
                     "  Root image=root flags=r\n"
                     "    Namespace image=ns\n"
                     "      Class image=class\n"
                     "        Member image=member\n"));
  const auto add = [&built](const char* definition, const QString& name,
                            const std::shared_ptr<sv::CodeItem>& parent, bool member) {
    ModelBuilder::ItemInfo info;
    info.definition = QLatin1String(definition);
    info.name = name;
    info.qualifiedName =
        parent ? parent->QualifiedName().value_or(QString()) + QLatin1Char('~') + name : name;
    info.includeFlag = true;
    info.excludeFlag = false;
    if (member) {
      info.kind = ModelBuilder::Kind::Member;
      info.access = QStringLiteral("Public");
    }
    return built.AddItem(info, parent);
  };
  const auto root = add("Root", QStringLiteral("Root"), nullptr, false);
  for (int n = 1; n <= 10; ++n) {
    const auto ns = add("Namespace", QStringLiteral("Ns%1").arg(n), root, false);
    for (int c = 1; c <= 200; ++c) {
      const auto cls = add("Class", QStringLiteral("Class%1").arg(c), ns, false);
      for (int m = 1; m <= 100; ++m) add("Member", QStringLiteral("Member%1").arg(m), cls, true);
      if (n == 5 && c == 200) add("Member", QStringLiteral("Needle"), cls, true);
    }
  }
  const auto wide = add("Namespace", QStringLiteral("Wide"), root, false);
  for (int c = 1; c <= 10'000; ++c) add("Class", QStringLiteral("Wide%1").arg(c), wide, false);
  return built;
}

ModelBuilder& benchModel() {
  static ModelBuilder model = makeModel();
  return model;
}

// A loaded control: the root open, nothing below.
struct Control {
  explicit Control(bool selection) : scoped(benchModel().Factory()) {
    view.setSupportsSelection(selection);
    view.InitProperties();
    view.setSVProject(benchModel().Project());
    view.LoadFromNamespaceDefs(benchModel().Definitions(), {}, true);
    view.tvwProject()->userExpand(view.tvwProject()->Find("Root"));
  }
  sv::TreeNode* node(const QString& key) const { return view.tvwProject()->Find(key); }
  // Opens the first `count` namespaces and every class in them: about 20,200 nodes each.
  void openNamespaces(int count) {
    for (int n = 1; n <= count; ++n) {
      sv::TreeNode* ns = node(QStringLiteral("Root~Ns%1").arg(n));
      view.tvwProject()->userExpand(ns);
      for (int index = 0; index < ns->ChildCount(); ++index)
        view.tvwProject()->userExpand(ns->Children().Item(index));
    }
  }

  sv::test::ScopedModel scoped;
  sv::ProjectView view;
};

long minorFaults() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_minflt;
}

void expandWide(benchmark::State& state, bool selection) {
  long faults = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto control = std::make_unique<Control>(selection);
    sv::TreeNode* wide = control->node("Root~Wide");
    const long faultsBefore = minorFaults();
    state.ResumeTiming();
    control->view.tvwProject()->userExpand(wide);
    benchmark::DoNotOptimize(wide->ChildCount());
    state.PauseTiming();
    faults += minorFaults() - faultsBefore;
    control.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * 10'000);
  // Fresh pages the expansion had the kernel hand over: on some virtual machines these cost
  // as much as the work itself, so the figure says how much of the time is memory.
  state.counters["page_faults"] =
      benchmark::Counter(static_cast<double>(faults), benchmark::Counter::kAvgIterations);
}

// Opening a namespace of 10,000 classes, each with its placeholder.
void BM_ExpandNodeOf10000Children_CommentMode(benchmark::State& state) {
  expandWide(state, false);
}
BENCHMARK(BM_ExpandNodeOf10000Children_CommentMode)->Unit(benchmark::kMillisecond);

void BM_ExpandNodeOf10000Children_SelectionMode(benchmark::State& state) {
  expandWide(state, true);
}
BENCHMARK(BM_ExpandNodeOf10000Children_SelectionMode)->Unit(benchmark::kMillisecond);

// A member four levels down in a tree where only the root is open.
void BM_SelectItemInUnloadedTree(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto control = std::make_unique<Control>(false);
    state.ResumeTiming();
    const bool found = control->view.SelectItem(QStringLiteral("Root~Ns10~Class200~Member100"));
    benchmark::DoNotOptimize(found);
    state.PauseTiming();
    if (!found) state.SkipWithError("not selected");
    control.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_SelectItemInUnloadedTree)->Unit(benchmark::kMillisecond);

// CheckAll over five open namespaces (about 101,000 nodes), each time after UnCheckAll.
void BM_CheckAllOf100000LoadedNodes(benchmark::State& state) {
  Control control(true);
  control.openNamespaces(5);
  state.counters["nodes"] = control.view.tvwProject()->Count();
  for (auto _ : state) {
    state.PauseTiming();
    control.view.UnCheckAll();
    state.ResumeTiming();
    control.view.CheckAll();
  }
}
BENCHMARK(BM_CheckAllOf100000LoadedNodes)->Unit(benchmark::kMillisecond);

// A search from the top for the one name at the end of five open namespaces.
void BM_FindNowNearTheEndOf100000LoadedNodes(benchmark::State& state) {
  Control control(false);
  control.openNamespaces(5);
  sv::Dock* dock = control.view.dksProjectView();
  dock->userClick(QStringLiteral("Find"));
  dock->userType(QStringLiteral("FindValue"), QStringLiteral("needle"));
  sv::TreeNode* top = control.node("Root");
  for (auto _ : state) {
    control.view.setSelectedItem(top);
    control.view.FindNow();
    if (control.view.SelectedItem() == top) state.SkipWithError("not found");
  }
}
BENCHMARK(BM_FindNowNearTheEndOf100000LoadedNodes)->Unit(benchmark::kMillisecond);

// For the record: a search whose walk has to load the whole model on the way.
void BM_FindNowThroughTheUnloadedModel(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto control = std::make_unique<Control>(false);
    sv::Dock* dock = control->view.dksProjectView();
    dock->userClick(QStringLiteral("Find"));
    dock->userType(QStringLiteral("FindValue"), QStringLiteral("wide9999"));
    state.ResumeTiming();
    control->view.FindNow();
    state.PauseTiming();
    control.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_FindNowThroughTheUnloadedModel)->Unit(benchmark::kMillisecond)->Iterations(2);

}  // namespace
