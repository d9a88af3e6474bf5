// The shared library as a server elsewhere than on Windows: registered and found.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include <array>
#include <filesystem>

#include "praxen/automation/class_registry_posix.h"
#include "praxen/automation/create_object.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"
#include "tests/server/client.h"
#include "tests/support/build.h"

namespace praxen::detail::client {
namespace {

namespace fs = std::filesystem;

// Calls the shared library: this program has its own copy of what is in it.
HRESULT CallLibrary(const char* name) {
  void* const library = ::dlopen(PRAXEN_LIBRARY_FILE, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return CO_E_DLLNOTFOUND;
  const HRESULT result = reinterpret_cast<HRESULT (*)()>(::dlsym(library, name))();
  ::dlclose(library);
  return result;
}

HRESULT DllRegisterServer() { return CallLibrary("DllRegisterServer"); }
HRESULT DllUnregisterServer() { return CallLibrary("DllUnregisterServer"); }

class Server : public testing::Test {
 protected:
  Server() {
    std::string pattern = (fs::temp_directory_path() / "server_test.XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
    ::setenv("PRAXENHELPER_REGISTRY", (folder_ / "classes").c_str(), 1);
  }
  ~Server() override {
    ::unsetenv("PRAXENHELPER_REGISTRY");
    fs::remove_all(folder_);
  }

  fs::path folder_;
};

TEST_F(Server, ClassesAreFoundByNameUntilTheyAreUnregistered) {
  Handle object;
  EXPECT_EQ(CreateObject(u"PraxenHelper.Variable", object.Receive()), CO_E_CLASSSTRING);
  ASSERT_EQ(DllRegisterServer(), S_OK);
  EXPECT_EQ(DllRegisterServer(), S_OK);
  EXPECT_EQ(CreateObject(u"praxenhelper.variable", object.Receive()), S_OK);
  EXPECT_EQ(GetText(object, u"PXAttribute"), u"retain");
  EXPECT_EQ(CreateObject(u"PraxenHelper.IMsg", object.Receive()), CO_E_CLASSSTRING);
  EXPECT_EQ(CreateObject(u"PraxenHelper.Nonsense", object.Receive()), CO_E_CLASSSTRING);
  EXPECT_EQ(CreateObject(nullptr, object.Receive()), E_INVALIDARG);
  EXPECT_EQ(CreateObject(u"PraxenHelper.Variable", nullptr), E_POINTER);

  ASSERT_EQ(DllUnregisterServer(), S_OK);
  EXPECT_EQ(DllUnregisterServer(), S_OK);
  EXPECT_EQ(CreateObject(u"PraxenHelper.Variable", object.Receive()), CO_E_CLASSSTRING);
  EXPECT_TRUE(fs::is_empty(folder_ / "classes"));
}

TEST_F(Server, RegistrationThatCannotBeKeptIsAnError) {
  ::setenv("PRAXENHELPER_REGISTRY", "/proc/no/such/folder", 1);
  EXPECT_EQ(DllRegisterServer(), REGDB_E_WRITEREGDB);
}

TEST_F(Server, IsUnloadedWhenNothingOfItIsUsed) {
  if (kHasSanitizer) GTEST_SKIP() << "the address checker knows one copy of each symbol only";
  const fs::path file = folder_ / "copy.so";
  fs::copy_file(PRAXEN_LIBRARY_FILE, file);
  const std::array<ClassEntry, 1> classes = {{{"A.B", ClassId(*FindClass(u"Variable"))}}};
  ASSERT_EQ(RegisterClasses(classes, file.string()), S_OK);
  for (int round = 0; round < 2; ++round) {
    Handle object;
    ASSERT_EQ(CreateObject(u"A.B", object.Receive()), S_OK);
    EXPECT_EQ(CoFreeUnusedLibraries(), S_OK);
    EXPECT_EQ(GetText(object, u"PXAttribute"), u"retain");
    object = {};
    EXPECT_EQ(CoFreeUnusedLibraries(), S_OK);
    EXPECT_EQ(::dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD), nullptr);
  }
}

}  // namespace
}  // namespace praxen::detail::client
