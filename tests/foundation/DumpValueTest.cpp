#include "foundation/DumpValue.h"

#include "model/Error.h"

#include <gtest/gtest.h>

namespace sv {
namespace {

using Bounds = DumpVariant::Bounds;

// The dump with CR LF shown as "\n", after checking that every line ends in CR LF.
QString Printed(const QString& dump) {
  EXPECT_EQ(dump.count(QStringLiteral("\r\n")), dump.count(u'\n')) << dump.toStdString();
  EXPECT_TRUE(dump.endsWith(QStringLiteral("\r\n"))) << dump.toStdString();
  QString text = dump;
  return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::vector<DumpVariant> Numbers(int from, int count) {
  std::vector<DumpVariant> values;
  for (int i = 0; i < count; ++i) values.emplace_back(from + i);
  return values;
}

TEST(DumpValueTest, EachKindOfValueHasItsText) {
  const QString withNul = QStringLiteral("abc") + QChar(u'\0') + QStringLiteral("hidden");
  const QString dump = DumpValues({
      {"vEmpty", DumpVariant()},
      {"vNull", DumpVariant::Null()},
      {"mProject", DumpVariant::Nothing()},
      {"sName", withNul},
      {"lCount", 42},
      {"dRatio", 2.5},
      {"bDirty", true},
      {"bLoading", false},
      {"mNode", DumpVariant::Object("Node")},
      {"oData", DumpVariant::DataObject()},
      {"tRect", DumpVariant::Udt("RECT")},
      {"vBad", DumpVariant::FormatError(13)},
      {"vLate", DumpVariant::Deferred([]() -> DumpVariant { Raise(91, "no object"); })},
      {"oMaybe", std::optional<QString>()},
      {"tPoint", DumpVariant::UdtParameter()},
      {"tExternal", DumpVariant::ExternalUdtParameter()},
  });
  EXPECT_EQ(Printed(dump),
            "<vEmpty>{Empty}</vEmpty>\n"
            "<vNull>{Null}</vNull>\n"
            "<mProject>{Nothing}</mProject>\n"
            "<sName>abc</sName>\n"
            "<lCount>42</lCount>\n"
            "<dRatio>2.5</dRatio>\n"
            "<bDirty>True</bDirty>\n"
            "<bLoading>False</bLoading>\n"
            "<mNode>{Node}</mNode>\n"
            "<oData>{DataObject}</oData>\n"
            "<tRect>{UDT - RECT}</tRect>\n"
            "<vBad>{Error 13 formatting for output}</vBad>\n"
            "<vLate>{Error 91 formatting for output}</vLate>\n"
            "<oMaybe>{Null}</oMaybe>\n"
            "<tPoint>{Can't dump UDT parameters}</tPoint>\n"
            "<tExternal>{Cannot dump external UDTs}</tExternal>\n");
}

TEST(DumpValueTest, NameCarriesAttributesIntoTheOpeningTagOnlyAndIndentIsBlanks) {
  EXPECT_EQ(Printed(DumpValue("Item Index=\"3\"", "x", 99, 4)), "    <Item Index=\"3\">x</Item>\n");
}

TEST(DumpValueTest, ArraysDumpEveryElementWithItsIndices) {
  const DumpVariant list = DumpVariant::List(QStringList{"a", "b"}, 1);
  EXPECT_EQ(Printed(DumpValue("asNames", list)),
            "<asNames>\n"
            "  <asNames Index=\"1\">a</asNames>\n"
            "  <asNames Index=\"2\">b</asNames>\n"
            "</asNames>\n");

  const DumpVariant cube =
      DumpVariant::Array({Bounds{0, 1}, Bounds{1, 2}, Bounds{5, 6}}, Numbers(1, 8));
  EXPECT_EQ(Printed(DumpValue("aCube", cube, 99, 2)),
            "  <aCube>\n"
            "    <aCube Index=\"0,1,5\">1</aCube>\n"
            "    <aCube Index=\"0,1,6\">2</aCube>\n"
            "    <aCube Index=\"0,2,5\">3</aCube>\n"
            "    <aCube Index=\"0,2,6\">4</aCube>\n"
            "    <aCube Index=\"1,1,5\">5</aCube>\n"
            "    <aCube Index=\"1,1,6\">6</aCube>\n"
            "    <aCube Index=\"1,2,5\">7</aCube>\n"
            "    <aCube Index=\"1,2,6\">8</aCube>\n"
            "  </aCube>\n");
}

TEST(DumpValueTest, ArraysThatCannotBeWalkedSayWhy) {
  const DumpVariant fourD =
      DumpVariant::Array({Bounds{0, 1}, Bounds{0, 1}, Bounds{0, 1}, Bounds{0, 1}}, Numbers(0, 16));
  const DumpVariant noSecond = DumpVariant::Array({Bounds{0, 1}, std::nullopt}, {});
  const DumpVariant noThird = DumpVariant::Array({Bounds{0, 1}, Bounds{0, 1}, std::nullopt}, {});
  EXPECT_EQ(Printed(DumpValues({
                {"a4", fourD},
                {"aNever", DumpVariant::Array({}, {})},
                {"a2", noSecond},
                {"a3", noThird},
            })),
            "<a4>{Dump truncated at 3 dimensions}</a4>\n"
            "<aNever>{UnInitialised Array}</aNever>\n"
            "<a2>{UnInitialised Array Dimension 2}</a2>\n"
            "<a3>{UnInitialised Array Dimension 3}</a3>\n");
}

TEST(DumpValueTest, CollectionsNestToTheDepthAllowed) {
  const DumpVariant inner = DumpVariant::Collection("Collection", {"x", DumpVariant::Nothing()});
  const DumpVariant outer = DumpVariant::Collection("Exclusions", {inner, 7});
  EXPECT_EQ(Printed(DumpValue("mExclusions", outer)),
            "<mExclusions>[Exclusions]\n"
            "  <mExclusions>[Collection]\n"
            "    <mExclusions>x</mExclusions>\n"
            "    <mExclusions>{Nothing}</mExclusions>\n"
            "  </mExclusions>\n"
            "  <mExclusions>7</mExclusions>\n"
            "</mExclusions>\n");
  EXPECT_EQ(Printed(DumpValue("mExclusions", outer, 1)),
            "<mExclusions>[Exclusions]\n"
            "  <mExclusions>[Collection]</mExclusions>\n"
            "  <mExclusions>7</mExclusions>\n"
            "</mExclusions>\n");
}

}  // namespace
}  // namespace sv
