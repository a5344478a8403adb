#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <string>

#include "comments/CommentEditor.h"
#include "comments/RefreshWrapper.h"
#include "model/ModelFactory.h"
#include "support/FakeServices.h"
#include "support/ModelBuilder.h"

namespace sv::test {

// What the host's command wrapper was asked, in order.
class RecordingWrapper : public RefreshWrapper {
 public:
  void lockrefresh() override { calls << "lockrefresh"; }
  void unlockrefresh() override { calls << "unlockrefresh"; }
  void unlockrefreshabsolute() override { calls << "unlockrefreshabsolute"; }
  void BindTo(bool reset, HtmlEditor* editor) override {
    calls << QStringLiteral("BindTo %1 %2").arg(reset).arg(editor ? "editor" : "nothing");
  }
  std::string Take();

  QStringList calls;
};

// The comment editor against the shipped tag definitions (data/config/tags.xml), over a small
// C++ model whose kinds are keyed as the shipped C++ set keys them:
//
//   Geometry (project) > geo (namespace) > Circle (class, Summary "A round shape.", Remarks in
//   old upper-case markup) with the function Area (no comments); Square (class, with only a
//   hidden See Also comment).
class DesignerFixture {
 public:
  DesignerFixture();
  ~DesignerFixture();

  // Loads the item of a qualified name with the definition of a key ("Class", "Function").
  void Load(const QString& qualifiedName, const QString& defKey);
  // The comments of an item, tombstones included, as CommentsText prints them.
  std::string Comments(const QString& qualifiedName) const;
  // The events the editor raised, in order, then cleared.
  std::string TakeEvents();
  // The designer controls back to front: "Name" with " (visible)" and " (front)".
  std::string Controls() const;

  // Whether ActiveDesignerChanged goes into the events too.
  bool watchDesigner = false;
  FakeServices services;
  std::shared_ptr<ModelFactory> previousModel;
  ModelBuilder model;
  CommentEditor editor;
  QStringList events;
};

}  // namespace sv::test
