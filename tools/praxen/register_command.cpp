// The library is registered where it lies: beside this program on Windows, elsewhere where the
// system finds it for this program.
#include "tools/praxen/register_command.h"

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

#include "praxen/automation/automation.h"
#include "praxen/core/module_folder.h"
#include "tools/praxen/diagnostics.h"

#ifndef _WIN32
#include <dlfcn.h>

#include "praxen/server/registration_posix.h"
#endif

namespace praxen::detail {

namespace {

// What was registered, or why it was not; an empty reason leaves it to the code.
struct Outcome {
  HRESULT result = S_OK;
  std::string reason = {};
  std::filesystem::path server = {};
};

#ifdef _WIN32

constexpr char kUserHelp[] = "For this user only; registering for the machine needs its rights";

// The library, which is another module than this program.
class ServerModule {
 public:
  explicit ServerModule(const std::filesystem::path& file) : module_(LoadLibraryW(file.c_str())) {}
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

Outcome SetRegistered(bool registered, bool forUser) {
  const std::filesystem::path file = ModuleFolder() / "PraxenHelper.dll";
  const ServerModule library(file);
  auto* const install = library.Find<HRESULT STDAPICALLTYPE(BOOL, LPCWSTR)>("DllInstall");
  auto* const act = library.Find<HRESULT STDAPICALLTYPE()>(registered ? "DllRegisterServer"
                                                                      : "DllUnregisterServer");
  if (install == nullptr || act == nullptr) {
    return {CO_E_DLLNOTFOUND, "PraxenHelper.dll does not lie beside this program"};
  }
  return {forUser ? install(registered ? TRUE : FALSE, L"user") : act(), {}, file};
}

#else

constexpr char kUserHelp[] = "For this user, as always on this system";

// Asks the system, which knows the folders of libraries; empty when the library is not in them.
std::filesystem::path FindLibrary() {
  void* const library = ::dlopen(PRAXEN_LIBRARY_NAME, RTLD_LAZY | RTLD_LOCAL);
  if (library == nullptr) return {};
  Dl_info info = {};
  const bool found = ::dladdr(::dlsym(library, "DllGetClassObject"), &info) != 0;
  const std::filesystem::path file = found ? info.dli_fname : "";
  ::dlclose(library);
  std::error_code error;
  return file.empty() ? file : std::filesystem::absolute(file, error).lexically_normal();
}

Outcome SetRegistered(bool registered, bool) {
  Outcome outcome;
  if (!registered) {
    outcome.result = UnregisterServer(&outcome.reason);
    return outcome;
  }
  outcome.server = FindLibrary();
  if (outcome.server.empty()) {
    return {CO_E_DLLNOTFOUND, PRAXEN_LIBRARY_NAME " is not found"};
  }
  outcome.result = RegisterServer(outcome.server, &outcome.reason);
  return outcome;
}

#endif

std::string ReasonOf(const Outcome& outcome) {
  if (!outcome.reason.empty()) return outcome.reason;
  if (outcome.result == E_ACCESSDENIED) {
    return "access denied; --user registers for this user only";
  }
  char code[16];
  std::snprintf(code, sizeof code, "0x%08X", static_cast<unsigned>(outcome.result));
  return std::string("the registry cannot be changed (") + code + ")";
}

void AddCommand(CLI::App& app, int& exitCode, const std::string& name, const std::string& help,
                bool registered) {
  CLI::App* const command = app.add_subcommand(name, help);
  const auto forUser = std::make_shared<bool>(false);
  command->add_flag("--user", *forUser, kUserHelp);
  command->callback([&exitCode, name, forUser, registered] {
    const Outcome outcome = SetRegistered(registered, *forUser);
    if (FAILED(outcome.result)) {
      PrintError(name, ReasonOf(outcome));
      exitCode = 1;
    } else if (registered) {
      std::cout << outcome.server.string() << std::endl;
    }
  });
}

}  // namespace

void AddRegisterCommands(CLI::App& app, int& exitCode) {
  AddCommand(app, exitCode, "register", "Make the library known to automation clients", true);
  AddCommand(app, exitCode, "unregister", "Undo that", false);
}

}  // namespace praxen::detail
