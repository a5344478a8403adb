#include "project/doxygen/DoxygenCompound.h"

#include <QStringList>
#include <pugixml.hpp>

#include "project/doxygen/DoxygenIndex.h"
#include "project/doxygen/DoxygenNames.h"
#include "project/doxygen/DoxygenXmlFile.h"

namespace sv {
namespace {

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// All text under a node, in document order (a type is text mixed with <ref> elements).
void AppendText(pugi::xml_node node, std::string& out) {
  for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
    if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
      out += View(child.value());
      continue;
    }
    // Paragraphs and list items would otherwise run together; inline markup must not split
    // a name ("std::<ref>vector</ref>").
    const std::string_view element = View(child.name());
    const bool block = element == "para" || element == "listitem" || element == "simplesect" ||
                       element == "parameteritem";
    if (block && !out.empty() && out.back() != ' ') out += ' ';
    AppendText(child, out);
  }
}

std::string RawText(pugi::xml_node node) {
  std::string out;
  AppendText(node, out);
  return out;
}

QString Text(pugi::xml_node node) {
  return QString::fromStdString(RawText(node)).simplified();
}

bool Yes(pugi::xml_node node, const char* attribute) {
  return View(node.attribute(attribute).value()) == "yes";
}

DoxygenAccess AccessOf(pugi::xml_node node) {
  return ParseAccess(View(node.attribute("prot").value()));
}

DoxygenInner ReadInner(pugi::xml_node node) {
  return {QString::fromUtf8(node.attribute("refid").value()), Text(node), AccessOf(node)};
}

DoxygenMember ReadEnumValue(pugi::xml_node node) {
  DoxygenMember value;
  value.kind = DoxygenMemberKind::EnumValue;
  value.id = QString::fromUtf8(node.attribute("id").value());
  value.access = AccessOf(node);
  value.name = Text(node.child("name"));
  value.initializer = Text(node.child("initializer"));
  value.brief = Text(node.child("briefdescription"));
  return value;
}

}  // namespace

DoxygenCompound::DoxygenCompound(const DoxygenIndex& index, int id)
    : mId(id), mKind(index.Compound(id).kind), mQualifiedName(index.QualifiedName(id)) {
  const DoxygenIndexCompound& compound = index.Compound(id);
  mConstructorName = ToQString(DoxygenNames::WithoutTemplateArguments(compound.localName));
  if (id == DoxygenIndex::kRoot) {
    mAccess = DoxygenAccess::None;
    for (const std::int32_t other : index.Others()) {
      const DoxygenIndexCompound& file = index.Compound(other);
      if (file.holdsGlobals) ReadFile(index, file.refid, file.refid);
    }
  } else if (!compound.refid.empty()) {
    ReadFile(index, compound.refid, {});
  }
  if (HasConstructors(mKind) && !mDeclaresConstructor) AddImplicitConstructor();
  NameMembers(index);
}

void DoxygenCompound::ReadFile(const DoxygenIndex& index, std::string_view refid,
                               std::string_view memberPrefix) {
  const DoxygenXmlFile file(index.FileOf(refid), "doxygen");
  index.CountRead(file.Size());
  const pugi::xml_node def = file.Root().child("compounddef");
  if (!def) file.Fail(file.Root(), QStringLiteral("The file has no <compounddef> element"));
  const QString prefix =
      memberPrefix.empty() ? QString() : ToQString(memberPrefix) + QStringLiteral("_1");
  ReadCompoundDef(file, def, prefix);
}

void DoxygenCompound::ReadCompoundDef(const DoxygenXmlFile& file, const pugi::xml_node& def,
                                      const QString& memberPrefix) {
  // The root borrows only global members from the files it reads.
  const bool own = memberPrefix.isEmpty();
  if (own) mAccess = AccessOf(def);
  for (pugi::xml_node child = def.first_child(); child; child = child.next_sibling()) {
    const std::string_view element = View(child.name());
    if (own && element == "basecompoundref")
      mBases.push_back({Text(child), QString::fromUtf8(child.attribute("refid").value()),
                        AccessOf(child), View(child.attribute("virt").value()) == "virtual"});
    else if (own && element == "innerclass")
      mInnerClasses.push_back(ReadInner(child));
    else if (own && element == "innernamespace")
      mInnerNamespaces.push_back(ReadInner(child));
    else if (own && element == "briefdescription")
      mBrief = Text(child);
    if (element != "sectiondef") continue;
    for (pugi::xml_node node = child.child("memberdef"); node;
         node = node.next_sibling("memberdef")) {
      const QString id = QString::fromUtf8(node.attribute("id").value());
      if (id.isEmpty()) file.Fail(node, QStringLiteral("A member has no id"));
      // A global member may be listed by each file that declares it.
      if (!own && (!id.startsWith(memberPrefix) || mSeenIds.contains(id))) continue;
      if (!own) mSeenIds.insert(id);
      mMembers.push_back(ReadMember(node));
      mDeclaresConstructor = mDeclaresConstructor || mMembers.back().isConstructor;
    }
  }
}

DoxygenMember DoxygenCompound::ReadMember(const pugi::xml_node& node) const {
  DoxygenMember member;
  member.id = QString::fromUtf8(node.attribute("id").value());
  member.kind = ParseMemberKind(View(node.attribute("kind").value()));
  member.access = AccessOf(node);
  member.isStatic = Yes(node, "static");
  member.isConst = Yes(node, "const");
  member.isExplicit = Yes(node, "explicit");
  member.isStrong = Yes(node, "strong");
  const std::string_view virt = View(node.attribute("virt").value());
  member.isVirtual = virt == "virtual" || virt == "pure-virtual";
  member.isPureVirtual = virt == "pure-virtual";

  QStringList parameterTypes;
  for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
    const std::string_view element = View(child.name());
    if (element == "name")
      member.name = Text(child);
    else if (element == "type")
      member.type = Text(child);
    else if (element == "argsstring")
      member.argsString = Text(child);
    else if (element == "initializer")
      member.initializer = Text(child);
    else if (element == "briefdescription")
      member.brief = Text(child);
    else if (element == "enumvalue")
      member.values.push_back(ReadEnumValue(child));
    else if (element == "param")
      parameterTypes << DoxygenNames::NormalisedType(RawText(child.child("type")) +
                                                     RawText(child.child("array")));
  }
  if (IsCallable(member.kind) && member.argsString.startsWith(QLatin1Char('('))) {
    const QByteArray args = member.argsString.toUtf8();
    member.signature =
        QLatin1Char('(') + parameterTypes.join(QLatin1Char(',')) + QLatin1Char(')') +
        DoxygenNames::OverloadQualifiers(std::string_view(args.constData(), args.size()));
  }
  const bool function = member.kind == DoxygenMemberKind::Function && HasConstructors(mKind);
  member.isConstructor = function && member.name == mConstructorName;
  member.isDestructor = function && member.name == QLatin1Char('~') + mConstructorName;
  return member;
}

void DoxygenCompound::AddImplicitConstructor() {
  DoxygenMember constructor;
  constructor.kind = DoxygenMemberKind::Function;
  constructor.name = mConstructorName;
  constructor.argsString = QStringLiteral("()");
  constructor.signature = QStringLiteral("()");
  constructor.isConstructor = true;
  constructor.isDeclared = false;
  mMembers.insert(mMembers.begin(), std::move(constructor));
}

void DoxygenCompound::NameMembers(const DoxygenIndex& index) {
  QHash<QString, int> uses;
  for (const DoxygenMember& member : mMembers) ++uses[member.name];
  // Nested classes share the scope, so a member must not take one of their names either.
  QSet<QString> taken;
  for (const std::int32_t child : index.Children(mId))
    taken.insert(mQualifiedName + QLatin1Char('~') + ToQString(index.Compound(child).localName));

  for (DoxygenMember& member : mMembers) {
    member.isOverloaded = uses.value(member.name) > 1;
    const QString base = mQualifiedName + QLatin1Char('~') + member.name +
                         (member.isOverloaded ? member.signature : QString());
    QString name = base;
    for (int n = 2; taken.contains(name); ++n) name = base + QLatin1Char('#') + QString::number(n);
    taken.insert(name);
    member.qualifiedName = name;
    for (DoxygenMember& value : member.values)
      value.qualifiedName = name + QLatin1Char('~') + value.name;
  }
  mByQualifiedName.reserve(static_cast<qsizetype>(mMembers.size()));
  for (const DoxygenMember& member : mMembers) {
    mByQualifiedName.insert(member.qualifiedName, &member);
    for (const DoxygenMember& value : member.values)
      mByQualifiedName.insert(value.qualifiedName, &value);
  }
}

const DoxygenMember* DoxygenCompound::FindMember(const QString& qualifiedName) const {
  return mByQualifiedName.value(qualifiedName, nullptr);
}

DoxygenAccess DoxygenCompound::InnerAccess(std::string_view refid) const {
  const QString wanted = ToQString(refid);
  for (const DoxygenInner& inner : mInnerClasses)
    if (inner.refid == wanted) return inner.access;
  return DoxygenAccess::None;
}

}  // namespace sv
