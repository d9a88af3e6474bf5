// Each text has one place, which a different text takes when it comes there twice in a row: most
// texts, such as names, come once and cost no more than a look at the place.
#include "praxen/describe/shared_texts.h"

#include <cstdint>
#include <cstring>

namespace praxen::describe {

namespace {

// Of the length and both ends, where names differ; texts between them only take turns.
uint64_t Hash(std::u16string_view characters) {
  constexpr size_t kEnd = sizeof(uint64_t) / sizeof(char16_t);
  const size_t size = characters.size();
  uint64_t first = 0, last = 0;
  if (size >= kEnd) {
    std::memcpy(&first, characters.data(), sizeof(first));
    std::memcpy(&last, characters.data() + (size - kEnd), sizeof(last));
  } else {
    for (const char16_t character : characters) first = first << 16 | character;
  }
  const uint64_t mixed = (first ^ size) * 0x9E3779B97F4A7C15U + last;
  const uint64_t hash = mixed * 0x9E3779B97F4A7C15U;
  // 0 stands for no text.
  return (hash ^ hash >> 32) | uint64_t{1} << 63;
}

bool Holds(const Text& text, std::u16string_view characters) {
  return text.size() == characters.size() &&
         std::memcmp(text.data(), characters.data(), characters.size() * sizeof(char16_t)) == 0;
}

}  // namespace

Text SharedTexts::Share(std::u16string_view characters) {
  if (characters.size() > kLongest) return Text(characters);
  const uint64_t hash = Hash(characters);
  Place& place = places_[hash % kPlaces];
  if (place.lastHash == 0) used_[usedCount_++] = static_cast<uint8_t>(hash % kPlaces);
  if (place.hash == hash && Holds(place.text, characters)) return place.text;
  Text text(characters);
  if (place.lastHash == hash) {
    place.hash = hash;
    place.text = text;
  }
  place.lastHash = hash;
  return text;
}

void SharedTexts::Clear() noexcept {
  for (; usedCount_ != 0; --usedCount_) places_[used_[usedCount_ - 1]] = {};
}

}  // namespace praxen::describe
