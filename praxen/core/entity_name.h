// The name of a class, member or constant, taken from the compiler so that it is written once.
#ifndef PRAXEN_CORE_ENTITY_NAME_H_
#define PRAXEN_CORE_ENTITY_NAME_H_

#include <string_view>

#include "praxen/core/language.h"

namespace praxen::detail {

template <auto Entity>
constexpr std::string_view Signature() {
  return __PRETTY_FUNCTION__;
}

template <class Entity>
constexpr std::string_view TypeSignature() {
  return __PRETTY_FUNCTION__;
}

/// What stands between "= " and the closing bracket is the entity with its scopes; GCC appends
/// "; std::string_view = …", and writes some members with a blank or parentheses around them.
constexpr std::string_view LastName(std::string_view signature) {
  const size_t start = signature.find("= ") + 2;
  signature = signature.substr(start, signature.find_first_of(";]", start) - start);
  while (signature.back() == ')' || signature.back() == ' ') signature.remove_suffix(1);
  const size_t scope = signature.find_last_of(":& (");
  return scope == std::string_view::npos ? signature : signature.substr(scope + 1);
}

/// The unqualified name of a member, given a pointer to it, or of an enumerator.
template <auto Entity>
constexpr std::string_view EntityName() {
  return detail::LastName(detail::Signature<Entity>());
}

/// The unqualified name of a class.
template <class Entity>
constexpr std::string_view TypeName() {
  return detail::LastName(detail::TypeSignature<Entity>());
}

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_ENTITY_NAME_H_
