#pragma once

#include <QString>
#include <vector>

namespace sv {

// The attribute text of a meta element or keyword element: name="value" pairs separated by
// white space. Values are quoted with " or '; an unquoted value runs to the next white space.
// Names are kept as written; when a name repeats, its first value holds.
struct AttributePair {
  QString name;
  QString value;
};

// Something in the text that is not a well-formed pair, at a zero-based offset into the text.
struct AttributeProblem {
  qsizetype offset = 0;
  QString message;
};

struct AttributeList {
  std::vector<AttributePair> pairs;
  std::vector<AttributeProblem> problems;

  // The index of a name in pairs, or -1; caseInsensitive folds both sides.
  qsizetype indexOf(const QString& name, bool caseInsensitive) const;
};

// Reads attribute text. Never fails: what cannot be read is skipped and named in problems
// ("attribute without a value", "value never closes", "unexpected character").
AttributeList ParseAttributeList(const QString& text);

// Writes pairs back as name="value" separated by single spaces. A value holding a double quote
// is written in single quotes. No entities are decoded on reading, so a value holding both
// kinds of quote cannot be written exactly: its double quotes become &quot;, which reads back
// as those six characters (and is then written the same way again).
QString WriteAttributeList(const std::vector<AttributePair>& pairs);

}  // namespace sv
