// Texts that tests expect, recorded in files beside them.
#ifndef PRAXEN_TESTS_SUPPORT_RECORDED_H_
#define PRAXEN_TESTS_SUPPORT_RECORDED_H_

#include <string>
#include <string_view>

namespace praxen::detail {

/// From now on what is asked for is recorded anew.
void RemakeRecorded();

/// The text recorded in a file, named from the root of the project; empty without the file. When
/// texts are remade, `now` is recorded first.
std::string Recorded(std::string_view path, const std::string& now);

}  // namespace praxen::detail

#endif  // PRAXEN_TESTS_SUPPORT_RECORDED_H_
