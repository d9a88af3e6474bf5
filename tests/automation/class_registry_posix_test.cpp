// The registry of classes, in files as people and programs leave them.
#include "praxen/automation/class_registry_posix.h"
#include "praxen/automation/create_object.h"

#include <dlfcn.h>
#include <gnu/libc-version.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "praxen/automation/guid.h"

namespace praxen::detail {
namespace {

namespace fs = std::filesystem;

constexpr CLSID kFirst = ToGuid(NameUuid({}, "first"));
constexpr CLSID kSecond = ToGuid(NameUuid({}, "second"));

class ClassRegistry : public testing::Test {
 protected:
  ClassRegistry() {
    std::string pattern = (fs::temp_directory_path() / "class_registry_test.XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
    UseFile(folder_ / "sub" / "classes");
  }

  ~ClassRegistry() override {
    ::unsetenv("PRAXENHELPER_REGISTRY");
    fs::remove_all(folder_);
  }

  void UseFile(const fs::path& file) {
    file_ = file;
    ::setenv("PRAXENHELPER_REGISTRY", file.c_str(), 1);
  }

  void Write(std::string_view text) {
    fs::create_directories(file_.parent_path());
    std::ofstream(file_, std::ios::binary) << text;
  }

  std::string Read() const {
    std::ifstream stream(file_, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  fs::path folder_;
  fs::path file_;
};

std::string Line(const std::string& progId, const CLSID& clsid, const std::string& server) {
  return progId + "\t" + GuidToText(clsid) + "\t" + server;
}

TEST_F(ClassRegistry, RegistersReplacesAndRemoves) {
  EXPECT_FALSE(LookUpProgId("Library.First"));
  const std::array<ClassEntry, 2> classes = {
      {{"Library.First", kFirst}, {"Library.Second", kSecond}}};
  ASSERT_EQ(RegisterClasses(classes, "/old/server.so"), S_OK);
  ASSERT_EQ(RegisterClasses(classes, "/new/server \xC3\xA4.so"), S_OK);

  const auto found = LookUpProgId("lIBRARY.sECOND");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->clsid, kSecond);
  EXPECT_EQ(found->server, "/new/server \xC3\xA4.so");
  EXPECT_EQ(LookUpClsid(kFirst)->server, found->server);
  EXPECT_EQ(Read().find("/old/"), std::string::npos);

  ASSERT_EQ(UnregisterClasses(std::array{kFirst, GUID_NULL}), S_OK);
  EXPECT_FALSE(LookUpClsid(kFirst));
  EXPECT_TRUE(LookUpClsid(kSecond));
  const auto files = std::distance(fs::directory_iterator(file_.parent_path()), {});
  EXPECT_EQ(files, 1) << "a temporary file was left behind";
}

TEST_F(ClassRegistry, ReadsWhatPeopleWrite) {
  const std::string line = Line("A.B", kFirst, "/s.so");
  const struct {
    const char* name;
    std::string text;
    bool found;
  } cases[] = {
      {"plain", line, true},
      {"carriage returns", line + "\r\n", true},
      {"blanks", " A.B \t " + GuidToText(kFirst) + " \t /s.so  \n", true},
      {"byte order mark", "\xEF\xBB\xBF" + line, true},
      {"among other lines", "# note\n\n\tx\n" + line + "\n\n", true},
      {"after a long line", std::string(1 << 20, 'x') + "\n" + line, true},
      {"the first counts", line + "\n" + Line("A.B", kFirst, "/other.so"), true},
      {"no file text", "", false},
      {"no path", "A.B\t" + GuidToText(kFirst) + "\t\n", false},
      {"no separator", "A.B " + GuidToText(kFirst) + " /s.so", false},
      {"no name", Line("", kFirst, "/s.so"), false},
      {"no identifier", "A.B\t{12}\t/s.so", false},
      {"relative path", Line("A.B", kFirst, "s.so"), false},
      {"null character", Line("A.B", kFirst, std::string("/s.so\0x", 7)), false},
      {"only tabs", std::string(1 << 20, '\t'), false},
      {"too large", line + "\n" + std::string(5 << 20, '\n'), false},
  };
  for (const auto& row : cases) {
    Write(row.text);
    const auto found = LookUpProgId("a.b");
    EXPECT_EQ(found.has_value(), row.found) << row.name;
    EXPECT_EQ(found ? found->server : "/s.so", "/s.so") << row.name;
  }
}

TEST_F(ClassRegistry, KeepsTheLinesOfOthers) {
  const std::string others = "# note\n" + Line("Other.Class", kSecond, "/o.so") + "\nbroken\n";
  Write(Line("Library.FIRST", GUID_NULL, "/stale.so") + "\r\n" + others);
  const std::array<ClassEntry, 1> classes = {{{"Library.First", kFirst}}};
  ASSERT_EQ(RegisterClasses(classes, "/s.so"), S_OK);
  EXPECT_EQ(Read(), others + Line("Library.First", kFirst, "/s.so") + "\n");
  ASSERT_EQ(UnregisterClasses(std::array{kFirst}), S_OK);
  EXPECT_EQ(Read(), others);
}

TEST_F(ClassRegistry, RefusesWhatTheFileCannotHold) {
  const struct {
    std::string progId;
    const char* server;
  } cases[] = {
      {"", "/s.so"},     {"A\tB", "/s.so"}, {"A\nB", "/s.so"},
      {" A.B", "/s.so"}, {"A.B", "s.so"},   {"A.B", "/s.so\n/t.so"},
  };
  for (const auto& row : cases) {
    const std::array<ClassEntry, 1> classes = {{{row.progId, kFirst}}};
    EXPECT_EQ(RegisterClasses(classes, row.server), E_INVALIDARG) << row.progId << row.server;
  }
  EXPECT_FALSE(fs::exists(file_));
}

TEST_F(ClassRegistry, ReportsFilesThatCannotServe) {
  const std::array<ClassEntry, 1> classes = {{{"A.B", kFirst}}};
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  ASSERT_EQ(::symlink("loop", (folder_ / "loop").c_str()), 0);
  std::ofstream(folder_ / "large") << std::string(5 << 20, '\n');
  const struct {
    fs::path file;
    HRESULT expected;
    const char* cause;
  } cases[] = {
      {folder_, REGDB_E_READREGDB, "it is no regular file"},
      {folder_ / "pipe", REGDB_E_READREGDB, "it is no regular file"},
      {folder_ / "large", REGDB_E_READREGDB, "it is too large"},
      {folder_ / "loop", REGDB_E_READREGDB, "Too many levels of symbolic links"},
      {folder_ / "large" / "classes", REGDB_E_WRITEREGDB, "Not a directory"},
      {"/proc/none/classes", REGDB_E_WRITEREGDB, "No such file or directory"},
  };
  for (const auto& row : cases) {
    UseFile(row.file);
    std::string reason;
    EXPECT_EQ(RegisterClasses(classes, "/s.so", &reason), row.expected) << row.file;
    const bool isRead = row.expected == REGDB_E_READREGDB;
    EXPECT_EQ(reason,
              row.file.string() + " cannot be " + (isRead ? "read: " : "changed: ") + row.cause);
    EXPECT_EQ(UnregisterClasses(std::array{kFirst}) == S_OK, row.file == "/proc/none/classes");
    EXPECT_FALSE(LookUpProgId("A.B"));
  }
}

TEST_F(ClassRegistry, KeepsModeAndSymbolicLinks) {
  const std::array<ClassEntry, 1> classes = {{{"A.B", kFirst}}};
  UseFile(folder_ / "link");
  ASSERT_EQ(::symlink("real/classes", file_.c_str()), 0);
  ASSERT_EQ(RegisterClasses(classes, "/s.so"), S_OK);
  const fs::path target = folder_ / "real" / "classes";
  ASSERT_TRUE(fs::is_regular_file(fs::symlink_status(target)));
  fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write);
  ASSERT_EQ(RegisterClasses(classes, "/other.so"), S_OK);
  EXPECT_TRUE(fs::is_symlink(file_));
  EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(LookUpProgId("A.B")->server, "/other.so");
}

TEST_F(ClassRegistry, ChangesOfSeveralThreadsAllCount) {
  constexpr int kThreads = 8;
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([i] {
      const std::string name = "Library." + std::to_string(i);
      const std::array<ClassEntry, 1> classes = {{{name, ToGuid(NameUuid({}, name))}}};
      EXPECT_EQ(RegisterClasses(classes, "/s.so"), S_OK);
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (int i = 0; i < kThreads; ++i) EXPECT_TRUE(LookUpProgId("Library." + std::to_string(i))) << i;
}

TEST_F(ClassRegistry, LiesInTheUsersDataFolder) {
  ::unsetenv("PRAXENHELPER_REGISTRY");
  const char* const home = std::getenv("HOME");
  const std::string saved = home == nullptr ? "" : home;
  ::setenv("HOME", "/home/user", 1);
  const struct {
    const char* dataHome;
    const char* expected;
  } cases[] = {
      {"/data", "/data/praxenhelper/classes"},
      {"relative", "/home/user/.local/share/praxenhelper/classes"},
      {"", "/home/user/.local/share/praxenhelper/classes"},
  };
  for (const auto& row : cases) {
    ::setenv("XDG_DATA_HOME", row.dataHome, 1);
    EXPECT_EQ(RegistryFile(), row.expected);
  }
  ::unsetenv("HOME");
  EXPECT_EQ(RegistryFile(), "");
  ::unsetenv("XDG_DATA_HOME");
  if (!saved.empty()) ::setenv("HOME", saved.c_str(), 1);
}

TEST_F(ClassRegistry, ReportsWhyNoObjectIsCreated) {
  Dl_info library = {};
  // A function of the C library that no sanitizer stands in for.
  ASSERT_NE(::dladdr(reinterpret_cast<void*>(&::gnu_get_libc_version), &library), 0);
  Write(Line("No.File", kFirst, "/does/not/exist.so") + "\n" +
        Line("No.Server", kSecond, library.dli_fname) + "\n" +
        Line("A.Pipe", ToGuid(NameUuid({}, "pipe")), (folder_ / "pipe").string()));
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  const struct {
    const char16_t* progId;
    HRESULT expected;
  } cases[] = {
      {nullptr, E_INVALIDARG},         {u"", CO_E_CLASSSTRING},
      {u"No.Class", CO_E_CLASSSTRING}, {u"N\u00F6.File", CO_E_CLASSSTRING},
      {u"no.file", CO_E_DLLNOTFOUND},  {u"No.Server", CO_E_ERRORINDLL},
      {u"A.Pipe", CO_E_DLLNOTFOUND},
  };
  for (const auto& row : cases) {
    IDispatch* object = reinterpret_cast<IDispatch*>(this);
    EXPECT_EQ(CreateObject(row.progId, &object), row.expected);
    EXPECT_EQ(object, nullptr);
  }
  void* object = nullptr;
  EXPECT_EQ(CoCreateInstance(GUID_NULL, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, &object),
            REGDB_E_CLASSNOTREG);
  EXPECT_EQ(CoCreateInstance(kFirst, nullptr, 0, IID_IUnknown, &object), REGDB_E_CLASSNOTREG);
  EXPECT_EQ(CoFreeUnusedLibraries(), S_OK);
}

}  // namespace
}  // namespace praxen::detail
