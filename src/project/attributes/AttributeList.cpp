#include "project/attributes/AttributeList.h"

namespace sv {

namespace {

bool isNameChar(QChar c) {
  return !c.isSpace() && c != u'=' && c != u'"' && c != u'\'' && c != u'>' && c != u'<' &&
         c != u'/';
}

class Reader {
 public:
  explicit Reader(const QString& text) : mText(text) {}

  AttributeList read() {
    AttributeList list;
    while (true) {
      skipSpace();
      if (atEnd()) break;
      const qsizetype start = mPos;
      if (!isNameChar(mText[mPos])) {
        list.problems.push_back({start, QStringLiteral("unexpected character '%1'").arg(mText[mPos])});
        ++mPos;
        continue;
      }
      QString name = readName();
      skipSpace();
      if (atEnd() || mText[mPos] != u'=') {
        list.problems.push_back(
            {start, QStringLiteral("attribute '%1' has no value").arg(name)});
        continue;
      }
      ++mPos;
      skipSpace();
      if (atEnd()) {
        list.problems.push_back(
            {start, QStringLiteral("attribute '%1' has no value").arg(name)});
        break;
      }
      QString value;
      if (!readValue(value)) {
        list.problems.push_back(
            {start, QStringLiteral("the value of attribute '%1' never closes").arg(name)});
        break;
      }
      if (list.indexOf(name, false) < 0) list.pairs.push_back({std::move(name), std::move(value)});
    }
    return list;
  }

 private:
  bool atEnd() const { return mPos >= mText.size(); }
  void skipSpace() {
    while (!atEnd() && mText[mPos].isSpace()) ++mPos;
  }
  QString readName() {
    const qsizetype start = mPos;
    while (!atEnd() && isNameChar(mText[mPos])) ++mPos;
    return mText.mid(start, mPos - start);
  }
  bool readValue(QString& value) {
    const QChar quote = mText[mPos];
    if (quote != u'"' && quote != u'\'') {
      const qsizetype start = mPos;
      while (!atEnd() && !mText[mPos].isSpace()) ++mPos;
      value = mText.mid(start, mPos - start);
      return true;
    }
    const qsizetype close = mText.indexOf(quote, mPos + 1);
    if (close < 0) {
      mPos = mText.size();
      return false;
    }
    value = mText.mid(mPos + 1, close - mPos - 1);
    mPos = close + 1;
    return true;
  }

  const QString& mText;
  qsizetype mPos = 0;
};

}  // namespace

qsizetype AttributeList::indexOf(const QString& name, bool caseInsensitive) const {
  const Qt::CaseSensitivity cs = caseInsensitive ? Qt::CaseInsensitive : Qt::CaseSensitive;
  for (std::size_t i = 0; i < pairs.size(); ++i)
    if (pairs[i].name.compare(name, cs) == 0) return static_cast<qsizetype>(i);
  return -1;
}

AttributeList ParseAttributeList(const QString& text) { return Reader(text).read(); }

QString WriteAttributeList(const std::vector<AttributePair>& pairs) {
  QString out;
  for (const AttributePair& pair : pairs) {
    if (!out.isEmpty()) out += u' ';
    out += pair.name;
    const bool hasDouble = pair.value.contains(u'"');
    if (hasDouble && !pair.value.contains(u'\'')) {
      out += QStringLiteral("='") + pair.value + u'\'';
      continue;
    }
    QString value = pair.value;
    if (hasDouble) value.replace(u'"', QStringLiteral("&quot;"));
    out += QStringLiteral("=\"") + value + u'"';
  }
  return out;
}

}  // namespace sv
