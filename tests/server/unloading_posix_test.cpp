// The shared library, loaded and unloaded again and again.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <future>
#include <string>
#include <thread>

#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"
#include "tests/server/client.h"
#include "tests/support/build.h"

namespace praxen::detail::client {
namespace {

namespace fs = std::filesystem;

// A copy of the library in a file of its own, so that nobody else keeps it loaded.
class LibraryCopy {
 public:
  LibraryCopy() { fs::copy_file(PRAXEN_LIBRARY_FILE, file_, fs::copy_options::overwrite_existing); }
  ~LibraryCopy() { fs::remove(file_); }

  void Load() {
    loaded_ = ::dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
    ASSERT_NE(loaded_, nullptr) << ::dlerror();
  }
  bool CanUnload() const { return Find<HRESULT()>("DllCanUnloadNow")() == S_OK; }
  // Whether the library agreed to go, and went.
  bool Unload() {
    const bool agreed = CanUnload();
    ::dlclose(loaded_);
    return agreed && ::dlopen(file_.c_str(), RTLD_NOW | RTLD_NOLOAD) == nullptr;
  }

  Handle Create(std::u16string_view className) const {
    ComPointer<IClassFactory> factory;
    Handle object;
    Find<HRESULT(REFCLSID, REFIID, void**)>("DllGetClassObject")(
        ClassId(*FindClass(className)), IID_IClassFactory,
        reinterpret_cast<void**>(factory.Receive()));
    factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(object.Receive()));
    return object;
  }

 private:
  template <class Function>
  Function* Find(const char* name) const {
    return reinterpret_cast<Function*>(::dlsym(loaded_, name));
  }

  const fs::path file_ =
      fs::path(testing::TempDir()) / ("unloading_" + std::to_string(::getpid()) + ".so");
  void* loaded_ = nullptr;
};

// Writing and reading that succeed, and that fail: the thread then has an error object.
void UseEverything(const LibraryCopy& library) {
  const Handle variable = library.Create(u"Variable"), factory = library.Create(u"ObjectFactory");
  EXPECT_EQ(Call(variable, u"Serialize").code, static_cast<HRESULT>(0x80040259));
  Put(variable, u"Name", Variant(u"Level"));
  Put(variable, u"TypeName", Variant(u"real"));
  const Outcome document = Call(variable, u"Serialize");
  EXPECT_EQ(Call(factory, u"DeserializeVariable", {document.value}).result, S_OK);
  EXPECT_EQ(Call(factory, u"DeserializeVariable", {Variant(u"<")}).code,
            static_cast<HRESULT>(0x8004025B));
}

// PRAXEN_UNLOADINGS asks for more of them.
TEST(Unloading, LeavesNothingBehind) {
  if (kHasSanitizer) GTEST_SKIP() << "the checks keep count of memory themselves";
  const char* const asked = std::getenv("PRAXEN_UNLOADINGS");
  const int count = asked == nullptr ? 60 : std::atoi(asked);
  LibraryCopy library;
  size_t before = 0;
  for (int i = 0; i < count; ++i) {
    library.Load();
    UseEverything(library);
    ASSERT_TRUE(library.Unload()) << i;
    // The first times fill what the system and the parser keep for ever.
    if (i == count / 4) before = ::mallinfo2().uordblks;
  }
  const size_t after = ::mallinfo2().uordblks;
  // The allocator counts what it holds back as used, which comes and goes.
  constexpr size_t kTolerance = 16 * 1024;
  EXPECT_LT(after, before + kTolerance) << "bytes in use after a quarter of them, and at the end";
}

// A second copy beside that of this program.
TEST(Unloading, WaitsForObjectsAndNotForThreads) {
  if (kHasSanitizer) GTEST_SKIP() << "the address checker knows one copy of each symbol only";
  LibraryCopy library;
  library.Load();
  EXPECT_TRUE(library.CanUnload());
  Handle foreign = library.Create(u"Variables");
  ASSERT_TRUE(foreign);
  EXPECT_FALSE(library.CanUnload());
  // Objects of another copy are foreign, whatever they look like.
  EXPECT_EQ(Put(client::Create("Program"), u"Variables", Variant(foreign.Get())).result,
            DISP_E_TYPEMISMATCH);
  foreign = {};
  // Threads that end before, and one that ends when there is nothing left of the library.
  const auto use = [&] { EXPECT_TRUE(library.Create(u"Variable")); };
  for (int i = 0; i < 3; ++i) std::thread(use).join();
  std::promise<void> used, unloaded;
  std::thread survivor([&] {
    use();
    used.set_value();
    unloaded.get_future().wait();
  });
  used.get_future().wait();
  EXPECT_TRUE(library.Unload());
  unloaded.set_value();
  survivor.join();
}

}  // namespace
}  // namespace praxen::detail::client
