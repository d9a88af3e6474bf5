// Every class that clients can create, used by name alone.
#include <gtest/gtest.h>

#include "praxen/core/text.h"
#include "praxen/factory/classes.h"
#include "praxen/server/registration.h"
#include "tests/server/client.h"

namespace praxen::detail::client {
namespace {

// A class whose objects can stand for the type: a creatable one, for a kind one that implements it.
std::string_view ClassFor(const ClassDescription& type) {
  if (type.create != nullptr) return type.name;
  for (const ClassDescription* const description : CreatableClasses()) {
    if (description->kind == &type) return description->name;
  }
  return {};
}

// A value that differs from every creation value of the type.
Variant OtherValue(const ValueType& type, const Variant& value) {
  switch (type.kind) {
    case ValueKind::Boolean:
      return Variant(value.boolVal == VARIANT_FALSE);
    case ValueKind::Integer:
      return Variant(value.lVal + 7);
    case ValueKind::Enumeration:
      return Variant(value.lVal == 0 ? 1 : 0);
    case ValueKind::Double:
      return Variant(value.dblVal + 0.5);
    case ValueKind::Object:
      return Variant(Create(ClassFor(type.object())).Get());
    default:
      return Variant(u"\u00E4 & <\u20AC>");
  }
}

bool AreEqual(const Variant& left, const Variant& right) {
  if (left.vt != right.vt) return false;
  switch (left.vt) {
    case VT_BSTR:
      return left.View() == right.View();
    case VT_R8:
      return left.dblVal == right.dblVal;
    case VT_BOOL:
      return left.boolVal == right.boolVal;
    case VT_DISPATCH:
      return left.pdispVal == right.pdispVal;
    default:
      return left.lVal == right.lVal;
  }
}

void SetAndReadBack(const Handle& object, const Member& member) {
  SCOPED_TRACE(member.name);
  const std::u16string name = FromUtf8(member.name);
  const Variant created = Get(object, name);
  const Variant given = OtherValue(member.type, created);
  EXPECT_EQ(Put(object, name, given).result, S_OK);
  EXPECT_TRUE(AreEqual(Get(object, name), given));
  EXPECT_FALSE(AreEqual(Get(object, name), created));
  EXPECT_EQ(Put(object, name, created).result, S_OK);
  EXPECT_TRUE(AreEqual(Get(object, name), created));
}

TEST(EveryClass, KeepsEveryPropertyAndLeavesNothingBehind) {
  const int32_t before = CountedObjects();
  size_t properties = 0;
  for (const ClassDescription* const description : CreatableClasses()) {
    SCOPED_TRACE(description->name);
    const Handle object = Create(description->name);
    ASSERT_TRUE(object);
    // A kind on its own keeps nothing.
    if (description->isKind) continue;
    for (const Member& member : description->members) {
      if (member.put == nullptr) continue;
      SetAndReadBack(object, member);
      ++properties;
    }
  }
  EXPECT_GT(properties, 300u);
  EXPECT_EQ(CountedObjects(), before);
}

TEST(EveryClass, HasEachOfItsNamesAndIdentifiersOnce) {
  for (const ClassDescription& description : AllClasses()) {
    SCOPED_TRACE(description.name);
    for (const Member& member : description.members) {
      std::u16string name = FromUtf8(member.name);
      EXPECT_EQ(description.FindMember(name), &member);
      EXPECT_EQ(description.FindMember(member.id), &member);
      EXPECT_FALSE(member.help.empty()) << member.name;
      for (const auto& parameter : member.parameters) EXPECT_FALSE(parameter.name.empty());
    }
  }
}

}  // namespace
}  // namespace praxen::detail::client
