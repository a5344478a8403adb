#include "project/doxygen/DoxygenKinds.h"

#include <array>
#include <utility>

namespace sv {
namespace {

using namespace std::string_view_literals;

constexpr std::array kCompoundWords{
    std::pair{"namespace"sv, DoxygenCompoundKind::Namespace},
    std::pair{"class"sv, DoxygenCompoundKind::Class},
    std::pair{"struct"sv, DoxygenCompoundKind::Struct},
    std::pair{"union"sv, DoxygenCompoundKind::Union},
    std::pair{"interface"sv, DoxygenCompoundKind::Interface},
    std::pair{"protocol"sv, DoxygenCompoundKind::Protocol},
    std::pair{"category"sv, DoxygenCompoundKind::Category},
    std::pair{"exception"sv, DoxygenCompoundKind::Exception},
    std::pair{"concept"sv, DoxygenCompoundKind::Concept},
    std::pair{"file"sv, DoxygenCompoundKind::File},
};

// Ordered by how often the kinds occur in real indexes, so the linear search ends early.
constexpr std::array kMemberWords{
    std::pair{"function"sv, DoxygenMemberKind::Function},
    std::pair{"variable"sv, DoxygenMemberKind::Variable},
    std::pair{"enumvalue"sv, DoxygenMemberKind::EnumValue},
    std::pair{"define"sv, DoxygenMemberKind::Define},
    std::pair{"typedef"sv, DoxygenMemberKind::Typedef},
    std::pair{"friend"sv, DoxygenMemberKind::Friend},
    std::pair{"enum"sv, DoxygenMemberKind::Enum},
    std::pair{"property"sv, DoxygenMemberKind::Property},
    std::pair{"signal"sv, DoxygenMemberKind::Signal},
    std::pair{"slot"sv, DoxygenMemberKind::Slot},
    std::pair{"event"sv, DoxygenMemberKind::Event},
};

template <class Words, class Kind>
Kind Lookup(const Words& words, std::string_view word, Kind fallback) {
  for (const auto& [text, kind] : words)
    if (text == word) return kind;
  return fallback;
}

template <class Words, class Kind>
QString WordOf(const Words& words, Kind kind) {
  for (const auto& [text, k] : words)
    if (k == kind) return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
  return {};
}

}  // namespace

DoxygenCompoundKind ParseCompoundKind(std::string_view kind) {
  return Lookup(kCompoundWords, kind, DoxygenCompoundKind::Other);
}

DoxygenMemberKind ParseMemberKind(std::string_view kind) {
  return Lookup(kMemberWords, kind, DoxygenMemberKind::Other);
}

DoxygenAccess ParseAccess(std::string_view prot) {
  if (prot == "public") return DoxygenAccess::Public;
  if (prot == "protected") return DoxygenAccess::Protected;
  if (prot == "private") return DoxygenAccess::Private;
  if (prot == "package") return DoxygenAccess::Package;
  return DoxygenAccess::None;
}

bool IsCodeScope(DoxygenCompoundKind kind) {
  return kind != DoxygenCompoundKind::File && kind != DoxygenCompoundKind::Other;
}

bool HasConstructors(DoxygenCompoundKind kind) {
  return kind == DoxygenCompoundKind::Class || kind == DoxygenCompoundKind::Struct ||
         kind == DoxygenCompoundKind::Union || kind == DoxygenCompoundKind::Exception;
}

bool IsCallable(DoxygenMemberKind kind) {
  return kind == DoxygenMemberKind::Function || kind == DoxygenMemberKind::Signal ||
         kind == DoxygenMemberKind::Slot || kind == DoxygenMemberKind::Friend;
}

QString KindWord(DoxygenCompoundKind kind) {
  if (kind == DoxygenCompoundKind::Root) return QStringLiteral("project");
  return WordOf(kCompoundWords, kind);
}

QString KindWord(DoxygenMemberKind kind) {
  return WordOf(kMemberWords, kind);
}

QString AccessWord(DoxygenAccess access) {
  switch (access) {
    case DoxygenAccess::Public:
      return QStringLiteral("PUBLIC");
    case DoxygenAccess::Protected:
      return QStringLiteral("PROTECTED");
    case DoxygenAccess::Private:
      return QStringLiteral("PRIVATE");
    case DoxygenAccess::Package:
      return QStringLiteral("FRIEND");
    case DoxygenAccess::None:
      break;
  }
  return {};
}

}  // namespace sv
