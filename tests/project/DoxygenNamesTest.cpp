#include <gtest/gtest.h>

#include "project/doxygen/DoxygenNames.h"

namespace sv {
namespace {

using namespace DoxygenNames;

TEST(DoxygenNamesTest, SplitsScopesOutsideTemplateArguments) {
  EXPECT_EQ(LocalName("geometry::shapes::Circle"), "Circle");
  EXPECT_EQ(ScopeName("geometry::shapes::Circle"), "geometry::shapes");
  EXPECT_EQ(ScopeName("Circle"), "");
  EXPECT_EQ(LocalName("QHash< K, std::less< K > >::iterator"), "iterator");
  EXPECT_EQ(ScopeName("std::hash< QMap< int, ns::T > >"), "std");
  EXPECT_EQ(ScopeName("Outer< decltype(a::b) >::Inner"), "Outer< decltype(a::b) >");
  EXPECT_EQ(WithoutTemplateArguments("QList< T >"), "QList");
  EXPECT_EQ(WithoutTemplateArguments("Circle"), "Circle");
}

TEST(DoxygenNamesTest, NormalisesTypesAndKeepsOnlyOverloadingQualifiers) {
  EXPECT_EQ(NormalisedType(" const  QList< int > &"), QStringLiteral("const QList<int>&"));
  EXPECT_EQ(NormalisedType("unsigned  long\nlong *"), QStringLiteral("unsigned long long*"));
  EXPECT_EQ(NormalisedType("std::map< K, V >::const_iterator"),
            QStringLiteral("std::map<K,V>::const_iterator"));

  EXPECT_EQ(OverloadQualifiers("() const noexcept override"), QStringLiteral(" const"));
  EXPECT_EQ(OverloadQualifiers("(int a=f(1)) const &&"), QStringLiteral(" const &&"));
  EXPECT_EQ(OverloadQualifiers("() & noexcept(noexcept(x.y()))"), QStringLiteral(" &"));
  EXPECT_EQ(OverloadQualifiers("() -> const T&"), QString());
  EXPECT_EQ(OverloadQualifiers("() const =0"), QStringLiteral(" const"));
  EXPECT_EQ(OverloadQualifiers("no arguments"), QString());
}

}  // namespace
}  // namespace sv
