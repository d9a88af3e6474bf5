// Conversion of variants from one type to another.
#include "praxen/automation/conversion.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "praxen/automation/automation.h"
#include "praxen/automation/guard.h"
#include "praxen/automation/values.h"
#include "praxen/automation/variants.h"
#include "praxen/core/ascii.h"
#include "praxen/core/decimal_number.h"

namespace praxen::detail {

namespace {

struct Truth {
  bool value;
};

struct Currency {
  int64_t tenThousandths;
};

struct Days {
  double value;
};

// What a variant of a convertible type holds; empty is a value as well: 0, false and no text.
using Value = std::variant<std::monostate, int64_t, uint64_t, float, double, Truth, Currency, Days,
                           DecimalNumber, std::u16string_view>;

constexpr int64_t kTenThousand = 10'000;

DecimalNumber NumberOf(const DECIMAL& decimal) {
  const auto high = static_cast<uint32_t>(decimal.Lo64 >> 32);
  const auto low = static_cast<uint32_t>(decimal.Lo64);
  return FromMagnitude({static_cast<uint32_t>(decimal.Hi32), high, low}, decimal.scale,
                       decimal.sign != 0);
}

std::optional<Value> ReadValue(const VARIANT& variant) {
  switch (variant.vt) {
    case VT_EMPTY:
      return Value();
    case VT_I1:
      return int64_t{static_cast<signed char>(variant.cVal)};
    case VT_I2:
      return int64_t{variant.iVal};
    case VT_I4:
    case VT_INT:
      return int64_t{variant.lVal};
    case VT_I8:
      return int64_t{variant.llVal};
    case VT_UI1:
      return uint64_t{variant.bVal};
    case VT_UI2:
      return uint64_t{variant.uiVal};
    case VT_UI4:
    case VT_UINT:
      return uint64_t{variant.ulVal};
    case VT_UI8:
      return uint64_t{variant.ullVal};
    case VT_R4:
      return variant.fltVal;
    case VT_R8:
      return variant.dblVal;
    case VT_BOOL:
      return Truth{variant.boolVal != VARIANT_FALSE};
    case VT_CY:
      return Currency{variant.cyVal.int64};
    case VT_DATE:
      return Days{variant.date};
    case VT_BSTR:
      return ViewOf(variant.bstrVal);
    case VT_DECIMAL:
      return NumberOf(variant.decVal);
    default:
      return std::nullopt;
  }
}

// Converts to an integer that counts 1/unit, so that one conversion serves integers and currency.
template <class T, int64_t unit = 1>
class ToInteger {
 public:
  using Result = T;

  explicit ToInteger(T& out) : out_(out) {}

  HRESULT operator()(std::monostate) const { return Store(0); }
  HRESULT operator()(int64_t value) const { return Store(value); }
  HRESULT operator()(uint64_t value) const { return Store(value); }
  HRESULT operator()(float value) const { return Round(value); }
  HRESULT operator()(double value) const { return Round(value); }
  HRESULT operator()(Days days) const { return Round(days.value); }

  // True is a value with all bits set, which fits every type.
  HRESULT operator()(Truth truth) const {
    out_ = static_cast<T>(truth.value ? -unit : 0);
    return S_OK;
  }

  HRESULT operator()(Currency currency) const {
    if constexpr (unit == kTenThousand) {
      out_ = currency.tenThousandths;
      return S_OK;
    } else {
      const int64_t whole = currency.tenThousandths / kTenThousand;
      const int64_t rest = std::abs(currency.tenThousandths % kTenThousand);
      const bool away = rest * 2 > kTenThousand || (rest * 2 == kTenThousand && whole % 2 != 0);
      const int64_t step = currency.tenThousandths < 0 ? -1 : 1;
      return Store(whole + (away ? step : 0));
    }
  }

  HRESULT operator()(std::u16string_view text) const {
    const auto number = ParseDecimal(text);
    return number ? (*this)(*number) : DISP_E_TYPEMISMATCH;
  }

  HRESULT operator()(const DecimalNumber& number) const {
    const auto whole = ToWhole<T>(number, unit == kTenThousand ? 4 : 0);
    if (!whole) return DISP_E_OVERFLOW;
    out_ = *whole;
    return S_OK;
  }

 private:
  template <class Source>
  HRESULT Store(Source value) const {
    return __builtin_mul_overflow(value, unit, &out_) ? DISP_E_OVERFLOW : S_OK;
  }

  HRESULT Round(double value) const {
    const double rounded = RoundHalfToEven(value * static_cast<double>(unit));
    const double limit = std::ldexp(1.0, std::numeric_limits<T>::digits);
    const double lowest = std::is_signed_v<T> ? -limit : 0.0;
    // Written so that what is not a number fails too.
    if (!(rounded >= lowest && rounded < limit)) return DISP_E_OVERFLOW;
    out_ = static_cast<T>(rounded);
    return S_OK;
  }

  T& out_;
};

using ToCurrency = ToInteger<int64_t, kTenThousand>;

template <class T>
class ToRealNumber {
 public:
  using Result = T;

  explicit ToRealNumber(T& out) : out_(out) {}

  HRESULT operator()(std::monostate) const { return Store(0); }
  HRESULT operator()(Truth truth) const { return Store(truth.value ? -1 : 0); }
  HRESULT operator()(Currency currency) const {
    return Store(static_cast<double>(currency.tenThousandths) / static_cast<double>(kTenThousand));
  }
  HRESULT operator()(Days days) const { return Store(days.value); }

  template <class Number>
  requires std::is_arithmetic_v<Number> HRESULT operator()(Number number) const {
    return Store(static_cast<double>(number));
  }

  HRESULT operator()(std::u16string_view text) const {
    const auto number = ParseDecimal(text);
    return number ? (*this)(*number) : DISP_E_TYPEMISMATCH;
  }

  HRESULT operator()(const DecimalNumber& number) const {
    const auto value = ToReal<T>(number);
    if (!value) return DISP_E_OVERFLOW;
    out_ = *value;
    return S_OK;
  }

 private:
  HRESULT Store(double value) const {
    if (std::isfinite(value) && std::abs(value) > std::numeric_limits<T>::max()) {
      return DISP_E_OVERFLOW;
    }
    out_ = static_cast<T>(value);
    return S_OK;
  }

  T& out_;
};

class ToDays {
 public:
  using Result = double;

  explicit ToDays(double& out) : out_(out) {}

  HRESULT operator()(std::u16string_view) const { return DISP_E_TYPEMISMATCH; }

  template <class Source>
  HRESULT operator()(Source source) const {
    const HRESULT result = ToRealNumber<double>(out_)(source);
    if (FAILED(result)) return result;
    return out_ > kBeforeFirstDay && out_ < kAfterLastDay ? S_OK : DISP_E_OVERFLOW;
  }

 private:
  // Dates run from the year 100 to the year 9999.
  static constexpr double kBeforeFirstDay = -657435.0;
  static constexpr double kAfterLastDay = 2958466.0;

  double& out_;
};

class ToTruth {
 public:
  using Result = VARIANT_BOOL;

  explicit ToTruth(VARIANT_BOOL& out) : out_(out) {}

  HRESULT operator()(Truth truth) const { return Store(truth.value); }

  HRESULT operator()(std::u16string_view text) const {
    if (EqualsIgnoringCase<char16_t, char16_t>(text, u"True") || text == u"#TRUE#")
      return Store(true);
    if (EqualsIgnoringCase<char16_t, char16_t>(text, u"False") || text == u"#FALSE#")
      return Store(false);
    return FromNumber(text);
  }

  template <class Source>
  HRESULT operator()(Source source) const {
    return FromNumber(source);
  }

 private:
  template <class Source>
  HRESULT FromNumber(Source source) const {
    double number = 0;
    const HRESULT result = ToRealNumber<double>(number)(source);
    return FAILED(result) ? result : Store(number != 0);
  }

  HRESULT Store(bool truth) const {
    out_ = truth ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }

  VARIANT_BOOL& out_;
};

class ToText {
 public:
  ToText(BSTR& out, USHORT flags) : out_(out), flags_(flags) {}

  HRESULT operator()(std::monostate) const { return Store(""); }
  HRESULT operator()(int64_t value) const { return Store(std::to_string(value)); }
  HRESULT operator()(uint64_t value) const { return Store(std::to_string(value)); }
  HRESULT operator()(float value) const { return Store(FormatReal(value, 7)); }
  HRESULT operator()(double value) const { return Store(FormatReal(value, 15)); }
  HRESULT operator()(Days) const { return DISP_E_TYPEMISMATCH; }

  HRESULT operator()(Truth truth) const {
    const bool inWords = (flags_ & (VARIANT_ALPHABOOL | VARIANT_LOCALBOOL)) != 0;
    if (inWords) return Store(truth.value ? "True" : "False");
    return Store(truth.value ? "-1" : "0");
  }

  HRESULT operator()(Currency currency) const {
    return Store(FormatTenThousandths(currency.tenThousandths));
  }

  HRESULT operator()(const DecimalNumber& number) const { return Store(FormatPlain(number)); }

  HRESULT operator()(std::u16string_view text) const {
    out_ = AllocateBstr(text);
    return S_OK;
  }

 private:
  HRESULT Store(std::string_view ascii) const { return (*this)(WidenAscii(ascii)); }

  BSTR& out_;
  USHORT flags_;
};

template <class Conversion, class Field>
HRESULT Fill(Field& field, const Value& value) {
  typename Conversion::Result converted{};
  const HRESULT result = std::visit(Conversion(converted), value);
  if (SUCCEEDED(result)) field = static_cast<Field>(converted);
  return result;
}

HRESULT StoreValue(const Value& value, USHORT flags, VARTYPE type, VARIANT& out) {
  switch (type) {
    case VT_I1:
      return Fill<ToInteger<int8_t>>(out.cVal, value);
    case VT_I2:
      return Fill<ToInteger<int16_t>>(out.iVal, value);
    case VT_I4:
    case VT_INT:
      return Fill<ToInteger<int32_t>>(out.lVal, value);
    case VT_I8:
      return Fill<ToInteger<int64_t>>(out.llVal, value);
    case VT_UI1:
      return Fill<ToInteger<uint8_t>>(out.bVal, value);
    case VT_UI2:
      return Fill<ToInteger<uint16_t>>(out.uiVal, value);
    case VT_UI4:
    case VT_UINT:
      return Fill<ToInteger<uint32_t>>(out.ulVal, value);
    case VT_UI8:
      return Fill<ToInteger<uint64_t>>(out.ullVal, value);
    case VT_R4:
      return Fill<ToRealNumber<float>>(out.fltVal, value);
    case VT_R8:
      return Fill<ToRealNumber<double>>(out.dblVal, value);
    case VT_CY:
      return Fill<ToCurrency>(out.cyVal.int64, value);
    case VT_DATE:
      return Fill<ToDays>(out.date, value);
    case VT_BOOL:
      return Fill<ToTruth>(out.boolVal, value);
    case VT_BSTR:
      return std::visit(ToText(out.bstrVal, flags), value);
    default:
      return DISP_E_TYPEMISMATCH;
  }
}

bool IsObjectType(int type) { return type == VT_DISPATCH || type == VT_UNKNOWN; }

// The types that a variant may be asked to become, leaving aside that no conversion may lead there.
bool IsKnownType(int type) {
  const int base = type & VT_TYPEMASK;
  return base <= VT_DECIMAL || (base >= VT_I1 && base <= VT_UINT);
}

HRESULT ConvertObject(const VARIANT& view, VARTYPE type, VARIANT& out) {
  if (view.punkVal == nullptr) return S_OK;
  const IID& iid = type == VT_DISPATCH ? IID_IDispatch : IID_IUnknown;
  void* object = nullptr;
  const HRESULT result = view.punkVal->QueryInterface(iid, &object);
  if (FAILED(result)) return DISP_E_TYPEMISMATCH;
  if (type == VT_DISPATCH) {
    out.pdispVal = static_cast<IDispatch*>(object);
  } else {
    out.punkVal = static_cast<IUnknown*>(object);
  }
  return S_OK;
}

HRESULT Convert(const VARIANT& view, USHORT flags, VARTYPE type, VARIANT& out);

HRESULT ConvertDefaultProperty(IDispatch* object, USHORT flags, VARTYPE type, VARIANT& out) {
  if ((flags & VARIANT_NOVALUEPROP) != 0) return DISP_E_TYPEMISMATCH;
  if (object == nullptr) return DISP_E_BADVARTYPE;
  Variant property;
  DISPPARAMS none = {};
  HRESULT result = object->Invoke(DISPID_VALUE, IID_NULL, LOCALE_INVARIANT, DISPATCH_PROPERTYGET,
                                  &none, &property, nullptr, nullptr);
  if (FAILED(result)) return DISP_E_TYPEMISMATCH;
  VARIANT view;
  result = BorrowValue(property, view);
  if (FAILED(result)) return result;
  // An object whose value is an object, itself perhaps, is not followed further.
  return Convert(view, static_cast<USHORT>(flags | VARIANT_NOVALUEPROP), type, out);
}

// Converts view to another type than its own; out is empty before and owned by the caller after.
HRESULT Convert(const VARIANT& view, USHORT flags, VARTYPE type, VARIANT& out) {
  if (!IsKnownType(type)) return DISP_E_BADVARTYPE;
  // Not every declaration of the function calls its source constant.
  if (view.vt == type) return VariantCopy(&out, const_cast<VARIANT*>(&view));
  if (view.vt == VT_NULL || view.vt == VT_ERROR) return DISP_E_TYPEMISMATCH;
  if (type == VT_EMPTY || type == VT_NULL) return S_OK;
  if (IsObjectType(view.vt) && IsObjectType(type)) return ConvertObject(view, type, out);
  if (view.vt == VT_DISPATCH) {
    return ConvertDefaultProperty(view.pdispVal, flags, type, out);
  }
  if (view.vt == VT_DATE && type == VT_BSTR) return DateToText(view.date, out);
  const auto value = ReadValue(view);
  return value ? StoreValue(*value, flags, type, out) : DISP_E_TYPEMISMATCH;
}

HRESULT ChangeType(VARIANT& target, const VARIANT& source, USHORT flags, VARTYPE type) {
  VARIANT view;
  HRESULT result = BorrowValue(source, view);
  if (FAILED(result)) return result;
  Variant converted;
  result = Convert(view, flags, type, converted);
  if (FAILED(result)) return result;
  converted.vt = type;
  result = VariantClear(&target);
  if (SUCCEEDED(result)) target = converted.Detach();
  return result;
}

}  // namespace

HRESULT ConvertVariant(VARIANT& target, const VARIANT& source, USHORT flags,
                       VARTYPE type) noexcept {
  return Guarded([&] { return ChangeType(target, source, flags, type); });
}

}  // namespace praxen::detail
