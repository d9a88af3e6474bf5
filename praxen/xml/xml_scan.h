// The look for the next character that does not stand for itself.
#ifndef PRAXEN_XML_XML_SCAN_H_
#define PRAXEN_XML_XML_SCAN_H_

#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>

#include <bit>
#endif

namespace praxen::detail {

/// Whether so many characters are the same, which are few. A call would take longer.
inline bool AreSame(const char16_t* a, const char16_t* b, size_t count) {
  constexpr size_t kBlock = sizeof(uint64_t) / sizeof(char16_t);
  const auto differ = [&](size_t at) {
    uint64_t blockA, blockB;
    std::memcpy(&blockA, a + at, sizeof blockA);
    std::memcpy(&blockB, b + at, sizeof blockB);
    return blockA != blockB;
  };
  if (count < kBlock) {
    size_t at = 0;
    while (at < count && a[at] == b[at]) ++at;
    return at == count;
  }
  for (size_t at = 0; at < count - kBlock; at += kBlock) {
    if (differ(at)) return false;
  }
  return !differ(count - kBlock);
}

/// Whether tabs and line feeds stand for themselves, as they do in content.
enum class XmlBreaks : bool { Special, Ordinary };

/// The first of the characters `a`, `b` and `c`, of the controls, and of those from the surrogates
/// on. At `end` stands a NUL.
template <XmlBreaks Breaks>
const char16_t* FindSpecial(const char16_t* next, [[maybe_unused]] const char16_t* end, char16_t a,
                            char16_t b, char16_t c) {
  constexpr bool kOrdinaryBreaks = Breaks == XmlBreaks::Ordinary;
#ifdef __SSE2__
  const auto all = [](char16_t character) {
    return _mm_set1_epi16(static_cast<int16_t>(character));
  };
  const __m128i stopA = all(a), stopB = all(b), stopC = all(c);
  // Moves the ordinary characters, from U+0020 to U+D7FF, to the low end of the signed numbers.
  const __m128i shift = all(0x8000 - 0x20);
  const __m128i lastOrdinary = all(static_cast<char16_t>(0xD7FF - 0x20 + 0x8000));
  for (; end - next >= 8; next += 8) {
    const __m128i run = _mm_loadu_si128(reinterpret_cast<const __m128i*>(next));
    __m128i special = _mm_cmpgt_epi16(_mm_add_epi16(run, shift), lastOrdinary);
    if constexpr (kOrdinaryBreaks) {
      const __m128i breaks =
          _mm_or_si128(_mm_cmpeq_epi16(run, all(u'\n')), _mm_cmpeq_epi16(run, all(u'\t')));
      special = _mm_andnot_si128(breaks, special);
    }
    const __m128i stops =
        _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi16(run, stopA), special),
                     _mm_or_si128(_mm_cmpeq_epi16(run, stopB), _mm_cmpeq_epi16(run, stopC)));
    const auto mask = static_cast<uint32_t>(_mm_movemask_epi8(stops));
    if (mask != 0) return next + std::countr_zero(mask) / 2;
  }
#endif
  for (;; ++next) {
    const char16_t character = *next;
    const bool isPlain = static_cast<uint16_t>(character - 0x20) < 0xD800 - 0x20;
    const bool isBreak = kOrdinaryBreaks && (character == u'\n' || character == u'\t');
    if (!isPlain && !isBreak) return next;
    if (character == a || character == b || character == c) return next;
  }
}

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_SCAN_H_
