// How the tests were built, for those that measure memory.
#ifndef PRAXEN_TESTS_SUPPORT_BUILD_H_
#define PRAXEN_TESTS_SUPPORT_BUILD_H_

namespace praxen::detail {

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define PRAXEN_HAS_SANITIZER
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define PRAXEN_HAS_SANITIZER
#endif

/// Whether checks stand in for the allocator and take room of their own on the stack.
#ifdef PRAXEN_HAS_SANITIZER
inline constexpr bool kHasSanitizer = true;
#else
inline constexpr bool kHasSanitizer = false;
#endif

#ifdef __OPTIMIZE__
inline constexpr bool kIsOptimised = true;
#else
inline constexpr bool kIsOptimised = false;
#endif

}  // namespace praxen::detail

#endif  // PRAXEN_TESTS_SUPPORT_BUILD_H_
