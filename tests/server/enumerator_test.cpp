// Enumerators, which for-each loops walk.
#include <gtest/gtest.h>

#include "tests/server/client.h"

namespace praxen::detail::client {
namespace {

using Enumerator = ComPointer<IEnumVARIANT>;

Enumerator EnumeratorOf(const Handle& list) {
  const Outcome outcome = Invoke(list, DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {});
  // Not VT_DISPATCH: a client may call what is of that type.
  if (outcome.value.vt != VT_UNKNOWN) return {};
  return ComPointer<IUnknown>(outcome.value.punkVal).As<IEnumVARIANT>(IID_IEnumVARIANT);
}

// The names of the next elements, up to `count`.
std::u16string Next(const Enumerator& enumerator, ULONG count, HRESULT expected) {
  Values values(count);
  ULONG fetched = 99;
  EXPECT_EQ(enumerator->Next(count, values.data(), &fetched), expected);
  std::u16string names;
  for (ULONG i = 0; i < fetched && i < count; ++i) names += GetText(ToHandle(values[i]), u"Name");
  return names;
}

class EnumeratorOfThree : public testing::Test {
 protected:
  EnumeratorOfThree() {
    for (const char16_t* const name : {u"a", u"b", u"c"}) {
      Get(list_, u"Add1", {Variant(name), Variant(u"real")});
    }
  }

  Handle list_ = Create("Variables");
};

TEST_F(EnumeratorOfThree, WalksInListOrder) {
  const Enumerator enumerator = EnumeratorOf(list_);
  ASSERT_TRUE(enumerator);
  EXPECT_EQ(Next(enumerator, 2, S_OK), u"ab");
  const Enumerator copy = [&] {
    Enumerator made;
    EXPECT_EQ(enumerator->Clone(made.Receive()), S_OK);
    return made;
  }();
  EXPECT_EQ(Next(enumerator, 2, S_FALSE), u"c");
  EXPECT_EQ(Next(enumerator, 1, S_FALSE), u"");
  EXPECT_EQ(enumerator->Reset(), S_OK);
  EXPECT_EQ(enumerator->Skip(2), S_OK);
  EXPECT_EQ(Next(enumerator, 1, S_OK), u"c");
  EXPECT_EQ(enumerator->Skip(1), S_FALSE);
  EXPECT_EQ(enumerator->Skip(0xFFFFFFFF), S_FALSE);
  EXPECT_EQ(Next(copy, 1, S_OK), u"c");
}

TEST_F(EnumeratorOfThree, VisitsWhatTheListHeld) {
  const Enumerator enumerator = EnumeratorOf(list_);
  EXPECT_EQ(Next(enumerator, 1, S_OK), u"a");
  Get(list_, u"Remove", {Variant(2)});
  Get(list_, u"Add1", {Variant(u"d"), Variant(u"real")});
  list_ = {};
  EXPECT_EQ(Next(enumerator, 9, S_FALSE), u"bc");
}

TEST_F(EnumeratorOfThree, AnEmptyReferenceIsVisitedAsNothing) {
  const Handle list = Create("Variables");
  Get(list, u"Add", {Variant(static_cast<IDispatch*>(nullptr))});
  Variant value;
  EXPECT_EQ(EnumeratorOf(list)->Next(1, &value, nullptr), S_OK);
  EXPECT_EQ(value.vt, VT_DISPATCH);
  EXPECT_EQ(value.pdispVal, nullptr);
}

TEST_F(EnumeratorOfThree, BadRequestsAreRefused) {
  const Enumerator enumerator = EnumeratorOf(list_);
  Variant values[2];
  ULONG fetched = 99;
  EXPECT_EQ(enumerator->Next(1, nullptr, &fetched), E_POINTER);
  EXPECT_EQ(fetched, 0u);
  EXPECT_EQ(enumerator->Next(2, values, nullptr), E_POINTER);
  EXPECT_EQ(enumerator->Clone(nullptr), E_POINTER);
  EXPECT_EQ(enumerator->QueryInterface(IID_IEnumVARIANT, nullptr), E_POINTER);
  void* out = &out;
  EXPECT_EQ(enumerator->QueryInterface(IID_IDispatch, &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(Next(enumerator, 3, S_OK), u"abc");
  EXPECT_EQ(Call(list_, u"NewEnum", {Variant(1)}).result, DISP_E_BADPARAMCOUNT);
  // An enumerator is no object of the model.
  Variant wrong;
  wrong.vt = VT_UNKNOWN;
  enumerator->AddRef();
  wrong.punkVal = enumerator.Get();
  EXPECT_EQ(Call(list_, u"Add", {wrong}).result, DISP_E_TYPEMISMATCH);
}

}  // namespace
}  // namespace praxen::detail::client
