// Late-bound calls: what scripts may write, and what each of their mistakes gives.
#include <gtest/gtest.h>

#include <string>

#include "praxen/core/text.h"
#include "praxen/factory/classes.h"
#include "tests/server/client.h"

namespace praxen::detail::client {
namespace {

constexpr WORD kGet = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
const Variant kNothing(static_cast<IDispatch*>(nullptr));
const Variant kLeftOut = OfType(VT_ERROR, DISP_E_PARAMNOTFOUND);

struct Conversion {
  const char* className;
  const char16_t* property;
  Variant given;
  const char16_t* kept;  // As text; null when the value is refused.
  HRESULT error = S_OK;
};

void PrintTo(const Conversion& conversion, std::ostream* stream) {
  *stream << ToUtf8(conversion.property) << " from type " << conversion.given.vt;
}

class PropertyConversion : public testing::TestWithParam<Conversion> {};

TEST_P(PropertyConversion, FollowsThePlatformOrChangesNothing) {
  const Conversion& conversion = GetParam();
  const Handle object = Create(conversion.className);
  Variant before = Get(object, conversion.property);
  const Outcome outcome = Put(object, conversion.property, conversion.given);
  EXPECT_EQ(outcome.result, conversion.error);
  Variant after = Get(object, conversion.property);
  ASSERT_EQ(after.ChangeType(VT_BSTR, VARIANT_ALPHABOOL), S_OK);
  ASSERT_EQ(before.ChangeType(VT_BSTR, VARIANT_ALPHABOOL), S_OK);
  if (conversion.kept == nullptr) {
    EXPECT_EQ(after.View(), before.View());
    EXPECT_EQ(outcome.badArgument, 0u);
    EXPECT_FALSE(outcome.reported.empty());
  } else {
    EXPECT_EQ(after.View(), conversion.kept);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Table, PropertyConversion,
    testing::Values(
        Conversion{"Variable", u"name", Variant(u"L\u00E4nge"), u"L\u00E4nge"},
        Conversion{"Variable", u"Name", Variant(true), u"True"},
        Conversion{"Variable", u"Name", Variant(), u""},
        Conversion{"Variable", u"Name", OfType(VT_NULL), nullptr, DISP_E_TYPEMISMATCH},
        Conversion{"Variable", u"Name", kNothing, nullptr, DISP_E_TYPEMISMATCH},
        Conversion{"Variable", u"Name", kLeftOut, nullptr, DISP_E_PARAMNOTOPTIONAL},
        Conversion{"Variable", u"Name", Reference(VT_BSTR, nullptr), nullptr, DISP_E_TYPEMISMATCH},
        Conversion{"Variable", u"Name", Reference(VT_VARIANT, nullptr), nullptr,
                   DISP_E_TYPEMISMATCH},
        Conversion{"GraphNode", u"X", Variant(u"2.5m"), nullptr, DISP_E_TYPEMISMATCH},
        Conversion{"ErrorMsg", u"ErrorNo", Variant(u" 12 "), u"12"},
        Conversion{"ErrorMsg", u"ErrorNo", Variant(3e9), nullptr, DISP_E_OVERFLOW},
        Conversion{"Parameter", u"Direction", Variant(u"2"), u"2"},
        Conversion{"Parameter", u"Direction", Variant(u"pxOut"), nullptr, DISP_E_TYPEMISMATCH},
        Conversion{"FunctionBlock", u"AspectObject", Variant(0), u"False"},
        Conversion{"FunctionBlock", u"AspectObject", Variant(u"no"), nullptr,
                   DISP_E_TYPEMISMATCH}));

class LateBound : public testing::Test {
 protected:
  const Handle program_ = Create("Program");
  const Handle variables_ = Obtain(program_, u"Variables");

  Handle Add(const char16_t* name) {
    return Obtain(variables_, u"Add1", {Variant(name), Variant(u"real")});
  }
};

TEST_F(LateBound, ReferencesAreFollowed) {
  const Handle variable = Create("Variable");
  Variant text(u"by reference");
  EXPECT_EQ(Put(variable, u"Name", Reference(VT_VARIANT, &text)).result, S_OK);
  EXPECT_EQ(GetText(variable, u"Name"), u"by reference");
  BStr characters(u"characters");
  BSTR pointer = characters.Get();
  Variant inner = Reference(VT_BSTR, &pointer);
  EXPECT_EQ(Put(variable, u"Name", Reference(VT_VARIANT, &inner)).result, S_OK);
  EXPECT_EQ(GetText(variable, u"Name"), u"characters");
  const Handle blocks = Obtain(program_, u"CodeBlocks");
  EXPECT_EQ(GetText(Obtain(blocks, u"AddSTCodeBlock2", {Variant(u"b"), inner}), u"STcode"),
            u"characters");
  EXPECT_EQ(pointer, characters.Get());

  Variant loop = Reference(VT_VARIANT, nullptr);
  loop.pvarVal = &loop;
  EXPECT_EQ(Put(variable, u"Name", Reference(VT_VARIANT, &loop)).result, DISP_E_TYPEMISMATCH);
  IDispatch* object = variable.Get();
  EXPECT_EQ(Call(variables_, u"Add", {Reference(VT_DISPATCH, &object)}).result, S_OK);
  Variant held(object);
  EXPECT_EQ(Call(variables_, u"Add", {Reference(VT_VARIANT, &held)}).result, S_OK);
  EXPECT_EQ(Get(variables_, u"Count").lVal, 2);
}

TEST_F(LateBound, ValuesOfUnknownTypesAreRefused) {
  DISPID put = DISPID_PROPERTYPUT;
  constexpr int kTypes[] = {999, VT_ARRAY | VT_BSTR, VT_ARRAY | VT_BYREF | VT_VARIANT, VT_BYREF};
  for (const int type : kTypes) {
    VARIANT value = {};
    value.vt = static_cast<VARTYPE>(type);
    DISPPARAMS parameters = {&value, &put, 1, 1};
    for (const char16_t* const member : {u"Name", u"Variables", u"Description"}) {
      UINT badArgument = 99;
      EXPECT_EQ(program_->Invoke(IdOf(program_, member), IID_NULL, 0, DISPATCH_PROPERTYPUT,
                                 &parameters, nullptr, nullptr, &badArgument),
                DISP_E_TYPEMISMATCH);
      EXPECT_EQ(badArgument, 0u);
    }
  }
  EXPECT_EQ(Obtain(program_, u"Variables").Get(), variables_.Get());
}

TEST_F(LateBound, AssignedValueMayOnlyBeNamedAsSuch) {
  VARIANT values[] = {Variant(u"a").Detach(), {}};
  DISPID name = 0;
  DISPPARAMS parameters = {values, &name, 1, 1};
  UINT badArgument = 99;
  EXPECT_EQ(program_->Invoke(IdOf(program_, u"Name"), IID_NULL, 0, DISPATCH_PROPERTYPUT,
                             &parameters, nullptr, nullptr, &badArgument),
            DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(badArgument, 0u);
  VariantClear(values);
}

TEST_F(LateBound, SurplusArgumentsGoToTheDefaultMember) {
  Add(u"First");
  Add(u"Second");
  const Handle second = Obtain(program_, u"Variables", {Variant(2)});
  EXPECT_EQ(GetText(second, u"Name"), u"Second");
  EXPECT_EQ(ToHandle(Invoke(variables_, DISPID_VALUE, kGet, {Variant(u"1")}).value).Get(),
            Obtain(program_, u"variables", {Variant(1)}).Get());

  const Outcome outside = Call(program_, u"Variables", {Variant(3)});
  EXPECT_EQ(outside.result, DISP_E_EXCEPTION);
  EXPECT_EQ(outside.code, DISP_E_BADINDEX);
  EXPECT_EQ(Call(program_, u"Name", {Variant(1)}).result, DISP_E_BADPARAMCOUNT);
  const DISPID id = IdOf(program_, u"Variables");
  EXPECT_EQ(Invoke(program_, id, DISPATCH_PROPERTYPUT, {Variant(1)},
                   {{DISPID_PROPERTYPUT, Variant(u"x")}})
                .result,
            DISP_E_MEMBERNOTFOUND);
}

// A method would have done its work by then.
TEST(LateBoundMethods, HaveNoPlaceForSurplusArguments) {
  int methods = 0;
  for (const ClassDescription& description : AllClasses()) {
    const Handle object = Create(description.name);
    if (!object) continue;
    for (const Member& member : description.members) {
      if (!member.isMethod) continue;
      SCOPED_TRACE(testing::Message() << description.name << "." << member.name);
      const Values surplus(member.parameters.size() + 1, Variant(1));
      EXPECT_EQ(Invoke(object, member.id, kGet, surplus).result, DISP_E_BADPARAMCOUNT);
      ++methods;
    }
    EXPECT_TRUE(description.FindMember(u"Count") == nullptr || Get(object, u"Count").lVal == 0);
  }
  EXPECT_GT(methods, 300);
}

TEST_F(LateBound, ObjectsAreAssignedByValueOrReference) {
  const Handle others = Create("Variables");
  const DISPID id = IdOf(program_, u"Variables");
  constexpr WORD kAssignments[] = {DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF};
  for (const WORD flags : kAssignments) {
    EXPECT_EQ(Invoke(program_, id, flags, {}, {{DISPID_PROPERTYPUT, kNothing}}).result, S_OK);
    EXPECT_FALSE(Obtain(program_, u"Variables"));
    EXPECT_EQ(Call(program_, u"Variables", {Variant(1)}).result, DISP_E_EXCEPTION);
    EXPECT_EQ(Invoke(program_, id, flags, {Variant(others.Get())}).result, S_OK);
    EXPECT_EQ(Obtain(program_, u"Variables").Get(), others.Get());
  }
  EXPECT_EQ(
      Invoke(program_, IdOf(program_, u"Name"), DISPATCH_PROPERTYPUTREF, {Variant(u"x")}).result,
      DISP_E_MEMBERNOTFOUND);
}

TEST_F(LateBound, NamedArgumentsFindTheirPlaces) {
  BStr names[] = {BStr(u"ADD1"), BStr(u"typename"), BStr(u"Name"), BStr(u"Nonsense")};
  LPOLESTR pointers[] = {names[0].Get(), names[1].Get(), names[2].Get(), names[3].Get()};
  DISPID ids[4] = {};
  EXPECT_EQ(variables_->GetIDsOfNames(IID_NULL, pointers, 4, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[1], 1);
  EXPECT_EQ(ids[2], 0);
  EXPECT_EQ(ids[3], DISPID_UNKNOWN);

  const auto invoke = [&](const Values& unnamed,
                          const std::vector<std::pair<DISPID, Variant>>& named) {
    return Invoke(variables_, ids[0], kGet, unnamed, named);
  };
  const Handle made = ToHandle(invoke({}, {{1, Variant(u"bool")}, {0, Variant(u"Valve")}}).value);
  EXPECT_EQ(GetText(made, u"Name") + u" " + GetText(made, u"TypeName"), u"Valve bool");
  EXPECT_EQ(invoke({Variant(u"Pump")}, {{1, Variant(u"int")}}).result, S_OK);

  EXPECT_EQ(invoke({Variant(u"a")}, {{0, Variant(u"b")}}).result, DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(invoke({}, {{0, Variant(u"a")}, {0, Variant(u"b")}}).badArgument, 1u);
  EXPECT_EQ(invoke({Variant(u"a")}, {{7, Variant(u"b")}}).result, DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(invoke({Variant(u"a")}, {{-1, Variant(u"b")}}).result, DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(Get(variables_, u"Count").lVal, 2);
}

TEST_F(LateBound, MistakesAreToldAndChangeNothing) {
  struct Mistake {
    const char16_t* member;
    Values arguments;
    HRESULT result;
    UINT badArgument = 99;
  };
  const Variant name(u"a");
  const Variant foreign(program_.Get());
  const Mistake mistakes[] = {
      {u"Add1", {}, DISP_E_PARAMNOTOPTIONAL},
      {u"Add1", {name}, DISP_E_PARAMNOTOPTIONAL},
      {u"Add1", {name, name, name}, DISP_E_BADPARAMCOUNT},
      {u"Add1", {name, kLeftOut}, DISP_E_PARAMNOTOPTIONAL, 0},
      {u"Add1", {OfType(VT_NULL), name}, DISP_E_TYPEMISMATCH, 1},
      {u"Add", {}, DISP_E_PARAMNOTOPTIONAL},
      {u"Add", {name}, DISP_E_TYPEMISMATCH, 0},
      {u"Add", {Variant()}, DISP_E_TYPEMISMATCH, 0},
      {u"Add", {foreign}, DISP_E_TYPEMISMATCH, 0},
      {u"Add", {Reference(VT_DISPATCH, nullptr)}, DISP_E_TYPEMISMATCH, 0},
      {u"Item", {}, DISP_E_PARAMNOTOPTIONAL},
      {u"Item", {name}, DISP_E_TYPEMISMATCH, 0},
      {u"Item", {foreign}, DISP_E_TYPEMISMATCH, 0},
      {u"Remove", {Variant(1e10)}, DISP_E_OVERFLOW, 0},
      {u"Count", {Variant(1)}, DISP_E_BADPARAMCOUNT},
      {u"Nonsense", {}, DISP_E_MEMBERNOTFOUND},
  };
  for (const Mistake& mistake : mistakes) {
    SCOPED_TRACE(ToUtf8(mistake.member));
    const Outcome outcome = Call(variables_, mistake.member, mistake.arguments);
    EXPECT_EQ(outcome.result, mistake.result);
    EXPECT_EQ(outcome.badArgument, mistake.badArgument);
    EXPECT_EQ(outcome.value.vt, VT_EMPTY);
    EXPECT_FALSE(outcome.reported.empty());
  }
  EXPECT_EQ(Put(variables_, u"Count", Variant(1)).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Put(variables_, u"Add", Variant(1)).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Put(Create("Variable"), u"TypePath", name).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Put(program_, u"Variables", foreign).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(Get(variables_, u"Count").lVal, 0);
}

TEST_F(LateBound, ErrorsOfMembersAreDescribedInBothPlaces) {
  const Outcome outcome = Call(program_, u"Serialize");
  EXPECT_EQ(outcome.result, DISP_E_EXCEPTION);
  EXPECT_EQ(outcome.code, static_cast<HRESULT>(0x80040259));
  EXPECT_EQ(outcome.description, u"Required fields empty");
  EXPECT_EQ(outcome.reported, outcome.description);

  DISPPARAMS none = {};
  EXPECT_EQ(program_->Invoke(IdOf(program_, u"Serialize"), IID_NULL, 0, DISPATCH_METHOD, &none,
                             nullptr, nullptr, nullptr),
            static_cast<HRESULT>(0x80040259));
}

TEST_F(LateBound, MembersOfTheKindStandBesideThoseOfTheClass) {
  const Handle message = Create("ErrorMsg");
  EXPECT_EQ(Get(message, u"ErrorNo").lVal, 0);
  EXPECT_EQ(Get(message, u"IsErrorMsg").boolVal, VARIANT_TRUE);
  EXPECT_EQ(Get(message, u"isfindmsg").boolVal, VARIANT_FALSE);
  EXPECT_EQ(Put(message, u"IsErrorMsg", Variant(true)).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_NE(IdOf(message, u"IsErrorMsg"), IdOf(message, u"ErrorNo"));
}

TEST_F(LateBound, NullPointersAreRefused) {
  BStr name(u"Name");
  LPOLESTR names[] = {name.Get(), nullptr};
  DISPID ids[2] = {};
  EXPECT_EQ(program_->GetIDsOfNames(IID_NULL, nullptr, 1, 0, ids), E_POINTER);
  EXPECT_EQ(program_->GetIDsOfNames(IID_NULL, names, 1, 0, nullptr), E_POINTER);
  EXPECT_EQ(program_->GetIDsOfNames(IID_NULL, names, 0, 0, ids), E_INVALIDARG);
  EXPECT_EQ(program_->GetIDsOfNames(IID_NULL, names, 2, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(program_->GetIDsOfNames(IID_NULL, names + 1, 1, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(program_->GetTypeInfoCount(nullptr), E_POINTER);
  EXPECT_EQ(program_->GetTypeInfo(0, 0, nullptr), E_POINTER);
  EXPECT_EQ(program_->QueryInterface(IID_IUnknown, nullptr), E_POINTER);

  Variant value(u"x");
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS unsound[] = {{nullptr, nullptr, 1, 0},
                          {&value, nullptr, 1, 1},
                          {&value, &put, 0, 1},
                          {nullptr, &put, 0xFFFFFFFF, 0}};
  const DISPID id = IdOf(program_, u"Name");
  for (DISPPARAMS& parameters : unsound) {
    EXPECT_EQ(program_->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr,
                               nullptr),
              E_INVALIDARG);
  }
  DISPPARAMS sound = {&value, &put, 1, 1};
  EXPECT_EQ(program_->Invoke(id, IID_NULL, 0, 0, &sound, nullptr, nullptr, nullptr), E_INVALIDARG);
  EXPECT_EQ(
      program_->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYPUT, nullptr, nullptr, nullptr, nullptr),
      E_INVALIDARG);
  EXPECT_EQ(GetText(program_, u"Name"), u"");
}

}  // namespace
}  // namespace praxen::detail::client
