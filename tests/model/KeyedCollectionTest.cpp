#include "model/KeyedCollection.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace sv {
namespace {

QString Listing(const KeyedCollection<QString>& c) {
  QStringList rows;
  for (int i = 1; i <= c.Count(); ++i) rows << c.KeyAt(i) + "=" + c.Item(i);
  return rows.join(' ');
}

TEST(KeyedCollectionTest, KeepsOrderAndFindsKeysWithoutRegardToCase) {
  KeyedCollection<QString> c;
  c.Add("one", "A");
  c.Add("three", "C");
  c.Add("two", "B", QStringLiteral("c"));  // before the key "C"
  c.Add("zero", "Z", 1);                   // before the first entry
  c.Add("four", "D", {}, QStringLiteral("C"));
  c.Add("unkeyed");
  EXPECT_EQ(Listing(c), "Z=zero A=one B=two C=three D=four =unkeyed");
  EXPECT_EQ(c.Item("b"), "two");
  EXPECT_EQ(c.IndexOf("d"), 5);
  EXPECT_EQ(c.IndexOf("missing"), 0);

  c.Remove("a");
  c.Remove(1);
  EXPECT_EQ(Listing(c), "B=two C=three D=four =unkeyed");
  EXPECT_EQ(c.Item("C"), "three") << "keys stay valid after entries before them go";
  QStringList walked;
  for (const QString& s : c) walked << s;
  EXPECT_EQ(walked.join(','), "two,three,four,unkeyed");
}

TEST(KeyedCollectionTest, RaisesTheClassicErrorsForBadKeysAndIndexes) {
  KeyedCollection<int> c;
  c.Add(1, "Key");
  auto number = [](auto&& call) {
    try {
      call();
    } catch (const Error& e) {
      return e.Number();
    }
    return 0L;
  };
  EXPECT_EQ(number([&] { c.Add(2, "KEY"); }), ErrorNumber::DuplicateKey);
  EXPECT_EQ(number([&] { c.Item("other"); }), ErrorNumber::InvalidCall);
  EXPECT_EQ(number([&] { c.Item(2); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(number([&] { c.Item(0); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(number([&] { c.Add(3, "x", 1, 1); }), ErrorNumber::InvalidCall);
  EXPECT_EQ(c.Count(), 1) << "a failed Add changes nothing";
  EXPECT_FALSE(c.Find("x").has_value());
}

}  // namespace
}  // namespace sv
