// The schema that the library ships, from the layouts of the classes.
#ifndef PRAXEN_TOOLS_GENERATE_SCHEMA_H_
#define PRAXEN_TOOLS_GENERATE_SCHEMA_H_

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "praxen/describe/layout.h"

namespace praxen::detail {

/// An attribute as the schema declares it; all attributes are strings, so that the readers' own
/// conversions decide what a value means.
struct AttributeDeclaration {
  std::u16string name;
  bool required = false;
  /// What stands in for an absent attribute: the value that makes its writer leave it out.
  std::optional<std::u16string> defaultValue = {};

  bool operator==(const AttributeDeclaration&) const = default;
};

/// An element as the schema declares it.
struct ElementDeclaration {
  enum class Content { Children, Text, Markup };

  std::u16string name;
  Content content = Content::Children;
  std::vector<AttributeDeclaration> attributes = {};
};

/// Every element of the exchange format in the order of its name. An element that two classes use
/// has the attributes of both.
std::map<std::u16string, ElementDeclaration> DeclareElements();

/// How the schema declares an attribute of a layout.
AttributeDeclaration DeclareAttribute(const Attribute& attribute);

/// The schema document as UTF-8.
std::string GenerateSchema();

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_GENERATE_SCHEMA_H_
