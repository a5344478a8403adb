#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <memory>

#include "codetree/CommentPipe.h"
#include "foundation/Dumpable.h"
#include "foundation/DynamicHelp.h"
#include "model/ModelTypes.h"

namespace sv {

class AdditionalFile;
class CommentEditor;
class ISpellingEngine;
class NamespaceDef;
class NamespaceDefs;
class PageLayout;
class ProjectView;
class RefreshWrapper;
class SVContentFile;
class SVProject;
class Splitter;
class Template;
class TreeNode;

// The code tree (`Project`) beside the comment editor (`cEditor`) under one splitter
// (`splitMain`), kept in step: a click on a node loads the item's comments into the editor,
// adding the first comment or deleting the last one moves the node's bold mark, comments are
// copied and pasted between items of one type, and links inside comments navigate the tree.
// Most members only pass through to one of the two halves.
//
// The class is split by topic: ProjectEditor.cpp (halves, pass-throughs, settings, lifecycle),
// ProjectEditorRoads.cpp (the node click, the clipboard, the editor's comment events) and
// ProjectEditorLinks.cpp (hyperlink navigation and the spell check over the tree).
class ProjectEditor : public QObject, public Dumpable, public IDynamicHelpContext {
  Q_OBJECT

 public:
  explicit ProjectEditor(QObject* parent = nullptr);
  ~ProjectEditor() override;

  QString ModuleName() const override { return QStringLiteral("ProjectEditor"); }
  QString DumpMembers() const override;

  // The halves and the splitter, for hosts, renderers and tests.
  ProjectView* ProjectViewControl() const { return mProject; }
  CommentEditor* CommentEditorControl() const { return mEditor; }
  Splitter* splitMain() const { return mSplit; }

  // --- Passed to the comment editor ---------------------------------------------------------
  bool ShowCombo() const;
  void setShowCombo(bool value);
  std::shared_ptr<Template> InPlaceTemplate() const;
  void setInPlaceTemplate(std::shared_ptr<Template> value);
  QString DesignFlag() const;
  void setDesignFlag(const QString& value);
  QStringList Modules() const;
  void setModules(const QStringList& value);
  QString ProjectName() const;
  void setProjectName(const QString& value);
  bool KeepTombstones() const;
  void setKeepTombstones(bool value);
  bool EditInFocus() const;
  void setEditInFocus(bool value);
  void SetSpellObject(std::shared_ptr<ISpellingEngine> Spell);
  void SetSpellOptions(bool Suggest, bool IgnoreInUpperCase, bool IgnoreWithNumbers,
                       bool IgnoreInMixedCase, const QString& MainDictionaryFile,
                       const QString& CustomDictionaryFile, const QStringList& IgnoreWordList);
  int ToolbarStyle() const;
  void setToolbarStyle(int value);
  // An XML element of the host's user data, as CommentEditor::SaveUserData describes it.
  void SaveUserData(QVariantMap& e) const;
  void LoadUserData(const QVariantMap& e);

  // --- Passed to both halves ------------------------------------------------------------------
  std::shared_ptr<sv::SVProject> SVProject() const { return mSVProject; }
  void setSVProject(const std::shared_ptr<sv::SVProject>& value);

  // --- Passed to the code tree ----------------------------------------------------------------
  bool ShowAllPropertyBlocks() const;
  void setShowAllPropertyBlocks(bool value);
  bool ShowInherited() const;
  void setShowInherited(bool value);
  void HighlightCommentedNodes();
  std::shared_ptr<CodeItem> GetObjectFromQualifiedName(const QString& QualifiedName);
  bool SelectItem(const QString& QualifiedName);
  void NextItem(bool UnCommented);
  void PreviousItem(bool UnCommented);
  void PrepNamespaceDef(const std::shared_ptr<NamespaceDef>& nd);
  // Fill the tree afresh (Clear true).
  void LoadFromNamespaceDefs(const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
                             const QString& Moniker);
  void LoadFromNamespaceRootItem(const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
                                 const std::shared_ptr<CodeItem>& RootItem);

  // --- Own members ----------------------------------------------------------------------------
  // The content file told of every item whose children are fetched; it also feeds the comment
  // pipe. Held for the host, which owns it.
  std::shared_ptr<sv::SVContentFile> SVContentFile() const { return mSVContentFile; }
  void setSVContentFile(const std::shared_ptr<sv::SVContentFile>& value);
  // The host's refresh lock and command wrapper, for both halves; not owned. Null unbinds.
  void BindToWrapper(RefreshWrapper* wrapper);
  RefreshWrapper* Wrapper() const { return mWrapper; }
  // The settings branch: forwarded to both halves; the split is read from
  // "ProjectEditorSplitSize" with the present position as the default.
  QString AppName() const { return mAppName; }
  void setAppName(const QString& value);
  // The tree's share of the width in percent. Writing it also stores it as the user's split.
  double SplitPercent() const;
  void setSplitPercent(double value);
  // Commits, reloads the editor's settings and the stored split (40 by default).
  void ReloadSettings();
  // Commits the edit in progress, empties the editor and rebuilds the tree.
  void Refresh();
  // Empties the tree and the editor and lets the editor's element go.
  void Clear();
  // Checks the spelling of every commented (bold) node when CheckAll, otherwise of the current
  // element. *Cancel (when given) tells whether the author cancelled.
  void SpellCheck(bool CheckAll, bool* Cancel, ISpellingEngine* Spell = nullptr);
  // Stops a running SpellCheck after the node in hand.
  void CancelSpellCheck();
  // Ends both halves and writes the split back; a second call does nothing.
  void Terminate();

  // IDynamicHelpContext
  void Initialise(const std::shared_ptr<IDynamicHelpHost>& Notify) override;
  void QueryContext(QStringList& KeywordCollection, QMap<QString, QString>& Attributes) override;

 signals:
  // From the comment editor.
  void InsertHyperLinkRequest(const QString& SelectedText, QString* Link, bool* Cancel);
  void BuildLinkRequest(const QString& ExistingLink, bool GetCaption, QString* Caption,
                        QString* NewLink, bool ShowExternalLinkTypes, const QString& DialogCaption,
                        const QString& TipPrefix, bool AddHTMLExtension);
  void BuildLinkRequestEx(const QString& ExistingLink, bool GetCaption, QString* Caption,
                          QString* NewLink, bool ShowExternalLinkTypes,
                          const QString& DialogCaption, const QString& TipPrefix,
                          bool AddHTMLExtension, bool GetLinkCategory, QString* LinkCategory);
  void AdditionalFileAdded(std::shared_ptr<sv::AdditionalFile> file, bool* Handled);
  void SpellIgnoreWordAdded(const QString& Word);
  void SpellCustomWordAdded(const QString& Word);
  void SpellingOptionsRequested();
  void TaggedCommentChanged(std::shared_ptr<sv::CodeItem> Item,
                            std::shared_ptr<sv::TaggedComment> comment, const QString& Key);
  // From the code tree.
  void PropertiesRequested();
  // Own events.
  void TaggedCommentAdded(std::shared_ptr<sv::CodeItem> Item,
                          std::shared_ptr<sv::TaggedComment> comment);
  void TaggedCommentDeleted(std::shared_ptr<sv::CodeItem> Item,
                            std::shared_ptr<sv::TaggedComment> comment, const QString& Key);
  void NodeClickNameSpaceDef(sv::TreeNode* Node, std::shared_ptr<sv::NamespaceDef> namespaceDef);
  void ItemPopulated(std::shared_ptr<sv::CodeItem> Item, QString RelevantContentFilter);

 private:
  void connectHalves();
  QString productTitle() const;
  void clearEditor();
  void loadNode(TreeNode* Node);
  void UpdateCommandState();
  bool pasteAllowed() const;
  std::shared_ptr<PageLayout> chooseLayout(const QString& name, const QString& suffix) const;
  void navigate(QString hRef);
  void spellCheck(bool CheckAll, bool* Cancel, ISpellingEngine* Spell);

  // Event handlers (ProjectEditorRoads.cpp, ProjectEditorLinks.cpp).
  void Project_NodeClick(TreeNode* Node);
  void Project_CopyCommentsRequested();
  void Project_PasteCommentsRequested();
  void Project_AfterCommand();
  void Project_ItemPopulated(std::shared_ptr<CodeItem> Item, QString RelevantContentFilter);
  void cEditor_TaggedCommentAdded(std::shared_ptr<CodeItem> Item,
                                  std::shared_ptr<TaggedComment> comment);
  void cEditor_TaggedCommentDeleted(std::shared_ptr<CodeItem> Item,
                                    std::shared_ptr<TaggedComment> comment, const QString& Key);
  void cEditor_UpdateItemImage(std::shared_ptr<NamespaceDef> namespaceDef,
                               std::shared_ptr<CodeItem> Item);
  void cEditor_DocumentComplete();
  void cEditor_HyperlinkClick(const QString& hRef);
  void splitMain_AfterDrag();

  ProjectView* mProject;
  CommentEditor* mEditor;
  Splitter* mSplit;
  std::shared_ptr<sv::SVProject> mSVProject;
  std::shared_ptr<sv::SVContentFile> mSVContentFile;
  bool mCancelSpellCheck = false;
  CommentPipe mCommentPipe;
  RefreshWrapper* mWrapper = nullptr;
  bool mTerminated = false;
  QString mAppName;
  std::shared_ptr<IDynamicHelpHost> mDynamicHelpHost;
};

}  // namespace sv
