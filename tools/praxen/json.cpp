// From objects to JSON, over the reflection surface alone.
#include "tools/praxen/json.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

#include "praxen/describe/reflection.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

using Json = nlohmann::ordered_json;

Json EnumerationJson(const EnumerationValue<const int32_t>& value) {
  const std::u16string_view text = value.description.ToText(value.number);
  return text.empty() ? Json(value.number) : Json(ToUtf8(text));
}

Json ValueJson(Object& object, const Member& member) {
  Json json;
  VisitProperty(
      object, member,
      Overloaded{[&](const Text& value) { json = ToUtf8(value); },
                 [&](const EnumerationValue<const int32_t>& v) { json = EnumerationJson(v); },
                 [&](const auto& value) { json = value; }});
  return json;
}

// Whether a list is nothing but its elements.
bool IsArray(const Object& object) {
  return object.elements() != nullptr && std::ranges::none_of(object.description().members, IsKept);
}

class JsonMaker {
 public:
  explicit JsonMaker(JsonContent content) : all_(content == JsonContent::All) {}

  Json Make(Object& object) { return Make(object, new_.Like(object)); }

 private:
  // `created` is what a new owner holds in the place of the object.
  Json Make(Object& object, Object& created) {
    Json json{{kJsonClass, object.description().name}};
    for (const Member& member : object.description().members) {
      if (IsKeptValue(member)) AddValue(json, object, created, member);
      if (IsKeptObject(member)) AddHeld(json, object, created, member);
    }
    if (all_ ? object.elements() != nullptr : !ElementsOf(object).empty()) {
      json[kJsonElements] = Elements(object);
    }
    return json;
  }

  void AddValue(Json& json, Object& object, Object& created, const Member& member) const {
    if (!all_ && ReadProperty(object, member) == ReadProperty(created, member)) return;
    json[std::string(member.name)] = ValueJson(object, member);
  }

  void AddHeld(Json& json, Object& object, Object& created, const Member& member) {
    Object* const held = Held(object, member);
    Object* const usual = Held(created, member);
    Json value;
    bool differs = held != usual;
    if (held != nullptr && IsArray(*held)) {
      value = Elements(*held);
      differs = !value.empty();
    } else if (held != nullptr) {
      const bool isUsual = usual != nullptr && &usual->description() == &held->description();
      value = Make(*held, isUsual ? *usual : new_.Like(*held));
      // More than its class.
      differs = !isUsual || value.size() > 1;
    }
    if (all_ || differs) json[std::string(member.name)] = std::move(value);
  }

  Json Elements(Object& list) {
    Json elements = Json::array();
    for (const Ref<Object>& element : ElementsOf(list)) {
      elements.push_back(element ? Make(*element) : Json());
    }
    return elements;
  }

  const bool all_;
  NewObjects new_;
};

}  // namespace

nlohmann::ordered_json ToJson(Object& object, JsonContent content) {
  return JsonMaker(content).Make(object);
}

// What would steer a terminal stands inside of strings only, where escapes are allowed.
std::string JsonLine(const nlohmann::ordered_json& value) {
  const std::string json = value.dump(-1, ' ', false, Json::error_handler_t::replace);
  std::string line;
  line.reserve(json.size() + 1);
  for (size_t at = 0; at < json.size(); ++at) {
    // The controls are encoded in two bytes that begin with C2 or D8, or in three with E2.
    const auto byte = static_cast<unsigned char>(json[at]);
    const size_t size = byte == 0xE2 ? 3 : byte == 0xC2 || byte == 0xD8 ? 2 : 1;
    const std::u16string character = size == 1 ? u"" : FromUtf8(json.substr(at, size));
    if (character.size() == 1 && (character[0] < 0xA0 || IsBidirectionalControl(character[0]))) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(character[0]));
      line += escape;
    } else {
      line.append(json, at, size);
    }
    at += size - 1;
  }
  return line + '\n';
}

}  // namespace praxen::detail
