// Calls objects late bound as no client should: with values of any automation type, any number of
// arguments, names, flags and identifiers. Each call must end with a result that tells what
// happened, leave the arguments as they were and hold on to nothing.
#include <algorithm>
#include <bit>
#include <deque>
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/object_pool.h"
#include "fuzz/promises.h"
#include "praxen/automation/values.h"
#include "praxen/xml/xml_string_writer.h"

namespace {

using praxen::ComPointer;
using praxen::Object;
using praxen::Variant;
using praxen::detail::Broken;
using praxen::detail::FuzzInput;
using praxen::detail::Member;

constexpr int kMostCalls = 200;
constexpr int kDeepestReference = 3;
constexpr size_t kMostEnumerators = 8;

using Enumerator = ComPointer<IEnumVARIANT>;

// An object that is not the library's: it has every member, and answers each call alike. It may
// even answer whatever interface it is asked for.
class Stranger final : public IDispatch {
 public:
  Stranger(HRESULT result, VARIANT answer, bool answersAll)
      : result_(result), answer_(answer), answers_all_(answersAll) {}
  Stranger(const Stranger&) = delete;
  Stranger& operator=(const Stranger&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch && !answers_all_) return E_NOINTERFACE;
    AddRef();
    *out = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* ids) override {
    *ids = DISPID_VALUE;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    if (result != nullptr && SUCCEEDED(result_)) VariantCopy(result, &answer_);
    return result_;
  }

  bool isFree() const { return references_ == 0; }

 private:
  ULONG references_ = 0;
  const HRESULT result_;
  const VARIANT answer_;
  const bool answers_all_;
};

// The arguments of a call, and what they refer to, which lives as long as they do.
class Arguments {
 public:
  Arguments(FuzzInput& input, const praxen::detail::ObjectPool& pool)
      : input_(input), pool_(pool) {}
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;
  ~Arguments() {
    values_.clear();
    referred_.clear();
    const auto isFree = [](const Stranger& stranger) { return stranger.isFree(); };
    if (!std::ranges::all_of(strangers_, isFree)) Broken("references to arguments are given back");
  }

  void Add() {
    values_.emplace_back();
    Fill(values_.back(), 0);
  }
  std::vector<Variant>& values() { return values_; }
  /// The bytes of the arguments and of what they refer to.
  std::string Bytes() const {
    std::string bytes;
    const auto append = [&](const Variant& value) {
      bytes.append(reinterpret_cast<const char*>(static_cast<const VARIANT*>(&value)),
                   sizeof(VARIANT));
    };
    std::ranges::for_each(values_, append);
    std::ranges::for_each(referred_, append);
    return bytes;
  }

 private:
  VARTYPE Type() {
    static const VARTYPE kUsual[] = {VT_BSTR, VT_I4, VT_BOOL, VT_R8, VT_DISPATCH};
    static const int kFlags[] = {0, 0, 0, 0, 0, VT_ARRAY, 0x1000, 0x8000};
    if (input_.OneIn(2)) return input_.OneOf(kUsual);
    return static_cast<VARTYPE>(static_cast<int>(input_.Below(48)) | input_.OneOf(kFlags));
  }

  void Fill(Variant& value, int depth) {
    if (depth == kDeepestReference || !input_.OneIn(4)) return FillWith(value, Type());
    if (!input_.OneIn(8)) return Refer(value, depth);
    value.byref = nullptr;
    value.vt = static_cast<VARTYPE>(Type() | VT_BYREF);
  }

  void Refer(Variant& value, int depth) {
    Variant& referred = referred_.emplace_back();
    Fill(referred, depth + 1);
    if ((referred.vt & VT_BYREF) != 0 || input_.OneIn(2)) {
      value.pvarVal = &referred;
      value.vt = VT_BYREF | VT_VARIANT;
      return;
    }
    const bool isDecimal = referred.vt == VT_DECIMAL;
    value.byref = isDecimal ? static_cast<void*>(&referred.decVal) : &referred.llVal;
    value.vt = static_cast<VARTYPE>(referred.vt | VT_BYREF);
  }

  void FillWith(Variant& value, VARTYPE type) {
    switch (type) {
      case VT_BSTR:
        value.bstrVal = String();
        break;
      case VT_DISPATCH:
      case VT_UNKNOWN:
        value.pdispVal = Shared();
        break;
      case VT_ERROR:
        value.scode = input_.OneIn(2) ? DISP_E_PARAMNOTFOUND : input_.Bits<SCODE>();
        break;
      case VT_DECIMAL:
        value.decVal.scale = input_.Byte();
        value.decVal.sign = input_.Byte();
        value.decVal.Lo64 = input_.Bits<ULONGLONG>();
        break;
      case VT_VARIANT:
        // Only a reference is of this type.
        type = VT_EMPTY;
        break;
      default:
        // What a pointer of a type that is not supported leads to must not be looked at.
        value.llVal = Number(type);
    }
    value.vt = type;
  }

  LONGLONG Number(VARTYPE type) {
    if (input_.OneIn(2)) return input_.Bits<LONGLONG>();
    const auto small = static_cast<int8_t>(input_.Byte());
    if (type != VT_R8 && type != VT_DATE) return small;
    return std::bit_cast<LONGLONG>(small / 4.0);
  }

  BSTR String() {
    static const char16_t* const kTexts[] = {u"1",       u"-7",  u" 12 ",        u"1e400", u"True",
                                             u"#FALSE#", u"2.5", u"99999999999", u"\u0663"};
    if (input_.OneIn(8)) return nullptr;
    if (input_.OneIn(8)) return SysAllocStringByteLen("odd", 3);
    if (input_.OneIn(4)) return SysAllocString(input_.OneOf(kTexts));
    return praxen::detail::AllocateBstr(input_.AnyText().view());
  }

  IDispatch* Shared() {
    IDispatch* shared = nullptr;
    if (input_.OneIn(8)) return shared;
    Object* const object = input_.OneIn(8) ? nullptr : pool_.Choose(input_);
    if (object != nullptr) {
      shared = praxen::detail::AsDispatch(*object);
    } else {
      VARIANT answer = {};
      answer.vt = static_cast<VARTYPE>(input_.OneIn(2) ? VT_I4 : VT_NULL);
      answer.lVal = input_.Byte();
      const HRESULT result = input_.OneIn(2) ? DISP_E_EXCEPTION : S_OK;
      shared = &strangers_.emplace_back(result, answer, input_.OneIn(4));
    }
    shared->AddRef();
    return shared;
  }

  FuzzInput& input_;
  const praxen::detail::ObjectPool& pool_;
  std::vector<Variant> values_;
  // Addresses stay.
  std::deque<Variant> referred_;
  std::deque<Stranger> strangers_;
};

// What a call is given besides its arguments.
struct Call {
  IDispatch* object;
  DISPID id;
  WORD flags;
  std::vector<DISPID> named;
};

class Client {
 public:
  explicit Client(FuzzInput input) : input_(input), pool_(input_) {}
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;
  ~Client() { SetErrorInfo(0, nullptr); }

  void Run() {
    for (int calls = 0; calls < kMostCalls && !input_.empty(); ++calls) {
      Object* const object = pool_.Choose(input_);
      if (object == nullptr) return;
      switch (input_.Below(8)) {
        case 0:
          AskForNames(*object);
          break;
        case 1:
          Enumerate();
          break;
        default:
          Invoke(*object);
      }
    }
  }

 private:
  // Through the object's own interface or that of its kind.
  IDispatch* InterfaceOf(Object& object) {
    praxen::detail::Interface* const kind = input_.OneIn(4) ? object.kindInterface() : nullptr;
    return kind == nullptr ? praxen::detail::AsDispatch(object)
                           : reinterpret_cast<IDispatch*>(kind);
  }

  // Null for an identifier that may be none of a member's.
  const Member* ChooseMember(const Object& object) {
    const praxen::detail::ClassDescription& description = object.description();
    const bool ofKind = description.kind != nullptr && input_.OneIn(4);
    const auto& members = ofKind ? description.kind->members : description.members;
    if (members.empty() || input_.OneIn(16)) return nullptr;
    return &members[input_.Below(members.size())];
  }

  // Creating branches and writing take as much memory or time as their arguments or the object say.
  static bool IsCheap(Object& object, const Member& member) {
    const bool branches = std::ranges::any_of(
        member.parameters, [](const auto& parameter) { return parameter.name == "NrOfBranches"; });
    return !branches && (member.name != "Serialize" || praxen::detail::IsSmall(object));
  }

  void Invoke(Object& object) {
    const Member* member = ChooseMember(object);
    const DISPID id = member != nullptr ? member->id : input_.Bits<int16_t>();
    member = object.description().FindMember(id);
    if (member != nullptr && !IsCheap(object, *member)) return;
    const bool puts = member != nullptr && member->put != nullptr && input_.OneIn(2);
    Call call{InterfaceOf(object), id, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {}};
    if (puts) call.flags = input_.OneIn(4) ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
    if (input_.OneIn(16)) call.flags = input_.Byte();
    size_t count = puts || member == nullptr ? 1 : member->parameters.size();
    if (input_.OneIn(8)) count = input_.Below(5);
    Arguments arguments(input_, pool_);
    for (size_t i = 0; i < count; ++i) arguments.Add();
    if (puts) call.named.push_back(DISPID_PROPERTYPUT);
    while (input_.OneIn(8)) {
      call.named.push_back(input_.OneIn(4) ? input_.Bits<DISPID>()
                                           : static_cast<DISPID>(input_.Below(4)));
    }
    Make(call, arguments);
  }

  void Make(Call& call, Arguments& arguments) {
    auto& values = arguments.values();
    DISPPARAMS parameters{values.data(), call.named.data(), static_cast<UINT>(values.size()),
                          static_cast<UINT>(call.named.size())};
    const bool bare = input_.OneIn(16);
    if (bare && input_.OneIn(4)) parameters.rgvarg = nullptr;
    if (bare && input_.OneIn(4)) parameters.rgdispidNamedArgs = nullptr;
    const std::string before = arguments.Bytes();
    Variant result;
    EXCEPINFO exception = {};
    UINT wrong = parameters.cArgs;
    const HRESULT told = call.object->Invoke(
        call.id, IID_NULL, 0, call.flags, bare && input_.OneIn(4) ? nullptr : &parameters,
        bare && input_.OneIn(2) ? nullptr : &result, bare ? nullptr : &exception,
        bare && input_.OneIn(2) ? nullptr : &wrong);
    if (arguments.Bytes() != before) Broken("arguments stay as they are");
    if (wrong > parameters.cArgs) Broken("the wrong argument is one of those given");
    HoldResult(told, result, exception);
    HoldReturned(result);
  }

  // A failure that is not the call's own is told in the exception.
  static void HoldResult(HRESULT told, const Variant& result, EXCEPINFO& exception) {
    const auto source = praxen::BStr::Attach(exception.bstrSource);
    const auto description = praxen::BStr::Attach(exception.bstrDescription);
    if (told == S_OK) return;
    if (!FAILED(told) || told == E_UNEXPECTED || told == E_OUTOFMEMORY) {
      Broken("failures have results of their own");
    }
    if (result.vt != VT_EMPTY) Broken("what fails returns nothing");
    if (told != DISP_E_EXCEPTION) return;
    if (!FAILED(exception.scode)) Broken("an exception has a number");
    ComPointer<IErrorInfo> information;
    praxen::BStr reported;
    if (GetErrorInfo(0, information.Receive()) != S_OK ||
        information->GetDescription(reported.Receive()) != S_OK ||
        reported.View() != description.View()) {
      Broken("an exception is in the thread's error information", description.View());
    }
  }

  void HoldReturned(const Variant& result) {
    if (result.vt == VT_DISPATCH && result.pdispVal != nullptr) {
      if (!ComPointer<IUnknown>(result.punkVal).As<IDispatch>(IID_IDispatch)) {
        Broken("an object that is returned is one that can be called");
      }
      pool_.Keep(result);
    }
    if (result.vt == VT_UNKNOWN && result.punkVal != nullptr) {
      Keep(ComPointer<IUnknown>(result.punkVal).As<IEnumVARIANT>(IID_IEnumVARIANT));
    }
  }

  void Keep(const Enumerator& enumerator) {
    if (enumerator && enumerators_.size() < kMostEnumerators) enumerators_.push_back(enumerator);
  }

  void AskForNames(Object& object) {
    const Member* const member = ChooseMember(object);
    std::vector<std::u16string> names;
    if (member != nullptr) {
      names.push_back(praxen::FromUtf8(member->name));
      for (const auto& parameter : member->parameters) {
        names.push_back(praxen::FromUtf8(parameter.name));
      }
    }
    while (input_.OneIn(4)) names.emplace_back(input_.AnyText().view());
    std::vector<OLECHAR*> pointers;
    for (std::u16string& name : names) {
      if (!name.empty() && input_.OneIn(2)) name[0] = static_cast<char16_t>(name[0] ^ 0x20);
      pointers.push_back(input_.OneIn(16) ? nullptr : reinterpret_cast<OLECHAR*>(name.data()));
    }
    std::vector<DISPID> ids(names.size(), 99);
    const HRESULT told = InterfaceOf(object)->GetIDsOfNames(
        IID_NULL, pointers.data(), static_cast<UINT>(pointers.size()), 0, ids.data());
    const bool known = std::ranges::find(ids, DISPID_UNKNOWN) == ids.end();
    if (!names.empty() && told != (known ? S_OK : DISP_E_UNKNOWNNAME)) {
      Broken("unknown names are told");
    }
  }

  void Enumerate() {
    if (enumerators_.empty()) return;
    const Enumerator enumerator = enumerators_[input_.Below(enumerators_.size())];
    switch (input_.Below(4)) {
      case 0: {
        Enumerator copy;
        if (enumerator->Clone(copy.Receive()) != S_OK) Broken("enumerators can be copied");
        return Keep(copy);
      }
      case 1:
        if (enumerator->Reset() != S_OK) Broken("enumerators can be reset");
        return;
      case 2:
        if (FAILED(enumerator->Skip(input_.OneIn(4) ? input_.Bits<ULONG>() : input_.Byte() % 4))) {
          Broken("passing over elements does not fail");
        }
        return;
      default:
        Next(enumerator);
    }
  }

  void Next(const Enumerator& enumerator) {
    std::vector<Variant> values(input_.Below(6));
    ULONG fetched = 99;
    ULONG* const out = input_.OneIn(4) ? nullptr : &fetched;
    const auto count = static_cast<ULONG>(values.size());
    const HRESULT told = enumerator->Next(count, values.data(), out);
    for (const Variant& value : values) HoldReturned(value);
    const auto got = static_cast<ULONG>(
        std::ranges::count_if(values, [](const Variant& value) { return value.vt != VT_EMPTY; }));
    if (FAILED(told) ? got != 0 : (out != nullptr && fetched != got)) {
      Broken("the elements are counted");
    }
    if (!FAILED(told) && (told == S_OK) != (got == count)) Broken("the end is told");
  }

  FuzzInput input_;
  praxen::detail::ObjectPool pool_;
  std::vector<Enumerator> enumerators_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const praxen::detail::NothingStays counted;
  Client(FuzzInput(data, size)).Run();
  praxen::detail::SetIncludeCRLFInXML(true);
  return 0;
}
