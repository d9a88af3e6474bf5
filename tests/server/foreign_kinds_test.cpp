// Clients' own implementations of the kinds, in the lists of the model.
#include <gtest/gtest.h>

#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"
#include "tests/server/client.h"

namespace praxen::detail::client {
namespace {

// An object of a client; what derives from it adds the functions of a kind in slot order.
class ForeignObject : public IDispatch {
 public:
  explicit ForeignObject(std::u16string_view kind) : kind_(InterfaceId(*FindClass(kind))) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch && iid != kind_) return E_NOINTERFACE;
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
    *out = BStr(name).Detach();
    return S_OK;
  }
  virtual HRESULT STDMETHODCALLTYPE put_Name(BSTR value) {
    name = ViewOf(value);
    return S_OK;
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsSTCodeBlock(VARIANT_BOOL* out) {
    return Answer(isStructuredText, out);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsSFCCodeBlock(VARIANT_BOOL* out) {
    return Answer(false, out);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsILCodeBlock(VARIANT_BOOL* out) {
    return Answer(false, out);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsFBDCodeBlock(VARIANT_BOOL* out) {
    return Answer(false, out);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsLDCodeBlock(VARIANT_BOOL* out) {
    return Answer(false, out);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsFDCodeBlock(VARIANT_BOOL* out) {
    return Answer(false, out);
  }

  std::u16string name = u"Foreign";
  bool isStructuredText = false;
  HRESULT failure = S_OK;
};

class ForeignModule : public ForeignObject {
 public:
  ForeignModule() : ForeignObject(u"IControlModule") {}

  virtual HRESULT STDMETHODCALLTYPE put_Name(BSTR) { return E_NOTIMPL; }
  virtual HRESULT STDMETHODCALLTYPE get_Name(BSTR* out) {
    *out = BStr(u"Module").Detach();
    return S_OK;
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsControlModule(VARIANT_BOOL* out) {
    return Answer(false, out);
  }
  virtual HRESULT STDMETHODCALLTYPE get_IsSingleControlModule(VARIANT_BOOL* out) {
    return Answer(true, out);
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

TEST_F(ForeignKinds, RemovingReleasesTheClientsObject) {
  Get(blocks_, u"Add", {Variant(&block_)});
  Get(blocks_, u"Remove", {Variant(1)});
  EXPECT_EQ(block_.references, 1u);
}

TEST_F(ForeignKinds, WritingAsksTheClientsObject) {
  const std::u16string without(Get(program_, u"Serialize").View());
  Get(blocks_, u"Add", {Variant(&block_)});
  EXPECT_EQ(Call(program_, u"Serialize").result, S_OK);

  // It claims a class whose objects it cannot be.
  block_.isStructuredText = true;
  EXPECT_EQ(Call(program_, u"Serialize").code, DISP_E_TYPEMISMATCH);
  Get(blocks_, u"Remove", {Variant(1)});
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

}  // namespace
}  // namespace praxen::detail::client
