// The length-prefixed texts and the shared memory of automation.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "praxen/automation/automation.h"

namespace {

// The length stands in the last four bytes before the text; the rest keeps the text aligned.
constexpr size_t kHeaderSize = 8;
constexpr size_t kLengthSize = sizeof(uint32_t);
constexpr size_t kMaxBytes = std::numeric_limits<UINT>::max() - kHeaderSize - sizeof(OLECHAR) - 1;

char* BytesOf(BSTR text) { return reinterpret_cast<char*>(text); }

// Text of so many bytes, not yet filled but terminated; an odd count is terminated all the same.
BSTR Allocate(size_t bytes) {
  if (bytes > kMaxBytes) return nullptr;
  char* const block = static_cast<char*>(std::malloc(kHeaderSize + bytes + sizeof(OLECHAR)));
  if (block == nullptr) return nullptr;
  const auto length = static_cast<uint32_t>(bytes);
  std::memcpy(block + kHeaderSize - kLengthSize, &length, kLengthSize);
  std::memset(block + kHeaderSize + bytes, 0, sizeof(OLECHAR));
  return reinterpret_cast<BSTR>(block + kHeaderSize);
}

BSTR CopyBytes(const void* source, size_t bytes) {
  const BSTR text = Allocate(bytes);
  if (text == nullptr) return nullptr;
  if (source != nullptr) {
    std::memcpy(text, source, bytes);
  } else {
    std::memset(text, 0, bytes);
  }
  return text;
}

INT Replace(BSTR* text, BSTR replacement) {
  if (replacement == nullptr) return FALSE;
  SysFreeString(*text);
  *text = replacement;
  return TRUE;
}

}  // namespace

BSTR SysAllocString(const OLECHAR* text) noexcept {
  if (text == nullptr) return nullptr;
  return CopyBytes(text, std::char_traits<OLECHAR>::length(text) * sizeof(OLECHAR));
}

BSTR SysAllocStringLen(const OLECHAR* text, UINT length) noexcept {
  return CopyBytes(text, size_t{length} * sizeof(OLECHAR));
}

BSTR SysAllocStringByteLen(const char* bytes, UINT length) noexcept {
  return CopyBytes(bytes, length);
}

INT SysReAllocString(BSTR* text, const OLECHAR* source) noexcept {
  if (text == nullptr) return FALSE;
  return Replace(text, source == nullptr ? SysAllocStringLen(nullptr, 0) : SysAllocString(source));
}

INT SysReAllocStringLen(BSTR* text, const OLECHAR* source, UINT length) noexcept {
  if (text == nullptr) return FALSE;
  const BSTR replacement = SysAllocStringLen(source, length);
  if (replacement != nullptr && source == nullptr && *text != nullptr) {
    std::copy_n(*text, std::min(length, SysStringLen(*text)), replacement);
  }
  return Replace(text, replacement);
}

void SysFreeString(BSTR text) noexcept {
  if (text != nullptr) std::free(BytesOf(text) - kHeaderSize);
}

UINT SysStringLen(BSTR text) noexcept {
  return SysStringByteLen(text) / static_cast<UINT>(sizeof(OLECHAR));
}

UINT SysStringByteLen(BSTR text) noexcept {
  if (text == nullptr) return 0;
  uint32_t length = 0;
  std::memcpy(&length, BytesOf(text) - kLengthSize, kLengthSize);
  return length;
}

LPVOID CoTaskMemAlloc(size_t size) noexcept { return std::malloc(size); }

void CoTaskMemFree(LPVOID memory) noexcept { std::free(memory); }
