// Tests of the command line "praxen", run by the shell as a user runs it.
#include <gtest/gtest.h>

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
  CommandLine()
      : folder_(std::filesystem::path(testing::TempDir()) /
                testing::UnitTest::GetInstance()->current_test_info()->name()) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~CommandLine() override { std::filesystem::remove_all(folder_); }

  std::string File(const std::string& name) const { return (folder_ / name).string(); }

  Outcome Run(const std::string& arguments, std::string_view input = {}) const {
    WriteFile(folder_ / "in", input);
    std::string command = Quoted(PRAXEN_COMMAND_LINE_FILE) + ' ' + arguments + " <" +
                          Quoted(File("in")) + " >" + Quoted(File("out")) + " 2>" +
                          Quoted(File("err"));
    const int exitCode = WEXITSTATUS(std::system(command.c_str()));
    return {exitCode, ReadFile(folder_ / "out"), ReadFile(folder_ / "err")};
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

TEST_F(CommandLine, TheFirstBytesTellTheEncoding) {
  const std::u16string_view text =
      u"<Variable xmlns='PraxenSchema3_0' Name='F\u00FCllstand \U0001F6B0' Type='real' "
      u"Attribute=''/>";
  std::string little, big;
  for (const char16_t unit : text) {
    const char low = static_cast<char>(unit & 0xFF), high = static_cast<char>(unit >> 8);
    little.append({low, high});
    big.append({high, low});
  }
  const std::string utf8 = ToUtf8(text);
  const std::string expected =
      "-: ok (Variable, 1 object, " + std::to_string(text.size()) + " characters)\n";
  for (const std::string& bytes :
       {utf8, "\xEF\xBB\xBF" + utf8, little, "\xFF\xFE" + little, big, "\xFE\xFF" + big}) {
    const Outcome outcome = Run("check -", bytes);
    EXPECT_EQ(outcome.out + outcome.err, expected);
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
                             ": error: Is a directory\n");
  EXPECT_TRUE(outcome.out.starts_with(File("task") + ": ok (Task, 1 object, ")) << outcome.out;
}

// Which class a root stands for that a type and an instance share.
TEST_F(CommandLine, WhatADocumentGivesTellsTypeAndInstanceApart) {
  const std::string start = "<SingleControlModule xmlns='PraxenSchema3_0' Name='Tank' TypeGuid=' '";
  const std::pair<std::string, std::string> documents[] = {
      {"/>", "SingleControlModuleType Tank\n"},
      {" AlarmOwner='1'/>", "SingleControlModuleType Tank  AlarmOwner: true\n"},
      {" InstGuid='g'/>", "SingleControlModuleInst Tank  InstGuid: g\n"},
      {"><GraphPos XPos='2' YPos='0' Rotation='0' XScale='1' YScale='1'/></SingleControlModule>",
       "SingleControlModuleInst Tank\n└─ GraphPos  XPos: 2\n"},
  };
  for (const auto& [rest, expected] : documents) {
    const Outcome outcome = Run("show -", start + rest);
    EXPECT_EQ(outcome.err + outcome.out, expected);
  }
}

TEST_F(CommandLine, ShowDrawsTheTreeOfAChart) {
  const std::string chart =
      "<SFCCodeBlock xmlns='PraxenSchema3_0' Name='Fill'><SFCStep Name='Idle' InitialStep='1'>"
      "<N_Action><ST_Code>a := 1;\nb := 2;</ST_Code></N_Action></SFCStep><SFCSelection>"
      "<SFCBranch SFCPriority='high'><SFCTransition Name='T1'>x</SFCTransition></SFCBranch>"
      "<SFCBranch/></SFCSelection></SFCCodeBlock>";
  EXPECT_EQ(Run("show -", chart).out,
            "SFCCodeBlock Fill\n"
            "├─ SFCStep Idle  InitialStep: true\n"
            "│     N_Action_STCode:\n"
            "│       a := 1;\n"
            "│       b := 2;\n"
            "└─ SFCSelection\n"
            "   ├─ SFCBranch  SFCPriority: high\n"
            "   │  └─ SFCTransition T1: x\n"
            "   └─ SFCBranch\n");
  EXPECT_EQ(Run("show --depth 0 -", chart).out, "SFCCodeBlock Fill …\n");
}

TEST_F(CommandLine, ShowTellsTheWholeDocumentInOneLineOfJson) {
  const std::string list =
      "<MessageBucket xmlns='PraxenSchema3_0' NoOfErrors='1' NoOfWarnings='0'><Error ErrorNo='9' "
      "Message='a&#10;b'><PosInfo Row='2' Col='0' FOUName='' POUName='' TabName='' ElementName='' "
      "MessageType='SingleProgram' StartPos='0' EndPos='0' PageNo='0' Id=''/></Error>"
      "</MessageBucket>";
  const Outcome outcome = Run("show --json -", list);
  EXPECT_EQ(outcome.out,
            R"({"$class":"MessageBucket","NoOfErrors":1,"$elements":[{"$class":"ErrorMsg",)"
            R"("ErrorNo":9,"Message":"a\nb","PosInfo":{"$class":"PosInfo","Row":2,)"
            R"("MessageType":"SingleProgram"}}]})"
            "\n");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(CommandLine, ControlCharactersDoNotReachTheTerminal) {
  const Outcome outcome = Run("show -",
                              "<Variable xmlns='PraxenSchema3_0' Name='a\xC2\x9B"
                              "31m' Type='real' Attribute='retain'/>");
  EXPECT_EQ(outcome.out,
            "Variable a\xEF\xBF\xBD"
            "31m real\n");
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
  const struct {
    std::string arguments, bytes, expected;
    int exitCode;
  } cases[] = {
      {"", start + "NoOfErrors='1' NoOfWarnings='1'>" + list,
       "info: a\n" + warning + error + "1 error, 1 warning\n", 1},
      {"--sort ", start + "NoOfErrors='5' NoOfWarnings='0'>" + list,
       error + warning +
           "info: a\n1 error, 1 warning; the list itself counts 5 errors, no warnings\n",
       1},
      {"", start + "NoOfErrors='0' NoOfWarnings='0'/>", "no errors, no warnings\n", 0},
      {"", start + "NoOfErrors='2' NoOfWarnings='0'/>",
       "no errors, no warnings; the list itself counts 2 errors\n", 1},
      {"", "<Task/>", "", 1},
  };
  for (const auto& given : cases) {
    const Outcome outcome = Run("messages " + given.arguments + "-", given.bytes);
    EXPECT_EQ(outcome.out, given.expected);
    EXPECT_EQ(outcome.exitCode, given.exitCode);
  }
}

TEST_F(CommandLine, WrongUseIsToldFromBadDocuments) {
  const struct {
    std::string arguments;
    int exitCode;
  } cases[] = {{"", 2},
               {"sample", 2},
               {"sample pump", 2},
               {"check", 2},
               {"grow", 2},
               {"show --all -", 2},
               {"show --json --depth 1 -", 2},
               {"--help", 0},
               {"--version", 0},
               {"sample task -o /no/such/folder/file", 1}};
  for (const auto& given : cases) {
    const Outcome outcome = Run(given.arguments);
    EXPECT_EQ(outcome.exitCode, given.exitCode) << given.arguments;
    EXPECT_NE(outcome.out + outcome.err, "") << given.arguments;
  }
}

}  // namespace
}  // namespace praxen::detail
