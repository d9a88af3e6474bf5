// Keeping documents in files, and proving that nothing of them gets lost.
#ifndef PRAXEN_EXAMPLES_PLANT_FILES_H_
#define PRAXEN_EXAMPLES_PLANT_FILES_H_

#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>

#include "praxen/praxen.h"

namespace plant {

/// A new folder that vanishes with the object.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("plant-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// Writes UTF-16 in little-endian order with a byte-order mark, as the documents declare.
inline void WriteFile(const std::filesystem::path& file, const praxen::Text& text) {
  std::ofstream stream(file, std::ios::binary);
  const std::u16string content = u"\uFEFF" + std::u16string(text);
  for (const char16_t character : content) {
    stream.put(static_cast<char>(character & 0xFF)).put(static_cast<char>(character >> 8));
  }
  if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
}

inline praxen::Text ReadFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::u16string characters;
  char low = 0;
  char high = 0;
  while (stream.get(low).get(high)) {
    const auto unit = static_cast<unsigned char>(high) << 8 | static_cast<unsigned char>(low);
    characters.push_back(static_cast<char16_t>(unit));
  }
  return characters;
}

/// Keeps documents in a folder.
class DocumentFolder {
 public:
  explicit DocumentFolder(std::filesystem::path path) : path_(std::move(path)) {
    std::filesystem::create_directories(path_);
  }

  /// Writes the object's document into a file, reads it back and compares; prints a line on it.
  template <class Class, class Reading>
  void Keep(const std::string& name, const praxen::Ref<Class>& object, const Reading& read) {
    const praxen::Text text = object->Serialize();
    WriteFile(path_ / name, text);
    const bool same = read(ReadFile(path_ / name))->Serialize() == text;
    std::cout << name << ": " << text.size() << " characters, "
              << (same ? "read back the same" : "read back DIFFERENT") << '\n';
    good_ = good_ && same;
  }

  /// Whether every document was read back as it was written.
  bool good() const { return good_; }

 private:
  const std::filesystem::path path_;
  bool good_ = true;
};

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_FILES_H_
