// Tests of the user's decimal separator.
#include "praxen/core/locale.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>
#include <utility>

namespace praxen::detail {
namespace {

TEST(DecimalSeparator, CanBeSubstituted) {
  const std::u16string own = GetDecimalSeparator();
  DecimalSeparatorQuery const system =
      SetDecimalSeparatorQuery([] { return std::u16string(u"#"); });
  EXPECT_EQ(system, nullptr);
  EXPECT_EQ(GetDecimalSeparator(), u"#");
  EXPECT_NE(SetDecimalSeparatorQuery(nullptr), nullptr);
  EXPECT_EQ(GetDecimalSeparator(), own);
}

#ifndef _WIN32

// With other values of the variables that choose the locale; null for none.
std::u16string SeparatorWith(const char* all, const char* numeric, const char* general) {
  const std::pair<const char*, const char*> variables[] = {
      {"LC_ALL", all}, {"LC_NUMERIC", numeric}, {"LANG", general}};
  std::map<const char*, std::string> former;
  for (const auto& [name, value] : variables) {
    const char* const before = std::getenv(name);
    former[name] = before == nullptr ? "" : before;
    value == nullptr ? unsetenv(name) : setenv(name, value, 1);
  }
  const std::u16string separator = GetDecimalSeparator();
  // An empty one is as good as none.
  for (const auto& [name, value] : former) setenv(name, value.c_str(), 1);
  return separator;
}

TEST(DecimalSeparator, IsThatOfTheCLocaleWithoutAnother) {
  EXPECT_EQ(SeparatorWith(nullptr, nullptr, nullptr), u".");
  EXPECT_EQ(SeparatorWith("C", nullptr, nullptr), u".");
  EXPECT_EQ(SeparatorWith("nowhere", nullptr, nullptr), u".");
}

TEST(DecimalSeparator, FollowsTheVariablesInTheirOrder) {
  constexpr char kGerman[] = "de_DE.UTF-8";
  if (SeparatorWith(kGerman, nullptr, nullptr) != u",") GTEST_SKIP() << "no German locale";
  EXPECT_EQ(SeparatorWith(nullptr, nullptr, kGerman), u",");
  EXPECT_EQ(SeparatorWith(nullptr, "C", kGerman), u".");
  EXPECT_EQ(SeparatorWith("", kGerman, "C"), u",");
  EXPECT_EQ(SeparatorWith("C", kGerman, kGerman), u".");
}

TEST(DecimalSeparator, IsOneUnit) {
  EXPECT_EQ(DecodeSeparator(","), u",");
  EXPECT_EQ(DecodeSeparator("\xB7"), u"\u00B7");
  EXPECT_EQ(DecodeSeparator("\xD9\xAB"), u"\u066B");
  EXPECT_EQ(DecodeSeparator("\xE2\x8E\x96"), u"\u2396");
  EXPECT_EQ(DecodeSeparator("\xF0\x9F\x9A\xB0"), u"");
  EXPECT_EQ(DecodeSeparator(".."), u"");
  EXPECT_EQ(DecodeSeparator(""), u"");
}

#endif

}  // namespace
}  // namespace praxen::detail
