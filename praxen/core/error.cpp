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
  return place_.line != 0 ? *this : Error(number_, source_, description_, place);
}

}  // namespace praxen

namespace praxen::detail {

Error BufferRangeError(const Text& source, const Text& description) {
  return {ObjectErrorCode(512), source, description};
}

Error RequiredFieldsEmpty() { return {ObjectErrorCode(601), {}, u"Required fields empty"_text}; }

Error InvalidXml(std::u16string_view reason, Place place) {
  return {ObjectErrorCode(603), {}, u"Invalid XML: "_text + reason, place};
}

Error WrongRootElement() { return {ObjectErrorCode(604), {}, u"Wrong root element"_text}; }

Error WrongRootElement(std::u16string_view name) {
  const Error error = WrongRootElement();
  return {error.number(),
          {},
          error.description() + u": '" + name + u"' is no document of the exchange format"};
}

Error WrongElementName() { return {ObjectErrorCode(605), {}, u"Wrong element name"_text}; }

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
