// Each text has one place, which the next different text for that place takes.
#include "praxen/describe/shared_texts.h"

#include <cstdint>

namespace praxen::describe {

namespace {

size_t Hash(std::u16string_view characters) {
  uint64_t hash = characters.size();
  for (const char16_t character : characters) hash = (hash ^ character) * 0x9E3779B97F4A7C15U;
  return static_cast<size_t>(hash >> 32);
}

}  // namespace

Text SharedTexts::Share(std::u16string_view characters) {
  if (characters.size() > kLongest) return Text(characters);
  Text& place = texts_[Hash(characters) % kPlaces];
  if (place != characters) place = Text(characters);
  return place;
}

void SharedTexts::Clear() noexcept {
  for (Text& text : texts_) text = Text();
}

}  // namespace praxen::describe
