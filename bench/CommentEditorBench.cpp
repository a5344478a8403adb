#include <benchmark/benchmark.h>

#include <QString>
#include <memory>

#include "comments/CommentEditor.h"
#include "model/TaggedComments.h"
#include "project/core/Definition.h"
#include "project/core/DefinitionSet.h"
#include "project/core/MemoryAppSettings.h"
#include "project/core/ModelItem.h"
#include "project/core/ProjectComment.h"
#include "project/core/ProjectModelFactory.h"
#include "project/core/TagDefinition.h"
#include "project/core/TagDefinitionSet.h"
#include "ui/ExplorerBar.h"

namespace {

const QString kIcons[] = {"summary", "remarks", "returns", "example", "param", "seealso", "value"};

// A configuration of `defs` tags: of every five, two list tags, two page tags in eight groups
// and one flag, and one tag in three for other kinds of item; a class with `comments` comments
// spread over the tags it offers.
struct EditorModel {
  EditorModel(int defs, int comments) {
    auto tags = std::make_shared<sv::TagDefinitionSet>();
    for (int i = 0; i < defs; ++i) {
      auto tag = std::make_shared<sv::TagDefinition>(QStringLiteral("##TAG%1").arg(i));
      tag->setName(QStringLiteral("Tag %1").arg(i));
      tag->setXMLCommentTypes(QStringLiteral("tag%1").arg(i));
      tag->setNameSpaces(i % 3 == 2 ? QStringLiteral("SV:Method,SV:Property")
                                    : QStringLiteral("SV:NameSpace,SV:Class,SV:Method"));
      if (i % 5 == 2 || i % 5 == 3) {
        tag->setCaption(QStringLiteral("Page %1").arg(i));
        tag->setGroupName(QStringLiteral("Group %1").arg(i % 8));
        tag->setImageName(kIcons[i % 7]);
      }
      if (i % 5 == 4) tag->setDesignFlag(QStringLiteral("f"));
      tags->Add(tag);
    }
    settings->setTaggedCommentDefs(tags);
    factory->setAppSettings(settings);
    set = std::make_shared<sv::DefinitionSet>("sv.net", ".NET", "pift");
    classDef = std::make_shared<sv::Definition>("SV:Class");
    set->Adopt(classDef);
    element = std::make_shared<sv::ModelItem>("Class", "Geometry.Shapes.Circle", "Circle");
    int added = 0;
    for (int i = 0; added < comments && i < defs; ++i) {
      if (i % 3 == 2) continue;
      auto comment = std::make_shared<sv::ProjectComment>();
      comment->setTagIdentifier(QStringLiteral("##TAG%1").arg(i));
      comment->setText(QStringLiteral("Text of comment %1").arg(added));
      comment->setItem(element);
      comment->setTagDefinitions(tags);
      element->TaggedComments()->Add(comment, comment->Id());
      ++added;
    }
  }

  std::shared_ptr<sv::MemoryAppSettings> settings = std::make_shared<sv::MemoryAppSettings>();
  std::shared_ptr<sv::ProjectModelFactory> factory = std::make_shared<sv::ProjectModelFactory>();
  std::shared_ptr<sv::DefinitionSet> set;
  std::shared_ptr<sv::Definition> classDef;
  std::shared_ptr<sv::ModelItem> element;
};

// Refresh of one element with the tag list on display: bar, flags, list rows and toolbar.
void BM_RefreshElement(benchmark::State& state) {
  EditorModel model(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  auto previous = sv::InstallModel(model.factory);
  {
    sv::CommentEditor editor;
    editor.setAppPath(QStringLiteral(SV_SOURCE_DIR "/data"));
    editor.Load(model.classDef, model.element, nullptr);
    editor.eb()->userClickItem(QStringLiteral("other"));
    for (auto _ : state) {
      editor.Refresh(false);
      benchmark::DoNotOptimize(editor.Dirty());
    }
    state.SetComplexityN(state.range(0) + state.range(1));
  }
  sv::InstallModel(previous);
}
BENCHMARK(BM_RefreshElement)
    ->Args({300, 50})
    ->Args({600, 100})
    ->Args({1200, 200})
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

}  // namespace
