// The generated files that are checked in are those that the descriptions give now.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tools/generate/documents.h"

namespace praxen::detail {
namespace {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(GeneratedFiles, AreUpToDate) {
  for (const GeneratedFile& file : GenerateFiles()) {
    EXPECT_TRUE(ReadFile(std::filesystem::path(PRAXEN_SOURCE_FOLDER) / file.path) == file.content)
        << file.path << " is stale: run ./dev generate";
  }
}

}  // namespace
}  // namespace praxen::detail
