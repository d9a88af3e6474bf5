// A client compiled from the header that the type library's source gives: it calls through the
// interface tables. With the file of a manifest as argument, nothing needs to be registered.
#include <windows.h>

// Needs what is declared above.
#include <psapi.h>

// The identifiers of the header are defined here.
#include <initguid.h>

#include "PraxenHelper.h"

#include <atomic>
#include <cstdio>
#include <string>
#include <vector>

#include "praxen/automation/values.h"

namespace {

using praxen::BStr;
using praxen::ComPointer;
using praxen::Variant;

std::atomic<int> failures = 0;

void Check(const char* what, bool holds) {
  if (holds) return;
  ++failures;
  std::printf("FAILED %s\n", what);
}

template <class I>
ComPointer<I> Create(REFCLSID clsid) {
  ComPointer<I> object;
  CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, __uuidof(I),
                   reinterpret_cast<void**>(object.Receive()));
  return object;
}

std::u16string NameOf(ITypeInfo* information) {
  BStr name;
  if (information == nullptr) return {};
  information->GetDocumentation(MEMBERID_NIL, name.Receive(), nullptr, nullptr, nullptr);
  return std::u16string(name.View());
}

void UseObjects() {
  const auto program = Create<_Program>(CLSID_Program);
  Check("program", static_cast<bool>(program));
  if (!program) return;
  Check("name", program->put_Name(BStr(u"Main").Get()) == S_OK);
  ComPointer<_Variables> variables;
  Check("variables", program->get_Variables(variables.Receive()) == S_OK);
  ComPointer<_Variable> variable;
  Check("Add1",
        variables->Add1(BStr(u"Level").Get(), BStr(u"real").Get(), variable.Receive()) == S_OK);
  ComPointer<_CodeBlocks> blocks;
  Check("blocks", program->get_CodeBlocks(blocks.Receive()) == S_OK);
  const BStr code(u"Level := 1.0;");
  BSTR text = code.Get();
  ComPointer<_STCodeBlock> block;
  Check("by reference",
        blocks->AddSTCodeBlock2(BStr(u"Code").Get(), &text, block.Receive()) == S_OK);
  ComPointer<_ICodeBlock> kind;
  Check("item", blocks->get_Item(1, kind.Receive()) == S_OK);
  VARIANT_BOOL is = VARIANT_FALSE;
  Check("kind", kind->get_IsSTCodeBlock(&is) == S_OK && is == VARIANT_TRUE);
  Check("class of kind", kind.As<_STCodeBlock>(__uuidof(_STCodeBlock)).Get() == block.Get());

  BStr document;
  Check("Serialize", program->Serialize(document.Receive()) == S_OK);
  const auto factory = Create<_ObjectFactory>(CLSID_ObjectFactory);
  BSTR xml = document.Get();
  ComPointer<_Program> copy;
  Check("Deserialize", factory->DeserializeProgram(&xml, copy.Receive()) == S_OK);
  BStr again;
  Check("copy",
        copy && copy->Serialize(again.Receive()) == S_OK && again.View() == document.View());
}

void UseEnumerations() {
  const auto task = Create<_Task>(CLSID_Task);
  TaskPriorityValue priority = pxTaskPriority0;
  Check("enumeration", task->put_Priority(pxTaskPriority3) == S_OK &&
                           task->get_Priority(&priority) == S_OK && priority == pxTaskPriority3);
}

void UseErrors() {
  const auto variable = Create<_Variable>(CLSID_Variable);
  const auto support = variable.As<ISupportErrorInfo>(IID_ISupportErrorInfo);
  Check("error support",
        support && support->InterfaceSupportsErrorInfo(__uuidof(_Variable)) == S_OK);
  BStr document;
  Check("required fields",
        variable->Serialize(document.Receive()) == static_cast<HRESULT>(0x80040259));
  ComPointer<IErrorInfo> information;
  BStr description;
  Check("error information", GetErrorInfo(0, information.Receive()) == S_OK &&
                                 information->GetDescription(description.Receive()) == S_OK &&
                                 description.View() == u"Required fields empty");
}

void UseTypeInformation() {
  const auto message = Create<_ErrorMsg>(CLSID_ErrorMsg);
  ComPointer<ITypeInfo> information;
  UINT count = 0;
  Check("type information count", message->GetTypeInfoCount(&count) == S_OK && count == 1);
  Check("type information", message->GetTypeInfo(0, 0, information.Receive()) == S_OK &&
                                NameOf(information.Get()) == u"_ErrorMsg");
  Check("type information index",
        message->GetTypeInfo(1, 0, information.Receive()) == DISP_E_BADINDEX);
  const auto provider = message.As<IProvideClassInfo2>(IID_IProvideClassInfo2);
  Check("class information", provider && provider->GetClassInfo(information.Receive()) == S_OK &&
                                 NameOf(information.Get()) == u"ErrorMsg");
  GUID source = IID_IUnknown;
  Check("no events", provider && FAILED(provider->GetGUID(1, &source)) && source == GUID_NULL);

  // The identifiers that calls by name use are those of the type library.
  LPOLESTR name = const_cast<LPOLESTR>(L"ErrorNo");
  DISPID called = 0;
  MEMBERID listed = 0;
  Check("identifiers", message->GetTypeInfo(0, 0, information.Receive()) == S_OK &&
                           message->GetIDsOfNames(IID_NULL, &name, 1, 0, &called) == S_OK &&
                           information->GetIDsOfNames(&name, 1, &listed) == S_OK &&
                           called == listed);
}

void UseRefusals() {
  ComPointer<IUnknown> none;
  Check("kinds are not creatable",
        FAILED(CoCreateInstance(CLSID_ICodeBlock, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                reinterpret_cast<void**>(none.Receive()))));
}

// Makes the classes of a manifest known to this thread.
bool Activate(const std::wstring& manifest) {
  ACTCTXW context = {};
  context.cbSize = sizeof context;
  context.lpSource = manifest.c_str();
  ULONG_PTR cookie = 0;
  const HANDLE handle = CreateActCtxW(&context);
  return handle != INVALID_HANDLE_VALUE && ActivateActCtx(handle, &cookie);
}

// Calls by name, as through the border of an apartment; the arguments are given last one first.
Variant Call(IDispatch* object, const wchar_t* name, WORD flags, std::vector<Variant> arguments) {
  Variant result;
  LPOLESTR names = const_cast<LPOLESTR>(name);
  DISPID id = DISPID_UNKNOWN;
  DISPID put = DISPID_PROPERTYPUT;
  const bool puts = flags == DISPATCH_PROPERTYPUT;
  DISPPARAMS parameters = {arguments.data(), puts ? &put : nullptr,
                           static_cast<UINT>(arguments.size()), puts ? 1u : 0u};
  const bool done = object != nullptr &&
                    object->GetIDsOfNames(IID_NULL, &names, 1, 0, &id) == S_OK &&
                    object->Invoke(id, IID_NULL, 0, flags, &parameters, puts ? nullptr : &result,
                                   nullptr, nullptr) == S_OK;
  Check("call by name", done);
  return result;
}

IDispatch* ObjectIn(const Variant& value) {
  return value.vt == VT_DISPATCH ? value.pdispVal : nullptr;
}

// Writes a program with variables, reads it, and returns what the copy writes.
std::u16string WriteAndRead(const std::u16string& name) {
  constexpr int kVariables = 20;
  const auto program = Create<IDispatch>(CLSID_Program);
  Call(program.Get(), L"Name", DISPATCH_PROPERTYPUT, {Variant(name)});
  const Variant list = Call(program.Get(), L"Variables", DISPATCH_PROPERTYGET, {});
  for (int i = 0; i < kVariables; ++i) {
    Call(ObjectIn(list), L"Add1", DISPATCH_METHOD, {Variant(u"real"), Variant(name)});
  }
  const Variant document = Call(program.Get(), L"Serialize", DISPATCH_METHOD, {});
  const auto factory = Create<IDispatch>(CLSID_ObjectFactory);
  const Variant copy =
      Call(factory.Get(), L"DeserializeProgram", DISPATCH_METHOD, {Variant(document.View())});
  const Variant again = Call(ObjectIn(copy), L"Serialize", DISPATCH_METHOD, {});
  Check("copy by name", again.View() == document.View());
  return std::u16string(again.View());
}

struct ThreadUse {
  DWORD apartment;
  std::u16string name;
  std::u16string expected;
  std::wstring manifest;
};

DWORD WINAPI UseOnThread(void* argument) {
  constexpr int kRounds = 100;
  const auto& use = *static_cast<const ThreadUse*>(argument);
  Check("apartment", SUCCEEDED(CoInitializeEx(nullptr, use.apartment)));
  if (!use.manifest.empty()) Check("manifest of a thread", Activate(use.manifest));
  for (int round = 0; round < kRounds && failures == 0; ++round) {
    Check("document of a thread", WriteAndRead(use.name) == use.expected);
  }
  CoUninitialize();
  return 0;
}

// Runs threads at the same time and waits for their ends; this thread's apartment may be called
// meanwhile.
void RunTogether(std::vector<ThreadUse> uses) {
  std::vector<HANDLE> threads;
  for (ThreadUse& use : uses) {
    threads.push_back(CreateThread(nullptr, 0, &UseOnThread, &use, 0, nullptr));
  }
  for (HANDLE& thread : threads) {
    DWORD index = 0;
    Check("end of a thread", CoWaitForMultipleHandles(0, INFINITE, 1, &thread, &index) == S_OK);
    CloseHandle(thread);
  }
}

// Two threads with apartments of their own at once, and two, one after the other, of the apartment
// whose calls the system sends to where the objects are: when two threads of that one marshal at
// the same time, Wine 8 now and then jumps to memory that it has freed. Only where the library is
// registered: the system keeps what it loads for the latter until the process ends.
void UseThreads(const std::wstring& manifest) {
  const auto use = [&](DWORD apartment, const char16_t* name) {
    return ThreadUse{apartment, name, WriteAndRead(name), manifest};
  };
  RunTogether({use(COINIT_APARTMENTTHREADED, u"First"), use(COINIT_APARTMENTTHREADED, u"Second")});
  if (!manifest.empty()) return;
  for (const char16_t* const name : {u"Third", u"TheFourth"}) {
    RunTogether({use(COINIT_MULTITHREADED, name)});
  }
}

// Loads and unloads the library that lies beside its manifest; each time left 73 KB once.
void LoadAgainAndAgain(std::wstring file) {
  constexpr int kRounds = 100;
  constexpr SIZE_T kMostGrowth = 1'000'000;
  file.replace(file.rfind(L'.'), std::wstring::npos, L".dll");
  Check("unloaded by the system", GetModuleHandleW(file.c_str()) == nullptr);
  PROCESS_MEMORY_COUNTERS first = {}, last = {};
  for (int round = 0; round < kRounds; ++round) {
    const HMODULE library = LoadLibraryW(file.c_str());
    Check("loaded", library != nullptr && FreeLibrary(library));
    GetProcessMemoryInfo(GetCurrentProcess(), &last, sizeof last);
    if (round == 0) first = last;
  }
  Check("memory of the library", last.PagefileUsage < first.PagefileUsage + kMostGrowth);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  CoInitialize(nullptr);
  if (count > 1) Check("manifest", Activate(arguments[1]));
  UseObjects();
  if (failures == 0) {
    UseEnumerations();
    UseErrors();
    UseTypeInformation();
    UseRefusals();
    UseThreads(count > 1 ? arguments[1] : L"");
  }
  CoFreeUnusedLibraries();
  CoUninitialize();
  if (count > 1) LoadAgainAndAgain(arguments[1]);
  std::puts(failures == 0 ? "passed" : "failed");
  return failures == 0 ? 0 : 1;
}
