// The exact document of every serializable class, with everything set and with nothing but what is
// required, out and back. The expected documents are in the folder "documents"; ./dev expect
// remakes them.
#include <gtest/gtest.h>

#include "praxen/core/counters.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/praxen.h"
#include "tests/support/documents.h"
#include "tests/support/example.h"
#include "tests/support/recorded.h"

namespace praxen::detail {
namespace {

// Deep enough for a property of every class that the document can contain.
constexpr int kDepth = 2;

std::string PathOfDocument(std::string_view className) {
  return "tests/model/documents/" + std::string(className) + ".xml";
}

// A document is longer than a failure should print: only the lines around the first difference.
std::string FirstDifference(const std::string& written, const std::string& expected) {
  size_t at = 0;
  while (at < written.size() && at < expected.size() && written[at] == expected[at]) ++at;
  const size_t start = at < 80 ? 0 : at - 80;
  return "written  …" + written.substr(start, 200) + "\nexpected …" + expected.substr(start, 200);
}

Text ReadAndWrite(const ClassDescription& description, const Text& document) {
  const Ref<Object> read = DeserializeObject(description, document);
  return dynamic_cast<SerializableObject&>(*read).Serialize();
}

TEST(Documents, OfObjectsWithEverythingSet) {
  int count = 0;
  for (const ClassDescription& description : AllClasses()) {
    if (!IsDocument(description)) continue;
    const Ref<Object> object = description.create();
    FillExample(*object, kDepth);
    const std::string written = ExampleDocument(*object);
    const std::string expected = Recorded(PathOfDocument(description.name), written);
    EXPECT_TRUE(written == expected) << description.name << "\n"
                                     << FirstDifference(written, expected);
    const Text document = dynamic_cast<SerializableObject&>(*object).Serialize();
    EXPECT_EQ(ReadAndWrite(description, document), document) << description.name;
    ++count;
  }
  EXPECT_EQ(count, 40);
}

// The factory has no operation for these; their documents are read as parts of others.
const std::set<std::string_view> kOnlyWritten{"ExecutionGroup", "InitValue"};

TEST(Documents, AreReadByTheNameOfTheirRoot) {
  for (const ClassDescription& description : AllClasses()) {
    if (!IsDocument(description)) continue;
    const Ref<Object> object = description.create();
    FillExample(*object, kDepth);
    const Text document = dynamic_cast<SerializableObject&>(*object).Serialize();
    if (kOnlyWritten.contains(description.name)) {
      EXPECT_EQ(ErrorOf([&] { ReadDocument(document); }), "604 Wrong root element");
    } else {
      const Ref<Object> read = ReadDocument(document);
      EXPECT_EQ(read->description().name, description.name);
      EXPECT_EQ(dynamic_cast<SerializableObject&>(*read).Serialize(), document);
    }
  }
}

TEST(Documents, OfNewObjects) {
  const int32_t before = ObjectCounter();
  for (const ClassDescription& description : AllClasses()) {
    if (!IsDocument(description)) continue;
    const Ref<Object> object = description.create();
    FillRequired(*object);
    const Text document = dynamic_cast<SerializableObject&>(*object).Serialize();
    EXPECT_EQ(ReadAndWrite(description, document), document) << description.name;
  }
  EXPECT_EQ(ObjectCounter(), before);
}

TEST(Documents, OfNewObjectsHoldWhatIsAlwaysWritten) {
  struct Case {
    const char16_t* className;
    std::string markup;
  };
  const std::string size = "<GraphSize><Point X='-1' Y='-1' /><Point X=' 1' Y=' 1' /></GraphSize>";
  const std::string position =
      "<GraphPos XPos=' 0' YPos=' 0' Rotation=' 0' XScale=' 1' YScale=' 1' />";
  const Case cases[] = {
      {u"Variable", "<Variable Name='Name' Type='TypeName' Attribute='retain' />"},
      {u"GlobalVariable", "<GlobalVariable Name='Name' Type='TypeName' Attribute='retain' />"},
      {u"ExternalVariable", "<ExternalVariable Name='Name' Type='TypeName' Attribute='' />"},
      {u"Parameter", "<Parameter Name='Name' Type='TypeName' Attribute='retain' Direction='in' />"},
      {u"CMParameter", "<CMParameter Name='Name' Type='TypeName' />"},
      {u"DataType", "<DataType Name='Name' />"},
      {u"Signal", "<Signal Name='Name' Path='' Direction='in' />"},
      {u"InitValue", "<InitValue Name='Name' Value='' />"},
      {u"Program", "<Program Name='Name' />"},
      {u"Diagram", "<Diagram Name='Name'><ControlModules /></Diagram>"},
      {u"FunctionBlockType", "<FunctionBlockType Name='Name' />"},
      {u"FunctionBlock", "<FunctionBlock Name='Name' Type='TypeName' />"},
      {u"ControlModuleType",
       "<ControlModuleType Name='Name'><ControlModules />" + size + "</ControlModuleType>"},
      {u"SingleControlModuleType",
       "<SingleControlModule Name='Name' TypeGuid=' '>"
       "<ControlModules />" +
           size + "</SingleControlModule>"},
      {u"ControlModule",
       "<ControlModule Name='Name' Type='TypeName'>" + position + "</ControlModule>"},
      {u"SingleControlModuleInst",
       "<SingleControlModule Name='Name' TypeGuid=' '>" + position + "</SingleControlModule>"},
      {u"CMConnection", "<CMConnection Name='Name' ActualParameter='' />"},
      {u"STCodeBlock", "<STCodeBlock Name='Name'><ST_Code></ST_Code></STCodeBlock>"},
      {u"FDCodeBlock", "<FDCodeBlock Name='Name' ><FunctionDiagram/></FDCodeBlock>"},
      {u"SFCCodeBlock", "<SFCCodeBlock Name='Name' />"},
      {u"Task",
       "<Task Name='Name' IntervalTime='1000' Priority='2' Offset='0' "
       "OutputUpdate='last' LatencySupervision='0' LatencyPercentage='10' "
       "TaskSILLevel='NonSIL' />"},
      {u"ApplicationProperties", "<ApplicationProperties />"},
      {u"ApplicationVariables", "<ApplicationVariables />"},
      {u"ConnectedHWLibraries", "<ConnectedHardwareLibraries />"},
      {u"ExecutionOrder", "<ExecutionOrder />"},
      {u"ExecutionGroup", "<ExecutionGroup TaskName='' />"},
      {u"ProjectConstants", "<ProjectConstants />"},
      {u"AccessVariables", "<Varaccess />"},
      {u"HWUnit", "<HWUnit Path='Path' TypeID='' TypeDescription=''><HWUnits /></HWUnit>"},
      {u"MessageBucket", "<MessageBucket NoOfErrors='0' NoOfWarnings='0' />"},
  };
  for (const Case& test : cases) {
    const Ref<Object> object = FindClass(test.className)->create();
    FillRequired(*object);
    EXPECT_EQ(Markup(*object), test.markup);
  }
}

}  // namespace
}  // namespace praxen::detail
