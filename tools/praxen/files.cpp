// Folders and wildcards.
#include "tools/praxen/files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "tools/praxen/document_text.h"
#include "tools/praxen/wildcards.h"

namespace praxen::detail {

namespace {

#ifdef _WIN32
constexpr bool kShellExpands = false;
#else
constexpr bool kShellExpands = true;
#endif

std::string NameOf(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  return {name.begin(), name.end()};
}

bool IsDocumentName(const std::filesystem::path& path) {
  return MatchesWildcards(NameOf(path.filename()), "*.xml");
}

// Not folders, nor pipes and devices, whose reading need not end; a link to nothing is an error.
bool MayBeRead(const std::filesystem::directory_entry& entry) {
  std::error_code unknown;
  return entry.is_regular_file(unknown) || !entry.exists(unknown);
}

// Appends the files of a folder, or the fault when it cannot be read or has none.
void AppendFolder(const std::string& folder, std::vector<NamedFile>& files) {
  std::vector<std::string> found;
  std::error_code error;
  std::filesystem::recursive_directory_iterator entry(PathOf(folder), error);
  while (!error && entry != std::filesystem::recursive_directory_iterator()) {
    if (IsDocumentName(entry->path()) && MayBeRead(*entry)) {
      found.push_back(NameOf(entry->path()));
    }
    entry.increment(error);
  }
  std::ranges::sort(found);
  for (const std::string& name : found) files.push_back({name});
  if (error) {
    files.push_back({folder, error.message()});
  } else if (found.empty()) {
    files.push_back({folder, "no file in this folder is named *.xml"});
  }
}

// Appends the files and folders that match a pattern in its last part.
void AppendMatches(const std::string& pattern, std::vector<NamedFile>& files) {
  const std::filesystem::path path = PathOf(pattern);
  const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
  std::vector<std::string> found;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (!MatchesWildcards(NameOf(entry->path().filename()), NameOf(path.filename()))) continue;
    found.push_back(NameOf(path.parent_path() / entry->path().filename()));
  }
  std::ranges::sort(found);
  for (const std::string& name : found) files.push_back({name});
  if (found.empty()) files.push_back({pattern, "no file matches"});
}

}  // namespace

std::vector<NamedFile> FindFiles(const std::vector<std::string>& arguments) {
  std::vector<NamedFile> files;
  for (const std::string& argument : arguments) {
    std::error_code unknown;
    if (std::filesystem::is_directory(PathOf(argument), unknown)) {
      AppendFolder(argument, files);
    } else if (!kShellExpands && argument.find_first_of("*?") != std::string::npos) {
      AppendMatches(argument, files);
    } else {
      files.push_back({argument});
    }
  }
  return files;
}

}  // namespace praxen::detail
