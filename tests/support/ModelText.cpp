#include "ModelText.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "project/core/ComponentItem.h"
#include "project/core/MemberItem.h"
#include "project/core/MemoryProvider.h"
#include "project/core/ProjectItem.h"
#include "support/ModelBuilder.h"

namespace sv::test {

namespace {

QString quoted(const QString& value) {
  static const QRegularExpression plain(QStringLiteral("^[^\\s\"=\\\\]+$"));
  if (plain.match(value).hasMatch()) return value;
  QString escaped = value;
  escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
  escaped.replace(QLatin1Char('"'), QLatin1String("\\\""));
  return QLatin1Char('"') + escaped + QLatin1Char('"');
}

// Appends " name=value" when value differs from its default.
void addText(QStringList& words, const char* name, const QString& value,
             const QString& byDefault = {}) {
  if (value != byDefault) words << QLatin1String(name) + QLatin1Char('=') + quoted(value);
}

// Appends " name" for true, " name=false" for false, nothing when the default holds.
void addBool(QStringList& words, const char* name, bool value, bool byDefault = false) {
  if (value == byDefault) return;
  words << (value ? QString::fromLatin1(name) : QLatin1String(name) + QLatin1String("=false"));
}

void addFlag(QStringList& words, const char* name, std::optional<bool> value) {
  if (value)
    words << (*value ? QString::fromLatin1(name) : QLatin1String(name) + QLatin1String("=false"));
}

QString indent(int depth) {
  return QString(depth * 2, QLatin1Char(' '));
}

void printDefinition(QString& out, const std::shared_ptr<NamespaceDef>& def, int depth,
                     QSet<const NamespaceDef*>& printed) {
  if (printed.contains(def.get())) {
    out += indent(depth) + QLatin1Char('@') + def->Key() + QLatin1Char('\n');
    return;
  }
  printed.insert(def.get());
  QStringList words{def->Key()};
  addText(words, "moniker", def->TypeMoniker(), def->Key());
  addText(words, "image", def->ImageName(), def->Key().toLower());
  addText(words, "group", def->GroupCaption());
  addText(words, "provider", def->ProviderName(), QStringLiteral("memory"));
  addText(words, "flags", def->Flags());
  addText(words, "caption", def->CaptionExpression());
  addBool(words, "CanExclude", def->CanExclude(), true);
  addBool(words, "Selectable", def->Selectable(), true);
  addBool(words, "PreloadChildren", def->PreloadChildren());
  addBool(words, "PreloadChildrenInSelection", def->PreloadChildrenInSelection());
  addBool(words, "LoadChildrenOnAdd", def->LoadChildrenOnAdd());
  addBool(words, "GroupedInComments", def->GroupedInComments());
  addBool(words, "GroupedInSelection", def->GroupedInSelection());
  out += indent(depth) + words.join(QLatin1Char(' ')) + QLatin1Char('\n');
  for (const auto& child : *def->ChildDefs()) printDefinition(out, child, depth + 1, printed);
}

QString commentLine(const TaggedComment& comment) {
  QStringList words{comment.TagIdentifier()};
  if (!comment.Text().isEmpty()) words << quoted(comment.Text());
  if (comment.Status() != CommentStatus::Unchanged)
    words << QStringLiteral("status=%1").arg(comment.Status());
  addBool(words, "hidden", comment.IsHidden());
  addText(words, "xml", comment.XMLCommentType());
  addText(words, "qualifier", comment.Qualifier());
  return words.join(QLatin1Char(' '));
}

QStringList itemWords(const NamespaceDef& def, const CodeItem& item, const QString& parentName) {
  QStringList words{def.Key(), quoted(item.Name().value_or(QString()))};
  QString typeByDefault = def.Key();
  if (dynamic_cast<const ProjectItem*>(&item)) {
    words << QStringLiteral("project");
    typeByDefault = item.TypeName();
  } else if (dynamic_cast<const ComponentItem*>(&item)) {
    words << QStringLiteral("component");
    typeByDefault = item.TypeName();
  } else if (dynamic_cast<const MemberItem*>(&item)) {
    words << QStringLiteral("member");
    typeByDefault = QStringLiteral("Member");
  }
  if (item.Access()) words << QStringLiteral("access=") + quoted(*item.Access());
  addText(words, "type", item.TypeName(), typeByDefault);
  const QString name = item.Name().value_or(QString());
  addText(words, "qn", item.QualifiedName().value_or(QString()),
          parentName.isEmpty() ? name : parentName + QLatin1Char('.') + name);
  addFlag(words, "root", item.RootFlag());
  if (!dynamic_cast<const ComponentItem*>(&item) || item.IncludeFlag() != false)
    addFlag(words, "include", item.IncludeFlag());
  addFlag(words, "exclude", item.ExcludeFlag());
  if (auto member = dynamic_cast<const MemberItem*>(&item)) {
    addBool(words, "overloaded", member->Overloaded());
    addBool(words, "explicit", member->IsExplicit());
    addBool(words, "overloadblocks", member->HasOverloadBlocks());
  }
  addBool(words, "nocomments", !item.TaggedComments());
  return words;
}

void printItem(QString& out, const MemoryProvider& provider,
               const std::shared_ptr<NamespaceDef>& def, const std::shared_ptr<CodeItem>& item,
               const QString& parentName, int depth) {
  out +=
      indent(depth) + itemWords(*def, *item, parentName).join(QLatin1Char(' ')) + QLatin1Char('\n');
  const QString name = item->QualifiedName().value_or(QString());
  if (auto comments = item->TaggedComments())
    for (const auto& comment : *comments)
      out += indent(depth + 1) + commentLine(*comment) + QLatin1Char('\n');
  for (const auto& childDef : *def->ChildDefs()) {
    const ItemCollection* children = provider.Children(childDef, item);
    if (!children) continue;
    for (const auto& child : *children) printItem(out, provider, childDef, child, name, depth + 1);
  }
}

}  // namespace

QString DefinitionsText(const NamespaceDefs& defs) {
  QStringList words{QStringLiteral("definitions"), defs.Name()};
  addText(words, "caption", defs.Caption());
  addText(words, "view", defs.ViewOptionFlags());
  QString out = words.join(QLatin1Char(' ')) + QLatin1Char('\n');
  QSet<const NamespaceDef*> printed;
  for (const auto& def : defs)
    if (!printed.contains(def.get())) printDefinition(out, def, 1, printed);
  return out;
}

QString ItemsText(const ModelBuilder& model) {
  QString out;
  for (const auto& [def, item] : model.Roots()) printItem(out, *model.Provider(), def, item, {}, 0);
  return out;
}

QString CommentsText(const TaggedComments& comments) {
  QString out;
  for (const auto& comment : comments) out += commentLine(*comment) + QLatin1Char('\n');
  return out;
}

}  // namespace sv::test
