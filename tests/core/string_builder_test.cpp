// The text buffer: capacities, positions and errors.
#include "praxen/core/string_builder.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "praxen/core/error.h"

namespace praxen::detail {
namespace {

std::u16string Repeat(size_t count) { return std::u16string(count, u'x'); }

TEST(CStringBuilder, CapacityFollowsTheGrowthStep) {
  struct Case {
    std::function<void(CStringBuilder&)> change;
    int32_t capacity, length;
  };
  const Case cases[] = {
      {[](CStringBuilder&) {}, 2048, 0},
      {[](CStringBuilder& b) { b.Append(Repeat(1024)); }, 2048, 1024},
      {[](CStringBuilder& b) { b.Append(Repeat(1025)); }, 4096, 1025},
      {[](CStringBuilder& b) { b.Capacity(5000); }, 6144, 0},
      {[](CStringBuilder& b) { b.Capacity(4096); }, 4096, 0},
      {[](CStringBuilder& b) { b.Capacity(0); }, 2048, 0},
      {[](CStringBuilder& b) { b.Capacity(-1); }, 2048, 0},
      {[](CStringBuilder& b) { b.Append(Repeat(3000)).Reset(); }, 6144, 0},
      {[](CStringBuilder& b) { b.Append(Repeat(3000)).Capacity(100); }, 2048, 1024},
      {[](CStringBuilder& b) { b.Length(1500); }, 4096, 1500},
      {[](CStringBuilder& b) { b.Length(-1); }, 2048, 0},
      {[](CStringBuilder& b) { b.EnsureCapacity(2049); }, 4096, 0},
      {[](CStringBuilder& b) { b.EnsureCapacity(2048); }, 2048, 0},
      {[](CStringBuilder& b) { b.BufferBump(1001), b.Capacity(1); }, 1002, 0},
      {[](CStringBuilder& b) {
         b.BufferBump(1001), b.BufferBump(0), b.BufferBump(-5), b.Capacity(1);
       },
       1002, 0},
      {[](CStringBuilder& b) { b.Append(Repeat(1000)).Insert(0, Repeat(25)); }, 4096, 1025},
  };
  for (const Case& test : cases) {
    CStringBuilder builder;
    test.change(builder);
    EXPECT_EQ(builder.Capacity(), test.capacity) << &test - cases;
    EXPECT_EQ(builder.Length(), test.length) << &test - cases;
  }
}

TEST(CStringBuilder, EditsText) {
  CStringBuilder builder;
  builder.Append(u"bcd").Insert(0, u"a").Insert(4, u"f").Insert(4, u"e").Insert(2, u"");
  EXPECT_EQ(builder.ToString(), u"abcdef");
  builder.Insert(3, builder.view().substr(0, 3));
  EXPECT_EQ(builder.ToString(), u"abcabcdef");
  builder.Remove(3, 3).Remove(0, 1).Remove(4, 1).Remove(4, 0);
  EXPECT_EQ(builder.ToString(), u"bcde");
  builder.Chars(1, u"XY");
  EXPECT_EQ(builder.Chars(0) + builder.Chars(1), u"bX");
  builder.Length(2);
  builder.Length(4);
  EXPECT_EQ(builder.ToString(), Text(std::u16string_view(u"bX\0\0", 4)));
}

// A long text stands in the buffer's own storage.
TEST(CStringBuilder, LeavesTextsAsTheyAreWhenItChanges) {
  const std::function<void(CStringBuilder&)> changes[] = {
      [](CStringBuilder& b) { b.Append(u"y"); },
      [](CStringBuilder& b) { b.Reset(), b.Append(u"y"); },
      [](CStringBuilder& b) { b.Chars(0, u"y"); },
      [](CStringBuilder& b) { b.Length(5), b.Append(u"y"); },
      [](CStringBuilder& b) { b.Length(50000); },
      [](CStringBuilder& b) { b.Insert(1, u"y"); },
      [](CStringBuilder& b) { b.Remove(0, 40000), b.Append(u"y"); },
      [](CStringBuilder& b) { b.Capacity(100), b.Append(u"y"); },
      [](CStringBuilder& b) { b.Length(39999), b.ToString(); },
      [](CStringBuilder& b) { b.Reserve(100)[0] = u'y'; },
  };
  const std::u16string content = Repeat(40000);
  for (const auto& change : changes) {
    CStringBuilder builder;
    builder.Append(content);
    const Text text = builder.ToString(), again = builder.ToString();
    EXPECT_EQ(text.data(), again.data());
    change(builder);
    EXPECT_TRUE(text == content && again == content) << &change - changes;
    EXPECT_EQ(text.c_str()[40000], u'\0');
    const std::u16string after(builder.view());
    EXPECT_EQ(builder.ToString(), after);
  }
}

TEST(CStringBuilder, TakesItsStorageBack) {
  CStringBuilder builder;
  builder.Append(Repeat(40000));
  const char16_t* const place = builder.ToString().data();
  builder.Reset();
  EXPECT_EQ(builder.Append(Repeat(39000)).ToString().data(), place);
}

TEST(CStringBuilder, HandsOutTextsOfAnyLengthAfterALongOne) {
  CStringBuilder builder;
  constexpr size_t kLengths[] = {1'000'000, 200'000, 40'000, 100,   300'000,
                                 2'000'000, 50'000,  50'000, 50'000};
  for (const size_t length : kLengths) {
    builder.Reset();
    builder.Append(Repeat(length)).Insert(0, u"y");
    EXPECT_EQ(builder.ToString(), u"y" + Repeat(length));
    EXPECT_EQ(builder.ToString(), u"y" + Repeat(length));
  }
}

TEST(CStringBuilder, RefusesWhatIsOutsideTheText) {
  struct Case {
    std::function<void(CStringBuilder&)> change;
    uint32_t number;
    const char16_t* source;
    const char16_t* description;
  };
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  const char16_t* const range = u"Argument(s) out of range.";
  const Case cases[] = {
      {[](CStringBuilder& b) { b.Chars(3); }, 0x80040200, u"CStringBuilder.Chars",
       u"Tried reading character past end of buffer."},
      {[](CStringBuilder& b) { b.Chars(-1); }, 0x80040200, u"CStringBuilder.Chars",
       u"Tried reading character past end of buffer."},
      {[](CStringBuilder& b) { b.Chars(3, u"x"); }, 0x80040200, u"CStringBuilder.Chars",
       u"Tried assigning character past end of buffer."},
      {[](CStringBuilder& b) { b.Chars(0, u""); }, 0x80070057, u"",
       u"Invalid procedure call or argument"},
      {[](CStringBuilder& b) { b.Insert(4, u"x"); }, 0x80040200, u"CStringBuilder.Insert", range},
      {[](CStringBuilder& b) { b.Insert(-1, u"x"); }, 0x80040200, u"CStringBuilder.Insert", range},
      {[](CStringBuilder& b) { b.Remove(1, 3); }, 0x80040200, u"CStringBuilder.Remove", range},
      {[](CStringBuilder& b) { b.Remove(-1, 1); }, 0x80040200, u"CStringBuilder.Remove", range},
      {[](CStringBuilder& b) { b.Remove(0, -1); }, 0x80040200, u"CStringBuilder.Remove", range},
      {[](CStringBuilder& b) { b.Remove(2, kMost); }, 0x80040200, u"CStringBuilder.Remove", range},
      {[](CStringBuilder& b) { b.Length(kMost); }, 0x8002000A, u"", u"Overflow"},
  };
  for (const Case& test : cases) {
    CStringBuilder builder;
    builder.Append(u"abc");
    try {
      test.change(builder);
      ADD_FAILURE() << "no error in case " << &test - cases;
    } catch (const Error& error) {
      EXPECT_EQ(error.number(), test.number) << &test - cases;
      EXPECT_EQ(error.source(), test.source);
      EXPECT_EQ(error.description(), test.description);
    }
    EXPECT_EQ(builder.ToString(), u"abc");
    EXPECT_EQ(builder.Capacity(), 2048);
  }
}

}  // namespace
}  // namespace praxen::detail
