#include "ui/NodeKey.h"

namespace sv {

namespace {

// ASCII, by far the commonest case in code names, skips the Unicode tables.
char16_t fold(char16_t unit) {
  if (unit < 128) return (unit >= u'A' && unit <= u'Z') ? char16_t(unit + 32) : unit;
  return QChar::toCaseFolded(unit);
}

}  // namespace

bool operator==(const NodeKey& a, const NodeKey& b) noexcept {
  if (a.text.size() != b.text.size()) return false;
  if (!a.ignoreCase) return a.text == b.text;
  const char16_t* x = reinterpret_cast<const char16_t*>(a.text.constData());
  const char16_t* y = reinterpret_cast<const char16_t*>(b.text.constData());
  for (qsizetype i = 0; i < a.text.size(); ++i)
    if (x[i] != y[i] && fold(x[i]) != fold(y[i])) return false;
  return true;
}

size_t qHash(const NodeKey& key, size_t seed) noexcept {
  if (!key.ignoreCase) return qHash(key.text, seed);
  // FNV-1a over the folded units.
  quint64 hash = 14695981039346656037ull ^ seed;
  for (QChar ch : key.text) {
    hash ^= fold(ch.unicode());
    hash *= 1099511628211ull;
  }
  return static_cast<size_t>(hash ^ (hash >> 32));
}

}  // namespace sv
