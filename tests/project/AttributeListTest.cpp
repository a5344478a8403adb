#include <gtest/gtest.h>

#include <QStringList>

#include "model/ModelFactory.h"
#include "project/attributes/AttributeList.h"
#include "project/attributes/AttributeStringBuilder.h"
#include "support/QtPrinters.h"

namespace sv {
namespace {

QString describe(const AttributeList& list) {
  QStringList parts;
  for (const AttributePair& pair : list.pairs) parts << pair.name + u'=' + u'[' + pair.value + u']';
  for (const AttributeProblem& problem : list.problems)
    parts << QStringLiteral("!%1 %2").arg(problem.offset).arg(problem.message);
  return parts.join(u' ');
}

TEST(AttributeListTest, ReadsPairsAndNamesWhatItSkips) {
  struct Case {
    const char* text;
    const char* expected;
  } cases[] = {
      {"", ""},
      {R"(a="1" b='2' c=3)", "a=[1] b=[2] c=[3]"},
      {R"(  keywords = "x>y"   namespace="ms.vs" )", "keywords=[x>y] namespace=[ms.vs]"},
      {R"(a="1" a="2" A="3")", "a=[1] A=[3]"},
      {R"(a='say "hi"' b="it's")", R"(a=[say "hi"] b=[it's])"},
      {R"(a="" b)", "a=[] !5 attribute 'b' has no value"},
      {R"(a="open)", "!0 the value of attribute 'a' never closes"},
      {R"(= a="1")", "a=[1] !0 unexpected character '='"},
      {"a=", "!0 attribute 'a' has no value"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(describe(ParseAttributeList(QString::fromUtf8(c.text))), QString::fromUtf8(c.expected))
        << c.text;
}

TEST(AttributeListTest, WritingReadsBackToTheSamePairs) {
  const std::vector<AttributePair> pairs = {
      {"plain", "value"}, {"empty", ""}, {"double", R"(say "hi")"}, {"single", "it's"}};
  const QString text = WriteAttributeList(pairs);
  EXPECT_EQ(text, R"(plain="value" empty="" double='say "hi"' single="it's")");
  EXPECT_EQ(describe(ParseAttributeList(text)), R"(plain=[value] empty=[] double=[say "hi"] single=[it's])");

  // Both kinds of quote cannot be written exactly; the second round trip is stable.
  const QString both = WriteAttributeList({{"both", R"(it's "x")"}});
  const QString again = WriteAttributeList(ParseAttributeList(both).pairs);
  EXPECT_EQ(again, both);
}

TEST(AttributeListTest, StringBuilderFoldsCaseOnlyWhenAsked) {
  AttributeStringBuilder builder;
  builder.Parse(R"(keywords="k1" namespace="ns" indexMoniker="!DefaultKeywordIndex")");
  EXPECT_EQ(builder.Item("Namespace"), nullptr);
  ASSERT_NE(builder.Item("indexMoniker"), nullptr);
  builder.setCaseInsensitive(true);
  ASSERT_NE(builder.Item("Namespace"), nullptr);
  EXPECT_EQ(builder.Item("Namespace")->Value(), "ns");
  EXPECT_EQ(builder.Item("indexmoniker")->Key(), "indexMoniker");
  EXPECT_EQ(builder.Item("missing"), nullptr);
}

}  // namespace
}  // namespace sv
