// The registry of classes: a text file that is read as a whole and replaced as a whole.
#include "praxen/automation/class_registry_posix.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>
#include <vector>

#include "praxen/automation/guard.h"
#include "praxen/automation/guid.h"
#include "praxen/core/ascii.h"

namespace praxen::detail {

namespace {

namespace fs = std::filesystem;

// A file beyond this size is none of ours, and is neither read nor replaced.
constexpr uintmax_t kMaxFileSize = 4 << 20;

// A class as a line of the file states it.
struct Line {
  std::string_view progId;
  CLSID clsid;
  std::string_view server;
};

std::string_view WithoutBlanks(std::string_view text) { return Trim<char>(text, " \r"); }

// The text before the separator, or all of it; rest keeps what follows.
std::string_view TakeUntil(std::string_view& rest, char separator) {
  const size_t end = rest.find(separator);
  const std::string_view taken = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  return taken;
}

std::optional<Line> ParseLine(std::string_view text) {
  const std::string_view progId = WithoutBlanks(TakeUntil(text, '\t'));
  const auto clsid = TextToGuid(WithoutBlanks(TakeUntil(text, '\t')));
  const std::string_view server = WithoutBlanks(text);
  const bool hasPath = server.starts_with('/') && server.find('\0') == std::string_view::npos;
  if (progId.empty() || !clsid || !hasPath) return std::nullopt;
  return Line{progId, *clsid, server};
}

// An environment variable, but not for programs that run with another user's rights.
std::string_view Environment(const char* name) {
  const char* const value = secure_getenv(name);
  return value == nullptr ? std::string_view() : std::string_view(value);
}

fs::path UserDataFolder() {
  const fs::path data = Environment("XDG_DATA_HOME");
  if (data.is_absolute()) return data;
  const fs::path home = Environment("HOME");
  return home.is_absolute() ? home / ".local" / "share" : fs::path();
}

// The text of the file, empty when there is none; none when it cannot be read.
std::optional<std::string> ReadFile(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found) return std::string();
  if (!fs::is_regular_file(status)) return std::nullopt;
  const uintmax_t size = fs::file_size(file, error);
  if (error || size > kMaxFileSize) return std::nullopt;
  std::ifstream stream(file, std::ios::binary);
  std::string text(static_cast<size_t>(size), '\0');
  if (!stream.read(text.data(), static_cast<std::streamsize>(size))) return std::nullopt;
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  return text;
}

bool WriteAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    text.remove_prefix(static_cast<size_t>(written));
  }
  return true;
}

// Writes a file of its own beside the target and then puts it in the target's place.
bool ReplaceFile(const fs::path& file, std::string_view text) {
  std::error_code error;
  fs::create_directories(file.parent_path(), error);
  std::string temporary = file.string() + ".XXXXXX";
  const int descriptor = ::mkstemp(temporary.data());
  if (descriptor < 0) return false;
  constexpr mode_t kOwnerWritesAllRead = 0644;
  const bool complete = WriteAll(descriptor, text) &&
                        ::fchmod(descriptor, kOwnerWritesAllRead) == 0 && ::fsync(descriptor) == 0;
  const bool closed = ::close(descriptor) == 0;
  if (complete && closed && ::rename(temporary.c_str(), file.c_str()) == 0) return true;
  ::unlink(temporary.c_str());
  return false;
}

// The lines of text but for those of the classes for which isReplaced holds.
template <class Predicate>
std::string WithoutClasses(std::string_view text, Predicate isReplaced) {
  std::string kept;
  while (!text.empty()) {
    const std::string_view line = TakeUntil(text, '\n');
    const auto entry = ParseLine(line);
    if (entry && isReplaced(*entry)) continue;
    kept.append(line).push_back('\n');
  }
  return kept;
}

template <class Predicate>
HRESULT Rewrite(Predicate isReplaced, std::string_view added) {
  const fs::path file = RegistryFile();
  if (file.empty()) return REGDB_E_WRITEREGDB;
  const auto text = ReadFile(file);
  if (!text) return REGDB_E_READREGDB;
  const std::string changed = WithoutClasses(*text, isReplaced).append(added);
  if (changed == *text) return S_OK;
  return ReplaceFile(file, changed) ? S_OK : REGDB_E_WRITEREGDB;
}

// The lines of the classes, empty when reading them back would not give the same classes.
std::string FormatClasses(std::span<const ClassEntry> classes, const std::string& server) {
  std::string lines;
  for (const ClassEntry& entry : classes) {
    const std::string line = entry.progId + '\t' + GuidToText(entry.clsid) + '\t' + server;
    const auto read = ParseLine(line);
    const bool same = read && read->progId == entry.progId && read->clsid == entry.clsid &&
                      read->server == server && line.find('\n') == std::string::npos;
    if (!same) return {};
    lines += line + '\n';
  }
  return lines;
}

bool IsSmaller(const CLSID& a, const CLSID& b) { return std::memcmp(&a, &b, sizeof a) < 0; }

std::vector<CLSID> Sorted(std::vector<CLSID> classes) {
  std::sort(classes.begin(), classes.end(), IsSmaller);
  return classes;
}

std::string ToLowerCase(std::string_view name) {
  std::string lower(name);
  std::transform(lower.begin(), lower.end(), lower.begin(), ToLowerAscii<char>);
  return lower;
}

std::vector<std::string> SortedLowerCaseNames(std::span<const ClassEntry> classes) {
  std::vector<std::string> names;
  for (const ClassEntry& entry : classes) names.push_back(ToLowerCase(entry.progId));
  std::sort(names.begin(), names.end());
  return names;
}

bool Contains(const std::vector<CLSID>& sorted, const CLSID& clsid) {
  return std::binary_search(sorted.begin(), sorted.end(), clsid, IsSmaller);
}

bool Contains(const std::vector<std::string>& sorted, std::string_view name) {
  return std::binary_search(sorted.begin(), sorted.end(), ToLowerCase(name));
}

template <class Predicate>
std::optional<ClassLocation> Find(Predicate isWanted) {
  const auto text = ReadFile(RegistryFile());
  std::string_view rest = text ? std::string_view(*text) : std::string_view();
  while (!rest.empty()) {
    const auto line = ParseLine(TakeUntil(rest, '\n'));
    if (line && isWanted(*line)) return ClassLocation{line->clsid, line->server};
  }
  return std::nullopt;
}

}  // namespace

fs::path RegistryFile() {
  const std::string_view named = Environment("PRAXENHELPER_REGISTRY");
  if (!named.empty()) return named;
  const fs::path folder = UserDataFolder();
  return folder.empty() ? folder : folder / "praxenhelper" / "classes";
}

HRESULT RegisterClasses(std::span<const ClassEntry> classes, const fs::path& server) noexcept {
  return Guarded([&]() -> HRESULT {
    const std::string added = FormatClasses(classes, server.string());
    if (added.empty()) return classes.empty() ? S_OK : E_INVALIDARG;
    std::vector<CLSID> identifiers;
    for (const ClassEntry& entry : classes) identifiers.push_back(entry.clsid);
    identifiers = Sorted(std::move(identifiers));
    const std::vector<std::string> names = SortedLowerCaseNames(classes);
    return Rewrite(
        [&](const Line& line) {
          return Contains(identifiers, line.clsid) || Contains(names, line.progId);
        },
        added);
  });
}

HRESULT UnregisterClasses(std::span<const CLSID> classes) noexcept {
  return Guarded([&] {
    const std::vector<CLSID> identifiers = Sorted({classes.begin(), classes.end()});
    return Rewrite([&](const Line& line) { return Contains(identifiers, line.clsid); }, {});
  });
}

std::optional<ClassLocation> LookUpProgId(std::string_view progId) {
  return Find([&](const Line& line) { return EqualsIgnoringCase(line.progId, progId); });
}

std::optional<ClassLocation> LookUpClsid(REFCLSID clsid) {
  return Find([&](const Line& line) { return line.clsid == clsid; });
}

}  // namespace praxen::detail
