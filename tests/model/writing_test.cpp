// What the classes write: omission rules, required fields and what a failure leaves.
#include <gtest/gtest.h>

#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/praxen.h"
#include "tests/support/documents.h"
#include "tests/support/example.h"

namespace praxen::detail {
namespace {

constexpr const char* kRequired = "601 Required fields empty";

TEST(Writing, ADocumentHasItsExactText) {
  const auto variable = ObjectFactory::NewVariable(u"V1", u"bool");
  variable->Description = u"Some text";
  EXPECT_EQ(variable->Serialize(),
            u"<?xml version='1.0' encoding='UTF-16'?>\r\n"
            u"<Variable xmlns='PraxenSchema3_0' Name='V1' Type='bool' Attribute='retain'>\r\n"
            u"<Description>Some text</Description>\r\n"
            u"</Variable>\r\n");
  EXPECT_EQ(variable->Serialize(), variable->Serialize());
}

// Every class that requires a field fails without it, whether alone or within its list, and the
// next document does not show it.
TEST(Writing, RequiredFieldsAreCheckedBeforeAnythingIsWritten) {
  int checked = 0;
  for (const ClassDescription& description : AllClasses()) {
    for (const Attribute& attribute : AttributesOf(description)) {
      if (attribute.rule != Rule::Required) continue;
      const Ref<Object> object = description.create();
      FillRequired(*object);
      EXPECT_EQ(ErrorOf([&] { Markup(*object); }), "none") << description.name;
      *static_cast<Text*>(ValueOf(attribute, *object)) = Text();
      EXPECT_EQ(ErrorOf([&] { Markup(*object); }), kRequired) << description.name;
      ++checked;
    }
  }
  EXPECT_GT(checked, 40);
}

TEST(Writing, AFailureLeavesNoTrace) {
  const auto program = ObjectFactory::NewProgram(u"P", u"");
  const Text good = program->Serialize();
  const auto nameless = program->Variables->Add1(u"", u"real");
  EXPECT_EQ(ErrorOf([&] { program->Serialize(); }), kRequired);
  EXPECT_EQ(ErrorOf([&] { nameless->Serialize(); }), kRequired);
  nameless->Name = u"now";
  EXPECT_EQ(Markup(*program),
            "<Program Name='P'><Variables><Variable Name='now' Type='real' Attribute='retain' />"
            "</Variables></Program>");
  program->Variables->Remove(1);
  EXPECT_EQ(program->Serialize(), good);
}

TEST(Writing, AnErrorTellsWhichFieldsOfWhichObjectAreEmpty) {
  struct Case {
    std::string name, type, detail;
  };
  const Case cases[] = {
      {"", "real", "Name of Variable"},
      {"Level", "", "TypeName of Variable \"Level\""},
      {"", "", "Name and TypeName of Variable"},
  };
  for (const Case& test : cases) {
    const auto program = ObjectFactory::NewProgram("P", "");
    program->Variables->Add1("good", "real");
    program->Variables->Add1(test.name, test.type);
    try {
      program->Serialize();
      ADD_FAILURE();
    } catch (const Error& error) {
      EXPECT_EQ(error.detail(), test.detail + ", element 2 of Variables");
      EXPECT_EQ(error.description(), "Required fields empty");
    }
  }
}

TEST(Writing, ValuesAtTheirCreationAreLeftOut) {
  struct Case {
    std::function<void(CommVariable&)> change;
    std::string attributes;
  };
  const Case cases[] = {
      {[](CommVariable&) {}, ""},
      {[](CommVariable& v) { v.Priority = u"High"; }, " Priority='High'"},
      {[](CommVariable& v) { v.Priority = u"High", v.Priority = u"normal"; }, ""},
      {[](CommVariable& v) { v.UniqueID = 42; }, " UniqueID='42'"},
      {[](CommVariable& v) { v.UniqueID = -7; }, " UniqueID='-7'"},
      {[](CommVariable& v) { v.RestrictedSIL = true; }, ""},
      {[](CommVariable& v) { v.ExpectedSIL = u""; }, " ExpectedSIL=''"},
      {[](CommVariable& v) { v.IPAddress = u"Auto"; }, " IPAddress='Auto'"},
  };
  for (const Case& test : cases) {
    const auto variable = ObjectFactory::NewCommVariable(u"a", u"b", u"in");
    test.change(*variable);
    EXPECT_EQ(Markup(*variable),
              "<CommVariable Name='a' Type='b' Attribute='retain' "
              "Direction='in'" +
                  test.attributes + " />");
  }
}

TEST(Writing, EnumerationsOutsideTheirRangeAreEmpty) {
  const auto task = ObjectFactory::NewTask(u"T", 1000, static_cast<TaskPriorityValue>(7));
  EXPECT_EQ(Markup(*task),
            "<Task Name='T' IntervalTime='1000' Priority='' Offset='0' OutputUpdate='last' "
            "LatencySupervision='0' LatencyPercentage='10' TaskSILLevel='NonSIL' />");
  EXPECT_EQ(ObjectFactory::DeserializeTask(task->Serialize())->Priority, pxTaskPriority5);
}

TEST(Writing, MissingObjectsAreErrorsOrLeftOut) {
  const auto variable = ObjectFactory::NewVariable(u"a", u"b");
  variable->GraphNodes = nullptr;
  EXPECT_EQ(ErrorOf([&] { variable->Serialize(); }), "800A005B Object variable not set");
  const auto module = ObjectFactory::NewControlModule(u"a", u"b");
  module->GraphPos = nullptr;
  EXPECT_EQ(Markup(*module), "<ControlModule Name='a' Type='b' />");
  const auto size = New<GraphSize>();
  size->LowerLeft = nullptr;
  EXPECT_EQ(ErrorOf([&] { Markup(*size); }), "800A005B Object variable not set");
}

// A value that takes six times its length in markup is read as it is written, up to the limit.
TEST(Writing, LongValuesAreReadBack) {
  const auto variable = ObjectFactory::NewVariable(u"v", u"t");
  variable->InitialValue = std::u16string(10'000'000, u'\'');
  const Text document = variable->Serialize();
  EXPECT_EQ(ObjectFactory::DeserializeVariable(document)->Serialize(), document);
  variable->InitialValue = variable->InitialValue + u"'";
  EXPECT_EQ(ErrorOf([&] { variable->Serialize(); }), "8002000A Overflow");
  const auto block = ObjectFactory::NewSTCodeBlock(u"b");
  block->STcode = std::u16string(8'000'000, u'<');
  EXPECT_EQ(ObjectFactory::DeserializeCodeBlock(block->Serialize()).As<STCodeBlock>()->STcode,
            block->STcode);
}

}  // namespace
}  // namespace praxen::detail
