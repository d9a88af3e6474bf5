// Sizes at and beyond 2^31-1, none of which takes the memory that it stands for.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <optional>
#include <string>

#include "praxen/core/string_builder.h"
#include "praxen/xml/xml_string_writer.h"
#include "tests/support/documents.h"

namespace praxen::detail {
namespace {

constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
constexpr const char* kOverflow = "8002000A Overflow";

// Characters that are too many and therefore never looked at.
std::u16string_view Characters(size_t count) {
  static const std::u16string few = u"few";
  return {few.data(), count};
}

TEST(SizeLimits, ABufferThatWouldGrowTooLargeStaysAsItIs) {
  // A step of that size makes the capacity, which only counts, the largest there is.
  const auto largest = [](CStringBuilder& b) {
    b.BufferBump(kMost - 1);
    b.Append(std::u16string(1025, u'x'));
  };
  struct Case {
    std::function<void(CStringBuilder&)> prepare, change;
  };
  const Case cases[] = {
      {largest, [](CStringBuilder& b) { b.EnsureCapacity(kMost); }},
      {largest, [](CStringBuilder& b) { b.Capacity(kMost); }},
      {largest, [](CStringBuilder& b) { b.Length(kMost); }},
      {largest, [](CStringBuilder& b) { b.Length(kMost / 2 + 1); }},
      {largest, [](CStringBuilder& b) { b.Append(Characters(kMost / 2)); }},
      {largest, [](CStringBuilder& b) { b.Extend(kMost / 2 - 1024); }},
      {largest, [](CStringBuilder& b) { b.Extend(std::numeric_limits<size_t>::max() - 1000); }},
      {largest, [](CStringBuilder& b) { b.BufferBump(kMost); }},
      {[](CStringBuilder& b) { b.BufferBump(0x60000000); },
       [](CStringBuilder& b) { b.EnsureCapacity(0x60000001); }},
      {[](CStringBuilder& b) { b.BufferBump(0x60000000); },
       [](CStringBuilder& b) { b.Insert(0, Characters(size_t{1} << 31)); }},
  };
  for (const Case& test : cases) {
    CStringBuilder builder;
    builder.Append(u"abc");
    test.prepare(builder);
    const Text text = builder.ToString();
    const int32_t capacity = builder.Capacity();
    const int32_t step = builder.BufferBump();
    EXPECT_EQ(ErrorOf([&] { test.change(builder); }), kOverflow) << &test - cases;
    EXPECT_EQ(builder.ToString(), text) << &test - cases;
    EXPECT_EQ(builder.Capacity(), capacity) << &test - cases;
    EXPECT_EQ(builder.BufferBump(), step) << &test - cases;
    EXPECT_EQ(builder.Append(u"d").ToString(), text + u"d") << &test - cases;
  }
}

TEST(SizeLimits, ADocumentThatIsTooLongLeavesNoTrace) {
  const std::function<void(XMLStringWriter&)> writings[] = {
      [](XMLStringWriter& w) { w.WriteStartElement(Characters(kMost / 2)); },
      [](XMLStringWriter& w) { w.WriteStartRootElement(Characters(kMost / 2)); },
      [](XMLStringWriter& w) { w.WriteXMLElementValue(Characters(kMost / 2)); },
      [](XMLStringWriter& w) { w.WriteAttributeString(Characters(kMost / 2), u"value"); },
      [](XMLStringWriter& w) { w.WriteElementString(Characters(kMost / 2), u"value"); },
  };
  XMLStringWriter writer;
  const auto write = [&] {
    writer.WriteStartDocument();
    writer.WriteStartRootElement(u"A");
    writer.WriteAttributeString(u"n", u"1");
    writer.WriteEndElement(u"A");
    return writer.ToXMLString();
  };
  const Text document = write();
  for (const auto& writing : writings) {
    writer.WriteStartDocument();
    writer.WriteStartRootElement(u"A");
    EXPECT_EQ(ErrorOf([&] { writing(writer); }), kOverflow);
    EXPECT_EQ(write(), document);
  }
}

TEST(SizeLimits, ATextThatIsTooLongIsNotMade) {
  const Text text = u"text";
  std::optional<Text> made;
  EXPECT_EQ(ErrorOf([&] { made = Text(Characters(size_t{kMost} + 1)); }), kOverflow);
  EXPECT_EQ(ErrorOf([&] { made = text + Characters(kMost); }), kOverflow);
  EXPECT_EQ(ErrorOf([&] { made = Characters(kMost - 3) + text; }), kOverflow);
  EXPECT_FALSE(made);
}

}  // namespace
}  // namespace praxen::detail
