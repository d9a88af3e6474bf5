// The matching of names with wildcards.
#include "tools/praxen/wildcards.h"

#include <cstddef>

#include "praxen/core/ascii.h"

namespace praxen::detail {

bool MatchesWildcards(std::string_view name, std::string_view pattern) {
  // Where to go on when the characters after the last "*" do not match.
  size_t star = std::string_view::npos, taken = 0;
  size_t at = 0;
  for (size_t i = 0; i < name.size();) {
    if (at < pattern.size() && pattern[at] == '*') {
      star = at++;
      taken = i;
    } else if (at < pattern.size() &&
               (pattern[at] == '?' || ToLowerAscii(pattern[at]) == ToLowerAscii(name[i]))) {
      ++at;
      ++i;
    } else if (star != std::string_view::npos) {
      at = star + 1;
      i = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

}  // namespace praxen::detail
