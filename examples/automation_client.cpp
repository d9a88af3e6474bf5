// A client that knows the library through automation alone: it finds classes by their programmatic
// identifiers, calls members by name, and one of them through a table declared by hand. It runs on
// Windows and elsewhere; "praxen register" has to have made the library known to the user.
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <iostream>
#include <string>
#include <vector>

#include "praxen/automation/create_object.h"
#include "praxen/automation/values.h"

// The beginning of the interface of a list of variables, in slot order. It has linkage,
// because a compiler that sees that no class of the program implements it would otherwise take a
// call for impossible.
struct IVariables : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Add(IDispatch* variable) = 0;
  virtual HRESULT STDMETHODCALLTYPE AddBefore(IDispatch* variable, LONG position) = 0;
  virtual HRESULT STDMETHODCALLTYPE Add1(BSTR name, BSTR typeName, IDispatch** variable) = 0;
};

namespace {

using praxen::BStr;
using praxen::ComPointer;
using praxen::Variant;

constexpr IID kVariables = {
    0x50EB369B, 0x3CAB, 0x5C69, {0x84, 0x12, 0x06, 0x99, 0xDF, 0xC0, 0xDA, 0x61}};

[[noreturn]] void Stop(const char* what, HRESULT result, const std::u16string& reason = {}) {
  std::fprintf(stderr, "%s: 0x%08X %s\n", what, static_cast<unsigned>(result),
               std::string(reason.begin(), reason.end()).c_str());
  std::exit(1);
}

// An object with its members by name.
class Automation {
 public:
  explicit Automation(const char16_t* progId) {
    const HRESULT result = praxen::CreateObject(progId, object_.Receive());
    if (FAILED(result)) Stop("CreateObject", result);
  }
  explicit Automation(const Variant& value)
      : object_(value.vt == VT_DISPATCH ? value.pdispVal : nullptr) {}

  Variant Call(const char16_t* member, std::initializer_list<Variant> arguments = {}) const {
    return Invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, nullptr);
  }
  void Put(const char16_t* member, const Variant& value) const {
    DISPID put = DISPID_PROPERTYPUT;
    Invoke(member, DISPATCH_PROPERTYPUT, {value}, &put);
  }
  IDispatch* get() const { return object_.Get(); }

 private:
  Variant Invoke(const char16_t* member, WORD flags, std::initializer_list<Variant> arguments,
                 DISPID* name) const {
    const BStr text(member);
    LPOLESTR names[] = {text.Get()};
    DISPID id = DISPID_UNKNOWN;
    HRESULT result = object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(result)) Stop("GetIDsOfNames", result, member);
    // A call takes its arguments last first.
    std::vector<Variant> values(std::rbegin(arguments), std::rend(arguments));
    DISPPARAMS parameters = {values.data(), name, static_cast<UINT>(values.size()),
                             name == nullptr ? 0u : 1u};
    Variant value;
    EXCEPINFO exception = {};
    result = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &value,
                             &exception, nullptr);
    const BStr description = BStr::Attach(exception.bstrDescription);
    const BStr source = BStr::Attach(exception.bstrSource);
    if (FAILED(result)) Stop("Invoke", result, std::u16string(description.View()));
    return value;
  }

  ComPointer<IDispatch> object_;
};

void AddThroughTable(const Automation& list, const char16_t* name, const char16_t* typeName) {
  ComPointer<IVariables> variables;
  HRESULT result =
      list.get()->QueryInterface(kVariables, reinterpret_cast<void**>(variables.Receive()));
  ComPointer<IDispatch> made;
  if (SUCCEEDED(result)) {
    result = variables->Add1(BStr(name).Get(), BStr(typeName).Get(), made.Receive());
  }
  if (FAILED(result)) Stop("Add1", result);
}

void Run() {
  const Automation program(u"PraxenHelper.Program");
  program.Put(u"Name", Variant(u"Main"));
  const Automation variables(program.Call(u"Variables"));
  variables.Call(u"Add1", {Variant(u"Level"), Variant(u"real")});
  AddThroughTable(variables, u"Open", u"bool");

  const Variant document = program.Call(u"Serialize");
  const std::u16string_view text = document.View();
  std::cout << std::string(text.begin(), text.end());

  const Automation factory(u"PraxenHelper.ObjectFactory");
  const Automation copy(factory.Call(u"DeserializeProgram", {document}));
  if (copy.Call(u"Serialize").View() != text) Stop("the copy differs", E_UNEXPECTED);
}

}  // namespace

int main() {
#ifdef _WIN32
  CoInitialize(nullptr);
#endif
  Run();
#ifdef _WIN32
  CoFreeUnusedLibraries();
  CoUninitialize();
#endif
}
