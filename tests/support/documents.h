// Short forms for tests that read and write documents.
#ifndef PRAXEN_TESTS_SUPPORT_DOCUMENTS_H_
#define PRAXEN_TESTS_SUPPORT_DOCUMENTS_H_

#include <functional>
#include <string>
#include <string_view>

#include "praxen/describe/object.h"

namespace praxen::detail {

/// The markup as a document: with the namespace on its root element.
Text Document(std::string_view markup);

/// The object written without declaration, namespace and line breaks.
std::string Markup(Object& object);

/// What reading the markup and writing the object gives, or the error that it raises as
/// "605 Wrong element name"; the number is that of the object error, or in hexadecimal.
std::string Rewritten(std::string_view markup, std::string_view className = {});

/// The error that an operation raises, in the same form; "none" without an error.
std::string ErrorOf(const std::function<void()>& operation);

}  // namespace praxen::detail

#endif  // PRAXEN_TESTS_SUPPORT_DOCUMENTS_H_
