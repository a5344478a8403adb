#include "foundation/CollectionHelpers.h"

#include "support/FakeServices.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>
#include <memory>

namespace sv {
namespace {

QString Joined(const StringCollection& parts) {
  QStringList texts;
  for (const QString& part : parts) texts << "[" + part + "]";
  return texts.join(u' ');
}

TEST(CollectionHelpersTest, KeysSplitIntoFields) {
  using H = CollectionHelpers;
  EXPECT_EQ(H::TextBeforeColon("inplaceedit:Class Page:1"), "inplaceedit");
  EXPECT_EQ(H::TextAfterColon("inplaceedit:Class Page:1"), "Class Page:1");
  EXPECT_EQ(H::TextBeforeColon("other"), "other");
  EXPECT_EQ(H::TextAfterColon("other"), "");

  EXPECT_EQ(H::GetField("Name~1~120", "~", 1), "Name");
  EXPECT_EQ(H::GetField("Name~1~120", "~", 3), "120");
  EXPECT_EQ(H::GetField("Name~1~120", "~", 4), "");
  EXPECT_EQ(H::GetField("Name~1~120", "~", 0), "");
  EXPECT_EQ(H::GetField("a::b::c", "::", 2), "b");
  EXPECT_EQ(H::GetField("whole", "", 1), "whole");

  EXPECT_EQ(Joined(H::SplitToCollection("a<br>b<br><br>c", "<br>")), "[a] [b] [] [c]");
  EXPECT_EQ(Joined(H::SplitToCollection("a,b", "")), "[a,b]");
  EXPECT_EQ(H::SplitToCollection("", ",").Count(), 0);

  EXPECT_TRUE(H::IsBlank(QVariant()));
  EXPECT_TRUE(H::IsBlank(QString()));
  EXPECT_TRUE(H::IsBlank(QString("")));
  EXPECT_FALSE(H::IsBlank(QString(" ")));
  EXPECT_FALSE(H::IsBlank(0));
}

struct Shelf {
  std::shared_ptr<int> Item(const QString& key) const { return items.Item(key); }
  KeyedCollection<std::shared_ptr<int>> items;
};

TEST(CollectionHelpersTest, KeyTestsSwallowTheMissingKeyError) {
  KeyedCollection<bool> flags;
  flags.Add(false, "Public");
  EXPECT_TRUE(CollectionHelpers::CollectionKeyExists(flags, "PUBLIC"));
  EXPECT_FALSE(CollectionHelpers::CollectionKeyExists(flags, "Private"));
  // A false item is still an item.
  EXPECT_TRUE(CollectionHelpers::ObjectKeyExists(flags, "public"));

  Shelf shelf;
  shelf.items.Add(std::make_shared<int>(1), "Class");
  shelf.items.Add(nullptr, "Empty");
  EXPECT_TRUE(CollectionHelpers::ObjectKeyExists(shelf, "class"));
  EXPECT_FALSE(CollectionHelpers::ObjectKeyExists(shelf, "Empty"));
  EXPECT_FALSE(CollectionHelpers::ObjectKeyExists(shelf, "Module"));
}

TEST(CollectionHelpersTest, FindTextCountsFromOne) {
  using H = CollectionHelpers;
  EXPECT_EQ(H::FindText(1, "See Also: see", "see", 0), 11);
  EXPECT_EQ(H::FindText(1, "See Also: see", "see", 1), 1);
  EXPECT_EQ(H::FindText(2, "See Also: see", "SEE", 1), 11);
  EXPECT_EQ(H::FindText(12, "See Also: see", "see", 0), 0);
  EXPECT_EQ(H::FindText(40, "See Also: see", "see", 0), 0);
  EXPECT_EQ(H::FindText(3, "abc", "", 0), 3);
  EXPECT_EQ(H::FindText(4, "abc", "", 0), 4);
  EXPECT_EQ(H::FindText(5, "abc", "", 0), 0);
  EXPECT_EQ(H::FindText(1, "", "", 0), 0);
  try {
    H::FindText(0, "abc", "a", 0);
    FAIL() << "a start of 0 did not raise";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::InvalidCall);
  }
}

TEST(CollectionHelpersTest, PathsAndFileDialogs) {
  QTemporaryDir temp;
  ASSERT_TRUE(temp.isValid());
  EXPECT_TRUE(CollectionHelpers::IsValidPath(temp.path()));
  EXPECT_FALSE(CollectionHelpers::IsValidPath(temp.filePath("missing")));
  EXPECT_FALSE(CollectionHelpers::IsValidPath(""));

  test::FakeServices services;
  services.picker->Script("/home/ann/project.svp");
  EXPECT_EQ(CollectionHelpers::BrowseForOpen("Open", "Projects|*.svp", "/home/ann"),
            "/home/ann/project.svp");
  EXPECT_EQ(CollectionHelpers::BrowseForSave("Save", "Text|*.txt", "/home/ann/a.txt"), "");
  EXPECT_EQ(services.picker->Requests(), (QStringList{"Open|Open|Projects|*.svp|/home/ann",
                                                      "Save|Save|Text|*.txt|/home/ann/a.txt"}));
}

}  // namespace
}  // namespace sv
