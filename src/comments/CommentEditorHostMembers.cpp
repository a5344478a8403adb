// What a host reaches through ProjectEditor: spelling, focus, user data, settings, context help.
#include "comments/CommentEditor.h"

#include <QCoreApplication>
#include <vector>

#include "comments/CommentPages.h"
#include "comments/DesignerControl.h"
#include "comments/IContentDesigner.h"
#include "foundation/DynamicHelp.h"
#include "foundation/ErrorTrap.h"
#include "foundation/MessageBox.h"
#include "foundation/Services.h"
#include "foundation/SpellingEngine.h"
#include "foundation/modProjectView.h"
#include "model/NamespaceDef.h"
#include "model/TaggedComments.h"
#include "ui/ExplorerBar.h"
#include "ui/PropertyList.h"

namespace sv {

namespace {

const QString kUserDataChild = QStringLiteral("CommentEditor");
const QString kUserDataPage = QStringLiteral("Page");
const QString kUserDataShowCombo = QStringLiteral("ShowCombo");
// The description pane's height when the settings are read again; a new list starts at 49.
constexpr int kReloadedDescriptionHeight = 35;

}  // namespace

bool CommentEditor::SpellCheck(bool ShowCompletionMessage, ISpellingEngine* PassedSpell) {
  (void)PassedSpell;
  return Trap(this, "SpellCheck",
              [&] {
                mSpellCheckCancelled = false;
                const auto comments = TaggedComments();
                if (!comments || comments->UnDeletedCount() == 0) return true;
                // Without an engine there is nothing that could check a word.
                if (!mSpell) return true;
                spellCheckPages();
                if (ShowCompletionMessage) {
                  if (mSpellCheckCancelled)
                    Services::Message().ShowMessage(
                        QStringLiteral("The spell check has been cancelled"), Mb::Exclamation,
                        QStringLiteral("Spelling"));
                  else
                    Services::Message().ShowMessage(
                        QStringLiteral("The spell check completed successfully"), Mb::Information,
                        QStringLiteral("Spelling"));
                }
                return !mSpellCheckCancelled;
              },
              {{"ShowCompletionMessage", ShowCompletionMessage}});
}

void CommentEditor::spellCheckPages() {
  // The page editor would check a layout's whole page at once; until it is hosted, the
  // designers of the pages with content are walked whether or not layouts are offered.
  std::vector<QString> keys;
  for (const ExplorerBarGroup* group : mEb->Groups()) {
    if (group->Key() == QLatin1String("flags")) continue;
    for (const ExplorerBarItem* item : group->Items())
      if (item->Ticked() && item->Key() != QLatin1String("other")) keys.push_back(item->Key());
  }
  for (const QString& key : keys) {
    SelectCommentType(key);
    IContentDesigner* designer = ActiveDesigner();
    if (designer && designer->Supports(QStringLiteral("SpellCheck"))) {
      // The spelling dialog of the page before must be gone, and a cancel seen.
      if (QCoreApplication::instance()) QCoreApplication::processEvents();
      designer->SpellCheck(&mSpellCheckCancelled);
    }
    if (mSpellCheckCancelled || mCancelSpellCheck) return;
  }
}

void CommentEditor::SetSpellObject(std::shared_ptr<ISpellingEngine> Spell) {
  Trap(this, "SetSpellObject", [&] { mSpell = std::move(Spell); });
}

void CommentEditor::SetSpellOptions(bool Suggest, bool IgnoreInUpperCase, bool IgnoreWithNumbers,
                                    bool IgnoreInMixedCase, const QString& MainDictionaryFile,
                                    const QString& CustomDictionaryFile,
                                    const QStringList& IgnoreWordList) {
  Trap(this, "SetSpellOptions",
       [&] {
         mSpellIgnoreWords = IgnoreWordList;
         if (!mSpell) return;
         mSpell->setSuggest(Suggest);
         mSpell->setIgnoreInUpperCase(IgnoreInUpperCase);
         mSpell->setIgnoreWithNumbers(IgnoreWithNumbers);
         mSpell->setIgnoreInMixedCase(IgnoreInMixedCase);
         mSpell->setMainDictFile(MainDictionaryFile);
         mSpell->setCustomDictFile(CustomDictionaryFile);
       },
       {{"Suggest", Suggest},
        {"IgnoreInUpperCase", IgnoreInUpperCase},
        {"IgnoreWithNumbers", IgnoreWithNumbers},
        {"IgnoreInMixedCase", IgnoreInMixedCase},
        {"MainDictionaryFile", MainDictionaryFile},
        {"CustomDictionaryFile", CustomDictionaryFile}});
}

void CommentEditor::setToolbarStyle(int value) {
  Trap(this, "ToolbarStyle", [&] { mToolbarStyle = value; }, {{"Value", value}});
}

void CommentEditor::setEditInFocus(bool value) {
  Trap(this, "EditInFocus", [&] { mEditInFocus = value; }, {{"Value", value}});
}

void CommentEditor::SetEditFocus() {
  Trap(this, "SetEditFocus", [&] {
    if (mNoSetFocus) return;
    const ExplorerBarItem* item = mEb->SelectedItem();
    if (!item) return;
    // A tag's page takes the focus in its designer; the list and layouts through the pages.
    if (DesignerControl* control = mActiveDesigner ? ActiveDesignerControl() : nullptr) {
      control->SetEditFocus();
      return;
    }
    mPages->SetEditFocus(item->Key());
  });
}

void CommentEditor::SaveUserData(QVariantMap& e) const {
  Trap(this, "SaveUserData", [&] {
    QVariantMap child;
    if (const ExplorerBarItem* item = mEb->SelectedItem()) child.insert(kUserDataPage, item->Key());
    child.insert(kUserDataShowCombo, mShowCombo ? QStringLiteral("1") : QStringLiteral("0"));
    e.insert(kUserDataChild, child);
  });
}

void CommentEditor::LoadUserData(const QVariantMap& e) {
  Trap(this, "LoadUserData", [&] {
    const QVariant value = e.value(kUserDataChild);
    if (value.typeId() != QMetaType::QVariantMap) return;
    const QVariantMap child = value.toMap();
    if (child.contains(kUserDataShowCombo))
      setShowCombo(child.value(kUserDataShowCombo).toString() == QLatin1String("1"));
    const QString page = child.value(kUserDataPage).toString();
    SV_TRAP_LOCAL(page);
    if (page.isEmpty() || !mCurrentCodeElement) return;
    const ExplorerBarItem* item = mEb->FindItem(page);
    if (!item || !item->Visible() || !item->Enabled()) return;
    SelectCommentType(page);
  });
}

void CommentEditor::ReloadSettings() {
  Trap(this, "ReloadSettings", [&] {
    if (mSpell) InitSpellingObject(*mSpell);
    if (!mTagsList) return;
    const QString pane = QStringLiteral("Layout\\DescriptionPane");
    mTagsList->setDescriptionVisible(
        GetAppValue(QStringLiteral("Visible"), 1, Conversion::Number, pane).toDouble() != 0);
    mTagsList->setDescriptionHeight(static_cast<int>(
        GetAppValue(QStringLiteral("Height"), kReloadedDescriptionHeight, Conversion::Number, pane)
            .toDouble()));
  });
}

void CommentEditor::IDynamicHelpContext_Initialise(
    const std::shared_ptr<IDynamicHelpHost>& Notify) {
  Trap(this, "IDynamicHelpContext_Initialise", [&] { mDynamicHelpHost = Notify; });
}

void CommentEditor::IDynamicHelpContext_QueryContext(QStringList& KeywordCollection,
                                                     QMap<QString, QString>& Attributes) {
  Trap(this, "IDynamicHelpContext_QueryContext", [&] {
    if (!mCurrentCodeElement) return;
    Attributes.insert(QStringLiteral("SV.CommentEditor.Namespace"),
                      mCurrentNamespaceDef ? mCurrentNamespaceDef->Key() : QString());
    const ExplorerBarItem* item = mEb->SelectedItem();
    if (!item) return;
    if (item->Group() && item->Group()->Key() == QLatin1String("main")) {
      KeywordCollection << QStringLiteral("SV.CommentEditor.FullPageEdit");
      return;
    }
    KeywordCollection << QStringLiteral("SV.CommentEditor.") + item->Caption();
    Attributes.insert(QStringLiteral("SV.CommentEditor.CommentType"), item->Caption());
    Attributes.insert(QStringLiteral("SV.CommentEditor.CommentID"), item->Key());
  });
}

}  // namespace sv
