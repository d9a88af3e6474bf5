// How the namespaces of the library see each other. Every header of the library leads here first.
#ifndef PRAXEN_CORE_NAMESPACES_H_
#define PRAXEN_CORE_NAMESPACES_H_

#include "praxen/core/language.h"

/// What clients use: the classes of the model, texts, references, errors and the factory. Nothing
/// else is visible to a client that uses this namespace as a whole.
namespace praxen {

/// The vocabulary in which classes are described, and reflection over the descriptions.
namespace describe {}

/// Everything that is no client's. It sees the vocabulary, and the vocabulary sees it.
namespace detail {
using namespace describe;
}  // namespace detail
namespace describe {
using namespace detail;
}  // namespace describe

}  // namespace praxen

#endif  // PRAXEN_CORE_NAMESPACES_H_
