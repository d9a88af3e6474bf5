// Runs the tests, all of them or with --file=PATH those of one source file. With --remake what they
// expect in recorded files is recorded anew; with --reference nothing is read directly.
#include <gtest/gtest.h>

#include <iostream>
#include <string>
#include <string_view>

#include "praxen/factory/direct_reading.h"
#include "tests/support/recorded.h"

namespace {

// Lists the tests written in a file as a filter for GoogleTest; empty when it has none.
std::string FilterOfFile(std::string_view path) {
  const testing::UnitTest& all = *testing::UnitTest::GetInstance();
  std::string filter;
  for (int i = 0; i < all.total_test_suite_count(); ++i) {
    const testing::TestSuite& suite = *all.GetTestSuite(i);
    for (int j = 0; j < suite.total_test_count(); ++j) {
      const testing::TestInfo& test = *suite.GetTestInfo(j);
      if (!std::string_view(test.file()).ends_with(path)) continue;
      filter.append(filter.empty() ? "" : ":").append(suite.name()).append(".").append(test.name());
    }
  }
  return filter;
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  constexpr std::string_view kFileOption = "--file=";
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--remake") {
      praxen::detail::RemakeRecorded();
      continue;
    }
    if (argument == "--reference") {
      praxen::detail::UseDirectReading(false);
      continue;
    }
    if (!argument.starts_with(kFileOption)) {
      std::cerr << "unknown option " << argument << '\n';
      return 2;
    }
    const std::string filter = FilterOfFile(argument.substr(kFileOption.size()));
    if (filter.empty()) {
      std::cerr << "no tests in " << argument.substr(kFileOption.size()) << '\n';
      return 2;
    }
    testing::GTEST_FLAG(filter) = filter;
  }
  return RUN_ALL_TESTS();
}
