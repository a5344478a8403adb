#pragma once

#include <QString>
#include <memory>

#include "comments/DesignerCells.h"
#include "comments/IContentDesigner.h"
#include "foundation/Dumpable.h"

namespace sv {

class HtmlEditor;

// The plain HTML designer (class "SVContentDesigners5.dsrHTMLEdit"): the page of a tag that
// holds one comment, edited as HTML. The page shows the first comment of the tag on the element;
// further comments of the same tag are left as they are.
//
// What the author does reaches the element at once, through the host: typing into a page that
// has no comment creates one, emptying the page deletes it, any other edit changes its text.
// CommitEdit and Deactivate write what the editor holds once more, for edits that came without
// a Change. Text loaded into the page is never written back unless the author edited it, so a
// comment stored in other markup ("<P>") keeps its text until it is really changed.
class HtmlEditDesigner : public IContentDesigner, public Dumpable {
 public:
  HtmlEditDesigner();
  ~HtmlEditDesigner() override;

  QString ModuleName() const override { return QStringLiteral("dsrHTMLEdit"); }
  QString DumpMembers() const override;

  HtmlEditor* HTMLEditor() const override { return mEditor.get(); }
  bool Active() const { return mActive; }
  void setActive(bool value) override;
  void Initialize(const CommentCollection& comments, const std::shared_ptr<CodeItem>& element,
                  const DesignerCells& cells, const QString& TagIdentifier, const QString& reserved,
                  IContentDesignerHost* host) override;
  void LoadItem(const std::shared_ptr<CodeItem>& element, const CommentCollection& comments,
                const QString& TagIdentifier, const QString& reserved) override;
  void Terminate() override;
  void CommitEdit() override;
  // There is no spelling support yet: nothing is checked and the answer is true.
  bool SpellCheck(bool* Cancelled) override;
  // False for every feature until find, replace and spelling exist.
  bool Supports(const QString& feature) const override;
  // Points the host's formatting commands at this page's editor.
  void BindToWrapper(RefreshWrapper* wrapper) override;
  void Deactivate() override;
  // The page is edited in place: there is nothing more to edit, so *changed is false.
  void EditComment(const std::shared_ptr<TaggedComment>& comment, bool* changed) override;
  // A new empty comment of the tag on the element, for the page editor to add.
  std::shared_ptr<TaggedComment> AddComment(const std::shared_ptr<CodeItem>& element,
                                            const QString& TagIdentifier) override;
  // A plain page has no banner: empty.
  QString GetDesignBannerContent(const std::shared_ptr<TaggedComment>& comment) override;
  void Shown() override;

  // The comment the page edits; null while the element has none of the tag.
  const std::shared_ptr<TaggedComment>& EditedComment() const { return mComment; }

  // Whether a page holds nothing an author wrote: no text but white space and no picture,
  // rule, table or other embedded content. "<p>&nbsp;</p>" and the "<br>" a browser leaves
  // behind are empty; comments count as content.
  static bool IsEmptyText(const QString& html);

 private:
  void HTMLEdit_Change();
  // Brings the comment in line with the page after an edit of the author's.
  void zSaveText();

  std::unique_ptr<HtmlEditor> mEditor;
  IContentDesignerHost* mHost = nullptr;
  std::shared_ptr<CodeItem> mElement;
  std::shared_ptr<TaggedComment> mComment;
  QString mTagIdentifier;
  bool mActive = false;
  bool mEdited = false;
  bool mTerminated = false;
};

}  // namespace sv
