// Storage of Text and its conversions to and from UTF-8.
#include "praxen/core/text.h"

#include <utf8.h>

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <new>
#include <ostream>

#include "praxen/core/error.h"
#include "praxen/core/large_memory.h"
#include "praxen/core/region.h"
#include "praxen/core/thread_state.h"

namespace praxen {

using namespace detail;

constinit detail::StaticTextBlock<1> Text::kEmpty{{0, 0}, {0}};

namespace {

constexpr size_t kLongestText = 0x7FFFFFFF;
constexpr char32_t kReplacement = 0xFFFD;
constexpr uint32_t kInRegion = 1U << 31;
constexpr size_t kLongestInRegion =
    (Region::kLargest - sizeof(TextBlock)) / sizeof(char16_t) - 1;  // The NUL.

char16_t* MakeBlock(void* memory, uint32_t references, size_t length) {
  auto* const block = new (memory) TextBlock{references, static_cast<uint32_t>(length)};
  auto* const characters = reinterpret_cast<char16_t*>(block + 1);
  characters[length] = 0;
  return characters;
}

char32_t NextCodePoint(std::u16string_view text, size_t& at) {
  const char16_t first = text[at++];
  if (first < 0xD800 || first > 0xDFFF) return first;
  if (first > 0xDBFF || at == text.size()) return kReplacement;
  const char16_t second = text[at];
  if (second < 0xDC00 || second > 0xDFFF) return kReplacement;
  ++at;
  return 0x10000 + ((char32_t{first} - 0xD800) << 10) + (char32_t{second} - 0xDC00);
}

}  // namespace

char16_t* Text::Allocate(size_t length) {
  if (length > kLongestText) throw Overflow();
  void* const memory = std::malloc(BlockSize(length));
  if (memory == nullptr) throw std::bad_alloc();
  PreferLargePages(memory, BlockSize(length));
  return MakeBlock(memory, 1, length);
}

char16_t* Text::AllocateFinal(size_t length) {
  if (length > kLongestInRegion) return Allocate(length);
  ThreadState* const state = ThreadState::Find();
  if (state == nullptr || state->region == nullptr) return Allocate(length);
  return MakeBlock(state->region->Allocate(BlockSize(length)), kInRegion | 1, length);
}

Text::Text(std::u16string_view characters) : characters_(kEmpty.characters) {
  if (characters.empty()) return;
  char16_t* const copy = AllocateFinal(characters.size());
  std::memcpy(copy, characters.data(), characters.size() * sizeof(char16_t));
  characters_ = copy;
}

Text::Text(std::string_view utf8) : Text(FromUtf8(utf8)) {}

std::string Text::utf8() const { return ToUtf8(view()); }

Text Text::Join(std::u16string_view left, std::u16string_view right) {
  Text joined;
  if (left.empty() && right.empty()) return joined;
  char16_t* const characters = Allocate(left.size() + right.size());
  left.copy(characters, left.size());
  right.copy(characters + left.size(), right.size());
  joined.characters_ = characters;
  return joined;
}

void Text::ReleaseCounted(uint32_t held) noexcept {
  constexpr uint32_t kCount = ~kInRegion;
  // The only holder need not pay for an atomic decrement.
  const bool isLast =
      (held & kCount) == 1 || (references().fetch_sub(1, std::memory_order_acq_rel) & kCount) == 1;
  if (!isLast) return;
  (held & kInRegion) != 0 ? Region::Free(&block()) : std::free(&block());
}

std::ostream& operator<<(std::ostream& stream, const Text& text) { return stream << ToUtf8(text); }

std::string ToUtf8(std::u16string_view text) {
  std::string result;
  result.reserve(text.size());
  for (size_t at = 0; at < text.size();) {
    utf8::unchecked::append(NextCodePoint(text, at), std::back_inserter(result));
  }
  return result;
}

std::u16string FromUtf8(std::string_view text) {
  std::string valid;
  const bool clean = utf8::is_valid(text.begin(), text.end());
  if (!clean) {
    utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(valid), kReplacement);
    text = valid;
  }
  std::u16string result;
  result.reserve(text.size());
  utf8::unchecked::utf8to16(text.begin(), text.end(), std::back_inserter(result));
  return result;
}

}  // namespace praxen
