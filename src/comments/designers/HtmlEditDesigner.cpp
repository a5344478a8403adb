#include "comments/designers/HtmlEditDesigner.h"

#include <QObject>
#include <QSet>

#include "comments/IContentDesignerHost.h"
#include "comments/RefreshWrapper.h"
#include "foundation/DumpValue.h"
#include "foundation/ErrorTrap.h"
#include "model/CodeItem.h"
#include "model/ModelFactory.h"
#include "model/TaggedComment.h"
#include "ui/HtmlEditor.h"

namespace sv {

namespace {

constexpr QChar kNoBreakSpace(0x00A0);

// Elements that are content of their own even without any text.
bool isEmbedded(const HtmlElement& element) {
  static const QSet<QString> names = {
      QStringLiteral("img"),    QStringLiteral("hr"),      QStringLiteral("table"),
      QStringLiteral("iframe"), QStringLiteral("object"),  QStringLiteral("embed"),
      QStringLiteral("video"),  QStringLiteral("audio"),   QStringLiteral("canvas"),
      QStringLiteral("svg"),    QStringLiteral("math"),    QStringLiteral("input"),
      QStringLiteral("select"), QStringLiteral("textarea")};
  return names.contains(element.localName());
}

bool holdsComment(const HtmlNode& node) {
  for (const auto& child : node.childNodes())
    if (child->nodeType() == HtmlNodeType::Comment) return true;
  return false;
}

}  // namespace

HtmlEditDesigner::HtmlEditDesigner() : mEditor(std::make_unique<HtmlEditor>()) {
  mEditor->setObjectName(QStringLiteral("HTMLEdit"));
  mEditor->setVisible(false);
  QObject::connect(mEditor.get(), &HtmlEditor::Change, [this] { HTMLEdit_Change(); });
}

HtmlEditDesigner::~HtmlEditDesigner() = default;

QString HtmlEditDesigner::DumpMembers() const {
  return DumpValues({
      {"mHost", mHost ? DumpVariant::Object("IContentDesignerHost") : DumpVariant::Nothing()},
      {"mElement", DumpVariant::Object(mElement, QStringLiteral("CodeItem"))},
      {"mComment", DumpVariant::Object(mComment, QStringLiteral("TaggedComment"))},
      {"mTagIdentifier", mTagIdentifier},
      {"mActive", mActive},
      {"mEdited", mEdited},
      {"mTerminated", mTerminated},
  });
}

void HtmlEditDesigner::setActive(bool value) {
  Trap(this, "Active",
       [&] {
         mActive = value;
         mEditor->setVisible(value);
       },
       {{"Value", value}});
}

void HtmlEditDesigner::Initialize(const CommentCollection& comments,
                                  const std::shared_ptr<CodeItem>& element,
                                  const DesignerCells& cells, const QString& TagIdentifier,
                                  const QString& reserved, IContentDesignerHost* host) {
  Trap(this, "Initialize",
       [&] {
         mHost = host;
         mTerminated = false;
         mEditor->setBaseURL(CellText(cells, QStringLiteral("BaseURL")));
         mEditor->LoadDocument(QString());
         LoadItem(element, comments, TagIdentifier, reserved);
       },
       {{"TagIdentifier", TagIdentifier}});
}

void HtmlEditDesigner::LoadItem(const std::shared_ptr<CodeItem>& element,
                                const CommentCollection& comments, const QString& TagIdentifier,
                                const QString&) {
  Trap(this, "LoadItem",
       [&] {
         mElement = element;
         mTagIdentifier = TagIdentifier;
         mComment = comments.IsEmpty() ? nullptr : comments.Item(1);
         mEditor->setBodyHTML(mComment ? mComment->Text() : QString());
         mEdited = false;
       },
       {{"TagIdentifier", TagIdentifier}});
}

void HtmlEditDesigner::Terminate() {
  Trap(this, "Terminate", [&] {
    mTerminated = true;
    mHost = nullptr;
    mElement.reset();
    mComment.reset();
  });
}

void HtmlEditDesigner::CommitEdit() {
  Trap(this, "CommitEdit", [&] { zSaveText(); });
}

bool HtmlEditDesigner::SpellCheck(bool*) {
  return true;
}

bool HtmlEditDesigner::Supports(const QString&) const {
  return false;
}

void HtmlEditDesigner::BindToWrapper(RefreshWrapper* wrapper) {
  Trap(this, "BindToWrapper", [&] {
    if (wrapper) wrapper->BindTo(true, mEditor.get());
  });
}

void HtmlEditDesigner::Deactivate() {
  Trap(this, "Deactivate", [&] {
    zSaveText();
    mEditor->setFocused(false);
  });
}

void HtmlEditDesigner::EditComment(const std::shared_ptr<TaggedComment>&, bool* changed) {
  *changed = false;
}

std::shared_ptr<TaggedComment> HtmlEditDesigner::AddComment(
    const std::shared_ptr<CodeItem>& element, const QString& TagIdentifier) {
  return Trap(this, "AddComment",
              [&] {
                auto comment = Model().NewTaggedComment();
                comment->setTagIdentifier(TagIdentifier);
                comment->setItem(element);
                return comment;
              },
              {{"TagIdentifier", TagIdentifier}});
}

QString HtmlEditDesigner::GetDesignBannerContent(const std::shared_ptr<TaggedComment>&) {
  return {};
}

void HtmlEditDesigner::Shown() {}

bool HtmlEditDesigner::IsEmptyText(const QString& html) {
  if (html.trimmed().isEmpty()) return true;
  HtmlDocument page;
  HtmlElement* body = page.body();
  body->setInnerHTML(html);
  QString text = body->textContent();
  text.remove(kNoBreakSpace);
  if (!text.trimmed().isEmpty() || holdsComment(*body)) return false;
  for (const HtmlElement* element : body->descendantElements())
    if (isEmbedded(*element) || holdsComment(*element)) return false;
  return true;
}

void HtmlEditDesigner::HTMLEdit_Change() {
  Trap(this, "HTMLEdit_Change", [&] {
    if (mTerminated || !mHost) return;
    mEdited = true;
    zSaveText();
  });
}

void HtmlEditDesigner::zSaveText() {
  if (!mEdited || !mHost || !mElement) return;
  const QString text = mEditor->BodyHTML();
  SV_TRAP_LOCAL(text);
  if (IsEmptyText(text)) {
    if (!mComment) return;
    // Emptying the page deletes its comment; typing again makes a new one.
    const auto comment = std::move(mComment);
    mComment.reset();
    mHost->TaggedCommentDeleted(mElement, comment);
    return;
  }
  if (!mComment) {
    auto comment = Model().NewTaggedComment();
    comment->setTagIdentifier(mTagIdentifier);
    comment->setItem(mElement);
    comment->setText(text);
    mComment = comment;
    mHost->TaggedCommentAdded(mElement, comment);
    return;
  }
  if (mComment->Text() == text) return;
  mComment->setText(text);
  mHost->TaggedCommentChanged(mElement, mComment);
}

}  // namespace sv
