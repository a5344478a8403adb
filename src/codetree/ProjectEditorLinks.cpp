// ProjectEditor: links inside comments that navigate the tree, and the spell check over it.
#include "codetree/ProjectEditor.h"

#include <QScopeGuard>

#include "codetree/ProjectView.h"
#include "comments/CommentEditor.h"
#include "foundation/ErrorTrap.h"
#include "foundation/MessageBox.h"
#include "foundation/Services.h"
#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "model/PageLayout.h"
#include "model/TaggedComments.h"
#include "model/Template.h"
#include "ui/TreeView.h"

namespace sv {

namespace {

const QString kPageExtension = QStringLiteral(".html");
const QString kNamespaceSuffix = QStringLiteral("_namespace");
const QString kItemPlaceholder = QStringLiteral("%%itemqualifiedname%%");

}  // namespace

void ProjectEditor::cEditor_HyperlinkClick(const QString& hRef) {
  Trap(this, "cEditor_HyperlinkClick", [&] { navigate(hRef); }, {{"hRef", hRef}});
}

void ProjectEditor::navigate(QString hRef) {
  hRef.replace(QStringLiteral("%20"), QStringLiteral(" "));
  // Only links to pages of this project navigate; anything else is the browser's.
  if (!hRef.contains(QStringLiteral("file://"))) {
    Services::Shell().Open(hRef);
    return;
  }
  const QString a = hRef.section(QLatin1Char('/'), -1);
  SV_TRAP_LOCAL(a);
  if (a.startsWith(QLatin1Char('#'))) {
    const QString text =
        a == QLatin1String("#")
            ? QStringLiteral("This hyperlink shows a popup bubble")
            : QStringLiteral("This hyperlink navigates to a bookmark in this topic (") + a +
                  QLatin1Char(')');
    Services::Message().ShowMessage(text, Mb::OK | Mb::Information, productTitle());
    return;
  }
  if (a.isEmpty()) return;
  QString name = a.chopped(std::min<qsizetype>(kPageExtension.size(), a.size()));
  QString suffix;
  SV_TRAP_LOCAL(name);
  SV_TRAP_LOCAL(suffix);
  // A page of a layout other than the item's main one carries the layout's suffix
  // ("Geometry~Circle_members"); only the second miss is a link outside the project.
  if (!mProject->SelectItem(name)) {
    QStringList parts = name.split(QLatin1Char('~'));
    const qsizetype cut = parts.last().lastIndexOf(QLatin1Char('_'));
    if (cut >= 0) {
      suffix = parts.last().mid(cut);
      parts.last().truncate(cut);
      name = parts.join(QLatin1Char('~'));
    }
    if (suffix.compare(kNamespaceSuffix, Qt::CaseInsensitive) == 0) {
      name += suffix;
      suffix.clear();
    }
    if (!mProject->SelectItem(name)) {
      Services::Message().ShowMessage(
          QStringLiteral("Could not navigate this link as it appears to point to an item outside "
                         "of this project (") +
              name + QLatin1Char(')'),
          Mb::OK | Mb::Information, productTitle());
      return;
    }
  }
  if (const auto layout = chooseLayout(name, suffix))
    mEditor->SelectInPlaceEditLayout(layout->Name());
}

std::shared_ptr<PageLayout> ProjectEditor::chooseLayout(const QString& name,
                                                        const QString& suffix) const {
  const auto nd = mEditor->CurrentNamespaceDef();
  const auto pageTemplate = mEditor->InPlaceTemplate();
  if (!nd || !pageTemplate || !pageTemplate->PageLayouts()) return nullptr;
  const auto element = mEditor->CurrentCodeElement();
  const QString itemName = element ? element->QualifiedName().value_or(QString()) : QString();
  const QString page = name + suffix + kPageExtension;
  for (const auto& layout : *pageTemplate->PageLayouts()) {
    if (!CommentEditor::ContainsNamespace(layout->NameSpaces(), nd->Key())) continue;
    if (suffix.isEmpty()) return layout;
    QString fileName = layout->FileNameTemplate();
    if (fileName.isEmpty()) continue;
    fileName.replace(kItemPlaceholder, itemName, Qt::CaseInsensitive);
    if (fileName.compare(page, Qt::CaseInsensitive) == 0) return layout;
  }
  return nullptr;
}

void ProjectEditor::SpellCheck(bool CheckAll, bool* Cancel, ISpellingEngine* Spell) {
  Trap(this, "SpellCheck", [&] { spellCheck(CheckAll, Cancel, Spell); }, {{"CheckAll", CheckAll}});
}

void ProjectEditor::spellCheck(bool CheckAll, bool* Cancel, ISpellingEngine* Spell) {
  bool cancelled = false;
  mProject->setEnabled(false);
  auto enable = qScopeGuard([this, &cancelled, Cancel] {
    mProject->setEnabled(true);
    if (Cancel) *Cancel = cancelled;
  });
  mCancelSpellCheck = false;
  mEditor->setCancelSpellCheck(false);
  if (!CheckAll) {
    const auto comments = mEditor->TaggedComments();
    if (comments && comments->Count() > 0) cancelled = !mEditor->SpellCheck(false, Spell);
    return;
  }
  // The nodes as they stand now; selecting one may load more, which are not visited.
  QStringList keys;
  for (const TreeNode* node : mProject->Nodes()->AllNodes()) keys << node->Key();
  for (const QString& key : keys) {
    const TreeNode* node = mProject->Nodes()->Find(key);
    if (!node || !node->Bold()) continue;
    mProject->SelectItem(key);
    cancelled = !mEditor->SpellCheck(false, Spell);
    if (cancelled || mCancelSpellCheck) return;
  }
}

}  // namespace sv
