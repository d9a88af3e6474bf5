// Small functions on texts that several classes share.
#ifndef PRAXEN_CORE_TEXT_FUNCTIONS_H_
#define PRAXEN_CORE_TEXT_FUNCTIONS_H_

#include <string_view>

#include "praxen/core/text.h"

namespace praxen::detail {

/// The text with every "&lt;", then every "&gt;", then every "&amp;" replaced by its character.
Text UnescapeText(const Text& text);

/// The part before the first "."; the whole text when it has none.
std::u16string_view TextBeforeFirstDot(std::u16string_view text);
/// The part after the first "."; the empty text when it has none.
std::u16string_view TextAfterFirstDot(std::u16string_view text);

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_TEXT_FUNCTIONS_H_
