// The registry of classes, in files as people and programs leave them.
#include "praxen/automation/class_registry_posix.h"
#include "praxen/automation/create_object.h"

#include <dlfcn.h>
#include <gnu/libc-version.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

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
  UseFile(folder_);
  EXPECT_EQ(RegisterClasses(classes, "/s.so"), REGDB_E_READREGDB);
  EXPECT_FALSE(LookUpProgId("A.B"));

  UseFile(folder_ / "pipe");
  ASSERT_EQ(::mkfifo(file_.c_str(), 0600), 0);
  EXPECT_FALSE(LookUpProgId("A.B"));
  EXPECT_EQ(UnregisterClasses(std::array{kFirst}), REGDB_E_READREGDB);

  UseFile(folder_ / "large");
  Write(std::string(5 << 20, '\n'));
  EXPECT_EQ(RegisterClasses(classes, "/s.so"), REGDB_E_READREGDB);

  UseFile(folder_ / "large" / "classes");
  EXPECT_NE(RegisterClasses(classes, "/s.so"), S_OK);
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
        Line("No.Server", kSecond, library.dli_fname));
  const struct {
    const char16_t* progId;
    HRESULT expected;
  } cases[] = {
      {nullptr, E_INVALIDARG},         {u"", CO_E_CLASSSTRING},
      {u"No.Class", CO_E_CLASSSTRING}, {u"N\u00F6.File", CO_E_CLASSSTRING},
      {u"no.file", CO_E_DLLNOTFOUND},  {u"No.Server", CO_E_ERRORINDLL},
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
