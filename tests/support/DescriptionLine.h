#pragma once

#include <QString>
#include <vector>

namespace sv::test {

// One word of a description line: a plain or quoted word, or key=value (the value may be
// quoted: caption="Two words"). Inside quotes \" is a quote and \\ a backslash.
struct DescriptionToken {
  QString key;    // the word, or the part before "="
  QString value;  // the part after "=", or the word itself
  bool pair = false;
  bool quoted = false;  // a quoted word without a key
};

// A line of a model description with its number and depth, split into words.
class DescriptionLine {
 public:
  // Splits a description into its lines, leaving out blank lines and notes (lines whose first
  // word begins with "//"). Raises BadFileFormat for a tab in the indentation or an unclosed
  // quote.
  static std::vector<DescriptionLine> Split(const QString& description);

  int Number() const { return mNumber; }
  int Indent() const { return mIndent; }
  const QString& Text() const { return mText; }
  const std::vector<DescriptionToken>& Tokens() const { return mTokens; }
  const DescriptionToken& Token(int index) const {
    return mTokens[static_cast<std::size_t>(index)];
  }
  int Count() const { return static_cast<int>(mTokens.size()); }

  // Raises BadFileFormat naming the line: "Model description, line 7: <problem>: <text>".
  [[noreturn]] void Fail(const QString& problem) const;

 private:
  DescriptionLine(int number, QString text);

  int mNumber;
  int mIndent = 0;
  QString mText;
  std::vector<DescriptionToken> mTokens;
};

}  // namespace sv::test
