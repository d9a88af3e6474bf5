// The one exception type of the library and the named functions that make its errors.
#ifndef PRAXEN_CORE_ERROR_H_
#define PRAXEN_CORE_ERROR_H_

#include <cstdint>
#include <exception>
#include <string>

#include "praxen/core/place.h"
#include "praxen/core/text.h"

namespace praxen {

/// An error with its automation code, source and description.
class Error : public std::exception {
 public:
  Error(uint32_t number, const Text& source, const Text& description, Place place = {});

  /// The automation error code: 0x80040000 + N for object error N, else a code of the platform.
  uint32_t number() const noexcept { return number_; }
  /// The class and operation that raised the error; empty for most errors.
  const Text& source() const noexcept { return source_; }
  const Text& description() const noexcept { return description_; }
  /// What the description leaves open, such as the object and the property that is empty, or what
  /// was found and expected; empty for many errors. Automation clients do not get it.
  const Text& detail() const noexcept { return detail_; }
  /// Where in the document that was read the error lies, when it lies in one.
  Place place() const noexcept { return place_; }
  /// The same error with a place, unless it has one.
  Error At(Place place) const;
  /// The same error with that detail.
  Error With(const Text& detail) const;
  /// Description and detail as UTF-8.
  const char* what() const noexcept override { return what_.c_str(); }

 private:
  uint32_t number_;
  Text source_, description_, detail_;
  Place place_;
  std::string what_;
};

/// The code of object error `number`.
constexpr uint32_t ObjectErrorCode(uint32_t number) { return 0x80040000u + number; }

}  // namespace praxen

namespace praxen::detail {

/// The text between double quotes, cut after some sixty characters.
Text Quoted(std::u16string_view text);

/// Object error 512 of the text buffer.
Error BufferRangeError(const Text& source, const Text& description);
/// Object error 601: properties that writing requires are empty; `fields` names them.
Error RequiredFieldsEmpty(const Text& fields);
/// Object error 603: the text is not well-formed or not valid; `reason` is the parser's.
Error InvalidXml(std::u16string_view reason, Place place);
/// The schema cannot be opened, parsed or used; `reason` names its file and the cause (0x8007000D).
Error UnusableSchema(std::u16string_view reason);
/// Object error 604: the document element is not the expected one. `expected` tells which is.
Error WrongRootElement(std::u16string_view found, std::u16string_view expected);
/// Object error 605: a child element is not the expected one.
Error WrongElementName(std::u16string_view found, std::u16string_view expected);
/// Object error 607: a project constant's name equals another or is a dotted prefix of one.
Error NameConflict();
/// Object error 607: the user's locale reports an empty or blank decimal separator.
Error IllegalDecimalSeparator();

/// A position before which nothing can be inserted, or another argument out of its range
/// (E_INVALIDARG).
Error InvalidArgument(const Text& description = u"Invalid procedure call or argument"_text);
/// A position outside 1 to `Count` (DISP_E_BADINDEX).
Error SubscriptOutOfRange();
/// A value or an object of another type than needed (DISP_E_TYPEMISMATCH).
Error TypeMismatch(const Text& description = u"Type mismatch"_text);
/// A number or size beyond its range (DISP_E_OVERFLOW).
Error Overflow();
/// An empty reference where an object is needed, or an attribute that must be there and is not.
Error MissingObject(const Text& description = u"Object variable not set"_text);
/// Objects or elements nested deeper than the library follows, as in an object inside itself.
Error NestedTooDeep(uint32_t deepest);

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_ERROR_H_
