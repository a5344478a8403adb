#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>
#include <memory>

#include "comments/DesignerCells.h"
#include "foundation/Dumpable.h"
#include "model/ModelTypes.h"

namespace sv {

class AdditionalFile;
class CheckBox;
class CommentEditorHost;
class CommentPages;
class DesignerContainer;
class DesignerControl;
class DesignerRegistry;
class Dock;
class DockCommand;
class EBCheckBoxes;
class ElementFacts;
class ExplorerBar;
class ExplorerBarItem;
class ImageList;
class NamespaceDef;
class NamespaceDefs;
class NamespaceProvider;
class PropertyList;
class PropertyRow;
class SVProject;
class TaggedCommentDef;
class TaggedCommentDefs;
class TaggedComments;
class Template;
class frmTipPopup;
class HtmlEditor;
class IContentDesigner;
class IContentDesignerHost;
class RefreshWrapper;
class IDynamicHelpHost;
class ISpellingEngine;

// The control in which an author writes the comments of one code element. It offers the
// element's tags in three places: page tags as items of the explorer bar `eb` (and of the
// toolbar `DockCommentTypes`), flags as check boxes in the bar's "flags" group, and list tags as
// rows of the tag list. Every comment enters and leaves an element by AddTaggedComment and
// DeleteTaggedComment, which raise the events and move Dirty.
//
// A page tag's text is edited by a designer, made by class name (the definition's
// DesignerProgID) when its page is first shown, and kept in DesignerContainer until Terminate.
// Tags whose classes are the same share one designer. The editor is the designers' host.
//
// Icons are read at initialisation from "icons/commenttypes" below AppPath(): the path set with
// setAppPath, or else AppSettings::AppPath() of the installed model. The application path is the
// folder that holds what ships with the product (the repository's data/ folder).
class CommentEditor : public QObject, public Dumpable {
  Q_OBJECT

 public:
  // CommentType 0: XML comments, only tags with an XML form are offered.
  static constexpr long XMLComments = 0;

  explicit CommentEditor(QObject* parent = nullptr);
  ~CommentEditor() override;

  QString ModuleName() const override { return QStringLiteral("CommentEditor"); }
  QString DumpMembers() const override;

  std::shared_ptr<sv::NamespaceDefs> NamespaceDefs() const { return mNamespaceDefs; }
  void setNamespaceDefs(std::shared_ptr<sv::NamespaceDefs> value);
  std::shared_ptr<CodeItem> CurrentRootItem() const { return mCurrentRootItem; }
  void setCurrentRootItem(std::shared_ptr<CodeItem> value);
  std::shared_ptr<NamespaceDef> CurrentNamespaceDef() const { return mCurrentNamespaceDef; }
  // A different definition marks the namespace changed for the next Refresh.
  void setCurrentNamespaceDef(std::shared_ptr<NamespaceDef> value);
  std::shared_ptr<CodeItem> CurrentCodeElement() const { return mCurrentCodeElement; }
  // Stores the element and refreshes the control.
  void setCurrentCodeElement(std::shared_ptr<CodeItem> value);
  // The comments of the current element; null without one.
  std::shared_ptr<sv::TaggedComments> TaggedComments() const;
  // The selected row of the tag list; null when the list does not exist yet.
  PropertyRow* SelectedItem() const;
  void setSelectedItem(PropertyRow* row);
  long CommentType() const { return mCommentType; }
  void setCommentType(long value);
  bool Dirty() const { return mDirty; }
  // Raises DirtyStateChanged when the value changes.
  void setDirty(bool value);

  bool KeepTombstones() const { return mKeepTombstones; }
  void setKeepTombstones(bool value) { mKeepTombstones = value; }
  bool ShowLegacyTags() const { return mShowLegacyTags; }
  void setShowLegacyTags(bool value) { mShowLegacyTags = value; }
  // When set, the "##" comment is listed as available. Stored only.
  bool ListImplicitTaggedCommentType() const { return mListImplicitTaggedCommentType; }
  void setListImplicitTaggedCommentType(bool value) { mListImplicitTaggedCommentType = value; }
  bool AutoSetFocus() const { return mAutoSetFocus; }
  void setAutoSetFocus(bool value) { mAutoSetFocus = value; }
  // The host's design flag: tags whose DesignFlag contains it are not offered.
  const QString& DesignFlag() const { return mDesignFlag; }
  void setDesignFlag(const QString& value) { mDesignFlag = value; }
  const QString& ProjectName() const { return mProjectName; }
  void setProjectName(const QString& value) { mProjectName = value; }
  const QStringList& Modules() const { return mModules; }
  void setModules(const QStringList& value) { mModules = value; }
  const QString& BaseURL() const { return mBaseURL; }
  void setBaseURL(const QString& value) { mBaseURL = value; }
  bool CancelSpellCheck() const { return mCancelSpellCheck; }
  void setCancelSpellCheck(bool value) { mCancelSpellCheck = value; }
  const QString& AppName() const { return mAppName; }
  void setAppName(const QString& value) { mAppName = value; }
  // Caption and icon of the bar group "title".
  QString TitleCaption() const;
  void setTitleCaption(const QString& value);
  QString TitleIcon() const;
  void setTitleIcon(const QString& value);
  std::shared_ptr<sv::SVProject> SVProject() const { return mSVProject; }
  void setSVProject(std::shared_ptr<sv::SVProject> value);
  // True shows the comment types as a toolbar instead of the explorer bar.
  bool ShowCombo() const { return mShowCombo; }
  void setShowCombo(bool value);
  // The template whose page layouts the bar offers. Without one set, the last template of the
  // application's templates that serves the current definition's set and has no "x" flag.
  std::shared_ptr<Template> InPlaceTemplate() const;
  void setInPlaceTemplate(std::shared_ptr<Template> value);
  // Keeps the selected page when the next element is loaded, even when the editor chose it.
  // The host reads it from its editor settings; false by default.
  bool KeepPageAcrossElements() const { return mKeepPageAcrossElements; }
  void setKeepPageAcrossElements(bool value) { mKeepPageAcrossElements = value; }
  QString AppPath() const;
  void setAppPath(const QString& value) { mAppPath = value; }
  // Seams for the model's facts about elements and for the pages; never null.
  void setElementFacts(std::shared_ptr<ElementFacts> value);
  void setPages(std::shared_ptr<CommentPages> value);
  CommentPages& Pages() const { return *mPages; }

  // Prepares the bar, the toolbar, the flag boxes and the icons; runs once.
  void Initialize();
  // Hands over an element: definition, root, element (which refreshes), title; Dirty false.
  void Load(std::shared_ptr<NamespaceDef> namespaceDef, std::shared_ptr<CodeItem> item,
            std::shared_ptr<CodeItem> rootItem, const QString& titleIcon = {},
            const QString& titleCaption = {});
  // Rebuilds what the element offers; with true only the tag list is refilled.
  void Refresh(bool JustRepopulatePL = false);
  // Empties the tag list and disables the "edit" controls; keeps the element.
  void Clear();
  // Commits any edit in progress in the designer or the tag list.
  void CommitEdit();
  // Deletes the comment of a tag list row.
  void DeleteCommentItem(const QString& Key);
  // Selects a page by bar key; ForceRefresh is accepted and has no effect.
  void SelectCommentType(const QString& Key, bool ForceRefresh = false);
  void SelectInPlaceEditLayout(const QString& PageLayoutName);
  // Terminates the designers and drops the model references; the control must not be used
  // afterwards. A second call does nothing.
  void Terminate();

  // Designer hosting (CommentEditorDesigners.cpp).
  // The designer on display; null while the tag list or a page layout is shown.
  IContentDesigner* ActiveDesigner() const { return mActiveDesigner.get(); }
  // The designer of a tag, made hidden when it does not exist yet; null for an unknown tag.
  std::shared_ptr<IContentDesigner> GetDesignerObject(const QString& TagIdentifier);
  // The editor on display: the page editor's for a layout, the designer's for a tag page, null
  // for the tag list and the flags.
  HtmlEditor* GetActiveHTMLEditor() const;
  bool DesignerContainerVisible() const;
  sv::DesignerContainer* DesignerPanel() const { return mDesignerContainer; }
  // The designer the editor starts with, for tags whose definitions name no class.
  DesignerControl* HTMLEdit() const { return mHTMLEdit; }
  // The names of the designer controls made at run time.
  const StringCollection& CreatedDesigners() const { return mCreatedDesigners; }
  // The class that edits a tag: its DesignerProgID, the definitions' default, or "HTMLEdit".
  QString DesignerForTaggedComment(const std::shared_ptr<TaggedCommentDef>& def) const;
  // Keeps the host's refresh lock and command wrapper; null drops it.
  void BindToWrapper(RefreshWrapper* wrapper);
  // The designers' view of this editor.
  IContentDesignerHost& DesignerHost() const;
  // Where designers are made; the product's designers unless a host sets its own.
  void setDesignerRegistry(std::shared_ptr<DesignerRegistry> registry);
  // Formatting commands of the host, sent to the page editor while it is shown, else to the
  // active designer's HTML editor; nothing happens without either.
  void InsertTable(int rows, int columns);
  void SetForeColorByName(const QString& colour);
  void SetFillColorByName(const QString& colour);
  QString GetForeColorName() const;
  QString GetFillColorName() const;
  void ClickEditTool(const QString& tool);

  // The one road by which a comment enters an element.
  void AddTaggedComment(const std::shared_ptr<CodeItem>& Item,
                        const std::shared_ptr<TaggedComment>& comment);
  // Takes a comment off an element, leaving a tombstone when KeepTombstones asks for one.
  // `Key` is not used; the event carries the comment's Id.
  void DeleteTaggedComment(const std::shared_ptr<CodeItem>& Item,
                           const std::shared_ptr<TaggedComment>& comment, const QString& Key = {});
  // Reports a changed comment: TaggedCommentChanged, the description, Dirty.
  void ChangeTaggedComment(const std::shared_ptr<CodeItem>& Item,
                           const std::shared_ptr<TaggedComment>& comment);
  // Whether a comment of this tag on this element is written with the element's name.
  bool QualifierRequired(const QString& TagIdentifier, const std::shared_ptr<TaggedCommentDef>& def,
                         const std::shared_ptr<CodeItem>& CodeElement) const;
  // The comment of an Id, tombstones included, compared case-sensitively; null when none.
  std::shared_ptr<TaggedComment> GetTaggedCommentByKey(const QString& Key) const;
  // How many comments of a collection carry a tag, compared without regard to case.
  static int FindTaggedComments(const CommentCollection& col, const QString& TagIdentifier);
  // The XML element a comment maps to: "summary" for "##", else the first of its definition's.
  QString GetXMLCommentType(const std::shared_ptr<TaggedComment>& tc) const;
  // Ticks or clears a flag on the current element.
  void FlagChecked(const QString& Key, bool Checked);
  // Whether a comma list holds a moniker; a hit may be the tail of a longer entry.
  static bool ContainsNamespace(const QString& Source, const QString& NameSpace);

  // The widgets, for hosts, renderers and tests.
  ExplorerBar* eb() const { return mEb; }
  Dock* DockCommentTypes() const { return mDock; }
  // The tag list, created on first use.
  PropertyList* TagsList();
  bool TagsListExists() const { return mTagsList != nullptr; }
  EBCheckBoxes* CheckBoxes() const { return mCheckBoxes; }
  frmTipPopup* TipPopup() const { return mTipPopup; }
  ImageList* Images() const { return mImages; }
  std::shared_ptr<TaggedCommentDef> ActiveTaggedCommentDef() const {
    return mActiveTaggedCommentDef;
  }
  bool InPlaceEditorIsActive() const { return mInPlaceEditorIsActive; }
  // The toolbar's band: shown when ShowCombo is true and there is an element.
  static constexpr const char* ToolbarBand = "CommentTypes";

  // --- Members a host reaches through ProjectEditor (CommentEditorHostMembers.cpp) ----------
  // Spelling, focus, user data, settings and context help.
  // Walks the pages with comments and checks them with the bound spelling engine; answers false
  // when the author cancelled. Without comments, or without an engine bound, there is nothing to
  // check: true, and no message. PassedSpell is accepted and not used.
  bool SpellCheck(bool ShowCompletionMessage, ISpellingEngine* PassedSpell = nullptr);
  void SetSpellObject(std::shared_ptr<ISpellingEngine> Spell);
  std::shared_ptr<ISpellingEngine> SpellObject() const { return mSpell; }
  // Applies the options to the bound engine and keeps the words to ignore.
  void SetSpellOptions(bool Suggest, bool IgnoreInUpperCase, bool IgnoreWithNumbers,
                       bool IgnoreInMixedCase, const QString& MainDictionaryFile,
                       const QString& CustomDictionaryFile, const QStringList& IgnoreWordList);
  const QStringList& SpellIgnoreWords() const { return mSpellIgnoreWords; }
  // Set while a spell check runs when the author cancelled it.
  bool SpellCheckCancelled() const { return mSpellCheckCancelled; }
  // Stored for the renderers of the toolbars and the designers' hosts.
  int ToolbarStyle() const { return mToolbarStyle; }
  void setToolbarStyle(int value);
  // A designer has the focus.
  bool EditInFocus() const { return mEditInFocus; }
  void setEditInFocus(bool value);
  // Moves the focus to the page on display, unless a refresh is running.
  void SetEditFocus();
  // The author's view of the editor inside a host's user data. An XML element is passed as a
  // map: text entries are attributes, map entries child elements. Save adds the child
  // "CommentEditor"; Load reads it back and shows the page it names when the element has it.
  void SaveUserData(QVariantMap& e) const;
  void LoadUserData(const QVariantMap& e);
  // Reapplies the spelling options of the settings to the engine and the tag list's
  // description pane settings.
  void ReloadSettings();
  // Context help: keeps the help window, and describes the element and the page on display.
  void IDynamicHelpContext_Initialise(const std::shared_ptr<IDynamicHelpHost>& Notify);
  void IDynamicHelpContext_QueryContext(QStringList& KeywordCollection,
                                        QMap<QString, QString>& Attributes);
  std::shared_ptr<IDynamicHelpHost> DynamicHelpHost() const { return mDynamicHelpHost; }

 private:
  // Selects each page with content in turn and lets its designer check it.
  void spellCheckPages();

  std::shared_ptr<ISpellingEngine> mSpell;
  QStringList mSpellIgnoreWords;
  bool mSpellCheckCancelled = false;
  int mToolbarStyle = 0;
  std::shared_ptr<IDynamicHelpHost> mDynamicHelpHost;
  // --- End of the host members --------------------------------------------------------------

 signals:
  void HyperlinkClick(const QString& hRef);
  void TaggedCommentAdded(std::shared_ptr<sv::CodeItem> Item,
                          std::shared_ptr<sv::TaggedComment> comment);
  void TaggedCommentDeleted(std::shared_ptr<sv::CodeItem> Item,
                            std::shared_ptr<sv::TaggedComment> comment, const QString& Key);
  void TaggedCommentChanged(std::shared_ptr<sv::CodeItem> Item,
                            std::shared_ptr<sv::TaggedComment> comment, const QString& Key);
  void SpellingOptionsRequested();
  void SpellIgnoreWordAdded(const QString& Word);
  void SpellCustomWordAdded(const QString& Word);
  void DirtyStateChanged();
  void GetMemberNames(const QString& ModuleName, QStringList* MemberInfos);
  void InsertHyperLinkRequest(const QString& SelectedText, QString* Link, bool* Cancel);
  void BuildLinkRequest(const QString& ExistingLink, bool GetCaption, QString* Caption,
                        QString* NewLink, bool ShowExternalLinkTypes, const QString& DialogCaption,
                        const QString& TipPrefix, bool AddHTMLExtension);
  void BuildLinkRequestEx(const QString& ExistingLink, bool GetCaption, QString* Caption,
                          QString* NewLink, bool ShowExternalLinkTypes,
                          const QString& DialogCaption, const QString& TipPrefix,
                          bool AddHTMLExtension, bool GetLinkCategory, QString* LinkCategory);
  void UpdateItemImage(std::shared_ptr<sv::NamespaceDef> NamespaceDef,
                       std::shared_ptr<sv::CodeItem> Item);
  void DocumentComplete();
  void AdditionalFileAdded(std::shared_ptr<sv::AdditionalFile> file, bool* Handled);
  // The designer on display changed: renderers show the new one.
  void ActiveDesignerChanged();

 private:
  friend class CommentEditorHost;

  // What one Refresh works with, gathered once.
  struct RefreshState;

  void InitControl();
  void zSetTagControls(const QString& TagIdentifier, bool Enabled);
  std::shared_ptr<TaggedCommentDefs> definitions() const;
  std::shared_ptr<TaggedCommentDef> definitionOf(const TaggedComment& comment) const;
  std::shared_ptr<NamespaceProvider> provider() const;
  CommentCollection undeletedComments() const;
  void ItemChanged(PropertyRow* row);
  void TickFlagCheckbox(const QString& TagID);
  void UnloadFlagCheckboxes();
  void setCheckboxValue(CheckBox* box, int value);
  void addFromRow(PropertyRow* row);

  // Refresh and its steps (CommentEditorRefresh.cpp).
  void refreshElement(bool JustRepopulatePL, RefreshState& state);
  void hideEverything();
  void removeRuntimeItems();
  void listExistingComments(RefreshState& state);
  void placeDefinitions(RefreshState& state);
  bool IncludeTC(const TaggedCommentDef& def, RefreshState& state) const;
  void placeDefinition(const std::shared_ptr<TaggedCommentDef>& def, RefreshState& state);
  void showFlagsAndOther(RefreshState& state);
  void addLayouts(const RefreshState& state);
  bool reselect(const QString& caption);
  void restoreListSelection(const QString& rowKey);
  ExplorerBarItem* AddExplorerBarItem(const QString& GroupName, const QString& Key,
                                      const QString& Caption);
  // `added`: a row of an existing comment of the same tag stands above this one.
  void SetCommonProperties(PropertyRow* PropertyItem, bool added);

  // Bar and toolbar (CommentEditorBar.cpp).
  void UpdateGroupItemStatus();
  void PopulateToolbar();
  void ClearDockCommentTypes();
  void CommentTypeSelected(const QString& Key);
  void eb_SelChange(ExplorerBarItem* item);
  void DockCommentTypes_CommandClick(DockCommand* command);
  void DockCommentTypes_PopupWindowShowing(DockCommand* popup);
  void chkExplorerBar_Click(int Index);

  // Designer hosting (CommentEditorDesigners.cpp).
  void showTagPage(const QString& Key);
  // Whether a definition has a designer: it exists and its class is not "{None}".
  bool hasPage(const std::shared_ptr<TaggedCommentDef>& def) const;
  DesignerControl* ActiveDesignerControl() const;
  DesignerControl* zCreateDesignerControl(const std::shared_ptr<TaggedCommentDef>& def,
                                          bool MakeVisible);
  // The comments a designer of `def` edits: of its tag and not hidden; all comments without
  // a definition.
  CommentCollection taggedCommentsOf(const std::shared_ptr<TaggedCommentDef>& def) const;
  CommentCollection ActiveTaggedComments() const;
  DesignerCells GetDataCells(const std::shared_ptr<TaggedCommentDef>& def) const;
  void SetActiveDesignerText();
  void HideActiveDesigner();
  void setActiveDesigner(std::shared_ptr<IContentDesigner> designer);
  void removeDesignerControls(const QStringList& names);
  void terminateDesigners();
  HtmlEditor* formattingEditor() const;
  void DesignerContainer_Resize();

  // Tag list handlers (CommentEditorTagsList.cpp).
  void mTagsList_BeforeEdit(PropertyRow* row, bool* cancel);
  void mTagsList_BeforeExtendedEdit(PropertyRow* row, bool* cancel);
  void mTagsList_AfterEdit(PropertyRow* row, QVariant* newValue, bool* cancel);
  void mTagsList_Change(PropertyRow* row);
  void mTagsList_Collapse(PropertyRow* row);
  void mTagsList_SelChange(PropertyRow* row);
  void mTagsList_ButtonClick(PropertyRow* row, const QString& buttonKey);
  void mTagsList_ItemDblClick(PropertyRow* row);
  void mTagsList_KeyDown(int* keyCode, int shift);
  void mTagsList_KeyPress(int* keyAscii);

  std::shared_ptr<sv::NamespaceDefs> mNamespaceDefs;
  std::shared_ptr<CodeItem> mCurrentRootItem;
  bool mCancelSpellCheck = false;
  bool mShowCombo = false;
  std::shared_ptr<NamespaceDef> mCurrentNamespaceDef;
  bool mNamespaceChanged = true;
  bool mEditInFocus = false;
  bool mForceChange = false;
  bool mIgnoreReset = false;
  std::shared_ptr<CodeItem> mCurrentCodeElement;
  bool mShowLegacyTags = false;
  bool mListImplicitTaggedCommentType = false;
  QString mDesignFlag;
  QStringList mModules;
  QString mProjectName;
  std::shared_ptr<TaggedCommentDef> mActiveTaggedCommentDef;
  bool mNoSetFocus = false;
  std::shared_ptr<Template> mInPlaceTemplate;
  QString mBaseURL;
  std::shared_ptr<sv::SVProject> mSVProject;
  bool mInPlaceEditorIsActive = false;
  bool mKeepTombstones = false;
  long mCommentType = XMLComments;
  frmTipPopup* mTipPopup = nullptr;
  bool mDirty = false;
  bool mAutoSetFocus = false;
  bool mTerminated = false;
  EBCheckBoxes* mCheckBoxes = nullptr;
  bool mPostingtoCheckboxes = false;
  bool mPopulating = false;
  bool mInitialized = false;
  PropertyList* mTagsList = nullptr;

  QString mAppName;
  QString mAppPath;
  bool mKeepPageAcrossElements = false;
  ExplorerBar* mEb;
  Dock* mDock;
  ImageList* mImages;
  std::shared_ptr<ElementFacts> mFacts;
  std::shared_ptr<CommentPages> mPages;

  std::shared_ptr<IContentDesigner> mActiveDesigner;
  RefreshWrapper* mWrapper = nullptr;
  StringCollection mCreatedDesigners;
  sv::DesignerContainer* mDesignerContainer;
  DesignerControl* mHTMLEdit;
  std::shared_ptr<DesignerRegistry> mDesignerRegistry;
  std::unique_ptr<CommentEditorHost> mHost;
};

}  // namespace sv
