// The user's locale, as far as numbers in documents depend on it.
#ifndef PRAXEN_CORE_LOCALE_H_
#define PRAXEN_CORE_LOCALE_H_

#include <string>
#include <string_view>

namespace praxen::detail {

/// The decimal separator of the user's default locale, at most four UTF-16 units; empty when the
/// system does not report one. Follows changes of the locale and never changes the program's own.
std::u16string GetDecimalSeparator();

/// The same as the system reports it.
std::u16string SystemDecimalSeparator();

/// The separator in UTF-8, or in another encoding, whose separators have one byte; empty when it is
/// not one UTF-16 unit. Elsewhere than on Windows.
std::u16string DecodeSeparator(std::string_view bytes);

/// Reports a decimal separator.
using DecimalSeparatorQuery = std::u16string (*)();

/// Lets `query` answer in place of the system, and the system again for null; returns what answered
/// before. For tests.
DecimalSeparatorQuery SetDecimalSeparatorQuery(DecimalSeparatorQuery query);

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_LOCALE_H_
