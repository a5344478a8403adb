// Refresh: what one code element offers, in the bar, the flag boxes and the tag list.
#include "comments/CommentEditor.h"

#include <QScopeGuard>
#include <QSet>
#include <optional>

#include "comments/CommentBarKeys.h"
#include "comments/CommentPages.h"
#include "comments/DesignerContainer.h"
#include "comments/ElementFacts.h"
#include "comments/RefreshWrapper.h"
#include "foundation/ErrorTrap.h"
#include "model/CodeItem.h"
#include "model/CodeMember.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/PageLayout.h"
#include "model/TaggedComment.h"
#include "model/TaggedCommentDef.h"
#include "model/TaggedCommentDefs.h"
#include "model/Template.h"
#include "ui/Dock.h"
#include "ui/ExplorerBar.h"
#include "ui/PropertyList.h"
#include "widgets/EBCheckBoxes.h"

namespace sv {

namespace {

using commentbar::kContainer;
using commentbar::kFixedItems;
using commentbar::kFlags;
using commentbar::kNoDesigner;
using commentbar::kOther;

const QString kFlag = QStringLiteral("f");
const QString kOverloads = QStringLiteral("##OVERLOADS");
const QString kDefaultConstructor = QStringLiteral("##DEFAULTCONSTRUCTORSUMMARY");
const QStringList kFixedGroups = {QStringLiteral("other"), QStringLiteral("main"),
                                  QStringLiteral("flags"), QStringLiteral("title")};
// The constructors a component may declare itself, in the order they are looked for.
const QStringList kConstructors = {QStringLiteral("_ctor()"), QStringLiteral("New()")};

const QString kNotAddedYet = QStringLiteral(
    "This tag has not be added to the selected code element, but is available for insertion if "
    "required.<BR><BR>Click the \"Add Tag\" button to the right of the tag description to insert "
    "this tag.");
const QString kAddedAlready = QStringLiteral(
    "This tag has already been added to the selected code element, but may be inserted again if "
    "required.<BR><BR>Click the \"Add Tag\" button to the right of the tag description to insert "
    "another copy of this tag.");

bool isKind(const CodeItem& item, const char* kind) {
  return item.TypeName().compare(QLatin1String(kind), Qt::CaseInsensitive) == 0;
}

}  // namespace

struct CommentEditor::RefreshState {
  bool justList = false;
  QString NamespaceName;
  CommentCollection comments;
  std::shared_ptr<TaggedCommentDefs> defs;
  PropertyList* list = nullptr;
  // Tag identifiers (lower case) that already have a row of an existing comment.
  QSet<QString> listedTags;
  // Element facts, worked out when a rule first needs them.
  std::optional<bool> sourceProjectNamespace;
  std::optional<bool> explicitConstructor;
  int OtherCount = 0;
  int OtherTotalCount = 0;
  int flagCount = 0;
};

bool CommentEditor::ContainsNamespace(const QString& Source, const QString& NameSpace) {
  if (NameSpace.isEmpty()) return false;
  qsizetype from = 0;
  while (true) {
    const qsizetype at = Source.indexOf(NameSpace, from, Qt::CaseInsensitive);
    if (at < 0) return false;
    const qsizetype end = at + NameSpace.size();
    if (end == Source.size() || Source.at(end) == QLatin1Char(',')) return true;
    from = at + 1;
  }
}

void CommentEditor::Refresh(bool JustRepopulatePL) {
  Trap(this, "Refresh",
       [&] {
         mNoSetFocus = true;
         auto focus = qScopeGuard([this] { mNoSetFocus = false; });
         mEb->Group(QStringLiteral("title"))->setVisible(false);
         QString LastGroupItemCaption;
         // The page the author chose is kept; so is any page when the setting asks for it. This
         // holds also where no layouts are offered, or the tag list could never stay on display.
         const ExplorerBarItem* selected = mEb->SelectedItem();
         if (selected && (mKeepPageAcrossElements || selected->Tag().isEmpty()))
           LastGroupItemCaption = selected->Caption();
         SV_TRAP_LOCAL(LastGroupItemCaption);
         HideActiveDesigner();
         setActiveDesigner(nullptr);
         mActiveTaggedCommentDef.reset();
         QString rowKey;
         if (mTagsList && mTagsList->SelectedItem() && !mTagsList->SelectedItem()->IsAddRow())
           rowKey = mTagsList->SelectedItem()->Key();
         if (!mCurrentCodeElement) {
           hideEverything();
           return;
         }

         mPopulating = true;
         auto populating = qScopeGuard([this] { mPopulating = false; });
         mEb->LockRedraw();
         auto barLock = qScopeGuard([this] { mEb->UnlockRedraw(); });
         ExplorerBarItem* container = mEb->Group(kFlags)->Item(kContainer);
         container->setVisible(false);
         mDock->LockRedraw();
         auto dockLock = qScopeGuard([this] { mDock->UnlockRedraw(); });
         mEb->setVisible(!mShowCombo);
         mDock->Band(QLatin1String(ToolbarBand))->setVisible(mShowCombo);
         if (mNamespaceChanged) {
           mNamespaceChanged = false;
           removeRuntimeItems();
         }

         RefreshState state;
         state.justList = JustRepopulatePL;
         refreshElement(JustRepopulatePL, state);
         bool reselected = false;
         if (!JustRepopulatePL) {
           reselected = reselect(LastGroupItemCaption);
           if (!reselected) {
             ExplorerBarGroup* main = mEb->Group(QStringLiteral("main"));
             ExplorerBarGroup* fallback = main->ItemCount() > 0 ? main : mEb->Group(3);
             if (fallback->ItemCount() > 0) fallback->Item(0)->setSelected(true);
             // Chosen by the editor, not by the author: the next element need not keep it.
             if (mEb->SelectedItem()) mEb->SelectedItem()->setTag(QStringLiteral("x"));
           }
         }

         if (state.list) {
           state.list->setText({});
           state.list->UnlockRedraw();
         }
         if (mEb->SelectedItem() && mEb->SelectedItem()->Key() == kOther)
           restoreListSelection(rowKey);
         PopulateToolbar();
         if (!JustRepopulatePL && reselected) {
           DockCommand* pages = mDock->FindCommand(QStringLiteral("p-fullpageedit"));
           if (pages && !pages->Entries().empty()) pages->setCurrentEntry(pages->Entries().front());
         }
         UpdateGroupItemStatus();
         mPopulating = false;
         SelectCommentType(mEb->SelectedItem() ? mEb->SelectedItem()->Key() : QString());

         mEb->Refresh();
         if (state.flagCount > 0) mCheckBoxes->ResizeToItems(state.flagCount, container);
         container->setVisible(true);
         setDirty(false);
       },
       {{"JustRepopulatePL", JustRepopulatePL}});
}

void CommentEditor::hideEverything() {
  mEb->setVisible(false);
  mDock->Band(QLatin1String(ToolbarBand))->setVisible(false);
  mPages->HideAll();
  mDesignerContainer->setVisible(false);
  mInPlaceEditorIsActive = false;
  if (mTagsList) mTagsList->setVisible(false);
  if (mWrapper) mWrapper->BindTo(true, nullptr);
}

void CommentEditor::removeRuntimeItems() {
  QStringList names;
  for (const ExplorerBarGroup* group : mEb->Groups())
    for (const ExplorerBarItem* item : group->Items())
      if (!item->ControlName().isEmpty())
        names << QString(item->ControlName()).remove(QLatin1Char('#'));
  removeDesignerControls(names);
}

void CommentEditor::refreshElement(bool JustRepopulatePL, RefreshState& state) {
  if (!JustRepopulatePL) {
    for (const ExplorerBarGroup* group : mEb->Groups()) {
      const QString key = group->Key();
      if (!kFixedGroups.contains(key, Qt::CaseInsensitive)) mEb->RemoveGroup(key);
    }
    for (const QString& groupKey : kFixedGroups) {
      ExplorerBarGroup* group = mEb->Group(groupKey);
      for (const ExplorerBarItem* item : group->Items()) {
        const QString key = item->Key();
        if (!kFixedItems.contains(key, Qt::CaseInsensitive)) group->RemoveItem(key);
      }
    }
    UnloadFlagCheckboxes();
  }

  state.list = mTagsList;
  if (state.list) state.list->LockRedraw();
  // The rows are filled by code; their Change events are no edits of the author's.
  mIgnoreReset = true;
  auto ignoring = qScopeGuard([this] { mIgnoreReset = false; });
  Clear();
  if (state.list) state.list->setText(QStringLiteral("Working, please wait..."));

  state.NamespaceName = mCurrentNamespaceDef ? mCurrentNamespaceDef->Key() : QString();
  // A variable of a source project offers the tags of a property.
  if (state.NamespaceName == QLatin1String("SV:Variable") && mCurrentNamespaceDef->Owner() &&
      mCurrentNamespaceDef->Owner()->Name().compare(QLatin1String("sv.vbsource"),
                                                    Qt::CaseInsensitive) == 0)
    state.NamespaceName = QStringLiteral("SV:Property");
  state.comments = undeletedComments();
  state.defs = definitions();

  if (state.list)
    state.list->Add(QStringLiteral("ExistingHeader"), QStringLiteral("Existing Comments"),
                    PropertyRowKind::Heading);
  listExistingComments(state);
  if (state.list)
    state.list->Add(QStringLiteral("NewHeader"), QStringLiteral("Available to add"),
                    PropertyRowKind::Heading);
  for (const auto& def : *state.defs)
    if (IncludeTC(*def, state)) placeDefinition(def, state);
  if (JustRepopulatePL) return;

  for (const auto& comment : state.comments) {
    const auto def = definitionOf(*comment);
    if (!def || def->DesignFlag() != kFlag) continue;
    TickFlagCheckbox(comment->TagIdentifier());
  }
  showFlagsAndOther(state);
  addLayouts(state);
}

void CommentEditor::listExistingComments(RefreshState& state) {
  for (const auto& comment : state.comments) {
    if (comment->Item() != mCurrentCodeElement) continue;
    const auto def = definitionOf(*comment);
    if (!def) continue;
    if (mCommentType == XMLComments && def->XMLCommentTypes().isEmpty()) continue;
    if (!def->Caption().isEmpty() || def->DesignFlag() == kFlag) continue;
    ++state.OtherCount;
    state.listedTags.insert(comment->TagIdentifier().toLower());
    if (!state.list) continue;
    PropertyRow* row = state.list->Add(comment->Id(), def->Name());
    row->setName(comment->TagIdentifier());
    row->setValue(comment->Text());
    row->setUnchangedValue(comment->Text());
    row->setDescription(def->Description());
  }
}

bool CommentEditor::IncludeTC(const TaggedCommentDef& def, RefreshState& state) const {
  if (!ContainsNamespace(def.NameSpaces(), state.NamespaceName)) return false;
  if (!mDesignFlag.isEmpty() && def.DesignFlag().contains(mDesignFlag)) return false;
  if (mCommentType == XMLComments && def.XMLCommentTypes().isEmpty()) return false;
  const CodeItem& element = *mCurrentCodeElement;
  if (!state.sourceProjectNamespace) {
    const QString extension = isKind(element, "NameSpace")
                                  ? mFacts->AssemblyFileName(mCurrentCodeElement, provider())
                                        .section(QLatin1Char('.'), -1)
                                  : QString();
    state.sourceProjectNamespace =
        extension.compare(QLatin1String("csproj"), Qt::CaseInsensitive) == 0 ||
        extension.compare(QLatin1String("vbproj"), Qt::CaseInsensitive) == 0;
  }
  if (*state.sourceProjectNamespace) return false;

  const QString tag = def.TagIdentifier();
  if (isKind(element, "Block") && tag.compare(kOverloads, Qt::CaseInsensitive) == 0) {
    const auto* member = dynamic_cast<const CodeMember*>(&element);
    return member && (member->Overloaded() || member->HasOverloadBlocks());
  }
  if (isKind(element, "Component") && tag.compare(kDefaultConstructor, Qt::CaseInsensitive) == 0) {
    // A class with its own constructor documents that constructor instead.
    if (!state.explicitConstructor) {
      state.explicitConstructor = false;
      for (const QString& name : kConstructors) {
        const auto member = std::dynamic_pointer_cast<CodeMember>(
            mFacts->Member(mCurrentCodeElement, name, provider()));
        if (member && member->IsExplicit()) state.explicitConstructor = true;
      }
    }
    return !*state.explicitConstructor;
  }
  return true;
}

void CommentEditor::placeDefinition(const std::shared_ptr<TaggedCommentDef>& def,
                                    RefreshState& state) {
  const QString tag = def->TagIdentifier();
  if (def->DesignFlag() == kFlag) {
    // The flag boxes stay as they are while only the list is refilled.
    if (state.justList) return;
    ExplorerBarItem* container = mEb->Group(kFlags)->Item(kContainer);
    mCheckBoxes->AddCheckbox(mEb, container, def->Caption().isEmpty() ? tag : def->Caption(), tag,
                             def->Description().isEmpty() ? def->Name() : def->Description());
    ++state.flagCount;
    return;
  }
  if (def->Caption().isEmpty() && !def->ExcludeFlags().contains(QLatin1Char('x')) &&
      (def->Qualifier().isEmpty() || mShowLegacyTags)) {
    ++state.OtherTotalCount;
    if (!state.list) return;
    PropertyRow* row = state.list->Add(QStringLiteral("new:") + tag, def->Name());
    row->setName(tag);
    row->setIsAddRow(true);
    SetCommonProperties(row, state.listedTags.contains(tag.toLower()));
    return;
  }
  if (state.justList || def->Caption().isEmpty() || def->DesignerProgID() == kNoDesigner) return;
  if (!def->Qualifier().isEmpty() && FindTaggedComments(state.comments, tag) == 0) return;
  ExplorerBarItem* item = AddExplorerBarItem(def->GroupName(), tag, def->Caption());
  item->setToolTip(def->Name());
  item->setControlName(QString(tag).remove(QLatin1Char('#')));
  if (!def->ImageName().isEmpty()) item->setImage(def->ImageName());
}

void CommentEditor::SetCommonProperties(PropertyRow* PropertyItem, bool added) {
  PropertyItem->setValue(QStringLiteral("Click to add this tag..."));
  PropertyItem->setDescription(added ? kAddedAlready : kNotAddedYet);
  PropertyItem->setForeColor(SystemColor::GrayText);
}

ExplorerBarItem* CommentEditor::AddExplorerBarItem(const QString& GroupName, const QString& Key,
                                                   const QString& Caption) {
  // A tag that names no group belongs to the "other" group.
  const QString groupKey = GroupName.isEmpty() ? kOther : GroupName;
  ExplorerBarGroup* group = mEb->FindGroup(groupKey);
  if (!group) group = mEb->AddGroup(groupKey, groupKey, kOther);
  if (ExplorerBarItem* existing = group->FindItem(Key)) return existing;
  return group->AddItem(Key, Caption);
}

void CommentEditor::showFlagsAndOther(RefreshState& state) {
  ExplorerBarGroup* flags = mEb->Group(QStringLiteral("flags"));
  flags->setVisible(state.flagCount > 0);
  if (flags->Visible()) mCheckBoxes->ResizeCheckboxes(mEb);

  ExplorerBarGroup* otherGroup = mEb->Group(kOther);
  ExplorerBarItem* other = otherGroup->Item(kOther);
  other->setVisible(state.OtherTotalCount > 0);
  other->setTicked(state.OtherCount > 0);
  other->setImage(other->Ticked() ? QStringLiteral("tick") : QString());
  if (!other->Visible() && other->Selected()) other->setSelected(false);
  bool anyVisible = false;
  for (const ExplorerBarItem* item : otherGroup->Items())
    anyVisible = anyVisible || item->Visible();
  otherGroup->setVisible(anyVisible);
}

void CommentEditor::addLayouts(const RefreshState& state) {
  ExplorerBarGroup* main = mEb->Group(QStringLiteral("main"));
  main->ClearItems();
  const auto pageTemplate = InPlaceTemplate();
  if (!pageTemplate || !pageTemplate->PageLayouts()) return;
  for (const auto& layout : *pageTemplate->PageLayouts()) {
    if (!ContainsNamespace(layout->NameSpaces(), state.NamespaceName)) continue;
    main->AddItem(QStringLiteral("inplaceedit:") + layout->Name(),
                  QLatin1Char('"') + layout->Caption() + QStringLiteral("\" Page"),
                  QStringLiteral("inplace"));
  }
}

bool CommentEditor::reselect(const QString& caption) {
  if (caption.isEmpty()) return false;
  ExplorerBarItem* match = nullptr;
  for (const ExplorerBarGroup* group : mEb->Groups()) {
    for (ExplorerBarItem* item : group->Items()) {
      if (item->Key() == kContainer || item->Caption() != caption) continue;
      if (!item->Visible() || !item->Enabled()) continue;
      match = item;
      break;
    }
  }
  if (!match) return false;
  match->setSelected(true);
  return true;
}

void CommentEditor::restoreListSelection(const QString& rowKey) {
  if (!mTagsList) return;
  PropertyRow* row = rowKey.isEmpty() ? nullptr : mTagsList->Find(rowKey);
  if (!row) {
    for (PropertyRow* candidate : mTagsList->Rows()) {
      if (candidate->Kind() != PropertyRowKind::Item) continue;
      row = candidate;
      break;
    }
  }
  if (!row) return;
  mTagsList->setSelectedItem(row);
  mTagsList_SelChange(row);
}

}  // namespace sv
