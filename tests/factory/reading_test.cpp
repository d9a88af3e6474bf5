// What reading makes of documents: walks, conversions, and the errors of bad ones.
#include <gtest/gtest.h>

#include "praxen/core/counters.h"
#include "praxen/praxen.h"
#include "tests/support/documents.h"

namespace praxen::detail {
namespace {

struct Case {
  std::string document;
  std::string rewritten;  // or the error
  std::string className = {};
};

void Check(const std::vector<Case>& cases) {
  const int32_t before = ObjectCounter();
  for (const Case& test : cases) {
    EXPECT_EQ(Rewritten(test.document, test.className), test.rewritten) << test.document;
  }
  EXPECT_EQ(ObjectCounter(), before);
}

constexpr const char* kWrongName = "605 Wrong element name";
constexpr const char* kMismatch = "80020005 Type mismatch";
constexpr const char* kVariable = "<Variable Name='v' Type='t' Attribute='a' />";

TEST(Reading, VariablesAndParameters) {
  const std::string head = "<Variable Name='v' Type='t' Attribute='a'";
  const std::string parameter = "<Parameter Name='p' Type='t' Attribute='a' Direction='";
  const std::string module = "<CMParameter Name='p' Type='t'";
  Check({
      {head + "/>", kVariable},
      {"<Variable Attribute='a' TypeGuid='g' Type='t' SafetyType='' Name='v' TypePath='p'/>",
       kVariable},
      {head + "><Description>d</Description><GraphNode Name='n' X='1' Y='.5'/></Variable>",
       head + "><Description>d</Description><GraphNode Name='n' X=' 1' Y=' .5' /></Variable>"},
      {head + "><GraphNode Name='n' X='1' Y='2'/><Description>d</Description></Variable>",
       head + "><GraphNode Name='n' X=' 1' Y=' 2' /></Variable>"},
      {head + "><GraphNode Name='a' X='1' Y='2'/><!-- c --><Unknown/>"
              "<GraphNode Name='b' X='3' Y='4'/></Variable>",
       head + "><GraphNode Name='a' X=' 1' Y=' 2' /><GraphNode Name='b' X=' 3' Y=' 4' />"
              "</Variable>"},
      {head + "><!-- c --><Description>d</Description></Variable>", kVariable},
      {head + "><Description/></Variable>", kVariable},
      {head + "><Description>  </Description></Variable>",
       head + "><Description>  </Description></Variable>"},
      {head + "><Description>a&lt;<![CDATA[&b]]>&#228;</Description></Variable>",
       head + "><Description>a&lt;&amp;b\xC3\xA4</Description></Variable>"},
      {head + " AuthenticationLevel=''/>", head + " AuthenticationLevel='' />"},
      {head + " AuthenticationLevel='None'/>", kVariable},
      {head + "><GraphNode Name='n' X='1x' Y='2'/></Variable>", kMismatch},
      {parameter + "inout'/>", parameter + "out' />"},
      {parameter + "in_out'><Description>d</Description></Parameter>",
       parameter + "in_out'><Description>d</Description></Parameter>"},
      {parameter + "in'><Unknown/></Parameter>", kWrongName},
      {parameter + "in'><!-- c --></Parameter>", kWrongName},
      {module + "><AutoPoint AutoPos='Top'/><Description>d</Description></CMParameter>",
       module + "><AutoPoint AutoPos='Top' /></CMParameter>"},
      {"<CommVariable Name='c' Type='t' Attribute='a' Direction='in' UniqueID='12a'/>", kMismatch},
      {"<CommVariable Name='c' Type='t' Attribute='a' Direction='up' UniqueID='+12'/>",
       "<CommVariable Name='c' Type='t' Attribute='a' Direction='up' UniqueID='12' />"},
      {"<DataType Name='d' Scope='Public'><Components><Component Name='x' Type='t' Attribute=''/>"
       "<Component Name='x' Type='u' Attribute=''/></Components></DataType>",
       "<DataType Name='d' Scope='private'><Components><Component Name='x' Type='t' Attribute='' "
       "/><Component Name='x' Type='u' Attribute='' /></Components></DataType>"},
      {"<DataType Name='d' Protected='true' Hidden='True'/>",
       "<DataType Name='d' Protected='1' />"},
      {"<DataType Name='d'><Description>x</Description><Components/></DataType>",
       "<DataType Name='d'><Description>x</Description></DataType>"},
      {"<Signal Name='s' Path='' Direction=''><Other/></Signal>",
       "<Signal Name='s' Path='' Direction='' />"},
  });
}

TEST(Reading, UnitsAndInstances) {
  const std::string position =
      "<GraphPos XPos=' 0' YPos=' 0' Rotation=' 0' XScale=' 1' YScale=' 1' />";
  const std::string variables = "<Variables>" + std::string(kVariable) + "</Variables>";
  const std::string size = "<GraphSize><Point X='-1' Y='-1' /><Point X=' 1' Y=' 1' /></GraphSize>";
  const std::string block =
      "<CodeBlocks><STCodeBlock Name='s'><ST_Code>x</ST_Code></STCodeBlock></CodeBlocks>";
  Check({
      {"<Program Name='p' SILLevel=''>" + variables + block + "</Program>",
       "<Program Name='p' SILLevel=''>" + variables + block + "</Program>"},
      {"<Program Name='p'>" + block + variables + "</Program>", kWrongName},
      {"<Program Name='p'><!-- c -->" + variables + "</Program>", kWrongName},
      {"<Program Name='p'><Variables><!-- c -->" + std::string(kVariable) + "<Odd/>" + kVariable +
           "</Variables></Program>",
       "<Program Name='p'><Variables>" + std::string(kVariable) + kVariable +
           "</Variables></Program>"},
      {"<Program Name='p'>" + variables + "<Description>d</Description><Odd/></Program>",
       "<Program Name='p'>" + variables + "<Description>d</Description></Program>"},
      {"<FunctionBlockType Name='f'><ControlModules/></FunctionBlockType>",
       "<FunctionBlockType Name='f' />"},
      {"<Diagram Name='d'/>", "<Diagram Name='d'><ControlModules /></Diagram>"},
      {"<DiagramType Name='d' BatchObject='b' Guid='g' AlarmOwner='1'/>",
       "<DiagramType Name='d' AlarmOwner='1' BatchObject='b' Guid='g'><ControlModules "
       "/></DiagramType>"},
      {"<FunctionBlock Name='f' Type='t' AspectObject='0' TypeGuid='g'/>",
       "<FunctionBlock Name='f' Type='t' AspectObject='0' />"},
      {"<FunctionBlock Name='f' Type='t'><Odd/></FunctionBlock>", kWrongName},
      {"<ControlModule Name='m' Type='t'><Description>d</Description><CMConnections>"
       "<CMConnection Name='c' ActualParameter=''/></CMConnections><GraphPos XPos='5' YPos='0' "
       "Rotation='0' XScale='1' YScale='1'/></ControlModule>",
       "<ControlModule Name='m' Type='t'><Description>d</Description>" + position +
           "</ControlModule>"},
      {"<ControlModule Name='m' Type='t' VisibilityInGraphics='odd'/>",
       "<ControlModule Name='m' Type='t' VisibilityInGraphics='invisible'>" + position +
           "</ControlModule>"},
      {"<CMConnection Name='c' ActualParameter='a' GraphicalConnection='1'><Point X='1' Y='2'/>"
       "<!-- c --><Point X='-2.5' Y='0'/></CMConnection>",
       "<CMConnection Name='c' ActualParameter='a' GraphicalConnection='1'>"
       "<Point X=' 1' Y=' 2' /><Point X='-2.5' Y=' 0' /></CMConnection>"},
      {"<ControlModuleType Name='t'><GraphSize><UpperRight X='1' Y='2'/><LowerLeft X='3' Y='4'/>"
       "</GraphSize></ControlModuleType>",
       "<ControlModuleType Name='t'><ControlModules /><GraphSize><Point X=' 1' Y=' 2' />"
       "<Point X=' 3' Y=' 4' /></GraphSize></ControlModuleType>"},
      {"<SingleControlModule Name='s' TypeGuid=' '/>",
       "<SingleControlModule Name='s' TypeGuid=' '><ControlModules />" + size +
           "</SingleControlModule>",
       "SingleControlModuleType"},
      {"<SingleControlModule Name='s' TypeGuid=''><Description>d</Description><CMInstGraphics>g"
       "</CMInstGraphics></SingleControlModule>",
       "<SingleControlModule Name='s' TypeGuid=''><Description>d</Description><CMInstGraphics>g"
       "</CMInstGraphics>" +
           position + "</SingleControlModule>",
       "SingleControlModuleInst"},
      {"<ControlModules><SingleControlModule Name='s' TypeGuid='g'/><Odd/><ControlModule Name='m' "
       "Type='t'/></ControlModules>",
       "<ControlModules><SingleControlModule Name='s' TypeGuid='g'>" + position +
           "</SingleControlModule><ControlModule Name='m' Type='t'>" + position +
           "</ControlModule></ControlModules>"},
  });
}

TEST(Reading, CodeAndCharts) {
  Check({
      {"<STCodeBlock Name='s'><Odd/></STCodeBlock>",
       "<STCodeBlock Name='s'><ST_Code></ST_Code></STCodeBlock>"},
      {"<STCodeBlock Name='s'><ST_Code>&amp;lt;</ST_Code></STCodeBlock>",
       "<STCodeBlock Name='s'><ST_Code>&amp;lt;</ST_Code></STCodeBlock>"},
      {"<LDCodeBlock Name='s'><ST_Code>&amp;lt;&lt;</ST_Code></LDCodeBlock>",
       "<LDCodeBlock Name='s'><ST_Code>&lt;&lt;</ST_Code></LDCodeBlock>"},
      {"<FBDCodeBlock Name='s'><ST_Code>&amp;amp;gt;</ST_Code></FBDCodeBlock>",
       "<FBDCodeBlock Name='s'><ST_Code>&amp;gt;</ST_Code></FBDCodeBlock>"},
      {"<FDCodeBlock Name='f'/>", "<FDCodeBlock Name='f' ><FunctionDiagram/></FDCodeBlock>"},
      {"<FDCodeBlock Name='f'> \n\t</FDCodeBlock>",
       "<FDCodeBlock Name='f' ><FunctionDiagram/></FDCodeBlock>"},
      {"<FDCodeBlock Name='f'> x </FDCodeBlock>", "<FDCodeBlock Name='f' > x </FDCodeBlock>"},
      {"<FDCodeBlock Name='f' ><FunctionDiagram a=\"1\" ><x /><!-- c "
       "--></FunctionDiagram></FDCodeBlock>",
       "<FDCodeBlock Name='f' ><FunctionDiagram a=\"1\" ><x /><!-- c "
       "--></FunctionDiagram></FDCodeBlock>"},
      {"<FDCodeBlock xmlns:d='urn:d' Name='f'><d:Diagram/></FDCodeBlock>",
       "<FDCodeBlock Name='f' ><d:Diagram xmlns:d='urn:d'/></FDCodeBlock>"},
      {"<ILCodeBlock Name='i'><ILRow><Label>l</Label><Operand>o</Operand></ILRow><ILRow/><Odd/>"
       "<ILRow><ILRowComment>c</ILRowComment><Label>l</Label></ILRow><ILRow><ILRowComment/></ILRow>"
       "</ILCodeBlock>",
       "<ILCodeBlock Name='i'><ILRow><Label>l</Label><Operand>o</Operand></ILRow><ILRow />"
       "<ILRow><ILRowComment>c</ILRowComment></ILRow><ILRow><ILRowComment></ILRowComment></ILRow>"
       "</ILCodeBlock>"},
      {"<ILCodeBlock Name='i'><ILRow><Operand>o</Operand><Label>l</Label></ILRow></ILCodeBlock>",
       "<ILCodeBlock Name='i'><ILRow><Operand>o</Operand></ILRow></ILCodeBlock>"},
      {"<SFCCodeBlock Name='c' SeqControl='0' StepElapsedTime='true'><SFCStep Name='s' "
       "InitialStep='1'><P1_Action><ST_Code>p</ST_Code></P1_Action><N_Action/><P0_Action>"
       "<Any>z</Any></P0_Action></SFCStep><!-- c --><SFCTransition Name='t' Dest='s'>a &lt; b"
       "</SFCTransition></SFCCodeBlock>",
       "<SFCCodeBlock Name='c' SeqControl='0' StepElapsedTime='1'><SFCStep Name='s' "
       "InitialStep='1'><P1_Action><ST_Code>p</ST_Code></P1_Action><P0_Action><ST_Code>z</ST_Code>"
       "</P0_Action></SFCStep><SFCTransition Name='t' Dest='s' >a &lt; b</SFCTransition>"
       "</SFCCodeBlock>"},
      {"<SFCCodeBlock Name='c'><SFCSelection><!-- c --><SFCBranch SFCPriority='highest'>"
       "<SFCSimultaneous><SFCBranch/></SFCSimultaneous></SFCBranch><Odd/><SFCBranch "
       "SFCPriority='odd'/></SFCSelection><SFCSubSequence SubSeqName='q'><SFCStep Name='s'/>"
       "</SFCSubSequence></SFCCodeBlock>",
       "<SFCCodeBlock Name='c'><SFCSelection><SFCBranch SFCPriority='highest'><SFCSimultaneous>"
       "<SFCBranch /></SFCSimultaneous></SFCBranch><SFCBranch /></SFCSelection><SFCSubSequence "
       "SubSeqName='q'><SFCStep Name='s' /></SFCSubSequence></SFCCodeBlock>"},
  });
}

TEST(Reading, ApplicationsHardwareAndMessages) {
  const std::string task =
      "<Task Name='T' IntervalTime='250' Priority='1' Offset='5' OutputUpdate='first' "
      "LatencySupervision='1' LatencyPercentage='20' TaskSILLevel='SIL3' />";
  const std::string channel =
      "<HWUnit Path='0' TypeID='' TypeDescription=''><HWChannels><HWChannel "
      "Address='1' Name='c'>";
  const std::string channelEnd = "</HWChannel></HWChannels><HWUnits /></HWUnit>";
  const std::string position =
      "<PosInfo Row='1' Col='2' StartPos='3' EndPos='4' ElementName='' FOUName='' POUName='' "
      "TabName='' MessageType='MessageGeneral' PageNo='0' Id='' />";
  Check({
      {task, task},
      {"<Task Name='T' IntervalTime='2,5' Priority='1' Offset='5' OutputUpdate='first' "
       "LatencySupervision='1' LatencyPercentage='20' TaskSILLevel='SIL3' />",
       kMismatch},
      {"<Task Name='T' IntervalTime='1' Priority='9' Offset='0' OutputUpdate='First' "
       "LatencySupervision='True' LatencyPercentage='1' TaskSILLevel='sil2' Guid='g'/>",
       "<Task Name='T' IntervalTime='1' Priority='5' Offset='0' OutputUpdate='last' "
       "LatencySupervision='0' LatencyPercentage='1' TaskSILLevel='SIL2' Guid='g' />"},
      {"<ExecutionOrder><Odd/><ExecutionGroup TaskName=''><ExecutionInstance Name='a'/>"
       "<ExecutionInstance Name='a'/></ExecutionGroup></ExecutionOrder>",
       "<ExecutionOrder><ExecutionGroup TaskName=''><ExecutionInstance Name='a' />"
       "<ExecutionInstance Name='a' /></ExecutionGroup></ExecutionOrder>"},
      {"<ApplicationVariables><Signals><Signal Name='s' Path='' Direction='in'/></Signals>"
       "<Description>d</Description></ApplicationVariables>",
       "<ApplicationVariables><Signals><Signal Name='s' Path='' Direction='in' /></Signals>"
       "<Description>d</Description></ApplicationVariables>"},
      {"<ApplicationVariables><Variables/><GlobalVariables/></ApplicationVariables>", kWrongName},
      {"<ApplicationProperties Type='Simulation' SILLevel='nonsil'/>",
       "<ApplicationProperties SILLevel='nonsil' />"},
      {"<ConnectedHardwareLibraries><ConnectedHardwareLibrary Name='l' MajorVersion='2' "
       "MinorVersion='-1' Revision='0' Guid='g'/><ConnectedLibrary/></ConnectedHardwareLibraries>",
       "603 Invalid XML: Element 'ConnectedLibrary' lacks the required attribute 'Name'. (line 1, "
       "column 185)"},
      {"<ConnectedHardwareLibraries><ConnectedHardwareLibrary Name='l' MajorVersion='2' "
       "MinorVersion='-1' Revision='0' Guid='g'/><Odd/></ConnectedHardwareLibraries>",
       "<ConnectedHardwareLibraries><ConnectedHardwareLibrary Name='l' MajorVersion='2' "
       "MinorVersion='-1' Revision='0' /></ConnectedHardwareLibraries>"},
      {"<ProjectConstants><ProjectConstant Name='A'><ProjectConstants><ProjectConstant Name='B'>"
       "<Type>dint</Type><Value>1</Value></ProjectConstant></ProjectConstants></ProjectConstant>"
       "<ProjectConstant Name='C'><Value>2</Value><Type>real</Type></ProjectConstant>"
       "</ProjectConstants>",
       "<ProjectConstants><ProjectConstant Name='A'><ProjectConstants><ProjectConstant Name='B'>"
       "<Type>dint</Type><Value>1</Value></ProjectConstant></ProjectConstants></ProjectConstant>"
       "<ProjectConstant Name='C'><Type>2</Type><Value>real</Value></ProjectConstant>"
       "</ProjectConstants>"},
      {"<Varaccess><VAAddressedProtocol Name='m'><VAAddressedVariable Name='v' Path='p'/>"
       "</VAAddressedProtocol><Odd/><VANamedProtocol Name='n'><VANamedVariable Name='v' Path='p' "
       "Attribute='a' VAType='t' Row='3' VATypePath='x'/></VANamedProtocol></Varaccess>",
       "<Varaccess><VAAddressedProtocol Name='m'><VAAddressedVariable Name='v' Path='p' Row='0' />"
       "</VAAddressedProtocol><VANamedProtocol Name='n'><VANamedVariable Name='v' Path='p' "
       "Attribute='a' VAType='t' Row='3' /></VANamedProtocol></Varaccess>"},
      {channel + "<ConVariable Signal='1'>v</ConVariable><IODescription/>" + channelEnd,
       channel + "<ConVariable Signal='1' >v</ConVariable><IODescription></IODescription>" +
           channelEnd},
      {channel + "<IODescription>d</IODescription>" + channelEnd,
       channel + "<ConVariable Signal='0' ></ConVariable><IODescription>d</IODescription>" +
           channelEnd},
      {channel + "<ConVariable Signal='0'/><Odd/>" + channelEnd, kWrongName},
      {"<HWUnit Path='0' TypeID='' TypeDescription=''><HWChannels/><ParameterSettings>"
       "<ParameterSetting Name='p' Value='1'/></ParameterSettings></HWUnit>",
       "<HWUnit Path='0' TypeID='' TypeDescription=''><HWUnits /></HWUnit>"},
      {"<MessageBucket NoOfErrors='5' NoOfWarnings='0'><Warning WarningNo='1' Message='w'/>"
       "<!-- c --><Odd/><Error ErrorNo='2' Message='e'><ExtraInfo JumpDest='' VarName='' "
       "FunctionName='' ExpectedType='' TraverseNo='0'/>" +
           position +
           "</Error><Find "
           "Message='f'>" +
           position + "</Find></MessageBucket>",
       "<MessageBucket NoOfErrors='5' NoOfWarnings='0'><Warning WarningNo='1' Message='w' />"
       "<Error ErrorNo='2' Message='e'><ExtraInfo JumpDest='' VarName='' FunctionName='' "
       "ExpectedType='' TraverseNo='0' /></Error><Find Message='f'>" +
           position + "</Find></MessageBucket>"},
      {"<MessageBucket NoOfErrors='x' NoOfWarnings='0'/>", kMismatch},
  });
}

TEST(Reading, ReadOnlyPropertiesComeFromTheDocument) {
  const auto variable = ObjectFactory::DeserializeVariable(
      Document("<Variable Name='v' Type='t' Attribute='' TypeGuid='g' TypePath='p'/>"));
  EXPECT_EQ(variable->TypeGuid, u"g");
  EXPECT_EQ(variable->TypePath, u"p");
  EXPECT_EQ(ObjectFactory::DeserializeApplicationProperties(Document("<ApplicationProperties/>"))
                ->ApplicationType,
            u"Normal");
}

TEST(Reading, BadTextsAreRefusedWithTheirPlace) {
  const std::string ns = " xmlns='PraxenSchema3_0'", rest = " Name='v' Type='t' Attribute=''/>";
  struct BadText {
    std::string text, error;  // the beginning of the error
    Place place = {};
  };
  const BadText cases[] = {
      {"", "603 Invalid XML: ", {1, 1}},
      {"<!DOCTYPE Variable><Variable" + ns + rest, "603 Invalid XML: DTD is prohibited.", {1, 1}},
      {"<Variable" + ns + "\n Odd=''" + rest, "603 Invalid XML: Attribute 'Odd' is not", {2, 2}},
      {"<Variable" + rest, "603 Invalid XML: The element ", {1, 1}},
      {"<Variable xmlns='Other'" + rest, "603 Invalid XML: The element ", {1, 1}},
      {"<GlobalVariable" + ns + rest, "604 Wrong root element", {1, 1}},
      {"<Odd/>", "604 Wrong root element", {1, 1}},
      {"<Odd><</Odd>", "603 Invalid XML: ", {1, 7}},
      {"<p:Variable xmlns:p='PraxenSchema3_0'" + rest, "604 Wrong root element", {1, 1}},
  };
  const int32_t before = ObjectCounter();
  for (const BadText& test : cases) {
    const std::string error = ErrorOf([&] {
      try {
        ObjectFactory::DeserializeVariable(FromUtf8(test.text));
      } catch (const Error& raised) {
        EXPECT_EQ(raised.place(), test.place) << test.text;
        throw;
      }
    });
    EXPECT_EQ(error.substr(0, test.error.size()), test.error) << test.text << ": " << error;
    EXPECT_EQ(Rewritten("<Variable Name='v' Type='t' Attribute='a'/>"), kVariable);
  }
  EXPECT_EQ(ObjectCounter(), before);
}

TEST(Reading, ErrorsTellWhatWasFoundAndExpected) {
  struct Case {
    std::string markup, detail;
  };
  const std::string node = "<Variable Name='v' Type='t' Attribute=''><GraphNode Name='n' X='";
  const Case cases[] = {
      {node + "12a' Y='0'/></Variable>",
       "\"12a\" in the attribute \"X\" of \"GraphNode\", where a number is expected"},
      {node + std::string(59, 'x') + "\xF0\x9F\x9A\xB0' Y='0'/></Variable>",
       "\"" + std::string(59, 'x') +
           "…\" in the attribute \"X\" of \"GraphNode\", where a number is expected"},
      {"<MessageBucket NoOfErrors='99999999999' NoOfWarnings='0'/>",
       "\"99999999999\" in the attribute \"NoOfErrors\" of \"MessageBucket\", where an integer of "
       "32 bits is expected"},
      {"<Program Name='p'><Odd/></Program>", "\"Odd\" where \"Description\" is expected"},
      {"<Odd/>", "\"Odd\" where a document of the exchange format is expected"},
  };
  for (const Case& test : cases) {
    try {
      ReadDocument(Document(test.markup));
      ADD_FAILURE() << test.markup;
    } catch (const Error& error) {
      EXPECT_EQ(error.detail().utf8(), test.detail);
      EXPECT_EQ(error.what(), error.description().utf8() + ": " + test.detail);
    }
  }
  const auto detailOf = [](auto read) {
    try {
      read(Document("<ExecutionOrder/>"));
    } catch (const Error& error) {
      return error.detail();
    }
    return Text();
  };
  EXPECT_EQ(detailOf(ObjectFactory::DeserializeCodeBlock),
            "\"ExecutionOrder\" where a code block is expected");
  EXPECT_EQ(detailOf(ObjectFactory::DeserializeSignal),
            "\"ExecutionOrder\" where \"Signal\" is expected");
}

TEST(Reading, CodeBlocksOfAnyLanguage) {
  for (const char* const element : {"FBDCodeBlock", "ILCodeBlock", "LDCodeBlock", "SFCCodeBlock",
                                    "STCodeBlock", "FDCodeBlock"}) {
    const Ref<ICodeBlock> block =
        ObjectFactory::DeserializeCodeBlock(Document("<" + std::string(element) + " Name='b'/>"));
    EXPECT_EQ(block->description().name, element);
    EXPECT_EQ(block->Name(), u"b");
  }
  EXPECT_EQ(ErrorOf([] { ObjectFactory::DeserializeCodeBlock(Document("<Program Name='p'/>")); }),
            "604 Wrong root element");
}

}  // namespace
}  // namespace praxen::detail
