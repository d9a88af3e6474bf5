// The files in which expected texts are recorded.
#include "tests/support/recorded.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace praxen::detail {

namespace {

bool remaking = false;

}  // namespace

void RemakeRecorded() { remaking = true; }

std::string Recorded(std::string_view path, const std::string& now) {
  const auto file = std::filesystem::path(PRAXEN_SOURCE_FOLDER) / path;
  if (remaking) std::ofstream(file, std::ios::binary) << now;
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace praxen::detail
