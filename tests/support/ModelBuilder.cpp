#include "ModelBuilder.h"

#include <QSet>
#include <algorithm>

#include "model/Error.h"
#include "project/core/ComponentItem.h"
#include "project/core/Definition.h"
#include "project/core/DefinitionSet.h"
#include "project/core/MemberItem.h"
#include "project/core/MemoryAppSettings.h"
#include "project/core/MemoryDDP.h"
#include "project/core/MemoryProvider.h"
#include "project/core/ModelItem.h"
#include "project/core/ProjectComment.h"
#include "project/core/ProjectItem.h"
#include "project/core/ProjectModelFactory.h"
#include "project/core/TagDefinition.h"
#include "project/core/TagDefinitionSet.h"
#include "project/model/ProjectModel.h"
#include "support/DescriptionLine.h"

namespace sv::test {

namespace {

bool isTrue(const QString& value) {
  return value.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

// One option word of a line: its name, whether it is a boolean, and what it sets.
template <class Target>
struct Option {
  const char* name;
  bool boolean;
  void (*apply)(Target&, const QString&);
};

template <class Target>
void applyOptions(const DescriptionLine& line, int first, Target& target,
                  const std::vector<Option<Target>>& options) {
  for (int i = first; i < line.Count(); ++i) {
    const DescriptionToken& token = line.Token(i);
    auto option = std::find_if(options.begin(), options.end(), [&](const Option<Target>& o) {
      return token.key.compare(QLatin1String(o.name), Qt::CaseInsensitive) == 0;
    });
    if (token.quoted || option == options.end())
      line.Fail(QStringLiteral("unknown option \"%1\"").arg(token.key));
    const QString value = token.pair ? token.value : QStringLiteral("true");
    if (option->boolean && !isTrue(value) &&
        value.compare(QLatin1String("false"), Qt::CaseInsensitive) != 0)
      line.Fail(QStringLiteral("%1 takes true or false").arg(token.key));
    if (!option->boolean && !token.pair)
      line.Fail(QStringLiteral("%1 needs a value").arg(token.key));
    option->apply(target, value);
  }
}

struct SetInfo {
  QString caption;
  QString view;
  QString provider;
};

struct CommentInfo {
  QString text;
  long status = CommentStatus::Unchanged;
  bool hidden = false;
  QString id;
  QString xml;
  QString qualifier;
};

const std::vector<Option<SetInfo>>& setOptions() {
  static const std::vector<Option<SetInfo>> options = {
      {"caption", false, [](SetInfo& s, const QString& v) { s.caption = v; }},
      {"view", false, [](SetInfo& s, const QString& v) { s.view = v; }},
      {"provider", false, [](SetInfo& s, const QString& v) { s.provider = v; }},
  };
  return options;
}

const std::vector<Option<Definition>>& definitionOptions() {
  static const std::vector<Option<Definition>> options = {
      {"moniker", false, [](Definition& d, const QString& v) { d.setTypeMoniker(v); }},
      {"image", false, [](Definition& d, const QString& v) { d.setImageName(v); }},
      {"group", false, [](Definition& d, const QString& v) { d.setGroupCaption(v); }},
      {"provider", false, [](Definition& d, const QString& v) { d.setProviderName(v); }},
      {"flags", false, [](Definition& d, const QString& v) { d.setFlags(v); }},
      {"caption", false, [](Definition& d, const QString& v) { d.setCaptionExpression(v); }},
      {"CanExclude", true, [](Definition& d, const QString& v) { d.setCanExclude(isTrue(v)); }},
      {"Selectable", true, [](Definition& d, const QString& v) { d.setSelectable(isTrue(v)); }},
      {"PreloadChildren", true,
       [](Definition& d, const QString& v) { d.setPreloadChildren(isTrue(v)); }},
      {"PreloadChildrenInSelection", true,
       [](Definition& d, const QString& v) { d.setPreloadChildrenInSelection(isTrue(v)); }},
      {"LoadChildrenOnAdd", true,
       [](Definition& d, const QString& v) { d.setLoadChildrenOnAdd(isTrue(v)); }},
      {"GroupedInComments", true,
       [](Definition& d, const QString& v) { d.setGroupedInComments(isTrue(v)); }},
      {"GroupedInSelection", true,
       [](Definition& d, const QString& v) { d.setGroupedInSelection(isTrue(v)); }},
  };
  return options;
}

const std::vector<Option<TagDefinitionSet>>& tagSetOptions() {
  static const std::vector<Option<TagDefinitionSet>> options = {
      {"designer", false,
       [](TagDefinitionSet& s, const QString& v) { s.setDefaultDesignerProgID(v); }},
  };
  return options;
}

const std::vector<Option<TagDefinition>>& tagOptions() {
  static const std::vector<Option<TagDefinition>> options = {
      {"name", false, [](TagDefinition& t, const QString& v) { t.setName(v); }},
      {"caption", false, [](TagDefinition& t, const QString& v) { t.setCaption(v); }},
      {"group", false, [](TagDefinition& t, const QString& v) { t.setGroupName(v); }},
      {"design", false, [](TagDefinition& t, const QString& v) { t.setDesignFlag(v); }},
      {"exclude", false, [](TagDefinition& t, const QString& v) { t.setExcludeFlags(v); }},
      {"qualifier", false, [](TagDefinition& t, const QString& v) { t.setQualifier(v); }},
      {"namespaces", false, [](TagDefinition& t, const QString& v) { t.setNameSpaces(v); }},
      {"xml", false, [](TagDefinition& t, const QString& v) { t.setXMLCommentTypes(v); }},
      {"designer", false, [](TagDefinition& t, const QString& v) { t.setDesignerProgID(v); }},
      {"image", false, [](TagDefinition& t, const QString& v) { t.setImageName(v); }},
      {"description", false, [](TagDefinition& t, const QString& v) { t.setDescription(v); }},
      {"format", false, [](TagDefinition& t, const QString& v) { t.setDescriptionFormat(v); }},
      {"general", true, [](TagDefinition& t, const QString& v) { t.setIsGeneral(isTrue(v)); }},
  };
  return options;
}

using ItemInfo = ModelBuilder::ItemInfo;
using Kind = ModelBuilder::Kind;

const std::vector<Option<ItemInfo>>& itemOptions() {
  static const std::vector<Option<ItemInfo>> options = {
      {"project", true,
       [](ItemInfo& s, const QString& v) {
         if (isTrue(v)) s.kind = Kind::Project;
       }},
      {"component", true,
       [](ItemInfo& s, const QString& v) {
         if (isTrue(v)) s.kind = Kind::Component;
       }},
      {"member", true,
       [](ItemInfo& s, const QString& v) {
         if (isTrue(v)) s.kind = Kind::Member;
       }},
      {"access", false, [](ItemInfo& s, const QString& v) { s.access = v; }},
      {"type", false, [](ItemInfo& s, const QString& v) { s.typeName = v; }},
      {"qn", false, [](ItemInfo& s, const QString& v) { s.qualifiedName = v; }},
      {"moniker", false, [](ItemInfo& s, const QString& v) { s.moniker = v; }},
      {"root", true, [](ItemInfo& s, const QString& v) { s.rootFlag = isTrue(v); }},
      {"include", true, [](ItemInfo& s, const QString& v) { s.includeFlag = isTrue(v); }},
      {"exclude", true, [](ItemInfo& s, const QString& v) { s.excludeFlag = isTrue(v); }},
      {"overloaded", true, [](ItemInfo& s, const QString& v) { s.overloaded = isTrue(v); }},
      {"explicit", true, [](ItemInfo& s, const QString& v) { s.isExplicit = isTrue(v); }},
      {"overloadblocks", true, [](ItemInfo& s, const QString& v) { s.overloadBlocks = isTrue(v); }},
      {"nocomments", true, [](ItemInfo& s, const QString& v) { s.noComments = isTrue(v); }},
      {"caption", false, [](ItemInfo& s, const QString& v) { s.caption = v; }},
      {"resolve", false, [](ItemInfo& s, const QString& v) { s.resolve = v; }},
      {"filter", false, [](ItemInfo& s, const QString& v) { s.filter = v; }},
      {"group", false, [](ItemInfo& s, const QString& v) { s.group = v; }},
  };
  return options;
}

const std::vector<Option<CommentInfo>>& commentOptions() {
  static const std::vector<Option<CommentInfo>> options = {
      {"status", false,
       [](CommentInfo& s, const QString& v) {
         bool ok = false;
         const int status = v.toInt(&ok);
         s.status = ok && status >= 0 && status <= 3 ? status : -1;
       }},
      {"hidden", true, [](CommentInfo& s, const QString& v) { s.hidden = isTrue(v); }},
      {"id", false, [](CommentInfo& s, const QString& v) { s.id = v; }},
      {"xml", false, [](CommentInfo& s, const QString& v) { s.xml = v; }},
      {"qualifier", false, [](CommentInfo& s, const QString& v) { s.qualifier = v; }},
  };
  return options;
}

// Gives an item what every kind shares.
template <class Contract>
void shapeItem(ModelItemBase<Contract>& item, const ItemInfo& info,
               const std::shared_ptr<CodeItem>& parent, const std::shared_ptr<CodeItem>& group) {
  item.setAccess(info.access);
  if (info.rootFlag) item.addRootFlag(*info.rootFlag);
  if (info.includeFlag) item.addIncludeFlag(*info.includeFlag);
  if (info.excludeFlag) item.addExcludeFlag(*info.excludeFlag);
  if (info.noComments) item.setTaggedComments(nullptr);
  item.setParent(parent);
  item.setVBProjectGroup(group);
}

template <class T, class... Args>
std::shared_ptr<CodeItem> makeItem(const ItemInfo& info, const std::shared_ptr<CodeItem>& parent,
                                   const std::shared_ptr<CodeItem>& group, Args&&... args) {
  auto item = std::make_shared<T>(std::forward<Args>(args)...);
  shapeItem(*item, info, parent, group);
  if constexpr (std::is_same_v<T, MemberItem>) {
    item->setOverloaded(info.overloaded);
    item->setIsExplicit(info.isExplicit);
    item->setHasOverloadBlocks(info.overloadBlocks);
  }
  return item;
}

[[noreturn]] void missing(const QString& what) {
  Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("The model has no %1").arg(what));
}

}  // namespace

struct ModelBuilder::Frame {
  enum Type {
    DefinitionSection,
    DefinitionLine,
    TagSection,
    TagLine,
    ItemSection,
    ItemLine,
    CommentLine
  };
  int indent;
  Type type;
  std::shared_ptr<DefinitionSet> set;
  std::shared_ptr<Definition> def;
  std::shared_ptr<CodeItem> item;
};

ModelBuilder::ModelBuilder(const QString& description)
    : mTags(std::make_shared<TagDefinitionSet>()),
      mProvider(std::make_shared<MemoryProvider>()),
      mSettings(std::make_shared<MemoryAppSettings>()),
      mFactory(std::make_shared<ProjectModelFactory>(mSettings)),
      mProject(std::make_shared<ProjectModel>()),
      mDefaultProvider(QStringLiteral("memory")) {
  parse(description);
  finish();
}

ModelBuilder::~ModelBuilder() = default;
ModelBuilder::ModelBuilder(ModelBuilder&&) noexcept = default;

void ModelBuilder::parse(const QString& description) {
  std::vector<Frame> stack;
  for (const DescriptionLine& line : DescriptionLine::Split(description)) {
    try {
      parseLine(line, stack);
    } catch (const Error& error) {
      // A refusal of the model itself (a duplicate key, ...) is a mistake on this line too.
      if (error.Number() == ErrorNumber::BadFileFormat) throw;
      line.Fail(error.Description());
    }
  }
}

void ModelBuilder::parseLine(const DescriptionLine& line, std::vector<Frame>& stack) {
  while (!stack.empty() && stack.back().indent >= line.Indent()) stack.pop_back();
  if (stack.empty()) return startSection(line, stack);
  switch (stack.back().type) {
    case Frame::DefinitionSection:
    case Frame::DefinitionLine:
      return addDefinition(line, stack);
    case Frame::TagSection:
      addTag(line);
      stack.push_back({line.Indent(), Frame::TagLine, nullptr, nullptr, nullptr});
      return;
    case Frame::ItemSection:
    case Frame::ItemLine:
      return addItemLine(line, stack);
    case Frame::TagLine:
    case Frame::CommentLine:
      line.Fail(QStringLiteral("nothing may hang under this line"));
  }
}

void ModelBuilder::startSection(const DescriptionLine& line, std::vector<Frame>& stack) {
  const QString section = line.Token(0).value.toLower();
  if (section == QLatin1String("definitions")) {
    if (line.Count() < 2 || line.Token(1).pair)
      line.Fail(QStringLiteral("a definition set needs a name"));
    const QString name = line.Token(1).value;
    if (std::any_of(mSets.begin(), mSets.end(),
                    [&](const auto& set) { return set->Name() == name; }))
      line.Fail(QStringLiteral("definition set \"%1\" is described twice").arg(name));
    SetInfo info;
    applyOptions(line, 2, info, setOptions());
    mDefaultProvider = info.provider.isEmpty() ? QStringLiteral("memory") : info.provider;
    mSets.push_back(std::make_shared<DefinitionSet>(name, info.caption, info.view));
    stack.push_back({line.Indent(), Frame::DefinitionSection, mSets.back(), nullptr, nullptr});
    return;
  }
  if (section == QLatin1String("tags")) {
    applyOptions(line, 1, *mTags, tagSetOptions());
    stack.push_back({line.Indent(), Frame::TagSection, nullptr, nullptr, nullptr});
    return;
  }
  if (section == QLatin1String("items")) {
    for (int i = 1; i < line.Count(); ++i) {
      if (line.Token(i).key.compare(QLatin1String("definitions"), Qt::CaseInsensitive) != 0 ||
          !line.Token(i).pair)
        line.Fail(QStringLiteral("unknown option \"%1\"").arg(line.Token(i).key));
      auto found = std::find_if(mSets.begin(), mSets.end(), [&](const auto& set) {
        return set->Name() == line.Token(i).value;
      });
      if (found == mSets.end())
        line.Fail(QStringLiteral("no definition set \"%1\"").arg(line.Token(i).value));
      mItemSet = *found;
    }
    if (mSets.empty()) line.Fail(QStringLiteral("items need a definitions section above them"));
    stack.push_back({line.Indent(), Frame::ItemSection, nullptr, nullptr, nullptr});
    return;
  }
  line.Fail(QStringLiteral("expected definitions, tags or items"));
}

void ModelBuilder::addDefinition(const DescriptionLine& line, std::vector<Frame>& stack) {
  const Frame parent = stack.back();
  const QString head = line.Token(0).value;
  if (head.startsWith(QLatin1Char('@'))) {
    if (!parent.def) line.Fail(QStringLiteral("a reference must hang under a definition"));
    if (line.Count() > 1) line.Fail(QStringLiteral("a reference takes no options"));
    auto existing = std::dynamic_pointer_cast<Definition>(parent.set->Item(head.mid(1)));
    if (!existing) line.Fail(QStringLiteral("unknown definition \"%1\"").arg(head.mid(1)));
    parent.def->AddChild(existing);
    stack.push_back({line.Indent(), Frame::DefinitionLine, parent.set, existing, nullptr});
    return;
  }
  if (line.Token(0).pair) line.Fail(QStringLiteral("a definition starts with its key"));
  if (parent.set->Item(head))
    line.Fail(QStringLiteral("definition \"%1\" is described twice").arg(head));
  auto def = std::make_shared<Definition>(head);
  def->setTypeMoniker(head);
  def->setImageName(head.toLower());
  def->setProviderName(mDefaultProvider);
  applyOptions(line, 1, *def, definitionOptions());
  parent.set->Adopt(def);
  if (parent.def) parent.def->AddChild(def);
  stack.push_back({line.Indent(), Frame::DefinitionLine, parent.set, def, nullptr});
}

void ModelBuilder::addTag(const DescriptionLine& line) {
  if (line.Token(0).pair) line.Fail(QStringLiteral("a tag starts with its identifier"));
  auto tag = std::make_shared<TagDefinition>(line.Token(0).value);
  applyOptions(line, 1, *tag, tagOptions());
  if (mTags->Item(tag->TagIdentifier()))
    line.Fail(QStringLiteral("tag \"%1\" is described twice").arg(tag->TagIdentifier()));
  mTags->Add(tag);
}

void ModelBuilder::addItemLine(const DescriptionLine& line, std::vector<Frame>& stack) {
  const std::shared_ptr<CodeItem> parent = stack.back().item;
  const QString head = line.Token(0).value;
  if (head.startsWith(QLatin1Char('#')) ||
      head.compare(QLatin1String("comment"), Qt::CaseInsensitive) == 0) {
    if (!parent) line.Fail(QStringLiteral("a comment must hang under an item"));
    addComment(line, parent);
    stack.push_back({line.Indent(), Frame::CommentLine, nullptr, nullptr, nullptr});
    return;
  }
  if (line.Count() < 2 || line.Token(0).pair || line.Token(1).pair)
    line.Fail(QStringLiteral("an item needs a definition and a name"));
  ItemInfo info;
  info.definition = head;
  info.name = line.Token(1).value;
  applyOptions(line, 2, info, itemOptions());
  if (!itemDefinition(info.definition))
    line.Fail(QStringLiteral("unknown definition \"%1\"").arg(info.definition));
  if (!info.resolve.isEmpty() && !itemDefinition(info.resolve))
    line.Fail(QStringLiteral("unknown definition \"%1\" to resolve to").arg(info.resolve));
  if (!info.group.isEmpty() && !mProvider->GetItem(info.group))
    line.Fail(QStringLiteral("no item \"%1\" above for the group").arg(info.group));
  auto item = AddItem(info, parent);
  stack.push_back({line.Indent(), Frame::ItemLine, nullptr, nullptr, item});
}

void ModelBuilder::addComment(const DescriptionLine& line, const std::shared_ptr<CodeItem>& item) {
  int first = 1;
  QString tag = line.Token(0).value;
  if (!tag.startsWith(QLatin1Char('#'))) {
    if (line.Count() < 2) line.Fail(QStringLiteral("a comment needs a tag"));
    tag = line.Token(1).value;
    first = 2;
  }
  CommentInfo info;
  if (first < line.Count() && line.Token(first).quoted) info.text = line.Token(first++).value;
  applyOptions(line, first, info, commentOptions());
  if (info.status < 0) line.Fail(QStringLiteral("status takes 0 to 3"));
  auto comments = item->TaggedComments();
  if (!comments) line.Fail(QStringLiteral("the item was described without comments"));
  auto comment = std::make_shared<ProjectComment>(info.id);
  if (mComments.contains(comment->Id()))
    line.Fail(QStringLiteral("comment id \"%1\" is used twice").arg(comment->Id()));
  comment->setTagIdentifier(tag);
  comment->setText(info.text);
  comment->setStatus(info.status);
  comment->setIsHidden(info.hidden);
  comment->setXMLCommentType(info.xml);
  comment->setQualifier(info.qualifier);
  comment->setTagDefinitions(mTags);
  comment->setItem(item);
  comments->Add(comment, comment->Id());
  mComments.insert(comment->Id(), comment);
}

void ModelBuilder::finish() {
  mSettings->setTaggedCommentDefs(mTags);
  QSet<QString> providers;
  for (const auto& set : mSets) {
    mSettings->setNamespaceDefs(set->Name(), set);
    for (const auto& def : *set) providers.insert(def->ProviderName());
  }
  for (const QString& name : providers) mProject->AddNamespaceProvider(name, mProvider);
  for (const auto& comment : std::as_const(mComments)) {
    auto item = comment->Item();
    mProject->setCommentsFor(item->QualifiedName().value_or(QString()), item->TaggedComments());
  }
  mProject->setDirty(false);
}

std::shared_ptr<DefinitionSet> ModelBuilder::itemSet() const {
  if (mItemSet) return mItemSet;
  if (mSets.empty()) missing(QStringLiteral("definitions"));
  return mSets.front();
}

std::shared_ptr<NamespaceDef> ModelBuilder::itemDefinition(const QString& keyOrMoniker) const {
  auto set = itemSet();
  if (auto def = set->Item(keyOrMoniker)) return def;
  return set->ItemByMoniker(keyOrMoniker);
}

std::shared_ptr<DefinitionSet> ModelBuilder::Definitions(const QString& name) const {
  if (name.isEmpty()) {
    if (mSets.empty()) missing(QStringLiteral("definitions"));
    return mSets.front();
  }
  for (const auto& set : mSets)
    if (set->Name() == name) return set;
  missing(QStringLiteral("definition set \"%1\"").arg(name));
}

std::shared_ptr<Definition> ModelBuilder::Def(const QString& keyOrMoniker) const {
  auto set = Definitions();
  auto def = set->Item(keyOrMoniker);
  if (!def) def = set->ItemByMoniker(keyOrMoniker);
  if (!def) missing(QStringLiteral("definition \"%1\"").arg(keyOrMoniker));
  return std::dynamic_pointer_cast<Definition>(def);
}

std::shared_ptr<MemoryDDP> ModelBuilder::Ddp() const {
  return mProvider->Ddp();
}

std::shared_ptr<CodeItem> ModelBuilder::Item(const QString& qualifiedName) const {
  auto item = mProvider->GetItem(qualifiedName);
  if (!item) missing(QStringLiteral("item \"%1\"").arg(qualifiedName));
  return item;
}

std::shared_ptr<ProjectComment> ModelBuilder::Comment(const QString& id) const {
  auto comment = mComments.value(id);
  if (!comment) missing(QStringLiteral("comment \"%1\"").arg(id));
  return comment;
}

std::shared_ptr<CodeItem> ModelBuilder::AddItem(const ItemInfo& info,
                                                const std::shared_ptr<CodeItem>& parent) {
  auto def = itemDefinition(info.definition);
  if (!def) missing(QStringLiteral("definition \"%1\"").arg(info.definition));
  QString name = info.qualifiedName;
  if (name.isEmpty())
    name = parent ? parent->QualifiedName().value_or(QString()) + QLatin1Char('.') + info.name
                  : info.name;
  std::shared_ptr<CodeItem> group;
  if (!info.group.isEmpty()) group = Item(info.group);
  std::shared_ptr<CodeItem> item;
  switch (info.kind) {
    case Kind::Project:
      item = makeItem<ProjectItem>(info, parent, group, name, info.name);
      break;
    case Kind::Component:
      item = makeItem<ComponentItem>(info, parent, group, name, info.name);
      break;
    case Kind::Member:
      item =
          makeItem<MemberItem>(info, parent, group, name, info.name,
                               info.typeName.isEmpty() ? QStringLiteral("Member") : info.typeName);
      break;
    case Kind::Plain:
      item = makeItem<ModelItem>(info, parent, group,
                                 info.typeName.isEmpty() ? def->Key() : info.typeName, name,
                                 info.name);
      break;
  }
  if (parent) {
    mProvider->Add(def, item, parent);
    auto project = std::dynamic_pointer_cast<ProjectItem>(parent);
    if (project && info.kind == Kind::Component) project->Components()->Add(item, name);
  } else {
    mProvider->AddRoot(def, item, info.moniker);
    mRoots.emplace_back(def, item);
  }
  if (!info.caption.isEmpty()) Ddp()->setItemCaption(name, info.caption);
  if (!info.resolve.isEmpty()) {
    auto target = itemDefinition(info.resolve);
    if (!target) missing(QStringLiteral("definition \"%1\"").arg(info.resolve));
    Ddp()->AddRule(name, target);
  }
  if (!info.filter.isEmpty()) mProvider->setRelevantContentFilter(name, info.filter);
  return item;
}

ModelBuilder BuildSyntheticModel(int namespaces, int classes, int members) {
  ModelBuilder model(
      QStringLiteral("definitions sv.synthetic caption=Synthetic view=pift\n"
                     "  Root flags=r\n"
                     "    Namespace flags=f\n"
                     "      Class flags=f\n"
                     "        Member flags=f\n"));
  ModelBuilder::ItemInfo info;
  info.definition = QStringLiteral("Root");
  info.name = QStringLiteral("Synthetic");
  const auto root = model.AddItem(info);
  for (int n = 1; n <= namespaces; ++n) {
    ModelBuilder::ItemInfo ns;
    ns.definition = QStringLiteral("Namespace");
    ns.name = QStringLiteral("Ns%1").arg(n);
    const auto nsItem = model.AddItem(ns, root);
    for (int c = 1; c <= classes; ++c) {
      ModelBuilder::ItemInfo cls;
      cls.definition = QStringLiteral("Class");
      cls.name = QStringLiteral("Class%1").arg(c);
      const auto classItem = model.AddItem(cls, nsItem);
      for (int m = 1; m <= members; ++m) {
        ModelBuilder::ItemInfo member;
        member.definition = QStringLiteral("Member");
        member.name = QStringLiteral("Member%1").arg(m);
        member.kind = ModelBuilder::Kind::Member;
        member.access = QStringLiteral("Public");
        model.AddItem(member, classItem);
      }
    }
  }
  return model;
}

}  // namespace sv::test
