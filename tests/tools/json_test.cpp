// JSON of every kind of document, read back by the published names and compared with the object.
#include "tools/praxen/json.h"

#include <gtest/gtest.h>

#include <algorithm>
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

// The value under the name of a property as the property would hold it.
Value ValueIn(const Json& json, const Member& member) {
  using std::type_identity;
  return VisitType(member.type, Overloaded{[&](type_identity<Text>) -> Value {
                                             return Text(FromUtf8(json.get<std::string>()));
                                           },
                                           [&](type_identity<EnumerationDescription>) -> Value {
                                             if (json.is_number()) return json.get<int32_t>();
                                             return member.type.enumeration->FromText(
                                                 FromUtf8(json.get<std::string>()));
                                           },
                                           [&]<class T>(type_identity<T>) -> Value {
                                             if constexpr (std::is_arithmetic_v<T>)
                                               return json.get<T>();
                                             return {};
                                           }});
}

// Compares an object with its JSON; what JSON leaves out has to be that of `created`.
class Comparison {
 public:
  size_t values() const { return values_; }

  void Compare(Object& object, Object& created, const Json& json) {
    const ClassDescription& description = object.description();
    SCOPED_TRACE(description.name);
    ASSERT_EQ(json.at(kJsonClass), description.name);
    for (const Member& member : description.members) {
      SCOPED_TRACE(member.name);
      const auto found = json.find(std::string(member.name));
      if (IsKeptValue(member)) {
        CompareValue(ReadProperty(object, member),
                     found == json.end() ? ReadProperty(created, member) : ValueIn(*found, member));
      } else if (IsKeptObject(member)) {
        CompareHeld(Held(object, member), Held(created, member),
                    found == json.end() ? nullptr : &*found);
      } else {
        EXPECT_EQ(found, json.end());
      }
    }
    CompareElements(object, json.value(kJsonElements, Json::array()));
  }

 private:
  void CompareValue(const Value& value, const Value& told) {
    EXPECT_TRUE(value == told);
    ++values_;
  }

  void CompareHeld(Object* held, Object* usual, const Json* json) {
    const Json same{{kJsonClass, held == nullptr ? "" : held->description().name}};
    if (json == nullptr && held == nullptr) {
      EXPECT_EQ(usual, nullptr);
    } else if (held == nullptr) {
      EXPECT_TRUE(json->is_null());
    } else if (json != nullptr && json->is_array()) {
      CompareElements(*held, *json);
    } else {
      ASSERT_TRUE(json != nullptr || usual != nullptr);
      Compare(*held, usual != nullptr ? *usual : new_.Like(*held), json != nullptr ? *json : same);
    }
  }

  void CompareElements(const Object& list, const Json& json) {
    const auto elements = ElementsOf(list);
    ASSERT_EQ(elements.size(), json.size());
    for (size_t i = 0; i < elements.size(); ++i) {
      Compare(*elements[i], new_.Like(*elements[i]), json[i]);
    }
  }

  NewObjects new_;
  size_t values_ = 0;
};

TEST(JsonOfDocuments, HoldsEveryValue) {
  size_t values = 0;
  for (const ClassDescription* const description : DocumentClasses()) {
    const Ref<Object> created = description->create();
    for (const int depth : {0, 1, 3}) {
      const Ref<Object> object = description->create();
      FillExample(*object, depth);
      for (const JsonContent content : {JsonContent::Changed, JsonContent::All}) {
        Comparison comparison;
        comparison.Compare(*object, *created, ReadBack(*object, content));
        values += comparison.values();
      }
    }
  }
  EXPECT_GT(values, 5000u);
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
