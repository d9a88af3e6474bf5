// Keeping documents in files, and proving that nothing of them gets lost.
#ifndef PRAXEN_EXAMPLES_PLANT_FILES_H_
#define PRAXEN_EXAMPLES_PLANT_FILES_H_

#include <filesystem>
#include <iostream>
#include <random>
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
    praxen::SaveDocument(path_ / name, text);
    const bool same = read(praxen::LoadDocument(path_ / name))->Serialize() == text;
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
