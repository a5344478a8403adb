#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <string>

#include "codetree/ProjectView.h"
#include "project/core/DefinitionSet.h"
#include "project/core/MemoryProvider.h"
#include "project/core/ProjectModelFactory.h"
#include "project/model/ProjectModel.h"
#include "support/FakeServices.h"
#include "support/ModelBuilder.h"
#include "support/ScopedModel.h"
#include "ui/TreeView.h"

namespace sv::test {

// A host of one ProjectView over a described model: it installs fake services and the model,
// sets the control up as a host does, and prints the tree.
struct ViewHost {
  explicit ViewHost(const QString& description, bool selection = false,
                    const std::function<void(ProjectView&)>& beforeInit = {})
      : model(description), scopedModel(model.Factory()) {
    view.setSupportsSelection(selection);
    if (beforeInit) beforeInit(view);
    view.InitProperties();
    view.setSVProject(model.Project());
  }

  void load(bool clear = true) { view.LoadFromNamespaceDefs(model.Definitions(), {}, clear); }
  TreeView& tree() const { return *view.tvwProject(); }
  TreeNode* node(const QString& key) const { return tree().Find(key); }
  // The nodes a person sees: children of collapsed nodes are left out.
  std::string shown() const {
    TreeDumpOptions options;
    options.visibleOnly = true;
    return tree().Dump(options).toStdString();
  }
  // Every node with its key, placeholders included.
  std::string keys() const {
    TreeDumpOptions options;
    options.keys = true;
    return tree().Dump(options).toStdString();
  }
  std::string exclusions() const {
    QStringList keys;
    for (const QString& key : *view.Exclusions()) keys << key;
    return keys.join(QLatin1Char(',')).toStdString();
  }
  void expand(const QString& key) { tree().userExpand(node(key)); }
  void toggle(const QString& key) { tree().userToggleCheck(node(key)); }
  std::string selected() const {
    TreeNode* selection = tree().SelectedItem();
    return selection ? selection->Key().toStdString() : std::string("(none)");
  }
  // Failures inside the control are reported in a box; a test expects none unless it says so.
  int reportedFailures() const { return services.message->Count(); }

  FakeServices services;
  ModelBuilder model;
  ScopedModel scopedModel;
  ProjectView view;
};

}  // namespace sv::test
