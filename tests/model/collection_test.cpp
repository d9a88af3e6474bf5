// The pattern that all lists follow, on lists of variables, and what differs in others.
#include "praxen/model/collection.h"

#include <gtest/gtest.h>

#include "praxen/core/counters.h"
#include "praxen/praxen.h"
#include "praxen/xml/xml_string_writer.h"
#include "tests/support/documents.h"

namespace praxen::detail {
namespace {

constexpr const char* kBadPosition = "8002000B Subscript out of range";
constexpr const char* kBadArgument = "80070057 Invalid procedure call or argument";

std::string Names(const Variables& list) {
  std::string names;
  for (const Variable& variable : list) names += ToUtf8(variable.Name) + " ";
  return names;
}

Ref<Variable> Named(const char16_t* name) { return ObjectFactory::NewVariable(name, u"real"); }

TEST(Collection, KeepsElementsInOrder) {
  const auto list = New<Variables>();
  list->Add(Named(u"b"));
  list->AddBefore(Named(u"a"), 1);
  list->AddBefore(Named(u"d"), 3);
  list->AddBefore(Named(u"c"), 3);
  EXPECT_EQ(Names(*list), "a b c d ");
  list->Remove(2);
  EXPECT_EQ(Names(*list), "a c d ");
  EXPECT_EQ(list->Item(2)->Name, u"c");
  EXPECT_EQ(list->Count(), 3);
}

TEST(Collection, RefusesBadPositionsAndStaysAsItWas) {
  const auto list = New<Variables>();
  list->Add1(u"a", u"real");
  for (const int32_t position : {-1, 0, 2, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(ErrorOf([&] { list->Item(position); }), kBadPosition) << position;
    EXPECT_EQ(ErrorOf([&] { list->Remove(position); }), kBadPosition) << position;
  }
  for (const int32_t position : {-1, 0, 3}) {
    EXPECT_EQ(ErrorOf([&] { list->AddBefore(Named(u"b"), position); }), kBadArgument) << position;
  }
  EXPECT_EQ(Names(*list), "a ");
}

TEST(Collection, FindsTheFirstExactName) {
  const auto list = New<Variables>();
  EXPECT_FALSE(list->Find(u"A"));
  EXPECT_EQ(list->FindNr(u"A"), -1);
  const Ref<Variable> first = list->Add1(u"A", u"real");
  list->Add1(u"A", u"dint");
  EXPECT_EQ(list->Find(u"A"), first);
  EXPECT_EQ(list->FindNr(u"A"), 1);
  EXPECT_FALSE(list->Find(u"a"));
  EXPECT_EQ(list->Count(), 2);
}

TEST(Collection, HoldsEmptyReferencesThatCannotBeWritten) {
  const auto list = New<Variables>();
  list->Add(nullptr);
  EXPECT_FALSE(list->Item(1));
  EXPECT_FALSE(list->Find(u"a"));
  list->Add(Named(u"a"));
  EXPECT_EQ(list->FindNr(u"a"), 2);
  EXPECT_EQ(ErrorOf([&] { Markup(*list); }), "800A005B Object variable not set");
  list->Remove(1);
  list->Remove(1);
  EXPECT_EQ(Markup(*list), "");
}

TEST(Collection, IsAListOfCppToo) {
  const auto blocks = New<CodeBlocks>();
  EXPECT_TRUE(blocks->empty());
  blocks->AddSTCodeBlock2("Control", "Valve := Level < 2.5;");
  blocks->Add(nullptr);
  EXPECT_EQ(blocks->size(), 2u);
  EXPECT_FALSE(blocks->empty());
  const Ref<ICodeBlock> first = (*blocks)[0];
  EXPECT_EQ(first, blocks->Item(1));
  EXPECT_EQ(first.As<STCodeBlock>()->STcode, "Valve := Level < 2.5;");
  EXPECT_EQ((*blocks->begin()).As<STCodeBlock>(), first);
  EXPECT_FALSE(first.As<LDCodeBlock>());
  EXPECT_FALSE((*blocks)[1].As<STCodeBlock>());
  EXPECT_EQ(ErrorOf([&] { (*blocks)[2]; }), kBadPosition);
}

TEST(Collection, CreatesLikeTheFactory) {
  const auto list = New<Variables>();
  const Ref<Variable> added = list->Add2(u"n", u"t", u"p", u"i", u"r", u"w", u"d");
  const Ref<Variable> made = ObjectFactory::NewVariable1(u"n", u"t", u"p", u"i", u"r", u"w", u"d");
  EXPECT_EQ(list->Item(1), added);
  EXPECT_EQ(added->Serialize(), made->Serialize());
  EXPECT_EQ(Markup(*added),
            "<Variable Name='n' Type='t' Attribute='p' InitialValue='i' ReadPermission='r' "
            "WritePermission='w'><Description>d</Description></Variable>");
}

TEST(Collection, LooksInitialValuesUpByPathAndName) {
  const auto list = New<InitValues>();
  list->Add(nullptr);
  list->Add1(u"P", u"x", u"1");
  list->Add1(u"Q", u"x", u"2");
  EXPECT_EQ(list->Find(u"Q", u"x")->Value, u"2");
  EXPECT_EQ(list->FindNr(u"P", u"x"), 2);
  EXPECT_FALSE(list->Find(u"R", u"x"));
  EXPECT_EQ(list->FindNr(u"Q", u"X"), -1);
}

TEST(Collection, LooksUpByTheKeyOfItsElements) {
  const auto channels = New<HWChannels>();
  channels->Add1(u"0.1.2", u"Level", u"", u"");
  EXPECT_TRUE(channels->Find(u"0.1.2"));
  EXPECT_FALSE(channels->Find(u"Level"));
  const auto units = New<HWUnits>();
  units->Add1(u"0.1");
  EXPECT_EQ(units->FindNr(u"0.1"), 1);
  const auto order = New<ExecutionOrder>();
  order->Add1(u"Fast")->Add1(u"Pump");
  EXPECT_EQ(order->Find(u"Fast")->FindNr(u"Pump"), 1);
  const auto protocols = New<VAProtocols>();
  protocols->AddVAAddressedProtocol1(u"A");
  protocols->AddVANamedProtocol1(u"N");
  EXPECT_EQ(protocols->FindNr(u"N"), 2);
}

TEST(Library, CountsItsObjects) {
  const int32_t before = ObjectCounter();
  EXPECT_EQ(before, 2);
  {
    const auto counter = New<maintenance>();
    EXPECT_EQ(counter->NrOfObjects(), 3);
    const auto variable = New<Variable>();
    EXPECT_EQ(counter->NrOfObjects(), 5);
    const auto ladder = New<LDCodeBlock>();
    const auto protocol = New<IVAProtocol>();
    EXPECT_EQ(counter->NrOfObjects(), 5);
    const auto list = New<Variables>();
    list->Add1(u"a", u"b");
    const Ref<Enumerator> enumerator = list->NewEnum();
    EXPECT_EQ(counter->NrOfObjects(), 8);
    EXPECT_EQ(Markup(*variable->GraphNodes), "");
    EXPECT_THROW(variable->Serialize(), Error);
    EXPECT_EQ(counter->NrOfObjects(), 8);
  }
  EXPECT_EQ(ObjectCounter(), 2);
}

TEST(Library, KeepsTheLineBreakSettingForAll) {
  const auto first = New<maintenance>(), second = New<maintenance>();
  const auto variable = Named(u"V");
  const Text lines = variable->Serialize();
  first->SetIncludeCRLFInXML(false);
  EXPECT_FALSE(second->GetIncludeCRLFInXML());
  const Text plain = variable->Serialize();
  second->SetIncludeCRLFInXML(true);
  EXPECT_EQ(plain,
            u"<?xml version='1.0' encoding='UTF-16'?>"
            u"<Variable xmlns='PraxenSchema3_0' Name='V' Type='real' Attribute='retain' />");
  EXPECT_EQ(variable->Serialize(), lines);
}

}  // namespace
}  // namespace praxen::detail
