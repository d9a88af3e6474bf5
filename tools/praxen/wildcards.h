// Wildcards in names of files.
#ifndef PRAXEN_TOOLS_PRAXEN_WILDCARDS_H_
#define PRAXEN_TOOLS_PRAXEN_WILDCARDS_H_

#include <string_view>

namespace praxen::detail {

/// Whether a name matches a pattern, whose "*" stands for any characters and whose "?" for any one;
/// the case of ASCII letters is ignored. Takes time in proportion to the product of the lengths.
bool MatchesWildcards(std::string_view name, std::string_view pattern);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_WILDCARDS_H_
