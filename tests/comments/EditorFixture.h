#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <string>

#include "comments/CommentEditor.h"
#include "support/FakeServices.h"
#include "support/ModelBuilder.h"
#include "support/ScopedModel.h"

namespace sv::test {

// Standard tags over a small .NET model and a source project, a template with one page layout
// for classes and methods, and an editor loaded against them.
//
// Tags: page tags Description (##SUMMARY), Remarks, Returns, Example, Value, Overloads, Default
// Constructor, History (legacy); list tags Parameter, See Also, Exception, Author (legacy),
// Internal (exclude=x), Note (no XML form); flags Exclude and Hidden.
class EditorFixture {
 public:
  EditorFixture();
  ~EditorFixture();

  // Loads the item of a qualified name with its definition (by key) and selects nothing else.
  void Load(const QString& qualifiedName, const QString& defKey);
  // The bar as its Dump prints it.
  std::string Bar() const;
  // The tag list as its Dump prints it, or "(no list)".
  std::string List();
  // The toolbar's commands: "| " before a command that begins a group, the key, "=1" when
  // pressed, the image in braces, " (disabled)"; popup entries indented under their popup.
  std::string Toolbar() const;
  // The flag boxes: "[x] Caption <tag>" or "[ ] Caption <tag>".
  std::string Flags() const;
  // The comments of an item, tombstones included.
  std::string Comments(const QString& qualifiedName) const;
  // The events the editor raised, in order, then cleared.
  std::string TakeEvents();

  FakeServices services;
  ModelBuilder model;
  ScopedModel scopedModel;
  CommentEditor editor;
  QStringList events;
};

}  // namespace sv::test
