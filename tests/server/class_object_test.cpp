// Class objects, the classes that they create, and what keeps the library loaded.
#include <gtest/gtest.h>

#include "praxen/automation/create_object.h"
#include "praxen/automation/guid.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"
#include "tests/server/client.h"

#ifndef _WIN32
STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** out);
STDAPI DllCanUnloadNow();
#endif

namespace praxen::detail::client {
namespace {

ComPointer<IClassFactory> FactoryOf(const ClassDescription& description) {
  ComPointer<IClassFactory> factory;
  DllGetClassObject(ClassId(description), IID_IClassFactory,
                    reinterpret_cast<void**>(factory.Receive()));
  return factory;
}

TEST(ClassObject, EveryClassButThreeIsCreated) {
  std::vector<std::string_view> refused;
  for (const ClassDescription& description : AllClasses()) {
    SCOPED_TRACE(description.name);
    void* out = &out;
    const HRESULT result = DllGetClassObject(ClassId(description), IID_IUnknown, &out);
    if (result == CLASS_E_CLASSNOTAVAILABLE) {
      EXPECT_EQ(out, nullptr);
      refused.push_back(description.name);
      continue;
    }
    ASSERT_EQ(result, S_OK);
    static_cast<IUnknown*>(out)->Release();
    ComPointer<IDispatch> object;
    EXPECT_EQ(FactoryOf(description)
                  ->CreateInstance(nullptr, InterfaceId(description),
                                   reinterpret_cast<void**>(object.Receive())),
              S_OK);
    EXPECT_TRUE(object);
  }
  EXPECT_EQ(AllClasses().size(), 100u);
  EXPECT_EQ(refused, (std::vector<std::string_view>{"ICodeBlock", "IControlModule", "IMsg"}));
}

TEST(ClassObject, BadRequestsAreRefused) {
  void* out = &out;
  const GUID unknown = ToGuid(NameUuid({}, "unknown"));
  const ClassDescription& variable = *FindClass(u"Variable");
  EXPECT_EQ(DllGetClassObject(unknown, IID_IClassFactory, &out), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(DllGetClassObject(ClassId(variable), IID_IDispatch, &out), E_NOINTERFACE);
  EXPECT_EQ(DllGetClassObject(ClassId(variable), IID_IClassFactory, nullptr), E_POINTER);

  const auto factory = FactoryOf(variable);
  EXPECT_EQ(factory->QueryInterface(IID_IDispatch, &out), E_NOINTERFACE);
  EXPECT_EQ(factory->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(factory->CreateInstance(factory.Get(), IID_IUnknown, &out), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, nullptr), E_POINTER);
  const int32_t before = CountedObjects();
  out = &out;
  EXPECT_EQ(factory->CreateInstance(nullptr, unknown, &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(CountedObjects(), before);
}

TEST(ClassObject, LocksKeepTheLibrary) {
  ASSERT_EQ(DllCanUnloadNow(), S_OK);
  const ClassDescription& variables = *FindClass(u"Variables");
  EXPECT_EQ(FactoryOf(variables)->LockServer(FALSE), E_UNEXPECTED);
  EXPECT_EQ(FactoryOf(variables)->LockServer(TRUE), S_OK);
  EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
  EXPECT_EQ(FactoryOf(variables)->LockServer(FALSE), S_OK);
}

// What a client may hold alone after all else is released.
TEST(ClassObject, WhateverIsHeldKeepsTheLibrary) {
  const auto check = [](auto hold) {
    ASSERT_EQ(DllCanUnloadNow(), S_OK);
    {
      const auto held = hold();
      ASSERT_TRUE(held);
      EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
    }
    EXPECT_EQ(DllCanUnloadNow(), S_OK);
  };
  check([] { return Create("Variable"); });
  check([] { return Create("LDCodeBlock"); });
  check([] { return Create("ISFCElement"); });
  check([] { return Create("Variable").As<ISupportErrorInfo>(IID_ISupportErrorInfo); });
  check([] { return FactoryOf(*FindClass(u"Task")); });
  check([] {
    const Variant enumerator = Get(Create("Variables"), u"NewEnum");
    return ComPointer<IUnknown>(enumerator.punkVal);
  });
  check([] {
    return Create("ControlModule").As<IUnknown>(InterfaceId(*FindClass(u"IControlModule")));
  });
}

}  // namespace
}  // namespace praxen::detail::client
