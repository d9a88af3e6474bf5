// The texts that are shared among the objects of one document.
#include "praxen/describe/shared_texts.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace praxen::detail {
namespace {

// There are far more texts than places, so that many take the place of another and come again.
TEST(SharedTexts, AreWhatWasAskedForWhateverHadTheirPlace) {
  SharedTexts texts;
  std::map<std::u16string, Text> kept;
  for (int round = 0; round < 3; ++round) {
    for (char16_t i = 0; i < 2000; ++i) {
      // Texts that differ in length, in the first and in the last character, with NUL among them.
      for (const std::u16string& text :
           {std::u16string(i % 50, u'a'), std::u16string{i}, std::u16string{u'a', u'b', i},
            std::u16string{i, u'b', u'a'}, std::u16string(2, i)}) {
        const Text shared = texts.Share(text);
        ASSERT_EQ(shared, text);
        kept.try_emplace(text, shared);
      }
    }
    texts.Clear();
  }
  for (const auto& [text, shared] : kept) EXPECT_EQ(shared, text);
}

// A text that comes for the first time may come only once.
TEST(SharedTexts, OfRepeatedShortTextsAreStoredOnceUntilCleared) {
  SharedTexts texts;
  const std::u16string longest(32, u'x');
  texts.Share(longest);
  const Text first = texts.Share(longest);
  EXPECT_EQ(texts.Share(longest).data(), first.data());
  texts.Share(longest + u"x");
  const Text tooLong = texts.Share(longest + u"x");
  EXPECT_NE(texts.Share(longest + u"x").data(), tooLong.data());
  texts.Clear();
  EXPECT_NE(texts.Share(longest).data(), first.data());
  EXPECT_EQ(first, longest);
}

}  // namespace
}  // namespace praxen::detail
