// JSON of every kind of document, from which the same document can be made.
#include "tools/praxen/json.h"

#include <gtest/gtest.h>

#include <string>

#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/praxen.h"
#include "tests/support/example.h"

namespace praxen::detail {
namespace {

using Json = nlohmann::json;

Json ReadBack(Object& object, JsonContent content) {
  return Json::parse(JsonLine(ToJson(object, content)));
}

void Fill(Object& object, const Json& json);

Ref<Object> Made(const Json& json) {
  const Ref<Object> object = FindClass(FromUtf8(json.at(kJsonClass).get<std::string>()))->create();
  Fill(*object, json);
  return object;
}

void SetValue(Object& object, const Member& member, const Json& json) {
  ChangeProperty(object, member,
                 Overloaded{[&](Text& text) { text = FromUtf8(json.get<std::string>()); },
                            [&](const EnumerationValue<int32_t>& value) {
                              value.number = json.is_number() ? json.get<int32_t>()
                                                              : value.description.FromText(FromUtf8(
                                                                    json.get<std::string>()));
                            },
                            [&](auto& value) { json.get_to(value); }});
}

void SetObject(Object& object, const Member& member, const Json& json) {
  if (json.is_null()) return SetHeld(object, member, nullptr);
  Object& held = HeldOrCreated(object, member);
  if (!json.is_array()) return Fill(held, json);
  for (const Json& element : json) held.Append(Made(element));
}

// Sets what the JSON of an object tells; the rest stays as it is in a new one.
void Fill(Object& object, const Json& json) {
  ASSERT_EQ(json.at(kJsonClass), object.description().name);
  for (const Json& element : json.value(kJsonElements, Json::array())) object.Append(Made(element));
  for (const Member& member : object.description().members) {
    const auto found = json.find(std::string(member.name));
    if (found == json.end()) continue;
    IsKeptValue(member) ? SetValue(object, member, *found) : SetObject(object, member, *found);
  }
}

TEST(JsonOfDocuments, HoldsEverythingOfTheDocument) {
  for (const ClassDescription* const description : DocumentClasses()) {
    for (const int depth : {0, 1, 3}) {
      const Ref<Object> object = description->create();
      FillExample(*object, depth);
      for (const JsonContent content : {JsonContent::Changed, JsonContent::All}) {
        const Json json = ReadBack(*object, content);
        const Ref<Object> made = Made(json);
        EXPECT_TRUE(ExampleDocument(*made) == ExampleDocument(*object)) << description->name;
        EXPECT_TRUE(ReadBack(*made, content) == json) << description->name;
      }
    }
  }
}

TEST(JsonOfDocuments, LeavesOutWhatANewObjectHolds) {
  for (const ClassDescription* const description : DocumentClasses()) {
    SCOPED_TRACE(description->name);
    const Ref<Object> created = description->create();
    EXPECT_EQ(ReadBack(*created, JsonContent::Changed), Json({{kJsonClass, description->name}}));
    const Json all = ReadBack(*created, JsonContent::All);
    for (const Member& member : description->members) {
      EXPECT_EQ(all.contains(member.name), IsKept(member)) << member.name;
    }
  }
}

TEST(JsonOfValues, TellsWhatADocumentCannot) {
  const auto constants = New<ProjectConstants>();
  constants->Add1(u"Motor.\xD800", u"\x1", u"");
  EXPECT_EQ(JsonLine(ToJson(*constants, JsonContent::Changed)),
            R"({"$class":"ProjectConstants","$elements":[{"$class":"ProjectConstant",)"
            "\"Name\":\"Motor.\uFFFD\",\"PCType\":\"\\u0001\",\"Value\":\"\"}]}\n");
  const auto parameter = New<Parameter>();
  parameter->Direction = static_cast<DirectionValue>(77);
  EXPECT_EQ(ReadBack(*parameter, JsonContent::Changed).at("Direction"), 77);
  parameter->Direction = pxOut;
  EXPECT_EQ(ReadBack(*parameter, JsonContent::Changed).at("Direction"), "out");
}

TEST(JsonOfValues, NestsAsDeepAsDocuments) {
  const auto outermost = New<HWUnit>();
  HWUnit* innermost = outermost.get();
  for (int i = 0; i < 1000; ++i) {
    const auto unit = New<HWUnit>();
    innermost->HWUnits->Add(unit);
    innermost = unit.get();
  }
  innermost->Path = u"end";
  Json json = ReadBack(*outermost, JsonContent::Changed);
  for (int i = 0; i < 1000; ++i) json = Json(json.at("HWUnits").at(0));
  EXPECT_EQ(json.at("Path"), "end");
}

}  // namespace
}  // namespace praxen::detail
