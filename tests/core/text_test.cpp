// Texts: sharing, comparison and conversion.
#include "praxen/core/text.h"

#include <gtest/gtest.h>

#include <utility>

namespace praxen::detail {
namespace {

TEST(Text, SharesCharactersUntilAssigned) {
  Text first = u"value";
  const Text second = first;
  EXPECT_EQ(first.data(), second.data());
  first = u"other";
  EXPECT_EQ(second, u"value");
  Text moved = std::move(first);
  EXPECT_EQ(moved, u"other");
  moved = *&moved;
  EXPECT_EQ(moved, u"other");
  EXPECT_EQ(sizeof(Text), sizeof(void*));
}

TEST(Text, KeepsAnyCharacters) {
  const std::u16string_view odd(u"a\0b\xD800", 4);
  EXPECT_EQ(Text(odd).view(), odd);
  EXPECT_EQ(Text(odd).size(), 4u);
  EXPECT_EQ(Text(odd).c_str()[4], u'\0');
  EXPECT_TRUE(Text(std::u16string()).empty());
  EXPECT_EQ(u"retain"_text, Text(u"retain"));
  EXPECT_EQ(Text(u"a") + u"b" + Text(u"c"), u"abc");
  EXPECT_LT(Text(u"a"), Text(u"b"));
}

TEST(Text, ConvertsToAndFromUtf8) {
  struct Case {
    std::u16string utf16;
    std::string utf8;
    bool bothWays;
  };
  const Case cases[] = {
      {u"", "", true},
      {u"a\u00E4\u20AC\U0001F600", "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", true},
      {u"x\xD800y", "x\xEF\xBF\xBDy", false},
      {u"x\xDC00", "x\xEF\xBF\xBD", false},
      {u"\xD83D", "\xEF\xBF\xBD", false},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(Text(test.utf16).utf8(), test.utf8);
    if (test.bothWays) {
      EXPECT_EQ(Text(test.utf8), test.utf16);
      EXPECT_EQ(Text(std::string_view(test.utf8)), test.utf16);
      EXPECT_EQ(Text(test.utf8.c_str()), test.utf16);
    }
  }
  EXPECT_EQ(Text("a\xFF\xC3"), u"a\uFFFD\uFFFD");
  const std::u8string pump = u8"Pumpe \u00E4";
  for (const Text& text : {Text(u8"Pumpe \u00E4"), Text(pump), Text(std::u8string_view(pump))}) {
    EXPECT_EQ(text, u"Pumpe \u00E4");
  }
  EXPECT_EQ(Text(std::string_view("a\0b", 3)).size(), 3u);
  EXPECT_EQ("a" + Text("b") + u8"c" + std::string("d"), "abcd");
}

}  // namespace
}  // namespace praxen::detail
