// The automation types: layout, texts, variants and their conversions, error objects.
#include "praxen/automation/automation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <locale>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "praxen/automation/conversion.h"
#include "praxen/automation/values.h"
#include "praxen/core/locale.h"

namespace praxen::detail {
namespace {

static_assert(sizeof(VARIANT) == 24 && offsetof(VARIANT, bstrVal) == 8);
static_assert(offsetof(VARIANT, decVal) == 0 && offsetof(DECIMAL, Lo64) == 8);
static_assert(sizeof(DISPPARAMS) == 24 && offsetof(DISPPARAMS, cArgs) == 16);
static_assert(sizeof(EXCEPINFO) == 64 && offsetof(EXCEPINFO, bstrSource) == 8);
static_assert(offsetof(EXCEPINFO, dwHelpContext) == 32 && offsetof(EXCEPINFO, scode) == 56);
static_assert(sizeof(GUID) == 16 && offsetof(GUID, Data4) == 8 && sizeof(OLECHAR) == 2);
static_assert(sizeof(VARIANT_BOOL) == 2 && sizeof(BOOL) == 4 && sizeof(LONG) == 4);

// An object whose value is what the test sets.
class ValueObject final : public IDispatch {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    const bool known = iid == IID_IUnknown || (iid == IID_IDispatch && isDispatch);
    if (!known) return E_NOINTERFACE;
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override {
    if (watched != nullptr) typeAtRelease = watched->vt;
    return --references;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    return member == DISPID_VALUE ? VariantCopy(result, value) : DISP_E_MEMBERNOTFOUND;
  }

  ULONG references = 1;
  bool isDispatch = true;
  VARIANT* value = nullptr;
  const VARIANT* watched = nullptr;
  VARTYPE typeAtRelease = VT_EMPTY;
};

// Variants of all integer types: the bits of the number, as many as the type has.
Variant Whole(VARTYPE type, long long value) {
  Variant variant;
  variant.llVal = value;
  variant.vt = type;
  return variant;
}

Variant Real(VARTYPE type, double value) {
  Variant variant;
  if (type == VT_R4) {
    variant.fltVal = static_cast<float>(value);
  } else {
    variant.dblVal = value;
  }
  variant.vt = type;
  return variant;
}

Variant Decimal(ULONGLONG magnitude, BYTE scale, BYTE sign = 0, ULONG high = 0) {
  Variant variant;
  variant.decVal.Lo64 = magnitude;
  variant.decVal.Hi32 = high;
  variant.decVal.scale = scale;
  variant.decVal.sign = sign;
  variant.vt = VT_DECIMAL;
  return variant;
}

Variant Text(const char16_t* text) { return Variant(text); }

const OLECHAR* Ole(const char16_t* text) { return reinterpret_cast<const OLECHAR*>(text); }

std::string Ascii(std::u16string_view text) {
  std::string ascii;
  for (const char16_t c : text) ascii.push_back(static_cast<char>(c));
  return ascii;
}

std::string ShowError(HRESULT error) {
  if (error == DISP_E_TYPEMISMATCH) return "mismatch";
  if (error == DISP_E_OVERFLOW) return "overflow";
  if (error == DISP_E_BADVARTYPE) return "bad type";
  return error == E_INVALIDARG ? "invalid" : "error " + std::to_string(error);
}

std::string ShowNumber(auto number) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out.precision(17);
  out << +number;
  return out.str();
}

std::string Show(const VARIANT& value) {
  static const std::map<VARTYPE, std::string (*)(const VARIANT&)> kShown = {
      {VT_EMPTY, [](const VARIANT&) { return std::string("empty"); }},
      {VT_NULL, [](const VARIANT&) { return std::string("null"); }},
      {VT_I1, [](const VARIANT& v) { return ShowNumber(static_cast<signed char>(v.cVal)); }},
      {VT_UI1, [](const VARIANT& v) { return ShowNumber(v.bVal); }},
      {VT_I2, [](const VARIANT& v) { return ShowNumber(v.iVal); }},
      {VT_BOOL, [](const VARIANT& v) { return ShowNumber(v.boolVal); }},
      {VT_UI2, [](const VARIANT& v) { return ShowNumber(v.uiVal); }},
      {VT_I4, [](const VARIANT& v) { return ShowNumber(v.lVal); }},
      {VT_INT, [](const VARIANT& v) { return ShowNumber(v.intVal); }},
      {VT_ERROR, [](const VARIANT& v) { return ShowNumber(v.scode); }},
      {VT_UI4, [](const VARIANT& v) { return ShowNumber(v.ulVal); }},
      {VT_UINT, [](const VARIANT& v) { return ShowNumber(v.uintVal); }},
      {VT_I8, [](const VARIANT& v) { return ShowNumber(v.llVal); }},
      {VT_CY, [](const VARIANT& v) { return ShowNumber(v.cyVal.int64); }},
      {VT_UI8, [](const VARIANT& v) { return ShowNumber(v.ullVal); }},
      {VT_R4, [](const VARIANT& v) { return ShowNumber(v.fltVal); }},
      {VT_R8, [](const VARIANT& v) { return ShowNumber(v.dblVal); }},
      {VT_DATE, [](const VARIANT& v) { return ShowNumber(v.date); }},
      {VT_BSTR, [](const VARIANT& v) { return "'" + Ascii(ViewOf(v.bstrVal)) + "'"; }}};
  const auto shown = kShown.find(value.vt);
  return shown == kShown.end() ? "type " + std::to_string(value.vt) : shown->second(value);
}

struct Conversion {
  Variant source;
  VARTYPE target;
  const char* expected;
  USHORT flags = 0;
};

void Check(const std::vector<Conversion>& conversions) {
  for (const Conversion& row : conversions) {
    SCOPED_TRACE(std::to_string(row.source.vt) + " " + Show(row.source) + " to " +
                 std::to_string(row.target));
    Variant target(u"kept");
    const HRESULT result = ConvertVariant(target, row.source, row.flags, row.target);
    EXPECT_EQ(FAILED(result) ? ShowError(result) : Show(target), row.expected);
    EXPECT_EQ(target.vt, FAILED(result) ? VARTYPE{VT_BSTR} : row.target);
  }
}

TEST(Conversion, BetweenNumbers) {
  Check({
      {Whole(VT_I2, -1), VT_I4, "-1"},
      {Whole(VT_I4, 70000), VT_I2, "overflow"},
      {Whole(VT_I4, -1), VT_UI1, "overflow"},
      {Whole(VT_UI4, 0xFFFFFFFF), VT_I8, "4294967295"},
      {Whole(VT_UI8, -1), VT_R8, "1.8446744073709552e+19"},
      {Whole(VT_I8, std::numeric_limits<long long>::max()), VT_CY, "overflow"},
      {Real(VT_R8, 2.5), VT_I4, "2"},
      {Real(VT_R8, 3.5), VT_INT, "4"},
      {Real(VT_R8, -2.5), VT_I2, "-2"},
      {Real(VT_R4, -0.5), VT_UI1, "0"},
      {Real(VT_R8, 2147483647.5), VT_I4, "overflow"},
      {Real(VT_R8, -2147483648.5), VT_I4, "-2147483648"},
      {Real(VT_R8, -1), VT_UINT, "overflow"},
      {Real(VT_R8, 9223372036854775808.0), VT_I8, "overflow"},
      {Real(VT_R8, 1e300), VT_R4, "overflow"},
      {Real(VT_R8, 2.5), VT_CY, "25000"},
      {Real(VT_R8, 1e16), VT_CY, "overflow"},
      {Whole(VT_CY, 25000), VT_I4, "2"},
      {Whole(VT_CY, -35000), VT_I4, "-4"},
      {Whole(VT_CY, -26000), VT_R8, "-2.6000000000000001"},
      {Real(VT_DATE, 2.5), VT_R8, "2.5"},
      {Real(VT_R8, 36526.25), VT_DATE, "36526.25"},
      {Real(VT_R8, 2958466), VT_DATE, "overflow"},
      {Whole(VT_BOOL, VARIANT_TRUE), VT_I1, "-1"},
      {Whole(VT_BOOL, VARIANT_TRUE), VT_UI1, "255"},
      {Whole(VT_BOOL, VARIANT_TRUE), VT_UI8, "18446744073709551615"},
      {Whole(VT_BOOL, VARIANT_TRUE), VT_CY, "-10000"},
      {Whole(VT_BOOL, VARIANT_TRUE), VT_R4, "-1"},
      {Whole(VT_I4, 65536), VT_BOOL, "-1"},
      {Real(VT_R8, 0.1), VT_BOOL, "-1"},
      {Whole(VT_CY, 0), VT_BOOL, "0"},
  });
}

TEST(Conversion, FromText) {
  struct Case {
    const char16_t* text;
    VARTYPE target;
    const char* expected;
  };
  const Case cases[] = {
      {u"2.5", VT_I4, "2"},          {u" \t-12\n", VT_I2, "-12"},  {u"- 5", VT_I4, "-5"},
      {u"5 -", VT_R8, "-5"},         {u"(5)", VT_R8, "-5"},        {u"1E+3", VT_I4, "1000"},
      {u"15e-1", VT_I4, "2"},        {u".5", VT_R8, "0.5"},        {u"5.", VT_R8, "5"},
      {u"1e400", VT_R8, "overflow"}, {u"1e-400", VT_R8, "0"},      {u"1e39", VT_R4, "overflow"},
      {u"-1", VT_UI8, "overflow"},   {u"256", VT_UI1, "overflow"}, {u"0.00004", VT_CY, "0"},
  };
  for (const Case& row : cases) Check({{Text(row.text), row.target, row.expected}});
  const Case truths[] = {
      {u"True", VT_BOOL, "-1"},        {u"fALSE", VT_BOOL, "0"}, {u"#TRUE#", VT_BOOL, "-1"},
      {u" True", VT_BOOL, "mismatch"}, {u"0.0", VT_BOOL, "0"},   {u"-3", VT_BOOL, "-1"},
  };
  for (const Case& row : truths) Check({{Text(row.text), row.target, row.expected}});
  for (const char16_t* const text : {u"(5", u"-5-", u"--5", u"1,234.5", u"12,5", u",5", u"1e",
                                     u"1e 2", u".", u"", u"  ", u"12a", u"1 2", u"True"}) {
    Check({{Text(text), VT_I4, "mismatch"}, {Text(text), VT_R8, "mismatch"}});
  }
}

TEST(Conversion, ToText) {
  Check({
      {Whole(VT_I1, -128), VT_BSTR, "'-128'"},
      {Whole(VT_UI8, -1), VT_BSTR, "'18446744073709551615'"},
      {Real(VT_R8, 0.1 + 0.2), VT_BSTR, "'0.3'"},
      {Real(VT_R8, 1.0 / 3), VT_BSTR, "'0.333333333333333'"},
      {Real(VT_R4, 1.0 / 3), VT_BSTR, "'0.3333333'"},
      {Real(VT_R8, 123456789012345), VT_BSTR, "'123456789012345'"},
      {Real(VT_R8, 1234567890123456), VT_BSTR, "'1.23456789012346E+15'"},
      {Real(VT_R4, 1e14), VT_BSTR, "'1E+14'"},
      {Real(VT_R8, -1e300), VT_BSTR, "'-1E+300'"},
      {Real(VT_R8, 100), VT_BSTR, "'100'"},
      {Real(VT_R8, -0.0), VT_BSTR, "'0'"},
      {Whole(VT_CY, -25000), VT_BSTR, "'-2.5'"},
      {Whole(VT_CY, 10007), VT_BSTR, "'1.0007'"},
      {Whole(VT_BOOL, VARIANT_TRUE), VT_BSTR, "'-1'"},
      {Whole(VT_BOOL, VARIANT_TRUE), VT_BSTR, "'True'", VARIANT_ALPHABOOL},
      {Whole(VT_BOOL, VARIANT_FALSE), VT_BSTR, "'False'", VARIANT_ALPHABOOL},
      {Text(u"same"), VT_BSTR, "'same'"},
  });
}

TEST(Conversion, OfValuesThatAreNone) {
  Check({
      {Variant(), VT_BSTR, "''"},
      {Variant(), VT_R8, "0"},
      {Variant(), VT_BOOL, "0"},
      {Variant(), VT_NULL, "null"},
      {Variant(), VT_DISPATCH, "mismatch"},
      {Whole(VT_NULL, 0), VT_BSTR, "mismatch"},
      {Whole(VT_NULL, 0), VT_I4, "mismatch"},
      {Whole(VT_NULL, 0), VT_NULL, "null"},
      {Whole(VT_I4, 5), VT_EMPTY, "empty"},
      {Whole(VT_ERROR, 5), VT_ERROR, "5"},
      {Whole(VT_ERROR, 5), VT_I4, "mismatch"},
      {Whole(VT_I4, 5), VT_ERROR, "mismatch"},
      {Whole(VT_I4, 5), VT_VARIANT, "mismatch"},
      {Whole(VT_I4, 5), VT_DISPATCH, "mismatch"},
      {Whole(VT_I4, 5), 15, "bad type"},
      {Whole(VT_I4, 5), VT_BYREF | VT_I4, "mismatch"},
  });
}

TEST(Conversion, UnderAnyDecimalSeparator) {
  struct Case {
    const char16_t* separator;
    const char *point, *comma, *both, *grouped, *odd;  // "2.5", "2,5", "1.000,5", "1,000", "2ab5"
  };
  const Case cases[] = {
      {u".", "2.5", "mismatch", "mismatch", "mismatch", "mismatch"},
      {u",", "2.5", "2.5", "mismatch", "1", "mismatch"},
      {u"ab", "2.5", "mismatch", "mismatch", "mismatch", "2.5"},
      {u"", "2.5", "mismatch", "mismatch", "mismatch", "mismatch"},
      {u" ", "2.5", "mismatch", "mismatch", "mismatch", "mismatch"},
  };
  for (const Case& row : cases) {
    static const char16_t* reported;
    reported = row.separator;
    SetDecimalSeparatorQuery([] { return std::u16string(reported); });
    Check({{Text(u"2.5"), VT_R8, row.point},
           {Text(u"2,5"), VT_R8, row.comma},
           {Text(u"1.000,5"), VT_R8, row.both},
           {Text(u"1,000"), VT_I4, row.grouped},
           {Text(u"2ab5"), VT_R8, row.odd},
           {Text(u"2 5"), VT_R8, "mismatch"},
           {Real(VT_R8, 2.5), VT_BSTR, "'2.5'"},
           {Real(VT_R4, -0.5), VT_BSTR, "'-0.5'"},
           {Whole(VT_CY, 25000), VT_BSTR, "'2.5'"},
           {Decimal(25, 1), VT_BSTR, "'2.5'"}});
  }
  SetDecimalSeparatorQuery(nullptr);
}

TEST(Conversion, OfDecimals) {
  constexpr ULONGLONG kAll = ~ULONGLONG{0};
  Check({
      {Decimal(0, 3), VT_BSTR, "'0'"},
      {Decimal(0, 0, 0x80), VT_BSTR, "'0'"},
      {Decimal(2500, 3, 0x80), VT_BSTR, "'-2.5'"},
      {Decimal(5, 3), VT_BSTR, "'0.005'"},
      {Decimal(1200, 0), VT_BSTR, "'1200'"},
      {Decimal(kAll, 0, 0, 0xFFFFFFFF), VT_BSTR, "'79228162514264337593543950335'"},
      {Decimal(kAll, 28, 0, 0xFFFFFFFF), VT_R8, "7.9228162514264335"},
      {Decimal(25, 1), VT_I4, "2"},
      {Decimal(kAll, 0), VT_I8, "overflow"},
      {Decimal(1, 28), VT_BOOL, "-1"},
  });
}

TEST(Conversion, AtTheEdges) {
  const double infinity = std::numeric_limits<double>::infinity();
  Check({
      {Real(VT_R8, 1.0 / 30), VT_BSTR, "'3.33333333333333E-02'"},
      {Real(VT_R8, 0.00001), VT_BSTR, "'0.00001'"},
      {Real(VT_R8, infinity), VT_BSTR, "'1.#INF'"},
      {Real(VT_R8, infinity), VT_I4, "overflow"},
      {Real(VT_R8, std::nan("")), VT_I8, "overflow"},
      {Text(u"2000-01-01"), VT_DATE, "mismatch"},
      {Text(u"&HFF"), VT_I4, "mismatch"},
      {Text(u"9223372036854775807"), VT_I8, "9223372036854775807"},
      {Text(u"-9223372036854775808"), VT_I8, "-9223372036854775808"},
      {Text(u"9223372036854775808"), VT_I8, "overflow"},
      {Text(u"18446744073709551615"), VT_UI8, "18446744073709551615"},
      {Text(u"18446744073709551616"), VT_UI8, "overflow"},
      {Text(u"0.1"), VT_R8, "0.10000000000000001"},
      {Variant(std::u16string_view(u"5\0", 2)), VT_I4, "mismatch"},
      {Whole(VT_I4, -1), VT_UI4, "overflow"},
      {Whole(VT_UI4, 0xFFFFFFFF), VT_I4, "overflow"},
      {Whole(VT_I8, std::numeric_limits<long long>::min()), VT_UI8, "overflow"},
      {Text(u"922337203685477.5807"), VT_CY, "9223372036854775807"},
      {Whole(VT_UI1, 200), VT_I1, "overflow"},
      {Whole(VT_UI8, -1), VT_I8, "overflow"},
      {Whole(VT_BYREF | VT_I4, 0), VT_I4, "invalid"},
      {Text(std::u16string(100'000, u'9').c_str()), VT_R8, "overflow"},
      {Text((u"0." + std::u16string(100'000, u'0') + u"1e100001").c_str()), VT_I4, "1"},
      {Text(u"1e99999999999999999999"), VT_I4, "overflow"},
      {Text(u"0e99999999999999999999"), VT_R8, "0"},
#ifndef _WIN32
      {Real(VT_DATE, 2.5), VT_BSTR, "mismatch"},
#endif
  });
}

TEST(Conversion, ReadsThroughReferences) {
  LONG number = 9;
  BSTR text = SysAllocString(Ole(u"12"));
  VARIANT inner = Real(VT_R8, 8.5);
  Variant toNumber, toText, toVariant;
  toNumber.vt = VT_BYREF | VT_I4;
  toNumber.plVal = &number;
  toText.vt = VT_BYREF | VT_BSTR;
  toText.pbstrVal = &text;
  toVariant.vt = VT_BYREF | VT_VARIANT;
  toVariant.pvarVal = &inner;
  Check({{toNumber, VT_BSTR, "'9'"}, {toText, VT_I4, "12"}, {toVariant, VT_R4, "8.5"}});

  Variant copy;
  ASSERT_EQ(VariantCopyInd(&copy, &toText), S_OK);
  EXPECT_NE(copy.bstrVal, text);
  EXPECT_EQ(Show(copy), "'12'");
  Variant toReference;
  toReference.vt = VT_BYREF | VT_VARIANT;
  toReference.pvarVal = &toVariant;
  EXPECT_EQ(VariantCopyInd(&copy, &toReference), E_INVALIDARG);
  EXPECT_EQ(VariantClear(&toText), S_OK);
  EXPECT_EQ(ViewOf(text), u"12");
  SysFreeString(text);
}

TEST(Conversion, OfObjects) {
  Variant value(7), nullObject(static_cast<IDispatch*>(nullptr));
  ValueObject object;
  object.value = &value;
  {
    Variant unknown(&object);
    unknown.vt = VT_UNKNOWN;
    Check({{Variant(&object), VT_BSTR, "'7'"},
           {Variant(&object), VT_I4, "mismatch", VARIANT_NOVALUEPROP},
           {Variant(&object), VT_UNKNOWN, "type 13"},
           {unknown, VT_DISPATCH, "type 9"},
           {unknown, VT_I4, "mismatch"},
           {nullObject, VT_UNKNOWN, "type 13"},
           {nullObject, VT_I4, "bad type"}});
#ifndef _WIN32
    object.isDispatch = false;
    value = unknown;
    Check({{unknown, VT_DISPATCH, "mismatch"}});
    value = Variant(&object);
    Check({{Variant(&object), VT_I4, "mismatch"}});
    value = Variant();
#endif
  }
  EXPECT_EQ(object.references, 1u);
}

TEST(VariantLife, CopiesShareObjectsAndOwnTexts) {
  ValueObject object;
  {
    const Variant source(&object);
    Variant copy(source);
    EXPECT_EQ(object.references, 3u);
    const Variant moved(std::move(copy));
    EXPECT_EQ(object.references, 3u);
    Variant self(source);
    EXPECT_EQ(VariantCopy(&self, &self), S_OK);
    EXPECT_EQ(object.references, 4u);
    self = Variant(u"text");
    EXPECT_EQ(object.references, 3u);
    const Variant text(self);
    EXPECT_NE(text.bstrVal, self.bstrVal);
    EXPECT_EQ(text.View(), u"text");
  }
  EXPECT_EQ(object.references, 1u);

#ifndef _WIN32
  VARIANT watched = Variant(&object).Detach();
  object.watched = &watched;
  object.typeAtRelease = VT_NULL;
  VariantClear(&watched);
  EXPECT_EQ(object.typeAtRelease, VT_EMPTY);
#endif

  VARIANT unknown = {};
  unknown.vt = 99;
  EXPECT_EQ(VariantClear(&unknown), DISP_E_BADVARTYPE);
  Variant kept(5);
  EXPECT_EQ(VariantCopy(&kept, &unknown), DISP_E_BADVARTYPE);
  EXPECT_EQ(Show(kept), "5");
}

TEST(VariantLife, ChoosesTheTypeOfItsArgument) {
  EXPECT_EQ(Variant(u"x").vt, VT_BSTR);
  EXPECT_EQ(Variant(LONG{1}).vt, VT_I4);
  EXPECT_EQ(Variant(1).vt, VT_I4);
  EXPECT_EQ(Variant(1.0).vt, VT_R8);
  EXPECT_EQ(Variant(true).boolVal, VARIANT_TRUE);
  Variant changed(u"2.5");
  EXPECT_EQ(changed.ChangeType(VT_R8), S_OK);
  EXPECT_EQ(changed.dblVal, 2.5);
}

TEST(Text, KeepsEmbeddedNullCharacters) {
  const std::u16string_view text(u"a\0b\0", 4);
  BStr owner(text);
  EXPECT_EQ(owner.View(), text);
  EXPECT_EQ(BStr(owner).View(), text);
  EXPECT_EQ(owner.Get()[4], 0);
  EXPECT_EQ(SysStringByteLen(owner.Get()), 8u);
  EXPECT_EQ(Variant(text).View(), text);
  EXPECT_EQ(SysReAllocStringLen(owner.Receive(), Ole(u"xyz"), 2), TRUE);
  EXPECT_EQ(owner.View(), u"xy");
}

TEST(Text, AllocatesZerosBytesAndNothing) {
  EXPECT_EQ(BStr::Attach(SysAllocStringLen(nullptr, 3)).View().size(), 3u);
  const BStr bytes = BStr::Attach(SysAllocStringByteLen("abc", 3));
  EXPECT_EQ(SysStringByteLen(bytes.Get()), 3u);
  EXPECT_EQ(SysStringLen(bytes.Get()), 1u);
  EXPECT_EQ(SysAllocString(nullptr), nullptr);
  EXPECT_EQ(SysStringLen(nullptr), 0u);
  EXPECT_EQ(ViewOf(nullptr), u"");
  SysFreeString(nullptr);
#ifndef _WIN32
  EXPECT_EQ(SysAllocStringLen(nullptr, 0xFFFFFFFF), nullptr);
  BSTR text = SysAllocString(u"abcdef");
  EXPECT_EQ(SysReAllocStringLen(&text, text + 2, 3), TRUE);
  EXPECT_EQ(ViewOf(text), u"cde");
  EXPECT_EQ(SysReAllocStringLen(&text, nullptr, 4), TRUE);
  EXPECT_EQ(ViewOf(text), std::u16string_view(u"cde\0", 4));
  SysFreeString(text);
#endif
}

TEST(Interfaces, HaveTheirFunctionsInSlotOrder) {
  ValueObject object;
  IDispatch* const dispatch = &object;
  const auto slots = *reinterpret_cast<void* const* const*>(dispatch);
  using AddRef = ULONG(STDMETHODCALLTYPE*)(IDispatch*);
  using GetTypeInfoCount = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, UINT*);
  using Invoke = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, DISPID, REFIID, LCID, WORD, DISPPARAMS*,
                                             VARIANT*, EXCEPINFO*, UINT*);
  EXPECT_EQ(reinterpret_cast<AddRef>(slots[1])(dispatch), 2u);
  EXPECT_EQ(reinterpret_cast<GetTypeInfoCount>(slots[3])(dispatch, nullptr), E_NOTIMPL);
  EXPECT_EQ(reinterpret_cast<Invoke>(slots[6])(dispatch, 1, IID_NULL, 0, 0, nullptr, nullptr,
                                               nullptr, nullptr),
            DISP_E_MEMBERNOTFOUND);
}

TEST(ErrorObjects, BelongToTheThreadAndAreHandedOverOnce) {
  ComPointer<ICreateErrorInfo> created;
  ASSERT_EQ(CreateErrorInfo(created.Receive()), S_OK);
  BStr description(u"wrong"), read;
  created->SetDescription(description.Get());
  created->SetHelpContext(12);
  const auto info = created.As<IErrorInfo>(IID_IErrorInfo);
  ASSERT_TRUE(info);
  EXPECT_EQ(created.As<IUnknown>(IID_IUnknown).Get(), info.As<IUnknown>(IID_IUnknown).Get());
  EXPECT_FALSE(info.As<IDispatch>(IID_IDispatch));

  ASSERT_EQ(SetErrorInfo(0, info.Get()), S_OK);
  std::thread([] {
    ComPointer<IErrorInfo> other;
    EXPECT_EQ(GetErrorInfo(0, other.Receive()), S_FALSE);
  }).join();
  ComPointer<IErrorInfo> taken;
  ASSERT_EQ(GetErrorInfo(0, taken.Receive()), S_OK);
  ASSERT_EQ(taken->GetDescription(read.Receive()), S_OK);
  EXPECT_EQ(read.View(), u"wrong");
  DWORD context = 0;
  taken->GetHelpContext(&context);
  EXPECT_EQ(context, 12u);
  EXPECT_EQ(GetErrorInfo(0, taken.Receive()), S_FALSE);
  EXPECT_FALSE(taken);
}

}  // namespace
}  // namespace praxen::detail
