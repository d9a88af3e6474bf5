// The ways to the same property and list.
#include "bench/automation_jobs.h"

#include <stdexcept>

#include "bench/documents.h"
#include "praxen/automation/values.h"

namespace praxen::detail::bench {
namespace {

constexpr size_t kCalls = 20'000;

void Require(HRESULT result) {
  if (FAILED(result)) throw std::runtime_error("automation call failed");
}

IDispatch* Automation(Object& object) {
  return reinterpret_cast<IDispatch*>(static_cast<Interface*>(&object));
}

DISPID IdOf(IDispatch* object, std::u16string_view name) {
  const BStr text(name);
  LPOLESTR names[] = {reinterpret_cast<LPOLESTR>(text.Get())};
  DISPID id = 0;
  Require(object->GetIDsOfNames(IID_NULL, names, 1, 0, &id));
  return id;
}

void Invoke(IDispatch* object, DISPID id, WORD flags, std::vector<Variant> arguments,
            VARIANT* result) {
  DISPID put = DISPID_PROPERTYPUT;
  const bool puts = flags == DISPATCH_PROPERTYPUT;
  DISPPARAMS parameters = {arguments.data(), puts ? &put : nullptr,
                           static_cast<UINT>(arguments.size()), puts ? 1U : 0U};
  Require(object->Invoke(id, IID_NULL, 0, flags, &parameters, result, nullptr, nullptr));
}

constexpr WORD kGet = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

// The function at a slot after those of IDispatch.
template <class... Arguments>
auto Slot(IDispatch* object, size_t slot) {
  using Function = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, Arguments...);
  return reinterpret_cast<Function>(
      const_cast<void*>((*reinterpret_cast<const void* const* const*>(object))[7 + slot]));
}

template <class Operation>
Job Repeat(std::string task, std::string means, Operation operation) {
  return {std::move(task), std::move(means), kCalls, [operation]() -> Product {
            for (size_t i = 0; i < kCalls; ++i) operation();
            return nullptr;
          }};
}

void AddGets(std::vector<Job>& jobs, const Ref<Variable>& variable) {
  IDispatch* const object = Automation(*variable);
  const DISPID id = IdOf(object, u"Name");
  jobs.push_back(Repeat("property get", "c++", [variable] {
    const Text name = variable->Name;
    if (name.empty()) throw std::runtime_error("name");
  }));
  jobs.push_back(Repeat("property get", "table", [variable, object] {
    BStr name;
    Require(Slot<BSTR*>(object, 0)(object, name.Receive()));
  }));
  jobs.push_back(Repeat("property get", "cached identifier", [variable, object, id] {
    Variant name;
    Invoke(object, id, kGet, {}, &name);
  }));
  jobs.push_back(Repeat("property get", "name", [variable, object] {
    Variant name;
    Invoke(object, IdOf(object, u"Name"), kGet, {}, &name);
  }));
}

void AddPuts(std::vector<Job>& jobs, const Ref<Variable>& variable) {
  IDispatch* const object = Automation(*variable);
  const DISPID id = IdOf(object, u"Name");
  jobs.push_back(Repeat("property put", "c++", [variable] { variable->Name = u"Level"; }));
  jobs.push_back(Repeat("property put", "table", [variable, object] {
    const BStr name(u"Level");
    Require(Slot<BSTR>(object, 1)(object, name.Get()));
  }));
  jobs.push_back(Repeat("property put", "cached identifier", [variable, object, id] {
    Invoke(object, id, DISPATCH_PROPERTYPUT, {Variant(u"Level")}, nullptr);
  }));
  jobs.push_back(Repeat("property put", "name", [variable, object] {
    Invoke(object, IdOf(object, u"Name"), DISPATCH_PROPERTYPUT, {Variant(u"Level")}, nullptr);
  }));
}

template <class Add>
Job Addition(std::string means, Add add) {
  return {"Add1", std::move(means), kCalls, [add] {
            auto list = std::make_shared<Ref<Variables>>(New<Variables>());
            for (size_t i = 0; i < kCalls; ++i) add(**list);
            return list;
          }};
}

void AddAdditions(std::vector<Job>& jobs) {
  constexpr size_t kAdd1 = 2;
  const auto late = [](IDispatch* object, DISPID id) {
    Variant added;
    std::vector<Variant> arguments{Variant(u"real"), Variant(u"Level")};
    Invoke(object, id, kGet, std::move(arguments), &added);
  };
  const Ref<Variables> sample = New<Variables>();
  const DISPID id = IdOf(Automation(*sample), u"Add1");
  jobs.push_back(
      Addition("c++", [](Variables& list) { list.Add1(Text(u"Level"), Text(u"real")); }));
  jobs.push_back(Addition("table", [](Variables& list) {
    IDispatch* const object = Automation(list);
    const BStr name(u"Level");
    const BStr type(u"real");
    ComPointer<IDispatch> added;
    Require(Slot<BSTR, BSTR, IDispatch**>(object, kAdd1)(object, name.Get(), type.Get(),
                                                         added.Receive()));
  }));
  jobs.push_back(
      Addition("cached identifier", [late, id](Variables& list) { late(Automation(list), id); }));
  jobs.push_back(Addition("name", [late](Variables& list) {
    late(Automation(list), IdOf(Automation(list), u"Add1"));
  }));
}

ComPointer<IEnumVARIANT> EnumeratorOf(IDispatch* list, DISPID id) {
  Variant value;
  Invoke(list, id, kGet, {}, &value);
  return ComPointer<IUnknown>(value.punkVal).As<IEnumVARIANT>(IID_IEnumVARIANT);
}

void Enumerate(const ComPointer<IEnumVARIANT>& enumerator) {
  size_t visited = 0;
  for (Variant element; enumerator->Next(1, element.Receive(), nullptr) == S_OK;) ++visited;
  if (visited != kCalls) throw std::runtime_error("enumeration");
}

void AddEnumerations(std::vector<Job>& jobs) {
  const Ref<Program> program = BuildVariables(kCalls);
  IDispatch* const list = Automation(*program->Variables);
  const auto add = [&](std::string means, std::function<void()> enumerate) {
    jobs.push_back({"enumeration", std::move(means), kCalls, [program, enumerate]() -> Product {
                      enumerate();
                      return nullptr;
                    }});
  };
  add("c++", [program] {
    size_t named = 0;
    for (const Variable& variable : *program->Variables) named += variable.Name.empty() ? 0U : 1U;
    if (named != kCalls) throw std::runtime_error("enumeration");
  });
  add("cached identifier", [list] { Enumerate(EnumeratorOf(list, DISPID_NEWENUM)); });
  add("name", [list] { Enumerate(EnumeratorOf(list, IdOf(list, u"NewEnum"))); });
}

}  // namespace

std::vector<Result> MeasureAutomation(int rounds) {
  const Ref<Variable> variable = New<Variable>();
  variable->Name = u"Level";
  std::vector<Job> jobs;
  AddGets(jobs, variable);
  AddPuts(jobs, variable);
  AddAdditions(jobs);
  AddEnumerations(jobs);
  return Measure(jobs, rounds);
}

}  // namespace praxen::detail::bench
