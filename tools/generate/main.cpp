// praxen-generate: writes the files that are made from the descriptions into a source tree.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "tools/generate/documents.h"

namespace {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// A file that would not change keeps its date, so that nothing is built anew for it.
bool Write(const std::filesystem::path& path, const std::string& content) {
  if (ReadFile(path) == content) return false;
  std::filesystem::create_directories(path.parent_path());
  std::ofstream stream(path, std::ios::binary);
  stream << content;
  stream.close();
  if (!stream) throw std::runtime_error("cannot write " + path.string());
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const std::filesystem::path root = count > 1 ? arguments[1] : ".";
    for (const praxen::detail::GeneratedFile& file : praxen::detail::GenerateFiles()) {
      const bool changed = Write(root / file.path, file.content);
      std::cout << file.path << (changed ? ": written\n" : ": up to date\n");
    }
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "praxen-generate: " << error.what() << "\n";
    return 1;
  }
}
