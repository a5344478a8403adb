#include "project/doxygen/DoxygenNames.h"

namespace sv::DoxygenNames {
namespace {

bool IsIdentifierChar(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool IsSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// Position just after the parenthesis that closes the first one, or npos.
std::size_t EndOfArguments(std::string_view text) {
  int depth = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '(') ++depth;
    if (text[i] != ')') continue;
    if (--depth == 0) return i + 1;
  }
  return std::string_view::npos;
}

}  // namespace

std::size_t LastScopeSeparator(std::string_view name) {
  std::size_t found = std::string_view::npos;
  int depth = 0;
  for (std::size_t i = 0; i + 1 < name.size(); ++i) {
    const char c = name[i];
    if (c == '<' || c == '(' || c == '[') ++depth;
    if ((c == '>' || c == ')' || c == ']') && depth > 0) --depth;
    if (depth == 0 && c == ':' && name[i + 1] == ':') {
      found = i;
      ++i;
    }
  }
  return found;
}

std::string_view LocalName(std::string_view name) {
  const std::size_t at = LastScopeSeparator(name);
  return at == std::string_view::npos ? name : name.substr(at + 2);
}

std::string_view ScopeName(std::string_view name) {
  const std::size_t at = LastScopeSeparator(name);
  return at == std::string_view::npos ? std::string_view() : name.substr(0, at);
}

std::string_view WithoutTemplateArguments(std::string_view name) {
  const std::size_t at = name.find('<');
  name = name.substr(0, at);
  while (!name.empty() && IsSpace(name.back())) name.remove_suffix(1);
  return name;
}

QString NormalisedType(std::string_view type) {
  std::string out;
  out.reserve(type.size());
  bool pendingSpace = false;
  for (const char c : type) {
    if (IsSpace(c)) {
      pendingSpace = !out.empty();
      continue;
    }
    if (pendingSpace && IsIdentifierChar(out.back()) && IsIdentifierChar(c)) out += ' ';
    pendingSpace = false;
    out += c;
  }
  return QString::fromStdString(out);
}

QString OverloadQualifiers(std::string_view argsString) {
  const std::size_t end = EndOfArguments(argsString);
  if (end == std::string_view::npos) return {};
  const std::string_view tail = argsString.substr(end);
  QString qualifiers;
  int depth = 0;
  std::size_t i = 0;
  while (i < tail.size()) {
    const char c = tail[i];
    // A trailing return type, "= 0", "= delete" or a body ends what can qualify the function.
    if (depth == 0 && (c == '=' || c == '{' || tail.substr(i, 2) == "->")) break;
    if (c == '(') ++depth;
    if (c == ')' && depth > 0) --depth;
    std::size_t next = i + 1;
    if (depth == 0 && c == '&') {
      next = tail.substr(i, 2) == "&&" ? i + 2 : i + 1;
      qualifiers += QLatin1Char(' ') + QString::fromLatin1(tail.data() + i, next - i);
    } else if (depth == 0 && IsIdentifierChar(c)) {
      while (next < tail.size() && IsIdentifierChar(tail[next])) ++next;
      const std::string_view word = tail.substr(i, next - i);
      if (word == "const" || word == "volatile")
        qualifiers += QLatin1Char(' ') + QString::fromLatin1(word.data(), word.size());
    }
    i = next;
  }
  return qualifiers;
}

}  // namespace sv::DoxygenNames
