// Calls through interface tables that are declared by hand, as a compiled client has them.
#include <gtest/gtest.h>

#include <utility>

#include "praxen/core/text.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"
#include "tests/server/client.h"

namespace praxen::detail::client {

// Slot order is the order of declaration. The interfaces have linkage, because a compiler that sees
// that no class of the program implements them would otherwise take a call for impossible.
struct IVariables : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Add(IDispatch*) = 0;
  virtual HRESULT STDMETHODCALLTYPE AddBefore(IDispatch*, LONG) = 0;
  virtual HRESULT STDMETHODCALLTYPE Add1(BSTR, BSTR, IDispatch**) = 0;
  virtual HRESULT STDMETHODCALLTYPE Add2(BSTR, BSTR, BSTR, BSTR, BSTR, BSTR, BSTR, IDispatch**) = 0;
  virtual HRESULT STDMETHODCALLTYPE Find(BSTR, IDispatch**) = 0;
  virtual HRESULT STDMETHODCALLTYPE FindNr(BSTR, LONG*) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Item(LONG, IDispatch**) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Count(LONG*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Remove(LONG) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_NewEnum(IUnknown**) = 0;
};

struct IKindOfModule : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE put_Name(BSTR) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Name(BSTR*) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_IsControlModule(VARIANT_BOOL*) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_IsSingleControlModule(VARIANT_BOOL*) = 0;
};

namespace {

// The interface of a class, or of the kind that is named instead.
template <class I>
ComPointer<I> As(const Handle& object, std::u16string_view name) {
  return object.As<I>(InterfaceId(*FindClass(name)));
}

constexpr size_t kTypePath = 28, kSerialize = 29;

template <class I>
ComPointer<I> Make(std::string_view name) {
  return As<I>(Create(name), FromUtf8(name));
}

BStr B(const char16_t* text) { return BStr(text); }

// Calls the function in a slot of an object's interface table, which a client sees as one of
// another type than the library.
template <class... Arguments>
#ifdef __clang__
[[clang::no_sanitize("function")]]
#endif
HRESULT
CallSlot(const Handle& object, size_t slot, Arguments... arguments) {
  using Function = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, Arguments...);
  const auto slots = *reinterpret_cast<void* const* const*>(object.Get());
  return reinterpret_cast<Function>(slots[slot])(object.Get(), arguments...);
}

TEST(InterfaceTable, PropertiesOfAVariableStandInTheirSlots) {
  const auto variable = Make<IDispatch>("Variable");
  ASSERT_TRUE(variable);
  // Where the first function of each is, which gives the property; the next one changes it.
  const std::pair<const char16_t*, size_t> properties[] = {
      {u"Name", 7},
      {u"TypeName", 9},
      {u"PXAttribute", 11},
      {u"InitialValue", 13},
      {u"Description", 15},
      {u"ReadPermission", 17},
      {u"WritePermission", 19},
      {u"AuthenticationLevel", 21},
      {u"BatchProperty", 23},
      {u"AccessLevel", 30},
  };
  for (const auto& [name, slot] : properties) {
    EXPECT_EQ(CallSlot(variable, slot + 1, B(name).Get()), S_OK);
    EXPECT_EQ(GetText(variable, name), name);
    BStr text;
    EXPECT_EQ(CallSlot(variable, slot, text.Receive()), S_OK);
    EXPECT_EQ(text.View(), name);
    EXPECT_EQ(CallSlot(variable, slot, static_cast<BSTR*>(nullptr)), E_POINTER);
  }
  EXPECT_EQ(CallSlot(variable, 8, BSTR{}), S_OK);
  EXPECT_EQ(GetText(variable, u"Name"), u"");
  BStr unset;
  EXPECT_EQ(CallSlot(variable, kTypePath, unset.Receive()), S_OK);
  EXPECT_NE(unset.Get(), nullptr);
}

TEST(InterfaceTable, ListsGiveAndTakeObjects) {
  const auto list = Make<IVariables>("Variables");
  Handle first, second, found;
  EXPECT_EQ(list->Add1(B(u"a").Get(), B(u"real").Get(), first.Receive()), S_OK);
  EXPECT_EQ(list->Add2(B(u"b").Get(), B(u"int").Get(), B(u"constant").Get(), B(u"7").Get(), nullptr,
                       nullptr, B(u"text").Get(), second.Receive()),
            S_OK);
  EXPECT_EQ(GetText(second, u"InitialValue"), u"7");
  EXPECT_EQ(list->AddBefore(second.Get(), 1), S_OK);
  LONG number = 0;
  EXPECT_EQ(list->FindNr(B(u"a").Get(), &number), S_OK);
  EXPECT_EQ(number, 2);
  EXPECT_EQ(list->get_Item(1, found.Receive()), S_OK);
  EXPECT_EQ(found.Get(), second.Get());
  EXPECT_EQ(list->Find(B(u"A").Get(), found.Receive()), S_OK);
  EXPECT_FALSE(found);
  EXPECT_EQ(list->Remove(3), S_OK);
  EXPECT_EQ(list->get_Count(&number), S_OK);
  EXPECT_EQ(number, 2);

  EXPECT_EQ(list->Add(list.Get()), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(list->AddBefore(first.Get(), 9), E_INVALIDARG);
  IDispatch* stale = first.Get();
  EXPECT_EQ(list->get_Item(9, &stale), DISP_E_BADINDEX);
  EXPECT_EQ(stale, nullptr);
  EXPECT_EQ(list->Add1(B(u"c").Get(), B(u"real").Get(), nullptr), E_POINTER);
  EXPECT_EQ(list->get_Count(&number), S_OK);
  EXPECT_EQ(number, 2);
  EXPECT_EQ(list->Add(nullptr), S_OK);
  EXPECT_EQ(list->get_Item(3, found.Receive()), S_OK);
  EXPECT_FALSE(found);
}

TEST(InterfaceTable, NumbersVariantsAndReferencesCross) {
  constexpr size_t kAdd1 = 9, kAddSTCodeBlock2 = 11, kGetIncludeCRLF = 8, kPutIncludeCRLF = 9;
  Handle made;
  const auto nodes = Make<IDispatch>("GraphNodes");
  EXPECT_EQ(CallSlot(nodes, kAdd1, B(u"n").Get(), 0.5, -2.0, made.Receive()), S_OK);
  EXPECT_EQ(Get(made, u"X").dblVal, 0.5);
  EXPECT_EQ(Get(made, u"Y").dblVal, -2.0);

  const auto signals = Make<IDispatch>("Signals");
  const auto add = [&](const VARIANT& group) {
    return CallSlot(signals, kAdd1, B(u"s").Get(), B(u"p").Get(), B(u"out").Get(), group,
                    made.Receive());
  };
  EXPECT_EQ(add(Variant(12)), S_OK);
  EXPECT_EQ(GetText(made, u"AcknowledgeGroup"), u"12");
  EXPECT_EQ(add(OfType(VT_NULL)), DISP_E_TYPEMISMATCH);
  EXPECT_FALSE(made);

  const auto blocks = Make<IDispatch>("CodeBlocks");
  BStr code(u"x := 1;");
  BSTR text = code.Get();
  for (BSTR* const given : {&text, static_cast<BSTR*>(nullptr)}) {
    EXPECT_EQ(CallSlot(blocks, kAddSTCodeBlock2, B(u"Code").Get(), given, made.Receive()),
              given == nullptr ? E_POINTER : S_OK);
    EXPECT_EQ(made ? GetText(made, u"STcode") : u"", given == nullptr ? u"" : u"x := 1;");
  }

  const auto maintenance = Make<IDispatch>("maintenance");
  EXPECT_EQ(CallSlot(maintenance, kPutIncludeCRLF, VARIANT_BOOL{1}), S_OK);
  VARIANT_BOOL include = 0;
  EXPECT_EQ(CallSlot(maintenance, kGetIncludeCRLF, &include), S_OK);
  EXPECT_EQ(include, VARIANT_TRUE);
}

TEST(InterfaceTable, AKindIsASecondInterfaceOfTheSameObject) {
  const Handle module = Create("ControlModule");
  const auto kind = As<IKindOfModule>(module, u"IControlModule");
  ASSERT_TRUE(kind);
  EXPECT_NE(static_cast<IDispatch*>(kind.Get()), module.Get());
  EXPECT_EQ(kind->put_Name(B(u"M").Get()), S_OK);
  EXPECT_EQ(GetText(module, u"Name"), u"M");
  VARIANT_BOOL answer = VARIANT_FALSE;
  EXPECT_EQ(kind->get_IsControlModule(&answer), S_OK);
  EXPECT_EQ(answer, VARIANT_TRUE);
  EXPECT_EQ(kind->get_IsSingleControlModule(&answer), S_OK);
  EXPECT_EQ(answer, VARIANT_FALSE);

  EXPECT_EQ(kind.As<IUnknown>(IID_IUnknown).Get(), module.As<IUnknown>(IID_IUnknown).Get());
  EXPECT_EQ(kind.As<IDispatch>(IID_IDispatch).Get(), module.Get());
  EXPECT_TRUE(As<IDispatch>(Handle(kind.Get()), u"ControlModule"));
  EXPECT_FALSE(As<IDispatch>(module, u"ICodeBlock"));
  EXPECT_EQ(GetText(Handle(kind.Get()), u"TypeName"), u"");

  const Handle modules = Create("ControlModules");
  EXPECT_EQ(Call(modules, u"Add", {Variant(kind.Get())}).result, S_OK);
  EXPECT_EQ(Obtain(modules, u"Item", {Variant(1)}).Get(), module.Get());
}

TEST(InterfaceTable, ErrorInformationIsOfTheLastFailure) {
  const auto variable = Make<IDispatch>("Variable");
  const auto support = variable.As<ISupportErrorInfo>(IID_ISupportErrorInfo);
  ASSERT_TRUE(support);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(InterfaceId(*FindClass(u"Variable"))), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IDispatch), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IEnumVARIANT), S_FALSE);
  EXPECT_EQ(support.As<IUnknown>(IID_IUnknown).Get(), variable.As<IUnknown>(IID_IUnknown).Get());

  const auto reported = [] {
    ComPointer<IErrorInfo> info;
    BStr description;
    if (GetErrorInfo(0, info.Receive()) == S_OK) info->GetDescription(description.Receive());
    return std::u16string(description.View());
  };
  BStr text;
  EXPECT_EQ(CallSlot(variable, kSerialize, text.Receive()), static_cast<HRESULT>(0x80040259));
  EXPECT_EQ(reported(), u"Required fields empty");
  EXPECT_EQ(CallSlot(variable, kSerialize, text.Receive()), static_cast<HRESULT>(0x80040259));
  EXPECT_EQ(CallSlot(variable, 7, static_cast<BSTR*>(nullptr)), E_POINTER);
  EXPECT_EQ(reported(), u"Null pointer");
}

}  // namespace
}  // namespace praxen::detail::client
