// Tests of the command line "praxen", run by the shell as a user runs it.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "praxen/praxen.h"

namespace praxen::detail {
namespace {

void WriteFile(const std::filesystem::path& file, std::string_view bytes) {
  std::ofstream stream(file, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

struct Outcome {
  int exitCode;
  std::string out, err;
};

// Runs the command line in a folder of its own.
class CommandLine : public testing::Test {
 protected:
  // A command for the document on standard input, and all that it gives.
  struct Case {
    std::string arguments, bytes, out, err = {};
    int exitCode = 0;
  };

  CommandLine()
      : folder_(std::filesystem::path(testing::TempDir()) /
                testing::UnitTest::GetInstance()->current_test_info()->name()) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~CommandLine() override { std::filesystem::remove_all(folder_); }

  std::string File(const std::string& name) const { return (folder_ / name).string(); }

  Outcome Run(const std::string& arguments, std::string_view input = {},
              const std::string& program = Quoted(PRAXEN_COMMAND_LINE_FILE)) const {
    WriteFile(folder_ / "in", input);
    std::string command = program + ' ' + arguments + " <" + Quoted(File("in")) + " >" +
                          Quoted(File("out")) + " 2>" + Quoted(File("err"));
    const int exitCode = WEXITSTATUS(std::system(command.c_str()));
    return {exitCode, ReadFile(folder_ / "out"), ReadFile(folder_ / "err")};
  }

  void Check(const std::vector<Case>& cases) const {
    for (const Case& given : cases) {
      const Outcome outcome = Run(given.arguments + " -", given.bytes);
      EXPECT_EQ(outcome.out, given.out) << given.arguments;
      EXPECT_EQ(outcome.err, given.err) << given.arguments;
      EXPECT_EQ(outcome.exitCode, given.exitCode) << given.arguments;
    }
  }

 private:
  const std::filesystem::path folder_;
};

// The elements of all classes that the factory reads.
std::set<std::string> DocumentElements() {
  std::set<std::string> elements;
  for (const ClassDescription* const description : DocumentClasses()) {
    elements.insert(ToUtf8(description->layout().element));
  }
  return elements;
}

std::string ElementOf(const std::string& line) {
  const size_t start = line.find(": ok (") + 6;
  return line.substr(start, line.find(',', start) - start);
}

TEST_F(CommandLine, EveryFamilyHasASampleThatIsGood) {
  const std::vector<std::string> families = LinesOf(Run("sample --list").out);
  std::set<std::string> elements;
  for (const std::string encoding : {"utf-8", "utf-16"}) {
    std::string files;
    for (const std::string& family : families) {
      const std::string file = Quoted(File(family));
      ASSERT_EQ(Run("sample " + family + " --encoding " + encoding + " -o " + file).exitCode, 0);
      files += ' ' + file;
    }
    const Outcome checked = Run("check" + files);
    EXPECT_EQ(checked.err, "");
    EXPECT_EQ(checked.exitCode, 0);
    const std::vector<std::string> lines = LinesOf(checked.out);
    ASSERT_EQ(lines.size(), families.size());
    for (const std::string& line : lines) elements.insert(ElementOf(line));
    EXPECT_EQ(Run("show" + files).exitCode, 0);
    EXPECT_EQ(LinesOf(Run("show --json" + files).out).size(), families.size());
  }
  EXPECT_EQ(elements, DocumentElements());
}

TEST_F(CommandLine, SamplesPassThroughPipes) {
  const Outcome sample = Run("sample variable");
  EXPECT_TRUE(sample.out.starts_with("\xFF\xFE"));
  for (const std::string input : {"-", "/dev/stdin"}) {
    const Outcome checked = Run("check " + input, sample.out);
    EXPECT_TRUE(checked.out.starts_with(input + ": ok (Variable, 3 objects, ")) << checked.out;
  }
}

struct BrokenDocument {
  std::string bytes;
  // What standard error begins and ends with.
  std::string start, end;
};

TEST_F(CommandLine, AMistakeIsShownWhereItIs) {
  const std::string head = "<Variable xmlns='PraxenSchema3_0' Name='";
  const std::string tail = "' Type='real' Attribute=''/>";
  const std::string wide(200, 'x');
  const BrokenDocument documents[] = {
      {"", "-:1:1: error: Invalid XML: ", "  1 | \n    | ^\n"},
      {"<a>\n\t<b></a>\n", "-:2:5: error: Invalid XML: ", "  2 | \t<b></a>\n    | \t   ^\n"},
      {"\xEF\xBB\xBF<Pump/>", "-:1:1: error: Wrong root element: \"Pump\" where ",
       "  1 | <Pump/>\n    | ^\n"},
      {"<Variable/>", "-:1:1: error: Invalid XML: ", "  1 | <Variable/>\n    | ^\n"},
      {head + "a' Colour='b" + tail, "-:1:44: error: Invalid XML: ", "^\n"},
      {head + tail, "-: error: Required fields empty: Name of Variable\n", "\n"},
      {head + "\xFC" + tail,
       "-:1:41: error: Invalid XML: The bytes are neither UTF-8 nor UTF-16.\n", "^\n"},
      {std::string("<\0a\0/\0>\0\n", 9), "-:1:5: error: Invalid XML: The bytes",
       "  1 | <a/>\xEF\xBF\xBD\n    |     ^\n"},
      {"<a>" + wide + "\xF0\x9F\x9A\xB0\x01" + wide, "-:1:206: error: Invalid XML: ",
       "xxxx\xF0\x9F\x9A\xB0\xEF\xBF\xBDxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx…\n"
       "    |                                                             ^\n"},
  };
  for (const BrokenDocument& document : documents) {
    const Outcome outcome = Run("check -", document.bytes);
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with(document.start)) << outcome.err;
    EXPECT_TRUE(outcome.err.ends_with(document.end)) << outcome.err;
  }
}

TEST_F(CommandLine, ABadFileDoesNotKeepTheOthersFromBeingChecked) {
  ASSERT_EQ(Run("sample task -o " + Quoted(File("task"))).exitCode, 0);
  const Outcome outcome =
      Run("check " + Quoted(File("missing")) + ' ' + Quoted(File("")) + ' ' + Quoted(File("task")));
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, File("missing") + ": error: No such file or directory\n" + File("") +
                             ": error: no file in this folder is named *.xml\n");
  EXPECT_TRUE(outcome.out.starts_with(File("task") + ": ok (Task, 1 object, ")) << outcome.out;
}

TEST_F(CommandLine, ShowTellsWhatADocumentHolds) {
  const std::string tank = "<SingleControlModule xmlns='PraxenSchema3_0' Name='Tank' TypeGuid=' '";
  const std::string chart =
      "<SFCCodeBlock xmlns='PraxenSchema3_0' Name='Fill'><SFCStep Name='Idle' InitialStep='1'>"
      "<N_Action><ST_Code>a := 1;\nb := 2;</ST_Code></N_Action></SFCStep><SFCSelection>"
      "<SFCBranch SFCPriority='high'><SFCTransition Name='T1'>x</SFCTransition></SFCBranch>"
      "<SFCBranch/></SFCSelection></SFCCodeBlock>";
  const std::string list =
      "<MessageBucket xmlns='PraxenSchema3_0' NoOfErrors='1' NoOfWarnings='0'><Error ErrorNo='9' "
      "Message='a&#10;b'><PosInfo Row='2' Col='0' FOUName='' POUName='' TabName='' ElementName='' "
      "MessageType='SingleProgram' StartPos='0' EndPos='0' PageNo='0' Id=''/></Error>"
      "</MessageBucket>";
  Check({
      // Which class a root stands for that a type and an instance share.
      {"show", tank + "/>", "SingleControlModuleType Tank\n"},
      {"show", tank + " AlarmOwner='1'/>", "SingleControlModuleType Tank  AlarmOwner: true\n"},
      {"show", tank + " InstGuid='g'/>", "SingleControlModuleInst Tank  InstGuid: g\n"},
      {"show",
       tank + "><GraphPos XPos='2' YPos='0' Rotation='0' XScale='1' YScale='1'/>"
              "</SingleControlModule>",
       "SingleControlModuleInst Tank\n└─ GraphPos  XPos: 2\n"},
      {"show", chart,
       "SFCCodeBlock Fill\n"
       "├─ SFCStep Idle  InitialStep: true\n"
       "│     N_Action_STCode:\n"
       "│       a := 1;\n"
       "│       b := 2;\n"
       "└─ SFCSelection\n"
       "   ├─ SFCBranch  SFCPriority: high\n"
       "   │  └─ SFCTransition T1: x\n"
       "   └─ SFCBranch\n"},
      {"show --depth 0", chart, "SFCCodeBlock Fill …\n"},
      {"show --depth 1", chart,
       "SFCCodeBlock Fill\n"
       "├─ SFCStep Idle  InitialStep: true\n"
       "│     N_Action_STCode:\n"
       "│       a := 1;\n"
       "│       b := 2;\n"
       "└─ SFCSelection …\n"},
      {"show --json --all",
       "<MessageBucket xmlns='PraxenSchema3_0' NoOfErrors='0' NoOfWarnings='2'/>",
       R"({"$file":"-","$class":"MessageBucket","NoOfErrors":0,"NoOfWarnings":2,"$elements":[]})"
       "\n"},
      {"show --json", list,
       R"({"$file":"-","$class":"MessageBucket","NoOfErrors":1,"$elements":[{"$class":"ErrorMsg",)"
       R"("ErrorNo":9,"Message":"a\nb","PosInfo":{"$class":"PosInfo","Row":2,)"
       R"("MessageType":"SingleProgram"}}]})"
       "\n"},
      {"show",
       "<Variable xmlns='PraxenSchema3_0' Name='a\xC2\x9B"
       "31m' Type='real' Attribute='retain'/>",
       "Variable a\xEF\xBF\xBD"
       "31m real\n"},
  });
}

TEST_F(CommandLine, MessagesArePrintedAsACompilerPrintsThem) {
  const std::string place =
      " FOUName='' POUName='Main' TabName='Code' ElementName='' MessageType='SingleProgram' "
      "StartPos='0' EndPos='0' PageNo='0' Id=''/>";
  const std::string list =
      "<Info Message='a'/><Warning WarningNo='7' Message='b'><PosInfo Row='2' Col='3'" + place +
      "</Warning><Error ErrorNo='9' Message='c'><PosInfo Row='0' Col='0'" + place +
      "</Error></MessageBucket>";
  const std::string start = "<MessageBucket xmlns='PraxenSchema3_0' ";
  const std::string warning = "Main/Code:2:3: warning 7: b\n", error = "Main/Code: error 9: c\n";
  Check({
      {"messages", start + "NoOfErrors='1' NoOfWarnings='1'>" + list,
       "info: a\n" + warning + error + "1 error, 1 warning\n", "", 1},
      {"messages --sort", start + "NoOfErrors='5' NoOfWarnings='0'>" + list,
       error + warning +
           "info: a\n1 error, 1 warning; the list itself counts 5 errors, no warnings\n",
       "", 1},
      {"messages", start + "NoOfErrors='0' NoOfWarnings='0'/>", "no errors, no warnings\n"},
      {"messages", start + "NoOfErrors='2' NoOfWarnings='0'/>",
       "no errors, no warnings; the list itself counts 2 errors\n", "", 1},
      {"messages --json --sort",
       start + "NoOfErrors='0' NoOfWarnings='1'><Find Message='f'/><Error ErrorNo='9' Message='c'/>"
               "</MessageBucket>",
       R"({"NoOfErrors":0,"NoOfWarnings":1,"messages":[{"kind":"error","number":9,"message":"c"},)"
       R"({"kind":"find","message":"f"}]})"
       "\n",
       "", 1},
  });
}

TEST_F(CommandLine, WrongUseIsToldFromBadDocuments) {
  const struct {
    std::string arguments;
    int exitCode;
    std::string says;
  } cases[] = {
      {"", 2, "required"},
      {"sample", 2, "required"},
      {"sample pump", 2, "program"},
      {"check", 2, "FILE is required"},
      {"grow", 2, "praxen: error: there is no command \"grow\"; did you mean \"show\"?\n"},
      {"help nope", 2, "there is no command \"nope\"\n"},
      {"--lossy check -", 2, "the option \"--lossy\" follows the command, such as \"check\""},
      {"check --schema '' -", 2, "--schema: the name \"\" is empty"},
      {"check - ''", 2, "FILE: the name \"\" is empty"},
      {"sample --encoding latin task", 2, "--encoding: is utf-8 or utf-16, not \"latin\""},
      {"show --depth -1 -", 2, "--depth: Value -1 not in range"},
      {"check -j -1 -", 2, "--jobs: Value -1 not in range"},
      {"show -1 -", 2, "there is no option \"-1\"\n"},
      {"chek -", 2, "did you mean \"check\"?"},
      {"help shw", 2, "there is no command \"shw\"; did you mean \"show\"?"},
      {"check --lossi -", 2, "there is no option \"--lossi\"; did you mean \"--lossy\"?"},
      {"check -x -", 2, "there is no option \"-x\""},
      {"check -j4 --jobs=0 -", 2, "--jobs"},
      {"check 'a\x1b[31m' ", 1, "a\xEF\xBF\xBD[31m: error: No such file"},
      {"check 'a\xE2\x80\xAE' ", 1, "a\\u202E: error: No such file"},
      {"'\x1b'", 2, "\"\xEF\xBF\xBD\""},
      {"check /dev/zero", 1, "too long; at most 500000000 characters are allowed"},
      {"check 'a*.xml'", 1, "a*.xml: error: No such file"},
      {"show --all -", 2, "--json"},
      {"show --json --depth 1 -", 2, "--depth"},
      {"--help", 0, "convert"},
      {"help", 0, "convert"},
      {"--version", 0, "praxen "},
      {"sample task -o /no/such/folder/file", 1, "there is no folder \"/no/such/folder\""}};
  for (const auto& given : cases) {
    const Outcome outcome = Run(given.arguments);
    EXPECT_EQ(outcome.exitCode, given.exitCode) << given.arguments;
    EXPECT_NE((outcome.out + outcome.err).find(given.says), std::string::npos)
        << given.arguments << ": " << outcome.out << outcome.err;
    EXPECT_EQ((outcome.out + outcome.err).find('\x1b'), std::string::npos) << given.arguments;
  }
}

TEST_F(CommandLine, EveryCommandTellsItsExitCodesAndAnExample) {
  for (const std::string command :
       {"sample", "check", "convert", "show", "messages", "register", "unregister", "help"}) {
    const Outcome outcome = Run(command + " --help");
    for (const std::string& part :
         {"Usage: praxen " + command, std::string("Exit code: 0"), "  praxen " + command}) {
      EXPECT_NE(outcome.out.find(part), std::string::npos) << part << " in " << outcome.out;
    }
    EXPECT_EQ(Run("help " + command).out, outcome.out);
  }
}

TEST_F(CommandLine, AFolderStandsForTheDocumentsInIt) {
  const std::string task = Run("sample task --encoding utf-8").out;
  std::filesystem::create_directories(File("d/inner"));
  std::string expected;
  for (const std::string name : {"d/a.xml", "d/b.XML", "d/inner/z.xml", "d/n.xml"}) {
    WriteFile(File(name), name == "d/n.xml" ? "<Odd/>" : task);
    if (name != "d/n.xml") {
      expected +=
          File(name) + ": ok (Task, 1 object, " + std::to_string(task.size()) + " characters)\n";
    }
  }
  WriteFile(File("d/other.txt"), "");
  ASSERT_EQ(mkfifo(File("d/pipe.xml").c_str(), 0600), 0);
  for (const std::string jobs : {"-j 1 ", "-j 3 "}) {
    const Outcome outcome = Run("check " + jobs + Quoted(File("d")));
    EXPECT_EQ(outcome.out, expected);
    EXPECT_TRUE(outcome.err.starts_with(File("d/n.xml") + ":1:1: error: Wrong root element"))
        << outcome.err;
  }
  EXPECT_TRUE(Run("show " + Quoted(File("d"))).out.starts_with(File("d/a.xml") + "\nTask"));
}

TEST_F(CommandLine, WhatIsNotReadIsTold) {
  const std::string type = "<DataType xmlns='PraxenSchema3_0' Name='d'";
  const std::string unit =
      "<HWUnit xmlns='PraxenSchema3_0' Path='0' TypeID='' TypeDescription=''>\n<!-- c -->"
      "<HWChannels/>\n<Odd/></HWUnit>";
  const std::string sentence =
      "'HWChannels' and what follows it was not read; a comment stands before it";
  const std::string lost =
      "-:2:11: warning: " + sentence + "\n  2 | <!-- c --><HWChannels/>\n    |           ^\n";
  const std::string notes = "-: warning: comments and processing instructions are left out (1)\n";
  const std::string refused =
      "-: error: not converted, since something would be lost; --lossy converts it\n";
  const std::string declaration = "<?xml version='1.0' encoding='UTF-8'?>\r\n";
  const std::string written = declaration + type;
  const auto ok = [](const std::string& element, const std::string& document) {
    return "-: ok (" + element + ", 1 object, " + std::to_string(document.size()) +
           " characters)\n";
  };
  const std::string noted =
      "<Task xmlns='PraxenSchema3_0' Name='t' IntervalTime='1' Priority='1' Offset='0' "
      "OutputUpdate='last' LatencySupervision='0' LatencyPercentage='1' TaskSILLevel='NonSIL'>"
      "<!-- c --></Task>";
  const std::string utf16 = "<?xml version='1.0' encoding='UTF-16'?>" + type + "/>";
  const std::string odd = "<?xml version='1.0' encoding='UTF-8-x'?>" + type + "/>";
  const std::string only =
      "<Variable xmlns='PraxenSchema3_0' Name='s' Type='t' Attribute=''\n TypeGuid='g'/>";
  const std::string value = "<Type>t</Type><Value>1</Value></ProjectConstant>";
  const std::string constants =
      "<ProjectConstants xmlns='PraxenSchema3_0'><ProjectConstant Name='a'>" + value +
      "<ProjectConstant Name='a'><ProjectConstants>\n<ProjectConstant Name='b'>" + value +
      "\n</ProjectConstants></ProjectConstant></ProjectConstants>";
  const std::string entity = "<ST_Code>&amp;amp;gt;</ST_Code></FBDCodeBlock>";
  const std::string started = R"({"file":"-","ok":false,)";
  const std::string two = type + " Protected='x' Hidden='\xE2\x80\xAE'/>";
  Check({
      {"check", unit, "", lost, 1},
      {"check --lossy", unit, ok("HWUnit", unit), lost, 0},
      {"check --json", unit,
       started + R"("element":"HWUnit","objects":1,"characters":)" + std::to_string(unit.size()) +
           R"(,"findings":[{"severity":"warning","line":2,"column":11,"message":")" + sentence +
           "\"}]}\n",
       "", 1},
      {"check --json", "<Odd/>",
       started + R"("findings":[{"severity":"error","line":1,"column":1,"message":)"
                 R"("Wrong root element: \"Odd\" where a document of the exchange format )"
                 R"(is expected"}]})"
                 "\n",
       "", 1},
      {"check", two, "",
       "-:1:44: warning: 'Protected' is 'x', which was read as '0'\n  1 | " + type +
           " Protected='x' Hidden='\\u202E'/>\n    | " + std::string(43, ' ') +
           "^\n-:1:58: warning: 'Hidden' is '\\u202E', which was read as '0'\n  1 | " + type +
           " Protected='x' Hidden='\\u202E'/>\n    | " + std::string(57, ' ') + "^\n",
       1},
      {"check", noted, ok("Task", noted), "", 0},
      {"check", utf16, ok("DataType", utf16),
       "-:1:31: warning: the document declares UTF-16 but is in UTF-8\n"
       "  1 | " +
           utf16 + "\n    |" + std::string(31, ' ') + "^\n",
       0},
      {"check", constants, "",
       "-:2:1: warning: 'a.b' is the name or the group of another constant, which is written\n"
       "  2 | <ProjectConstant Name='b'>" +
           value + "\n    | ^\n",
       1},
      {"check", only, ok("Variable", only), "", 0},
      {"check --lossy", "<FBDCodeBlock xmlns='PraxenSchema3_0' Name='s'>\n" + entity, "",
       "-:2:1: warning: entity texts in 'ST_Code' are written as the characters that they stand "
       "for\n  2 | " +
           entity +
           "\n    | ^\n"
           "-: error: what was written of it changes when it is read and written again\n"
           "  3 | <ST_Code>&amp;gt;</ST_Code>\n    |           ^\n",
       1},
      {"check", odd, ok("DataType", odd),
       "-:1:31: warning: the document declares UTF-8-x but is in UTF-8\n"
       "  1 | " +
           odd + "\n    |" + std::string(31, ' ') + "^\n",
       0},
      {"show --json", "<Odd/>",
       R"({"$file":"-","$error":{"severity":"error","line":1,"column":1,"message":)"
       R"("Wrong root element: \"Odd\" where a document of the exchange format is expected"}})"
       "\n",
       "", 1},
      {"show", unit, "HWUnit 0\n",
       "-: warning: not all of the document was read (1 loss; see praxen check)\n", 0},
      {"convert", unit, "", lost + notes + refused, 1},
      {"convert --lossy", unit,
       declaration + "<HWUnit xmlns='PraxenSchema3_0' Path='0' TypeID='' TypeDescription=''>\r\n"
                     "<HWUnits />\r\n</HWUnit>\r\n",
       lost + notes, 0},
      {"convert", noted, "", notes + refused, 1},
      {"convert", type + " Hidden='true'></DataType>", written + " Hidden='1' />\r\n", "", 0},
      {"convert", only, "",
       "-:2:2: warning: 'TypeGuid' is only read; writing leaves it out\n"
       "  2 |  TypeGuid='g'/>\n    |  ^\n" +
           refused,
       1},
      {"convert --encoding utf-8 -o -", "<?xml version='1.0' encoding='utf-16'?>" + type + "/>",
       written + " />\r\n", "", 0},
  });
}

TEST_F(CommandLine, ConvertReplacesTheFileOrLeavesItAlone) {
  ASSERT_EQ(Run("sample task -o " + Quoted(File("a.xml"))).exitCode, 0);
  const std::string before = ReadFile(File("a.xml"));
  std::filesystem::permissions(
      File("a.xml"), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  std::filesystem::create_symlink("a.xml", File("link.xml"));
  EXPECT_EQ(Run("convert --encoding utf-8 " + Quoted(File("link.xml"))).exitCode, 0);
  EXPECT_TRUE(ReadFile(File("a.xml")).starts_with("<?xml version='1.0' encoding='UTF-8'?>"));
  EXPECT_TRUE(std::filesystem::is_symlink(File("link.xml")));
  EXPECT_EQ(std::filesystem::status(File("a.xml")).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EXPECT_EQ(Run("convert --encoding utf-16 " + Quoted(File("a.xml"))).exitCode, 0);
  EXPECT_EQ(ReadFile(File("a.xml")), before);
  const Outcome two =
      Run("convert -o out.xml " + Quoted(File("a.xml")) + ' ' + Quoted(File("a.xml")));
  EXPECT_EQ(two.exitCode, 2);
  EXPECT_EQ(ReadFile(File("a.xml")), before);
}

TEST_F(CommandLine, AnotherSchemaIsUsedWhenAskedFor) {
  const std::string schema = ReadFile(PRAXEN_SOURCE_FOLDER "/schema/PraxenSchema3_0.xsd");
  const std::string other = File("other.xsd"), here = File("PraxenSchema3_0.xsd");
  WriteFile(other, schema + "<!-- another -->");
  WriteFile(here, "<odd/>");
  const std::string task = Run("sample task").out;
  const std::string note = "praxen: note: documents are validated against ";
  const std::filesystem::path program = PRAXEN_COMMAND_LINE_FILE;
  const std::string found =
      "PATH=" + Quoted(program.parent_path().string()) + " " + program.filename().string();
  const struct {
    std::string arguments, error;
    int exitCode;
    std::string program = Quoted(PRAXEN_COMMAND_LINE_FILE);
  } cases[] = {{"check -", "", 0},
               {"check -", "", 0, found},
               {"--version", "", 0, found},
               {"check --schema " + Quoted(other) + " -", note + other, 0},
               {"check --schema " + Quoted(here) + " -", note + here, 1},
               {"check --schema no.xsd -", "praxen: error: ", 1},
               {"show --schema no.xsd -", "no.xsd", 1}};
  for (const auto& given : cases) {
    // In the folder with a schema that cannot be used.
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(File(""));
    const Outcome outcome = Run(given.arguments, task, given.program);
    std::filesystem::current_path(before);
    EXPECT_EQ(outcome.out.find("PraxenSchema3_0.xsd"), std::string::npos) << outcome.out;
    EXPECT_EQ(outcome.exitCode, given.exitCode) << given.arguments << outcome.err;
    EXPECT_NE(outcome.err.find(given.error), std::string::npos) << outcome.err;
    if (given.error.empty()) {
      EXPECT_EQ(outcome.err, "");
    }
  }
}

TEST_F(CommandLine, ProgressIsShownOnATerminal) {
  // The document comes in three parts, before two of which progress is waited for, a minute at
  // most.
  const std::string command =
      "cd " + Quoted(File("")) +
      " && mkfifo pipe && exec 3<>pipe && : >terminal || exit; "
      "wait_for() { for i in $(seq 600); do grep -q \"$1\" terminal && break; sleep 0.1; done; }; "
      "script -qefc \"'" PRAXEN_COMMAND_LINE_FILE
      "' check pipe\" /dev/null </dev/null 3<&- >terminal & "
      "wait_for ' 0 KiB read'; printf '%67000s' >&3; wait_for ' 64 KiB read'; "
      "echo '<Odd/>' >&3; exec 3>&-; wait";
  std::system(command.c_str());
  const std::string shown = ReadFile(File("terminal"));
  size_t at = 0;
  for (const char* const next :
       {"\rpraxen: 0 of 1 files, 0 KiB read\x1b[K", "\rpraxen: 0 of 1 files, 64 KiB read\x1b[K",
        "\r\x1b[K", "\x1b[1;31merror: "}) {
    at = shown.find(next, at);
    ASSERT_NE(at, std::string::npos) << next << " in " << shown;
  }
}

}  // namespace
}  // namespace praxen::detail
