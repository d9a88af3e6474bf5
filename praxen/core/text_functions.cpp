// Unescaping and dotted names.
#include "praxen/core/text_functions.h"

#include <algorithm>
#include <string>

namespace praxen::detail {

namespace {

// Replaces in one pass, in place: the character is shorter than the reference that stands for it.
void ReplaceReferences(std::u16string& text, std::u16string_view reference, char16_t character) {
  size_t from = text.find(reference);
  if (from == std::u16string::npos) return;
  size_t to = from;
  while (from < text.size()) {
    const bool found = std::u16string_view(text).substr(from).starts_with(reference);
    text[to++] = found ? character : text[from];
    from += found ? reference.size() : 1;
  }
  text.resize(to);
}

}  // namespace

Text UnescapeText(const Text& text) {
  if (text.view().find(u'&') == std::u16string_view::npos) return text;
  std::u16string result(text.view());
  ReplaceReferences(result, u"&lt;", u'<');
  ReplaceReferences(result, u"&gt;", u'>');
  ReplaceReferences(result, u"&amp;", u'&');
  return result;
}

std::u16string_view TextBeforeFirstDot(std::u16string_view text) {
  return text.substr(0, text.find(u'.'));
}

std::u16string_view TextAfterFirstDot(std::u16string_view text) {
  const size_t dot = text.find(u'.');
  return dot == std::u16string_view::npos ? std::u16string_view() : text.substr(dot + 1);
}

}  // namespace praxen::detail
