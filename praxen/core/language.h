// Stops a compiler of an older language than the library is written in. It comes before all else.
#ifndef PRAXEN_CORE_LANGUAGE_H_
#define PRAXEN_CORE_LANGUAGE_H_

#ifdef _MSVC_LANG
#define PRAXEN_LANGUAGE _MSVC_LANG
#else
#define PRAXEN_LANGUAGE __cplusplus
#endif
#if PRAXEN_LANGUAGE <= 201703L
// The name is the message: compilers end at a file that is not there, but go on after an #error,
// which hundreds of errors would follow.
#include "PraxenHelper needs C++20; compile with -std=c++20 or later"
#endif
#undef PRAXEN_LANGUAGE

#endif  // PRAXEN_CORE_LANGUAGE_H_
