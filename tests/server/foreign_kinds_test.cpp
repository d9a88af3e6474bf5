// Clients' own implementations of the kinds, in the lists of the model.
#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"
#include "praxen/praxen.h"
#include "tests/server/client.h"

namespace praxen::detail::client {
namespace {

// An object of a client; what derives from it adds the functions of a kind in slot order.
class ForeignObject : public IDispatch {
 public:
  explicit ForeignObject(std::u16string_view kind) : kind_(InterfaceId(*FindClass(kind))) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    const bool isKnown = iid == IID_IUnknown || iid == IID_IDispatch || iid == kind_;
    if (!isKnown && !answersAll) return E_NOINTERFACE;
    *out = this;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override { return --references; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return DISP_E_MEMBERNOTFOUND;
  }

  ULONG references = 1;
  /// Whether it answers whatever interface it is asked for, with itself.
  bool answersAll = false;

 private:
  const GUID kind_;
};

HRESULT Answer(bool answer, VARIANT_BOOL* out) {
  *out = answer ? VARIANT_TRUE : VARIANT_FALSE;
  return S_OK;
}

class ForeignBlock : public ForeignObject {
 public:
  ForeignBlock() : ForeignObject(u"ICodeBlock") {}

  virtual HRESULT STDMETHODCALLTYPE get_Name(BSTR* out) {
    if (FAILED(failure)) return failure;
    if (whenAsked) std::exchange(whenAsked, nullptr)();
    *out = BStr(name).Detach();
    return S_OK;
  }
  virtual HRESULT STDMETHODCALLTYPE put_Name(BSTR value) {
    name = ViewOf(value);
    return S_OK;
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsSTCodeBlock(VARIANT_BOOL* out) {
    if (whenAsked) std::exchange(whenAsked, nullptr)();
    return Answer(isStructuredText, out);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsSFCCodeBlock(VARIANT_BOOL* is) {
    return Answer(false, is);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsILCodeBlock(VARIANT_BOOL* is) {
    return Answer(false, is);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsFBDCodeBlock(VARIANT_BOOL* is) {
    return Answer(false, is);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsLDCodeBlock(VARIANT_BOOL* is) {
    return Answer(false, is);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsFDCodeBlock(VARIANT_BOOL* is) {
    return Answer(false, is);
  }

  std::u16string name = u"Foreign";
  bool isStructuredText = false;
  HRESULT failure = S_OK;
  /// Called once, before the next answer.
  std::function<void()> whenAsked;
};

class ForeignModule : public ForeignObject {
 public:
  ForeignModule() : ForeignObject(u"IControlModule") {}

  virtual HRESULT STDMETHODCALLTYPE put_Name(BSTR) { return E_NOTIMPL; }
  virtual HRESULT STDMETHODCALLTYPE get_Name(BSTR* out) {
    *out = BStr(u"Module").Detach();
    return S_OK;
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsControlModule(VARIANT_BOOL* is) {
    return Answer(false, is);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsSingleControlModule(VARIANT_BOOL* is) {
    return Answer(true, is);
  }
};

class ForeignKinds : public testing::Test {
 protected:
  ForeignBlock block_;
  const Handle program_ = [] {
    const Handle program = Create("Program");
    Put(program, u"Name", Variant(u"P"));
    return program;
  }();
  const Handle blocks_ = Obtain(program_, u"CodeBlocks");
};

TEST_F(ForeignKinds, TheClientGetsItsOwnObjectBack) {
  EXPECT_EQ(Call(blocks_, u"Add", {Variant(&block_)}).result, S_OK);
  EXPECT_GT(block_.references, 1u);
  EXPECT_EQ(Obtain(blocks_, u"Item", {Variant(1)}).Get(), &block_);
  EXPECT_EQ(Obtain(blocks_, u"Find", {Variant(u"Foreign")}).Get(), &block_);
  EXPECT_FALSE(Obtain(blocks_, u"Find", {Variant(u"foreign")}));
  block_.name = u"Renamed";
  EXPECT_EQ(Get(blocks_, u"FindNr", {Variant(u"Renamed")}).lVal, 1);

  const Variant walk = Get(blocks_, u"NewEnum");
  Variant visited;
  EXPECT_EQ(ComPointer<IUnknown>(walk.punkVal)
                .As<IEnumVARIANT>(IID_IEnumVARIANT)
                ->Next(1, &visited, nullptr),
            S_OK);
  EXPECT_EQ(visited.pdispVal, &block_);
}

TEST_F(ForeignKinds, WritingAsksTheClientsObject) {
  const std::u16string without(Get(program_, u"Serialize").View());
  Get(blocks_, u"Add", {Variant(&block_)});
  EXPECT_EQ(Call(program_, u"Serialize").result, S_OK);

  // It claims a class whose objects it cannot be.
  block_.isStructuredText = true;
  EXPECT_EQ(Call(program_, u"Serialize").code, DISP_E_TYPEMISMATCH);
  Get(blocks_, u"Remove", {Variant(1)});
  EXPECT_EQ(block_.references, 1u);
  EXPECT_EQ(Get(program_, u"Serialize").View(), without);
}

TEST_F(ForeignKinds, AFailureOfTheClientsObjectIsPassedOn) {
  Get(blocks_, u"Add", {Variant(&block_)});
  block_.failure = E_ABORT;
  const Outcome outcome = Call(blocks_, u"Find", {Variant(u"x")});
  EXPECT_EQ(outcome.result, DISP_E_EXCEPTION);
  EXPECT_EQ(outcome.code, E_ABORT);
}

TEST_F(ForeignKinds, OnlyTheKindThatIsNeededWillDo) {
  ForeignModule module;
  EXPECT_EQ(Call(blocks_, u"Add", {Variant(&module)}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(Call(blocks_, u"AddSTCodeBlock", {Variant(&block_)}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(Call(Create("Variables"), u"Add", {Variant(&block_)}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(Get(blocks_, u"Count").lVal, 0);

  const Handle modules = Create("ControlModules");
  EXPECT_EQ(Call(modules, u"Add", {Variant(&module)}).result, S_OK);
  EXPECT_EQ(Get(modules, u"FindNr", {Variant(u"Module")}).lVal, 1);
  EXPECT_EQ(Call(modules, u"Serialize").code, DISP_E_TYPEMISMATCH);
}

// What answers every question with itself would pass for an object of the library.
TEST_F(ForeignKinds, WhatClaimsEveryInterfaceIsRefused) {
  block_.answersAll = true;
  const Variant liar(&block_);
  const ULONG references = block_.references;
  for (const auto& [className, member] :
       {std::pair("Variables", u"Add"), std::pair("CodeBlocks", u"Add"),
        std::pair("CodeBlocks", u"AddSTCodeBlock"), std::pair("ControlModules", u"Add"),
        std::pair("VAProtocols", u"Add"), std::pair("MessageBucket", u"Add")}) {
    const Outcome outcome = Call(Create(className), member, {liar});
    EXPECT_EQ(outcome.result, DISP_E_TYPEMISMATCH) << className;
    EXPECT_EQ(outcome.badArgument, 0u) << className;
  }
  EXPECT_EQ(Put(program_, u"Variables", liar).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(Put(program_, u"CodeBlocks", liar).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(block_.references, references);
}

TEST_F(ForeignKinds, TheClientMayDoWhatItLikesWhileItIsAsked) {
  const auto longList = [] {
    const auto list = New<ApplicationVariables>();
    for (int i = 0; i < 1'000; ++i) list->GlobalVariables->Add1(u"Variable", u"real");
    return list->Serialize();
  };
  const Text other = longList();
  Ref<Program> program;
  Text expected;
  // A program that only the variable refers to, and so on down to what stands for the block.
  const auto renew = [&] {
    program = ObjectFactory::NewProgram(u"P", u"");
    program->CodeBlocks->AddSTCodeBlock1(u"Last");
    expected = program->Serialize();
    Object& list = *program->CodeBlocks;
    const Handle handle(reinterpret_cast<IDispatch*>(static_cast<Interface*>(&list)));
    Call(handle, u"AddBefore", {Variant(&block_), Variant(1)});
  };
  const std::function<void()> deeds[] = {
      [&] { program->CodeBlocks = New<CodeBlocks>(); },
      [&] { program->CodeBlocks->Remove(1); },
      [&] { program = nullptr; },
      [&] { EXPECT_EQ(program->Serialize(), expected); },
      [&] { EXPECT_EQ(longList(), other); },
      [&] { EXPECT_THROW(New<Program>()->Serialize(), Error); },
      [&] { EXPECT_EQ(ReadDocument(expected)->description().name, "Program"); },
  };
  for (const auto& deed : deeds) {
    SCOPED_TRACE(&deed - deeds);
    renew();
    block_.whenAsked = deed;
    EXPECT_EQ(program->Serialize(), expected);
    EXPECT_FALSE(block_.whenAsked);
    renew();
    block_.whenAsked = deed;
    EXPECT_TRUE(program->CodeBlocks->Find(u"Foreign"));
  }
  program = nullptr;
  EXPECT_EQ(block_.references, 1u);
}

}  // namespace
}  // namespace praxen::detail::client
