// What late-bound clients are told of the classes, and what they may ask.
#include "praxen/server/class_information_posix.h"

#include <gtest/gtest.h>

#include <string_view>

#include "tests/server/client.h"

namespace praxen::detail::client {
namespace {

TEST(ClassInformation, ListsMembersOfTheClassAndThenOfItsKind) {
  const std::string_view members = PraxenMembers("vanamedprotocol");
  EXPECT_TRUE(members.starts_with("property\tName\n")) << members;
  EXPECT_NE(members.find("\nmethod\tAdd1\tName\tPath\n"), std::string_view::npos) << members;
  EXPECT_NE(members.find("\nreadonly\tItem\tvntIndexKey\n"), std::string_view::npos) << members;
  EXPECT_NE(members.find("\nenumerator\tNewEnum\n"), std::string_view::npos) << members;
  EXPECT_TRUE(members.ends_with("IsVAAddressedProtocol\n")) << members;
  EXPECT_EQ(members.data(), PraxenMembers("VANamedProtocol"));
}

TEST(ClassInformation, UnknownNamesHaveNone) {
  for (const char* const name : {"", "Nonsense", "Variable ", "PraxenHelper.Variable", "\xFF"}) {
    EXPECT_EQ(PraxenMembers(name), nullptr) << name;
  }
  EXPECT_EQ(PraxenMembers(nullptr), nullptr);
}

TEST(ClassInformation, OnlyObjectsOfTheLibraryHaveAClass) {
  const Handle group = Create("ExecutionGroup");
  EXPECT_STREQ(PraxenClassOf(group.Get()), "ExecutionGroup");
  EXPECT_EQ(PraxenClassOf(nullptr), nullptr);
  ComPointer<ICreateErrorInfo> error;
  ASSERT_EQ(CreateErrorInfo(error.Receive()), S_OK);
  EXPECT_EQ(PraxenClassOf(error.Get()), nullptr);
  const Handle list = Create("Variables");
  const Outcome walk = Invoke(list, DISPID_NEWENUM, DISPATCH_PROPERTYGET, {});
  EXPECT_EQ(PraxenClassOf(walk.value.punkVal), nullptr);
}

}  // namespace
}  // namespace praxen::detail::client
