// Texts of enumerations, numbers and names.
#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <iterator>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "praxen/core/enumerations.h"
#include "praxen/core/error.h"
#include "praxen/core/locale.h"
#include "praxen/core/numbers.h"
#include "praxen/core/text_functions.h"

namespace praxen::detail {
namespace {

TEST(Enumerations, ReadTheirOwnTextsAndMapOthers) {
  const struct {
    const EnumerationDescription& enumeration;
    std::vector<std::pair<std::u16string_view, int32_t>> texts;
  } cases[] = {
      {DescribeEnumeration<DirectionValue>(), {{u"in", 0}, {u"in_out", 1}, {u"IN", 2}}},
      {DescribeEnumeration<ScopeValue>(), {{u"public", 0}, {u"Public", 1}}},
      {DescribeEnumeration<VisibilityInGraphicsValue>(), {{u"visible", 1}, {u"", 2}}},
      {DescribeEnumeration<AutoPosValue>(), {{u"Bottom", 1}}},
      {DescribeEnumeration<SFCPriorityValue>(), {{u"highest", 5}, {u"urgent", 0}}},
      {DescribeEnumeration<TaskPriorityValue>(), {{u"3", 3}, {u"17", 5}}},
      {DescribeEnumeration<OutputUpdateValue>(), {{u"first", 0}, {u"First", 1}}},
      {DescribeEnumeration<TaskSILLevelValue>(),
       {{u"NONSIL", 0}, {u"0", 0}, {u"SIL2", 1}, {u"2", 1}, {u"3", 2}, {u"sil1", 2}}},
      {DescribeEnumeration<MessageTypeValue>(), {{u"MessageGeneral", 11}, {u"Program", 14}}},
  };
  for (const auto& [enumeration, texts] : cases) {
    for (const auto& [text, value] : texts) {
      EXPECT_EQ(enumeration.FromText(text), value) << ToUtf8(text);
    }
  }
}

TEST(Enumerations, WriteTextsThatReadBack) {
  size_t count = 0;
  for (const EnumerationDescription* const enumeration : AllEnumerations()) {
    ++count;
    for (const EnumerationConstant& constant : enumeration->constants) {
      const bool isOther = constant.name == "pxOtherMsg";
      EXPECT_EQ(enumeration->FromText(enumeration->ToText(constant.value)),
                isOther ? pxGeneralMsg : constant.value)
          << constant.name;
    }
    EXPECT_EQ(enumeration->ToText(99), u"");
    EXPECT_EQ(enumeration->ToText(-1), u"");
  }
  EXPECT_EQ(count, 9u);
  EXPECT_EQ(MessageTypeToText(14), u"MessageGeneral");
  EXPECT_EQ(SILLevelToText(1), u"SIL2");
  EXPECT_EQ(TextToScope(u"private"), pxPrivate);
}

TEST(Numbers, AreWrittenInTheClassicForm) {
  struct Case {
    double number;
    const char16_t* text;
  };
  const Case cases[] = {
      {0, u" 0"},           {-0.0, u" 0"},         {1, u" 1"},
      {-1, u"-1"},          {10, u" 10"},          {0.5, u" .5"},
      {-2.5, u"-2.5"},      {-0.001, u"-.001"},    {1e14, u" 100000000000000"},
      {1e15, u" 1E+15"},    {1.5e20, u" 1.5E+20"}, {1e-15, u" .000000000000001"},
      {1e-16, u" 1E-16"},   {1e100, u" 1E+100"},   {123456.75, u" 123456.75"},
      {5e-324, u" 5E-324"}, {0.1, u" .1"},         {100.25, u" 100.25"},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(Text(NumberText(test.number)), test.text);
    EXPECT_EQ(XMLTextToDouble(test.text), test.number);
  }
  EXPECT_THROW(NumberText{std::numeric_limits<double>::infinity()}, Error);
  EXPECT_THROW(NumberText{std::numeric_limits<double>::quiet_NaN()}, Error);
  EXPECT_EQ(Text(NumberText(std::numeric_limits<int32_t>::min())), u"-2147483648");
}

// The digits of a number behind a blank, without zeros at either end.
std::string DigitsOf(const std::string& text) {
  std::string digits = text.substr(1, text.find_first_of("eE") - 1);
  std::erase(digits, '.');
  digits.erase(0, digits.find_first_not_of('0'));
  return digits.substr(0, digits.find_last_not_of('0') + 1);
}

// Those of the standard library.
std::string ShortestDigits(double number) {
  char text[32] = " ";
  const auto format = std::chars_format::scientific;
  char* const end = std::to_chars(text + 1, std::end(text), number, format).ptr;
  return DigitsOf({std::begin(text), end});
}

TEST(Numbers, HaveTheShortestDigitsThatReadBack) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20000; ++i) {
    // Any double, numbers of ordinary size, powers of two and few digits.
    const int exponent = static_cast<int>(random() % 100) - 45;
    for (const double number :
         {std::abs(std::bit_cast<double>(random())),
          std::ldexp(static_cast<double>(random() >> 11), exponent - 53), std::ldexp(1, exponent),
          static_cast<double>(random() % 10000) / 1000}) {
      if (!std::isfinite(number) || number == 0) continue;
      const NumberText text(number);
      ASSERT_EQ(XMLTextToDouble(text), number);
      ASSERT_EQ(DigitsOf(ToUtf8(text)), ShortestDigits(number));
    }
  }
}

TEST(Numbers, AreReadAsPropertiesTakeThem) {
  const std::string mismatch = "Type mismatch", overflow = "Overflow";
  struct Case {
    const char16_t* text;
    std::string integer, decimal;
  };
  const Case cases[] = {
      {u" +12\t", "12", "12"},
      {u"12.0", "12", "12"},
      {u"12a", mismatch, mismatch},
      {u"1.5", "2", "1.5"},
      {u"1,5", mismatch, mismatch},
      {u"inf", mismatch, mismatch},
      {u"0x10", mismatch, mismatch},
      {u"\u0661", mismatch, mismatch},
      {u"-2147483648", "-2147483648", "-2147483648"},
      {u"2147483647.5", overflow, "2147483647.5"},
      {u"2147483648", overflow, "2147483648"},
      {u"1e999", overflow, overflow},
      // Forms and lengths about those that are read quickly.
      {u" -7.", "-7", "-7"},
      {u"-.5", "0", "-0.5"},
      {u"-0", "0", "-0"},
      {u".", mismatch, mismatch},
      {u"-", mismatch, mismatch},
      {u"", mismatch, mismatch},
      {u"1.2.3", mismatch, mismatch},
      {u"- 3", "-3", "-3"},
      {u"0.00000000000001", "0", "1e-14"},
      {u"12345.6789012345", "12346", "12345.6789012345"},
      {u"12345.67890123456", "12346", "12345.67890123456"},
      {u"-9007199254740993", overflow, "-9007199254740992"},
      {u"0.3000000000000000444089209850062616169452", "0", "0.30000000000000004"},
      {u"00000000000000000000000000000000000000000000.1", "0", "0.10000000000000001"},
  };
  const auto outcome = [](auto convert) {
    try {
      std::ostringstream number;
      number.precision(17);
      number << convert();
      return number.str();
    } catch (const Error& error) {
      return ToUtf8(error.description());
    }
  };
  for (const Case& test : cases) {
    EXPECT_EQ(outcome([&] { return TextToInteger(test.text); }), test.integer) << ToUtf8(test.text);
    EXPECT_EQ(outcome([&] { return XMLTextToDouble(test.text); }), test.decimal)
        << ToUtf8(test.text);
  }
}

TEST(Numbers, NeedADecimalSeparatorToBeRead) {
  for (const char16_t* const separator : {u"", u" "}) {
    static const char16_t* reported;
    reported = separator;
    SetDecimalSeparatorQuery([] { return std::u16string(reported); });
    try {
      XMLTextToDouble(u"1");
      ADD_FAILURE();
    } catch (const Error& error) {
      EXPECT_EQ(error.number(), 0x8004025F);
      EXPECT_EQ(error.description(), u"Illegal decimal separator");
    }
  }
  SetDecimalSeparatorQuery([] { return std::u16string(u","); });
  EXPECT_EQ(XMLTextToDouble(u"12,5"), 12.5);
  EXPECT_EQ(Text(NumberText(12.5)), u" 12.5");
  SetDecimalSeparatorQuery(nullptr);
}

TEST(TextFunctions, UnescapeInOrder) {
  struct Case {
    const char16_t *text, *unescaped;
  };
  const Case cases[] = {
      {u"a&lt;b&gt;c&amp;d", u"a<b>c&d"}, {u"&amp;lt;", u"&lt;"},      {u"&&lt;&lt;", u"&<<"},
      {u"&LT; &quot;", u"&LT; &quot;"},   {u"&amp", u"&amp"},          {u"", u""},
      {u"&&amp;amp;", u"&&amp;"},         {u"x &l&lt;t;", u"x &l<t;"},
  };
  for (const Case& test : cases) EXPECT_EQ(UnescapeText(test.text), test.unescaped);
}

TEST(TextFunctions, SplitAtTheFirstDot) {
  EXPECT_EQ(TextBeforeFirstDot(u"a.b.c"), u"a");
  EXPECT_EQ(TextAfterFirstDot(u"a.b.c"), u"b.c");
  EXPECT_EQ(TextBeforeFirstDot(u"abc"), u"abc");
  EXPECT_EQ(TextAfterFirstDot(u"abc"), u"");
  EXPECT_EQ(TextBeforeFirstDot(u".x"), u"");
}

}  // namespace
}  // namespace praxen::detail
