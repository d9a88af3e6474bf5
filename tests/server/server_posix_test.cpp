// The shared library as a server elsewhere than on Windows: registered, loaded, unloaded.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <future>
#include <thread>

#include "praxen/automation/class_registry_posix.h"
#include "praxen/automation/create_object.h"
#include "tests/server/client.h"

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

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PRAXEN_ONE_COPY_ONLY
#endif
#endif

#ifndef PRAXEN_ONE_COPY_ONLY

// A second copy of the library that binds to itself, as a client has it that is not linked with it.
// The address checker knows one copy of each symbol only.
TEST_F(Server, TheLibraryCanBeUnloaded) {
  const fs::path file = folder_ / "copy.so";
  fs::copy_file(PRAXEN_LIBRARY_FILE, file);
  void* const copy = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
  ASSERT_NE(copy, nullptr) << ::dlerror();
  const auto canUnload = reinterpret_cast<HRESULT (*)()>(::dlsym(copy, "DllCanUnloadNow"));
  const auto getClassObject =
      reinterpret_cast<HRESULT (*)(REFCLSID, REFIID, void**)>(::dlsym(copy, "DllGetClassObject"));
  ASSERT_TRUE(canUnload != nullptr && getClassObject != nullptr);
  EXPECT_EQ(canUnload(), S_OK);

  const CLSID variables = [] {
    DllRegisterServer();
    return LookUpProgId("PraxenHelper.Variables")->clsid;
  }();
  ComPointer<IClassFactory> factory;
  ASSERT_EQ(
      getClassObject(variables, IID_IClassFactory, reinterpret_cast<void**>(factory.Receive())),
      S_OK);
  Handle foreign;
  ASSERT_EQ(
      factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(foreign.Receive())),
      S_OK);
  EXPECT_EQ(canUnload(), S_FALSE);
  // Objects of another copy are foreign, whatever they look like.
  EXPECT_EQ(Put(Create("Program"), u"Variables", Variant(foreign.Get())).result,
            DISP_E_TYPEMISMATCH);
  foreign = {};
  // Threads that end before, and one that ends when there is nothing left of the library.
  std::promise<void> used, unloaded;
  const auto use = [&] {
    ComPointer<IUnknown> object;
    factory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(object.Receive()));
    return static_cast<bool>(object);
  };
  for (int i = 0; i < 3; ++i) std::thread([&] { EXPECT_TRUE(use()); }).join();
  std::thread survivor([&] {
    EXPECT_TRUE(use());
    used.set_value();
    unloaded.get_future().wait();
  });
  used.get_future().wait();
  factory = {};
  EXPECT_EQ(canUnload(), S_OK);
  EXPECT_EQ(::dlclose(copy), 0);
  EXPECT_EQ(::dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD), nullptr);
  unloaded.set_value();
  survivor.join();
}

#endif

}  // namespace
}  // namespace praxen::detail::client
