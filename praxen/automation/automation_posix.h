// The automation (COM) types, interfaces and functions for systems that have none, with the names
// and the binary layout that they have on Windows.
#ifndef PRAXEN_AUTOMATION_AUTOMATION_POSIX_H_
#define PRAXEN_AUTOMATION_AUTOMATION_POSIX_H_

#include <cstddef>
#include <cstdint>

#include "praxen/core/language.h"

// NOLINTBEGIN: the names are those of the platform interface, not of this project's style.

// One calling convention serves everything here, so the annotation is empty.
#define STDMETHODCALLTYPE
#define STDAPI extern "C" __attribute__((visibility("default"))) HRESULT

// ---- Numbers and text

using BYTE = uint8_t;
using CHAR = char;
using SHORT = int16_t;
using USHORT = uint16_t;
using WORD = uint16_t;
using INT = int32_t;
using UINT = uint32_t;
using LONG = int32_t;
using ULONG = uint32_t;
using DWORD = uint32_t;
using LONGLONG = int64_t;
using ULONGLONG = uint64_t;
using FLOAT = float;
using DOUBLE = double;
using PVOID = void*;
using LPVOID = void*;

using BOOL = int32_t;
inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;

/// An automation boolean: every value but VARIANT_FALSE counts as true when read.
using VARIANT_BOOL = int16_t;
inline constexpr VARIANT_BOOL VARIANT_FALSE = 0;
inline constexpr VARIANT_BOOL VARIANT_TRUE = -1;

using OLECHAR = char16_t;
using LPOLESTR = OLECHAR*;
using LPCOLESTR = const OLECHAR*;

/// Text preceded by its length in bytes (32 bits) and followed by a null character that the length
/// does not count; null stands for the empty text.
using BSTR = OLECHAR*;

using LCID = DWORD;
inline constexpr LCID LOCALE_INVARIANT = 0x007F;
inline constexpr LCID LOCALE_USER_DEFAULT = 0x0400;

/// Days since 30 December 1899, the time of day as the fraction.
using DATE = double;

// ---- Results

using HRESULT = int32_t;
using SCODE = int32_t;

constexpr bool SUCCEEDED(HRESULT result) noexcept { return result >= 0; }
constexpr bool FAILED(HRESULT result) noexcept { return result < 0; }

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;

inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001);
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002);
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003);
inline constexpr HRESULT E_ABORT = static_cast<HRESULT>(0x80004004);
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);
inline constexpr HRESULT E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFF);
inline constexpr HRESULT E_ACCESSDENIED = static_cast<HRESULT>(0x80070005);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000E);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057);

inline constexpr HRESULT DISP_E_UNKNOWNINTERFACE = static_cast<HRESULT>(0x80020001);
inline constexpr HRESULT DISP_E_MEMBERNOTFOUND = static_cast<HRESULT>(0x80020003);
inline constexpr HRESULT DISP_E_PARAMNOTFOUND = static_cast<HRESULT>(0x80020004);
inline constexpr HRESULT DISP_E_TYPEMISMATCH = static_cast<HRESULT>(0x80020005);
inline constexpr HRESULT DISP_E_UNKNOWNNAME = static_cast<HRESULT>(0x80020006);
inline constexpr HRESULT DISP_E_NONAMEDARGS = static_cast<HRESULT>(0x80020007);
inline constexpr HRESULT DISP_E_BADVARTYPE = static_cast<HRESULT>(0x80020008);
inline constexpr HRESULT DISP_E_EXCEPTION = static_cast<HRESULT>(0x80020009);
inline constexpr HRESULT DISP_E_OVERFLOW = static_cast<HRESULT>(0x8002000A);
inline constexpr HRESULT DISP_E_BADINDEX = static_cast<HRESULT>(0x8002000B);
inline constexpr HRESULT DISP_E_UNKNOWNLCID = static_cast<HRESULT>(0x8002000C);
inline constexpr HRESULT DISP_E_BADPARAMCOUNT = static_cast<HRESULT>(0x8002000E);
inline constexpr HRESULT DISP_E_PARAMNOTOPTIONAL = static_cast<HRESULT>(0x8002000F);
inline constexpr HRESULT DISP_E_BADCALLEE = static_cast<HRESULT>(0x80020010);
inline constexpr HRESULT DISP_E_NOTACOLLECTION = static_cast<HRESULT>(0x80020011);

inline constexpr HRESULT TYPE_E_REGISTRYACCESS = static_cast<HRESULT>(0x8002801C);
inline constexpr HRESULT TYPE_E_LIBNOTREGISTERED = static_cast<HRESULT>(0x8002801D);
inline constexpr HRESULT TYPE_E_ELEMENTNOTFOUND = static_cast<HRESULT>(0x8002802B);
inline constexpr HRESULT TYPE_E_CANTLOADLIBRARY = static_cast<HRESULT>(0x80029C4A);

inline constexpr HRESULT CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110);
inline constexpr HRESULT CLASS_E_CLASSNOTAVAILABLE = static_cast<HRESULT>(0x80040111);
inline constexpr HRESULT REGDB_E_READREGDB = static_cast<HRESULT>(0x80040150);
inline constexpr HRESULT REGDB_E_WRITEREGDB = static_cast<HRESULT>(0x80040151);
inline constexpr HRESULT REGDB_E_CLASSNOTREG = static_cast<HRESULT>(0x80040154);
inline constexpr HRESULT CO_E_CLASSSTRING = static_cast<HRESULT>(0x800401F3);
inline constexpr HRESULT CO_E_DLLNOTFOUND = static_cast<HRESULT>(0x800401F8);
inline constexpr HRESULT CO_E_ERRORINDLL = static_cast<HRESULT>(0x800401F9);
inline constexpr HRESULT SELFREG_E_TYPELIB = static_cast<HRESULT>(0x80040200);
inline constexpr HRESULT SELFREG_E_CLASS = static_cast<HRESULT>(0x80040201);

// ---- Identifiers

struct GUID {
  uint32_t Data1;
  uint16_t Data2;
  uint16_t Data3;
  uint8_t Data4[8];

  friend constexpr bool operator==(const GUID&, const GUID&) = default;
};

using IID = GUID;
using CLSID = GUID;
using REFGUID = const GUID&;
using REFIID = const IID&;
using REFCLSID = const CLSID&;

inline constexpr GUID GUID_NULL = {};
inline constexpr IID IID_NULL = {};

using DISPID = LONG;
using MEMBERID = DISPID;

inline constexpr DISPID DISPID_VALUE = 0;
inline constexpr DISPID DISPID_UNKNOWN = -1;
inline constexpr DISPID DISPID_PROPERTYPUT = -3;
inline constexpr DISPID DISPID_NEWENUM = -4;

inline constexpr WORD DISPATCH_METHOD = 1;
inline constexpr WORD DISPATCH_PROPERTYGET = 2;
inline constexpr WORD DISPATCH_PROPERTYPUT = 4;
inline constexpr WORD DISPATCH_PROPERTYPUTREF = 8;

// ---- Variants

using VARTYPE = uint16_t;

enum VARENUM {
  VT_EMPTY = 0,
  VT_NULL = 1,
  VT_I2 = 2,
  VT_I4 = 3,
  VT_R4 = 4,
  VT_R8 = 5,
  VT_CY = 6,
  VT_DATE = 7,
  VT_BSTR = 8,
  VT_DISPATCH = 9,
  VT_ERROR = 10,
  VT_BOOL = 11,
  VT_VARIANT = 12,
  VT_UNKNOWN = 13,
  VT_DECIMAL = 14,
  VT_I1 = 16,
  VT_UI1 = 17,
  VT_UI2 = 18,
  VT_UI4 = 19,
  VT_I8 = 20,
  VT_UI8 = 21,
  VT_INT = 22,
  VT_UINT = 23,
  VT_VOID = 24,
  VT_HRESULT = 25,
  VT_PTR = 26,
  VT_SAFEARRAY = 27,
  VT_USERDEFINED = 29,
  VT_LPSTR = 30,
  VT_LPWSTR = 31,
  VT_RECORD = 36,
  VT_ARRAY = 0x2000,
  VT_BYREF = 0x4000,
  VT_TYPEMASK = 0x0FFF,
};

/// Flags of VariantChangeType.
inline constexpr USHORT VARIANT_NOVALUEPROP = 0x01;
inline constexpr USHORT VARIANT_ALPHABOOL = 0x02;
inline constexpr USHORT VARIANT_NOUSEROVERRIDE = 0x04;
inline constexpr USHORT VARIANT_LOCALBOOL = 0x10;

struct IUnknown;
struct IDispatch;
struct IRecordInfo;
struct ITypeInfo;
struct SAFEARRAY;

/// A currency amount in ten-thousandths.
struct CY {
  LONGLONG int64;
};

/// A decimal: 96 bits of magnitude, a power of ten from 0 to 28 and a sign (0 or 0x80).
struct DECIMAL {
  USHORT wReserved;
  BYTE scale;
  BYTE sign;
  ULONG Hi32;
  ULONGLONG Lo64;
};

struct tagVARIANT;
using VARIANT = tagVARIANT;

struct tagVARIANT {
  /// The decimal shares its first two bytes, which it leaves unused, with the type.
  __extension__ union {
    __extension__ struct {
      VARTYPE vt;
      WORD wReserved1;
      WORD wReserved2;
      WORD wReserved3;
      union {
        LONGLONG llVal;
        LONG lVal;
        BYTE bVal;
        SHORT iVal;
        FLOAT fltVal;
        DOUBLE dblVal;
        VARIANT_BOOL boolVal;
        SCODE scode;
        CY cyVal;
        DATE date;
        BSTR bstrVal;
        IUnknown* punkVal;
        IDispatch* pdispVal;
        SAFEARRAY* parray;
        BYTE* pbVal;
        SHORT* piVal;
        LONG* plVal;
        LONGLONG* pllVal;
        FLOAT* pfltVal;
        DOUBLE* pdblVal;
        VARIANT_BOOL* pboolVal;
        SCODE* pscode;
        CY* pcyVal;
        DATE* pdate;
        BSTR* pbstrVal;
        IUnknown** ppunkVal;
        IDispatch** ppdispVal;
        SAFEARRAY** pparray;
        VARIANT* pvarVal;
        PVOID byref;
        CHAR cVal;
        USHORT uiVal;
        ULONG ulVal;
        ULONGLONG ullVal;
        INT intVal;
        UINT uintVal;
        DECIMAL* pdecVal;
        CHAR* pcVal;
        USHORT* puiVal;
        ULONG* pulVal;
        ULONGLONG* pullVal;
        INT* pintVal;
        UINT* puintVal;
        __extension__ struct {
          PVOID pvRecord;
          IRecordInfo* pRecInfo;
        };
      };
    };
    DECIMAL decVal;
  };
};

using VARIANTARG = VARIANT;

/// The arguments of a call, last first; the named ones come before the others.
struct DISPPARAMS {
  VARIANTARG* rgvarg;
  DISPID* rgdispidNamedArgs;
  UINT cArgs;
  UINT cNamedArgs;
};

/// What a failed call tells: either wCode or scode is set; the receiver frees the texts.
struct EXCEPINFO {
  WORD wCode;
  WORD wReserved;
  BSTR bstrSource;
  BSTR bstrDescription;
  BSTR bstrHelpFile;
  DWORD dwHelpContext;
  PVOID pvReserved;
  HRESULT(STDMETHODCALLTYPE* pfnDeferredFillIn)(EXCEPINFO*);
  SCODE scode;
};

static_assert(sizeof(GUID) == 16 && sizeof(DECIMAL) == 16 && sizeof(CY) == 8);
static_assert(sizeof(void*) != 8 || (sizeof(VARIANT) == 24 && offsetof(VARIANT, llVal) == 8));
static_assert(sizeof(void*) != 8 || (sizeof(EXCEPINFO) == 64 && sizeof(DISPPARAMS) == 24));

// ---- Interfaces

/// The flag of CoCreateInstance for servers that are loaded into the process, the only kind here.
inline constexpr DWORD CLSCTX_INPROC_SERVER = 1;

#pragma GCC visibility push(default)

// The order of the functions is the order of the slots; there is no virtual destructor because it
// would take slots of its own.

struct IUnknown {
  virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) = 0;
  virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
  virtual ULONG STDMETHODCALLTYPE Release() = 0;
};

struct IDispatch : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count,
                                                  LCID locale, DISPID* identifiers) = 0;
  virtual HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags,
                                           DISPPARAMS* arguments, VARIANT* result,
                                           EXCEPINFO* exception, UINT* wrongArgument) = 0;
};

struct IEnumVARIANT : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* values, ULONG* fetched) = 0;
  virtual HRESULT STDMETHODCALLTYPE Skip(ULONG count) = 0;
  virtual HRESULT STDMETHODCALLTYPE Reset() = 0;
  virtual HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) = 0;
};

struct IErrorInfo : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE GetGUID(GUID* guid) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetSource(BSTR* source) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetDescription(BSTR* description) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetHelpFile(BSTR* helpFile) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetHelpContext(DWORD* helpContext) = 0;
};

struct ICreateErrorInfo : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE SetGUID(REFGUID guid) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetSource(LPOLESTR source) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetDescription(LPOLESTR description) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetHelpFile(LPOLESTR helpFile) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetHelpContext(DWORD helpContext) = 0;
};

struct ISupportErrorInfo : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) = 0;
};

struct IClassFactory : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) = 0;
  virtual HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) = 0;
};

inline constexpr IID IID_IUnknown = {0x00000000, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IClassFactory = {0x00000001, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IDispatch = {0x00020400, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_ITypeInfo = {0x00020401, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IEnumVARIANT = {0x00020404, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IErrorInfo = {
    0x1CF2B120, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};
inline constexpr IID IID_ICreateErrorInfo = {
    0x22F03340, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};
inline constexpr IID IID_ISupportErrorInfo = {
    0xDF0B3D60, 0x548F, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};

// ---- Functions

// Another library of the process may bring functions of these names, so they are known to the
// linker as Praxen….
extern "C" {

/// Allocates a copy of a null-terminated text; null for null or when memory is short.
BSTR SysAllocString(const OLECHAR* text) noexcept __asm__("PraxenSysAllocString");
/// Allocates a copy of length characters, or as many zeros when text is null.
BSTR SysAllocStringLen(const OLECHAR* text, UINT length) noexcept
    __asm__("PraxenSysAllocStringLen");
/// Allocates a copy of length bytes, or as many zeros when bytes is null.
BSTR SysAllocStringByteLen(const char* bytes, UINT length) noexcept
    __asm__("PraxenSysAllocStringByteLen");
/// Replaces *text by a copy of source, which may lie in *text; false when memory is short.
INT SysReAllocString(BSTR* text, const OLECHAR* source) noexcept __asm__("PraxenSysReAllocString");
/// Replaces *text by a copy of length characters of source, which may lie in *text; a null source
/// keeps the characters of *text that fit and fills up with zeros. False when memory is short.
INT SysReAllocStringLen(BSTR* text, const OLECHAR* source, UINT length) noexcept
    __asm__("PraxenSysReAllocStringLen");
/// Frees a text; null is allowed.
void SysFreeString(BSTR text) noexcept __asm__("PraxenSysFreeString");
/// The length in characters, 0 for null.
UINT SysStringLen(BSTR text) noexcept __asm__("PraxenSysStringLen");
/// The length in bytes, 0 for null.
UINT SysStringByteLen(BSTR text) noexcept __asm__("PraxenSysStringByteLen");

/// Makes any memory an empty variant, without freeing what it held.
void VariantInit(VARIANTARG* variant) noexcept __asm__("PraxenVariantInit");
/// Frees what the variant owns and makes it empty; what is held by reference stays.
/// DISP_E_BADVARTYPE, and no change, for types that do not exist here, arrays among them.
HRESULT VariantClear(VARIANTARG* variant) noexcept __asm__("PraxenVariantClear");
/// Clears target and makes it a copy that owns its text or object; references stay references.
HRESULT VariantCopy(VARIANTARG* target, const VARIANTARG* source) noexcept
    __asm__("PraxenVariantCopy");
/// As VariantCopy, but copies what a reference refers to; E_INVALIDARG for a reference to a variant
/// that is itself a reference to a variant, and for a null reference.
HRESULT VariantCopyInd(VARIANT* target, const VARIANTARG* source) noexcept
    __asm__("PraxenVariantCopyInd");
/// Converts source, or what it refers to, to a type and stores it in target, which may be source
/// and which stays unchanged when the conversion fails. DISP_E_TYPEMISMATCH when there is no such
/// conversion, DISP_E_OVERFLOW when the value does not fit, DISP_E_BADVARTYPE for a type unknown.
HRESULT VariantChangeType(VARIANTARG* target, const VARIANTARG* source, USHORT flags,
                          VARTYPE type) noexcept __asm__("PraxenVariantChangeType");
/// As VariantChangeType. The locale is ignored: numbers become texts with ".", texts become numbers
/// with that or the user's decimal separator, and there is no conversion between dates and text.
HRESULT VariantChangeTypeEx(VARIANTARG* target, const VARIANTARG* source, LCID locale, USHORT flags,
                            VARTYPE type) noexcept __asm__("PraxenVariantChangeTypeEx");

/// Sets the error object of the calling thread, null for none; reserved must be 0.
HRESULT SetErrorInfo(ULONG reserved, IErrorInfo* info) noexcept __asm__("PraxenSetErrorInfo");
/// Hands over the error object of the calling thread, which then has none; S_FALSE and null when
/// there is none; reserved must be 0.
HRESULT GetErrorInfo(ULONG reserved, IErrorInfo** info) noexcept __asm__("PraxenGetErrorInfo");
/// Creates an error object, which answers IErrorInfo as well.
HRESULT CreateErrorInfo(ICreateErrorInfo** info) noexcept __asm__("PraxenCreateErrorInfo");

/// Allocates memory that another module may free; null when memory is short.
LPVOID CoTaskMemAlloc(size_t size) noexcept __asm__("PraxenCoTaskMemAlloc");
/// Frees memory of CoTaskMemAlloc; null is allowed.
void CoTaskMemFree(LPVOID memory) noexcept __asm__("PraxenCoTaskMemFree");

/// Finds the class of a programmatic identifier; CO_E_CLASSSTRING when it is not registered.
HRESULT CLSIDFromProgID(LPCOLESTR progId, CLSID* clsid) noexcept __asm__("PraxenCLSIDFromProgID");

/// Loads the server of a class and creates an object of it. REGDB_E_CLASSNOTREG when the class is
/// not registered, CO_E_DLLNOTFOUND when the server cannot be loaded, CO_E_ERRORINDLL when it is
/// not a server, otherwise what the server answers.
HRESULT CoCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid,
                         void** object) noexcept __asm__("PraxenCoCreateInstance");

/// Unloads the servers that agree to it.
HRESULT CoFreeUnusedLibraries() noexcept __asm__("PraxenCoFreeUnusedLibraries");

}  // extern "C"

#pragma GCC visibility pop

// NOLINTEND

#endif  // PRAXEN_AUTOMATION_AUTOMATION_POSIX_H_
