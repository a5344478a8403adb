#pragma once

#include <QString>
#include <memory>

#include "comments/DesignerCells.h"
#include "model/ModelTypes.h"

namespace sv {

class HtmlEditor;
class IContentDesignerHost;
class RefreshWrapper;

// A designer: the page that edits the text of one kind of tag. CommentEditor creates it by
// class name, hands it the element's comments of the tag and itself as the host, and shows it
// while its page is selected. A designer changes comments only through the host, so that the
// events are raised and Dirty moves.
class IContentDesigner {
 public:
  virtual ~IContentDesigner() = default;

  // The HTML editor inside the designer, for the host's formatting commands; null when it has
  // none.
  virtual HtmlEditor* HTMLEditor() const = 0;
  virtual void setActive(bool value) = 0;
  // Called once after creation. `reserved` is always empty.
  virtual void Initialize(const CommentCollection& comments,
                          const std::shared_ptr<CodeItem>& element, const DesignerCells& cells,
                          const QString& TagIdentifier, const QString& reserved,
                          IContentDesignerHost* host) = 0;
  // Loads the comments of the tag; called each time the page is shown.
  virtual void LoadItem(const std::shared_ptr<CodeItem>& element, const CommentCollection& comments,
                        const QString& TagIdentifier, const QString& reserved) = 0;
  // Releases the element, the comments and the host.
  virtual void Terminate() = 0;
  // Writes what was typed into the comment.
  virtual void CommitEdit() = 0;
  // Checks the spelling of the page; answers false when the check was cancelled, which it also
  // writes to *Cancelled.
  virtual bool SpellCheck(bool* Cancelled) = 0;
  // "FindReplace", "SpellCheck", "spellcheckinprogress".
  virtual bool Supports(const QString& feature) const = 0;
  virtual void BindToWrapper(RefreshWrapper* wrapper) = 0;
  // The page is being left.
  virtual void Deactivate() = 0;
  // Edits a comment on behalf of the page editor; *changed tells whether its text changed.
  virtual void EditComment(const std::shared_ptr<TaggedComment>& comment, bool* changed) = 0;
  // A new comment of the tag for the page editor, not yet on the element; null for none.
  virtual std::shared_ptr<TaggedComment> AddComment(const std::shared_ptr<CodeItem>& element,
                                                    const QString& TagIdentifier) = 0;
  // Text the page editor shows above a comment of this designer.
  virtual QString GetDesignBannerContent(const std::shared_ptr<TaggedComment>& comment) = 0;
  // Called once, after Initialize, when creation is complete.
  virtual void Shown() = 0;
};

}  // namespace sv
