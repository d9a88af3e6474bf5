// The registry of classes: a text file that is read as a whole and replaced as a whole.
#include "praxen/automation/class_registry_posix.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
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

// An open file, or none.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { Close(); }

  explicit operator bool() const { return number_ >= 0; }
  int number() const { return number_; }
  bool Close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

// The last failure of a function of the system.
std::string SystemFault() { return std::generic_category().message(errno); }

// A file's text, empty when there is no file, or why it cannot be read.
struct FileText {
  std::string text;
  std::string fault;
  mode_t mode = 0644;
};

FileText Fault(const std::string& fault) { return {{}, fault}; }

bool ReadAll(int descriptor, std::string& text) {
  for (size_t at = 0; at < text.size();) {
    const ssize_t count = ::read(descriptor, text.data() + at, text.size() - at);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    if (count == 0) text.resize(at);
    at += static_cast<size_t>(count);
  }
  return true;
}

FileText ReadFile(const fs::path& file) {
  // Opening what is no file, such as a pipe, must not wait for whoever is at its other end.
  const Descriptor opened(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!opened) return errno == ENOENT ? FileText() : Fault(SystemFault());
  struct stat status = {};
  if (::fstat(opened.number(), &status) != 0) return Fault(SystemFault());
  if (!S_ISREG(status.st_mode)) return Fault("it is no regular file");
  if (static_cast<uintmax_t>(status.st_size) > kMaxFileSize) return Fault("it is too large");
  std::string text(static_cast<size_t>(status.st_size), '\0');
  if (!ReadAll(opened.number(), text)) return Fault(SystemFault());
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  constexpr mode_t kPermissions = 07777;
  return {std::move(text), {}, status.st_mode & kPermissions};
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
bool ReplaceFile(const fs::path& file, std::string_view text, mode_t mode) {
  std::string temporary = file.string() + ".XXXXXX";
  Descriptor made(::mkstemp(temporary.data()));
  if (!made) return false;
  const bool complete = WriteAll(made.number(), text) && ::fchmod(made.number(), mode) == 0 &&
                        ::fsync(made.number()) == 0;
  if (complete && made.Close() && ::rename(temporary.c_str(), file.c_str()) == 0) return true;
  const int cause = errno;
  ::unlink(temporary.c_str());
  errno = cause;
  return false;
}

// The file at the end of symbolic links, whether it exists or not.
fs::path FollowLinks(fs::path file) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  for (int links = 0; links < kMostLinks && fs::is_symlink(file, error); ++links) {
    file = file.parent_path() / fs::read_symlink(file, error);
  }
  return file;
}

// Holds the lock of a folder, in which a file is replaced; the file could not carry it.
class FolderLock {
 public:
  explicit FolderLock(const fs::path& folder)
      : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    while (folder_ && !held_) {
      held_ = ::flock(folder_.number(), LOCK_EX) == 0;
      if (!held_ && errno != EINTR) return;
    }
  }

  explicit operator bool() const { return held_; }

 private:
  const Descriptor folder_;
  bool held_ = false;
};

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

// What became of a change of the file; a fault tells why it failed.
struct Change {
  HRESULT result = S_OK;
  std::string fault = {};
};

template <class Predicate>
Change Rewrite(const fs::path& file, Predicate isReplaced, std::string_view added) {
  if (file.empty()) return {REGDB_E_WRITEREGDB, "HOME does not name the user's folder"};
  std::error_code error;
  const fs::path folder = fs::absolute(file, error).parent_path();
  if (!added.empty()) fs::create_directories(folder, error);
  const FolderLock lock(folder);
  if (!lock && errno == ENOENT && added.empty()) return {};
  if (!lock) return {REGDB_E_WRITEREGDB, error ? error.message() : SystemFault()};
  const FileText before = ReadFile(file);
  if (!before.fault.empty()) return {REGDB_E_READREGDB, before.fault};
  const std::string after = WithoutClasses(before.text, isReplaced).append(added);
  if (after == before.text || ReplaceFile(file, after, before.mode)) return {};
  return {REGDB_E_WRITEREGDB, SystemFault()};
}

template <class Predicate>
HRESULT Rewrite(Predicate isReplaced, std::string_view added, std::string* reason) {
  const fs::path file = FollowLinks(RegistryFile());
  const Change change = Rewrite(file, isReplaced, added);
  if (reason != nullptr && !change.fault.empty()) {
    const char* const failed = change.result == REGDB_E_READREGDB ? "read" : "changed";
    *reason = (file.empty() ? "The file of classes" : file.string()) + " cannot be " + failed +
              ": " + change.fault;
  }
  return change.result;
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
  const std::string text = ReadFile(RegistryFile()).text;
  std::string_view rest = text;
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

HRESULT RegisterClasses(std::span<const ClassEntry> classes, const fs::path& server,
                        std::string* reason) noexcept {
  return Guarded([&]() -> HRESULT {
    const std::string added = FormatClasses(classes, server.string());
    if (added.empty() && !classes.empty()) {
      if (reason != nullptr) *reason = "The path " + server.string() + " cannot be registered";
      return E_INVALIDARG;
    }
    std::vector<CLSID> identifiers;
    for (const ClassEntry& entry : classes) identifiers.push_back(entry.clsid);
    identifiers = Sorted(std::move(identifiers));
    const std::vector<std::string> names = SortedLowerCaseNames(classes);
    return Rewrite(
        [&](const Line& line) {
          return Contains(identifiers, line.clsid) || Contains(names, line.progId);
        },
        added, reason);
  });
}

HRESULT UnregisterClasses(std::span<const CLSID> classes, std::string* reason) noexcept {
  return Guarded([&] {
    const std::vector<CLSID> identifiers = Sorted({classes.begin(), classes.end()});
    return Rewrite([&](const Line& line) { return Contains(identifiers, line.clsid); }, {}, reason);
  });
}

std::optional<ClassLocation> LookUpProgId(std::string_view progId) {
  return Find([&](const Line& line) { return EqualsIgnoringCase(line.progId, progId); });
}

std::optional<ClassLocation> LookUpClsid(REFCLSID clsid) {
  return Find([&](const Line& line) { return line.clsid == clsid; });
}

}  // namespace praxen::detail
