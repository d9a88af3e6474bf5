// The server registers itself; it is asked to through its own entry points.
#include "tools/praxen/register_command.h"

#include <cstdio>
#include <memory>
#include <string>

#include "praxen/automation/automation.h"
#include "praxen/core/module_folder.h"
#include "tools/praxen/diagnostics.h"

#ifndef _WIN32
STDAPI DllRegisterServer();
STDAPI DllUnregisterServer();
#endif

namespace praxen::detail {

namespace {

#ifdef _WIN32

constexpr char kUserHelp[] = "For this user only; registering for the machine needs its rights";

// The library beside this program, which is another module on Windows.
class ServerModule {
 public:
  ServerModule() : module_(LoadLibraryW((ModuleFolder() / "PraxenHelper.dll").c_str())) {}
  ServerModule(const ServerModule&) = delete;
  ServerModule& operator=(const ServerModule&) = delete;
  ~ServerModule() {
    if (module_ != nullptr) FreeLibrary(module_);
  }

  template <class Function>
  Function* Find(const char* name) const {
    if (module_ == nullptr) return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
  }

 private:
  const HMODULE module_;
};

HRESULT SetRegistered(bool registered, bool forUser) {
  const ServerModule library;
  auto* const install = library.Find<HRESULT STDAPICALLTYPE(BOOL, LPCWSTR)>("DllInstall");
  auto* const act = library.Find<HRESULT STDAPICALLTYPE()>(registered ? "DllRegisterServer"
                                                                      : "DllUnregisterServer");
  if (install == nullptr || act == nullptr) return CO_E_DLLNOTFOUND;
  return forUser ? install(registered ? TRUE : FALSE, L"user") : act();
}

#else

constexpr char kUserHelp[] = "For this user, as always on this system";

HRESULT SetRegistered(bool registered, bool) {
  return registered ? DllRegisterServer() : DllUnregisterServer();
}

#endif

std::string Reason(HRESULT result) {
  constexpr HRESULT kAccessDenied = static_cast<HRESULT>(0x80070005);
  if (result == kAccessDenied) return "access denied; --user registers for this user only";
  char code[16];
  std::snprintf(code, sizeof code, "0x%08X", static_cast<unsigned>(result));
  return std::string("the registry cannot be changed (") + code + ")";
}

void AddCommand(CLI::App& app, int& exitCode, const std::string& name, const std::string& help,
                bool registered) {
  CLI::App* const command = app.add_subcommand(name, help);
  const auto forUser = std::make_shared<bool>(false);
  command->add_flag("--user", *forUser, kUserHelp);
  command->callback([&exitCode, name, forUser, registered] {
    const HRESULT result = SetRegistered(registered, *forUser);
    if (SUCCEEDED(result)) return;
    PrintError(name, Reason(result));
    exitCode = 1;
  });
}

}  // namespace

void AddRegisterCommands(CLI::App& app, int& exitCode) {
  AddCommand(app, exitCode, "register", "Make the library known to automation clients", true);
  AddCommand(app, exitCode, "unregister", "Undo that", false);
}

}  // namespace praxen::detail
