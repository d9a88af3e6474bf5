// An object and all below it as JSON.
#ifndef PRAXEN_TOOLS_PRAXEN_JSON_H_
#define PRAXEN_TOOLS_PRAXEN_JSON_H_

#include <nlohmann/json.hpp>

#include "praxen/describe/object.h"

namespace praxen::detail {

/// The members of a JSON object that are no properties: the class of the object, and the elements
/// of a list; of a document also its file, or that and the error that reading it gave. The
/// published name of a property is an identifier, so none begins with "$".
inline constexpr const char* kJsonClass = "$class";
inline constexpr const char* kJsonElements = "$elements";
inline constexpr const char* kJsonFile = "$file";
inline constexpr const char* kJsonError = "$error";

/// Which properties are told.
enum class JsonContent : bool { Changed, All };

/// The object with its class and its properties, under their published names and in the order of
/// the class's members. A list that is a property, and has none of its own, is an array. An
/// enumeration is its text in the exchange format, or its number when it lies outside; a number
/// that JSON has no form for is null.
///
/// `Changed` leaves out what a new object holds in the same place. The object must not contain
/// itself, as no object does that was read.
nlohmann::ordered_json ToJson(Object& object, JsonContent content);

/// The value in one line of UTF-8; control and bidirectional characters are escapes.
std::string JsonLine(const nlohmann::ordered_json& value);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_JSON_H_
