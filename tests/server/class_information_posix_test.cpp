// What late-bound clients are told of the classes, and what they may ask.
#include "praxen/server/class_information_posix.h"

#include <gtest/gtest.h>

#include "tests/server/client.h"

namespace praxen::detail::client {
namespace {

TEST(ClassInformation, UnknownNamesHaveNone) {
  for (const char* const name : {"", "Nonsense", "Variable ", "PraxenHelper.Variable", "\xFF"}) {
    EXPECT_EQ(PraxenMembers(name), nullptr) << name;
  }
  EXPECT_EQ(PraxenMembers(nullptr), nullptr);
  EXPECT_STREQ(PraxenMembers("variable"), PraxenMembers("VARIABLE"));
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
