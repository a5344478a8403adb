#include "DescriptionLine.h"

#include <QStringList>

#include "model/Error.h"

namespace sv::test {

std::vector<DescriptionLine> DescriptionLine::Split(const QString& description) {
  std::vector<DescriptionLine> lines;
  const QStringList texts = description.split(QLatin1Char('\n'));
  for (int i = 0; i < texts.size(); ++i) {
    DescriptionLine line(i + 1, texts[i]);
    if (line.mTokens.empty() || line.mTokens.front().value.startsWith(QLatin1String("//")))
      continue;
    lines.push_back(std::move(line));
  }
  return lines;
}

DescriptionLine::DescriptionLine(int number, QString text)
    : mNumber(number), mText(std::move(text)) {
  if (mText.endsWith(QLatin1Char('\r'))) mText.chop(1);
  while (mIndent < mText.size() && mText[mIndent].isSpace()) {
    if (mText[mIndent] == QLatin1Char('\t')) Fail(QStringLiteral("indent with spaces, not tabs"));
    ++mIndent;
  }
  int at = mIndent;
  while (at < mText.size()) {
    DescriptionToken token;
    QString word;
    bool inQuotes = false;
    bool sawQuote = false;
    for (; at < mText.size() && (inQuotes || !mText[at].isSpace()); ++at) {
      const QChar c = mText[at];
      if (inQuotes && c == QLatin1Char('\\') && at + 1 < mText.size()) {
        word += mText[++at];
      } else if (c == QLatin1Char('"')) {
        inQuotes = !inQuotes;
        sawQuote = true;
      } else if (c == QLatin1Char('=') && !inQuotes && !token.pair && !sawQuote) {
        token.pair = true;
        token.key = word;
        word.clear();
      } else {
        word += c;
      }
    }
    if (inQuotes) Fail(QStringLiteral("a quote is not closed"));
    token.value = word;
    if (!token.pair) token.key = word;
    token.quoted = sawQuote && !token.pair;
    mTokens.push_back(token);
    while (at < mText.size() && mText[at].isSpace()) ++at;
  }
}

void DescriptionLine::Fail(const QString& problem) const {
  Raise(ErrorNumber::BadFileFormat, QStringLiteral("Model description, line %1: %2: %3")
                                        .arg(mNumber)
                                        .arg(problem, mText.trimmed()));
}

}  // namespace sv::test
