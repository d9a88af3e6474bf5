// Creating objects of registered classes: servers are loaded once and stay until they agree to go.
#include "praxen/automation/class_registry_posix.h"
#include "praxen/automation/guard.h"
#include "praxen/automation/values.h"

#include <dlfcn.h>

#include <map>
#include <mutex>

#include "praxen/core/ascii.h"

namespace praxen::detail {

namespace {

using GetClassObject = HRESULT(STDMETHODCALLTYPE*)(REFCLSID, REFIID, void**);
using CanUnloadNow = HRESULT(STDMETHODCALLTYPE*)();

// A server that is loaded.
struct Server {
  void* handle = nullptr;
  GetClassObject getClassObject = nullptr;
  CanUnloadNow canUnloadNow = nullptr;
  // Creations under way, during which the server's own count may still be zero.
  int users = 0;
};

class LoadedServers {
 public:
  // The servers stay loaded until the process ends, whatever the order in which it is torn down.
  static LoadedServers& Shared() {
    static LoadedServers& servers = *new LoadedServers;
    return servers;
  }

  // Keeps a server in use, and loads it when it is not loaded.
  HRESULT Enter(const std::filesystem::path& path, Server*& server) {
    const std::lock_guard lock(mutex_);
    Server& entry = servers_[path.string()];
    if (entry.handle == nullptr) {
      const HRESULT result = Load(path, entry);
      if (FAILED(result)) return result;
    }
    ++entry.users;
    server = &entry;
    return S_OK;
  }

  void Leave(Server& server) noexcept {
    const std::lock_guard lock(mutex_);
    --server.users;
  }

  void UnloadUnused() {
    const std::lock_guard lock(mutex_);
    for (auto& [path, server] : servers_) {
      const bool idle = server.handle != nullptr && server.users == 0;
      if (!idle || server.canUnloadNow == nullptr || server.canUnloadNow() != S_OK) continue;
      ::dlclose(server.handle);
      server = Server();
    }
  }

 private:
  static HRESULT Load(const std::filesystem::path& path, Server& server) {
    // A pipe, say, would be waited for.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return CO_E_DLLNOTFOUND;
    void* const handle = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) return CO_E_DLLNOTFOUND;
    const auto getClassObject =
        reinterpret_cast<GetClassObject>(::dlsym(handle, "DllGetClassObject"));
    if (getClassObject == nullptr) {
      ::dlclose(handle);
      return CO_E_ERRORINDLL;
    }
    server.handle = handle;
    server.getClassObject = getClassObject;
    server.canUnloadNow = reinterpret_cast<CanUnloadNow>(::dlsym(handle, "DllCanUnloadNow"));
    return S_OK;
  }

  std::mutex mutex_;
  // Nodes of a map stay where they are, so that users can keep a pointer to their server.
  std::map<std::string, Server> servers_;
};

// Keeps a server in use for as long as it lives.
class ServerUse {
 public:
  explicit ServerUse(const std::filesystem::path& path) {
    result_ = LoadedServers::Shared().Enter(path, server_);
  }

  ServerUse(const ServerUse&) = delete;
  ServerUse& operator=(const ServerUse&) = delete;

  ~ServerUse() {
    if (server_ != nullptr) LoadedServers::Shared().Leave(*server_);
  }

  HRESULT Create(REFCLSID clsid, IUnknown* outer, REFIID iid, void** object) const {
    if (FAILED(result_)) return result_;
    ComPointer<IClassFactory> factory;
    const HRESULT result = server_->getClassObject(clsid, IID_IClassFactory,
                                                   reinterpret_cast<void**>(factory.Receive()));
    if (FAILED(result)) return result;
    return factory ? factory->CreateInstance(outer, iid, object) : E_UNEXPECTED;
  }

 private:
  Server* server_ = nullptr;
  HRESULT result_ = S_OK;
};

HRESULT CreateInstance(REFCLSID clsid, IUnknown* outer, REFIID iid, void** object) {
  const auto location = LookUpClsid(clsid);
  if (!location) return REGDB_E_CLASSNOTREG;
  return ServerUse(location->server).Create(clsid, outer, iid, object);
}

}  // namespace

}  // namespace praxen::detail

HRESULT CLSIDFromProgID(LPCOLESTR progId, CLSID* clsid) noexcept {
  if (progId == nullptr || clsid == nullptr) return E_INVALIDARG;
  *clsid = GUID_NULL;
  return praxen::detail::Guarded([&]() -> HRESULT {
    // Every programmatic identifier is ASCII.
    const auto location =
        praxen::detail::LookUpProgId(praxen::detail::NarrowAscii(progId).value_or(""));
    if (!location) return CO_E_CLASSSTRING;
    *clsid = location->clsid;
    return S_OK;
  });
}

HRESULT CoCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid,
                         void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if ((context & CLSCTX_INPROC_SERVER) == 0) return REGDB_E_CLASSNOTREG;
  return praxen::detail::Guarded(
      [&] { return praxen::detail::CreateInstance(clsid, outer, iid, object); });
}

HRESULT CoFreeUnusedLibraries() noexcept {
  return praxen::detail::Guarded([]() -> HRESULT {
    praxen::detail::LoadedServers::Shared().UnloadUnused();
    return S_OK;
  });
}
