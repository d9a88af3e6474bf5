// Tests of the user's decimal separator.
#include "praxen/core/locale.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

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

// Sets the variables that choose the locale, and sets them back.
class LocaleVariables {
 public:
  LocaleVariables(const char* all, const char* numeric, const char* general) {
    set("LC_ALL", all);
    set("LC_NUMERIC", numeric);
    set("LANG", general);
  }
  ~LocaleVariables() {
    for (const auto& [name, value] : former_) put(name, value ? value->c_str() : nullptr);
  }

 private:
  struct Variable {
    const char* name;
    std::optional<std::string> value;
  };

  void set(const char* name, const char* value) {
    const char* const former = std::getenv(name);
    former_.push_back(
        {name, former == nullptr ? std::nullopt : std::optional<std::string>(former)});
    put(name, value);
  }

  static void put(const char* name, const char* value) {
    if (value == nullptr) {
      unsetenv(name);
    } else {
      setenv(name, value, 1);
    }
  }

  std::vector<Variable> former_;
};

std::u16string SeparatorWith(const char* all, const char* numeric, const char* general) {
  const LocaleVariables variables(all, numeric, general);
  return GetDecimalSeparator();
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
