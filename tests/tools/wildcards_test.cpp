// Names of files with wildcards.
#include "tools/praxen/wildcards.h"

#include <gtest/gtest.h>

namespace praxen::detail {
namespace {

TEST(Wildcards, MatchAsTheShellDoes) {
  const struct {
    const char *name, *pattern;
    bool matches;
  } cases[] = {{"a.xml", "*.xml", true},
               {"a.XML", "*.xMl", true},
               {"a.xml.txt", "*.xml", false},
               {".xml", "*.xml", true},
               {"xml", "*.xml", false},
               {"ab.xml", "?.xml", false},
               {"ab", "a?", true},
               {"a", "a?", false},
               {"aXbXc", "a*X*c", true},
               {"abcabd", "*ab?", true},
               {"abcabd", "*abc", false},
               {"", "*", true},
               {"", "", true},
               {"a", "", false},
               {"a", "a**", true},
               {"unit 7.xml", "unit*.x*l", true}};
  for (const auto& test : cases) {
    EXPECT_EQ(MatchesWildcards(test.name, test.pattern), test.matches)
        << test.name << ' ' << test.pattern;
  }
}

}  // namespace
}  // namespace praxen::detail
