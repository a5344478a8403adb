#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <string>

#include "codetree/ProjectEditor.h"
#include "comments/RefreshWrapper.h"
#include "model/Template.h"
#include "support/FakeServices.h"
#include "support/ModelBuilder.h"
#include "support/ScopedModel.h"
#include "support/TempSettings.h"

namespace sv {
class CommentEditor;
class ProjectView;
class TreeNode;
class TreeView;
}  // namespace sv

namespace sv::test {

// The host's refresh lock, recording every lock call; `depth` is what is still locked and
// `boundTo` the editor the host's formatting commands were last pointed at.
class RecordingWrapper : public RefreshWrapper {
 public:
  void lockrefresh() override;
  void unlockrefresh() override;
  void unlockrefreshabsolute() override;
  void BindTo(bool reset, HtmlEditor* editor) override;
  // The calls since the last Take, joined by blanks, then forgotten.
  std::string Take();

  int depth = 0;
  QStringList calls;
  HtmlEditor* boundTo = nullptr;
};

// A template whose page layouts may name their output file, for the link navigation.
class LinkTemplate : public Template {
 public:
  explicit LinkTemplate(std::shared_ptr<sv::NamespaceDefs> sets) : mSets(std::move(sets)) {}
  void AddLayout(const QString& name, const QString& nameSpaces,
                 const QString& fileNameTemplate = {});

  QString Name() const override { return QStringLiteral("Links"); }
  std::shared_ptr<KeyedCollection<std::shared_ptr<TOCDefinition>>> TOCDefinitions() const override {
    return nullptr;
  }
  std::shared_ptr<KeyedCollection<std::shared_ptr<TemplateVariable>>> Variables() const override {
    return nullptr;
  }
  std::shared_ptr<sv::NamespaceDefs> NameSpaces() const override { return mSets; }
  QString Features() const override { return {}; }
  std::shared_ptr<KeyedCollection<std::shared_ptr<PageLayout>>> PageLayouts() const override {
    return mLayouts;
  }
  QString Flags() const override { return {}; }

 private:
  std::shared_ptr<sv::NamespaceDefs> mSets;
  std::shared_ptr<KeyedCollection<std::shared_ptr<PageLayout>>> mLayouts =
      std::make_shared<KeyedCollection<std::shared_ptr<PageLayout>>>();
};

// A project editor over a small .NET-like model, loaded as a host loads it, with methods
// grouped under folders. Qualified names spell the path with "~" as the generator's pages do.
//
//   Geometry                          (no comments)
//     Shapes        namespace          ##SUMMARY
//       Circle      class              ##SUMMARY, ##SEEALSO
//         Methods   folder
//           Area    method             ##PARAM
//           Draw    method             (none)
//       Square      class              (none)
//         Methods   folder
//           Area    method             (none)
//       Unit Circle class              (none)
//     Tools         namespace, key "Geometry~Tools_namespace"
class ProjectEditorFixture {
 public:
  ProjectEditorFixture();
  ~ProjectEditorFixture();

  ProjectView& view() const;
  CommentEditor& commentEditor() const;
  TreeView& tree() const;
  TreeNode* node(const QString& key) const;
  // Opens the branches above a node and clicks it, as a person does.
  void click(const QString& key);
  // The nodes a person sees, "*" before a bold one.
  std::string shown() const;
  // The key of the selected node, or "(none)".
  std::string selected() const;
  // The qualified name of the editor's element, or "(none)".
  std::string element() const;
  // Copy and Paste of the tree's toolbar as "Copy on, Paste off".
  std::string copyPaste() const;
  // The comments of an item, tombstones included.
  std::string comments(const QString& qualifiedName) const;
  // What the editor raised, in order, then forgotten.
  std::string TakeEvents();

  TempSettings settings;
  FakeServices services;
  ModelBuilder model;
  ScopedModel scopedModel;
  std::shared_ptr<LinkTemplate> pages;
  RecordingWrapper wrapper;
  ProjectEditor editor;
  QStringList events;
};

}  // namespace sv::test
