// The numbers and descriptions of the library's errors.
#include "praxen/core/error.h"

namespace praxen {

Error::Error(uint32_t number, const Text& source, const Text& description, Place place)
    : number_(number),
      source_(source),
      description_(description),
      place_(place),
      what_(ToUtf8(description)) {}

Error Error::At(Place place) const {
  Error placed(*this);
  if (place_.line == 0) placed.place_ = place;
  return placed;
}

Error Error::With(const Text& detail) const {
  Error detailed(*this);
  detailed.detail_ = detail;
  detailed.what_ = ToUtf8(detail.empty() ? description_ : description_ + u": " + detail);
  return detailed;
}

}  // namespace praxen

namespace praxen::detail {

namespace {

constexpr size_t kLongestQuotation = 60;

Text FoundInPlaceOf(std::u16string_view found, std::u16string_view expected) {
  return Quoted(found) + u" where " + expected + u" is expected";
}

}  // namespace

Text Quoted(std::u16string_view text) {
  const bool isCut = text.size() > kLongestQuotation;
  if (isCut) text = text.substr(0, kLongestQuotation);
  // Half of a pair of surrogates would not print.
  if (isCut && text.back() >= 0xD800 && text.back() <= 0xDBFF) text.remove_suffix(1);
  return u"\""_text + text + (isCut ? u"…\"" : u"\"");
}

Error BufferRangeError(const Text& source, const Text& description) {
  return {ObjectErrorCode(512), source, description};
}

Error RequiredFieldsEmpty(const Text& fields) {
  return Error(ObjectErrorCode(601), {}, u"Required fields empty"_text).With(fields);
}

Error InvalidXml(std::u16string_view reason, Place place) {
  return {ObjectErrorCode(603), {}, u"Invalid XML: "_text + reason, place};
}

Error UnusableSchema(std::u16string_view reason) { return {0x8007000D, {}, Text(reason)}; }

Error WrongRootElement(std::u16string_view found, std::u16string_view expected) {
  return Error(ObjectErrorCode(604), {}, u"Wrong root element"_text)
      .With(FoundInPlaceOf(found, expected));
}

Error WrongElementName(std::u16string_view found, std::u16string_view expected) {
  return Error(ObjectErrorCode(605), {}, u"Wrong element name"_text)
      .With(FoundInPlaceOf(found, Quoted(expected)));
}

Error NameConflict() {
  return {ObjectErrorCode(607), {}, u"Name is in conflict with an existing name"_text};
}

Error IllegalDecimalSeparator() {
  return {ObjectErrorCode(607), {}, u"Illegal decimal separator"_text};
}

Error InvalidArgument(const Text& description) { return {0x80070057, {}, description}; }

Error SubscriptOutOfRange() { return {0x8002000B, {}, u"Subscript out of range"_text}; }

Error TypeMismatch(const Text& description) { return {0x80020005, {}, description}; }

Error Overflow() { return {0x8002000A, {}, u"Overflow"_text}; }

Error MissingObject(const Text& description) { return {0x800A005B, {}, description}; }

Error NestedTooDeep(uint32_t deepest) {
  return {0x800A001C,
          {},
          u"Nested deeper than "_text + FromUtf8(std::to_string(deepest)) +
              u" elements; an object may contain itself"};
}

}  // namespace praxen::detail
