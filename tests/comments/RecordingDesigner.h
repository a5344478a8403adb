#pragma once

#include <QStringList>
#include <memory>

#include "comments/IContentDesigner.h"
#include "model/CodeItem.h"
#include "model/TaggedComment.h"

namespace sv::test {

// A designer that writes down what its host asks of it, one line per call, into a log shared by
// all designers of a test. Its banner is the comment's tag in brackets.
class RecordingDesigner : public IContentDesigner {
 public:
  explicit RecordingDesigner(QStringList* log) : mLog(log) {}

  HtmlEditor* HTMLEditor() const override { return nullptr; }
  void setActive(bool value) override { *mLog << QStringLiteral("Active %1").arg(value); }
  void Initialize(const CommentCollection& comments, const std::shared_ptr<CodeItem>& element,
                  const DesignerCells& cells, const QString& TagIdentifier, const QString&,
                  IContentDesignerHost* host) override {
    QStringList keys;
    for (int index = 1; index <= cells.Count(); ++index) keys << cells.KeyAt(index);
    *mLog << QStringLiteral("Initialize %1 %2 comments=%3 cells=%4 host=%5")
                 .arg(name(element), TagIdentifier)
                 .arg(comments.Count())
                 .arg(keys.join(','))
                 .arg(host != nullptr);
    mCells = cells;
  }
  void LoadItem(const std::shared_ptr<CodeItem>& element, const CommentCollection& comments,
                const QString& TagIdentifier, const QString&) override {
    *mLog << QStringLiteral("LoadItem %1 %2 comments=%3")
                 .arg(name(element), TagIdentifier)
                 .arg(comments.Count());
  }
  void Terminate() override { *mLog << QStringLiteral("Terminate"); }
  void CommitEdit() override { *mLog << QStringLiteral("CommitEdit"); }
  bool SpellCheck(bool*) override { return true; }
  bool Supports(const QString&) const override { return false; }
  void BindToWrapper(RefreshWrapper*) override { *mLog << QStringLiteral("BindToWrapper"); }
  void Deactivate() override { *mLog << QStringLiteral("Deactivate"); }
  void EditComment(const std::shared_ptr<TaggedComment>&, bool* changed) override {
    *changed = false;
  }
  std::shared_ptr<TaggedComment> AddComment(const std::shared_ptr<CodeItem>&,
                                            const QString&) override {
    return nullptr;
  }
  QString GetDesignBannerContent(const std::shared_ptr<TaggedComment>& comment) override {
    return QLatin1Char('[') + comment->TagIdentifier() + QLatin1Char(']');
  }
  void Shown() override { *mLog << QStringLiteral("Shown"); }

  const DesignerCells& Cells() const { return mCells; }

 private:
  static QString name(const std::shared_ptr<CodeItem>& element) {
    return element ? element->Name().value_or(QString()) : QStringLiteral("(none)");
  }

  QStringList* mLog;
  DesignerCells mCells;
};

}  // namespace sv::test
