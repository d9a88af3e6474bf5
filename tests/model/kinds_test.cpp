// The kind interfaces, a client's own implementations of them, and what charts, rows, messages and
// creating operations do beyond the pattern.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

#include "praxen/factory/classes.h"
#include "praxen/praxen.h"
#include "tests/server/client.h"
#include "tests/support/documents.h"

namespace praxen::detail {
namespace {

constexpr const char* kMismatch = "80020005 Type mismatch";
constexpr const char* kBadPosition = "8002000B Subscript out of range";

/// A client's implementation of a kind that has a name. It answers true to one query, or to none.
template <class Kind>
class Named : public Kind {
 public:
  explicit Named(bool claims) : claims(claims) {}
  Text Name() const override { return name; }
  void SetName(const Text& value) override { name = value; }

  Text name;
  const bool claims;
};

class OwnCodeBlock final : public Named<ICodeBlock> {
 public:
  using Named::Named;
  bool IsSTCodeBlock() const override { return claims; }
};

class OwnControlModule final : public Named<IControlModule> {
 public:
  using Named::Named;
  bool IsControlModule() const override { return claims; }
  bool IsSingleControlModule() const override { return !claims; }
};

class OwnProtocol final : public Named<IVAProtocol> {
 public:
  using Named::Named;
  bool IsVAAddressedProtocol() const override { return claims; }
};

class OwnElement final : public ISFCElement {
 public:
  explicit OwnElement(bool claims) : claims_(claims) {}
  bool IsSFCSubSequence() const override { return claims_; }

 private:
  const bool claims_;
};

class OwnMessage final : public IMsg {
 public:
  explicit OwnMessage(bool claims) : claims_(claims) {}
  bool IsErrorMsg() const override { return claims_; }

 private:
  const bool claims_;
};

// What a list between whose own elements a client's stands is written as.
template <class Own, class List>
std::string Written(const Ref<List>& list, bool claims) {
  list->AddBefore(Ref<Own>(new Own(claims)), 2);
  std::string markup;
  const std::string error = ErrorOf([&] { markup = Markup(*list); });
  return error == "none" ? markup : error;
}

Ref<CodeBlocks> TwoCodeBlocks() {
  const auto list = New<CodeBlocks>();
  list->AddSTCodeBlock1(u"a");
  list->AddILCodeBlock1(u"b");
  return list;
}

Ref<ControlModules> TwoControlModules() {
  const auto list = New<ControlModules>();
  list->AddControlModule(u"a", u"t")->GraphPos = nullptr;
  list->AddSingleControlModuleInst(u"b")->GraphPos = nullptr;
  return list;
}

Ref<SFCElements> TwoElements() {
  const auto list = New<SFCElements>();
  list->AddStep1(u"a");
  list->AddTransition1(u"b");
  return list;
}

Ref<AccessVariables> TwoProtocols(bool claims) {
  const auto access = New<AccessVariables>();
  access->VAProtocols->AddVANamedProtocol1(u"a");
  access->VAProtocols->AddVAAddressedProtocol1(u"b");
  access->VAProtocols->AddBefore(Ref<OwnProtocol>(new OwnProtocol(claims)), 2);
  return access;
}

Ref<MessageBucket> TwoMessages() {
  const auto bucket = New<MessageBucket>();
  bucket->Add(New<ErrorMsg>());
  bucket->Add(New<FindMsg>());
  return bucket;
}

template <size_t Alignment>
class AlignedElement final : public ISFCElement {
 public:
  alignas(Alignment) char values[Alignment] = {};
};

TEST(OwnKinds, AreAlignedAsTheirMembersNeed) {
  const auto remainder = []<size_t Alignment>(const AlignedElement<Alignment>& element) {
    return reinterpret_cast<uintptr_t>(&element.values) % Alignment;
  };
  for (int count = 0; count < 4; ++count) {
    EXPECT_EQ(remainder(*New<AlignedElement<alignof(std::max_align_t)>>()), 0U);
    EXPECT_EQ(remainder(*New<AlignedElement<256>>()), 0U);
  }
}

TEST(OwnKinds, OfNoClassAreLeftOut) {
  EXPECT_EQ(Written<OwnCodeBlock>(TwoCodeBlocks(), false),
            "<CodeBlocks><STCodeBlock Name='a'><ST_Code></ST_Code></STCodeBlock>"
            "<ILCodeBlock Name='b' /></CodeBlocks>");
  EXPECT_EQ(Written<OwnElement>(TwoElements(), false),
            "<SFCStep Name='a' /><SFCTransition Name='b' />");
  EXPECT_EQ(Markup(*TwoProtocols(false)),
            "<Varaccess><VANamedProtocol Name='a' /><VAAddressedProtocol Name='b' /></Varaccess>");
  EXPECT_EQ(Written<OwnMessage>(TwoMessages(), false),
            "<MessageBucket NoOfErrors='0' NoOfWarnings='0'><Error ErrorNo='0' Message='' />"
            "<Find Message='' /></MessageBucket>");

  const auto access = New<AccessVariables>();
  access->VAProtocols->Add(New<IVAProtocol>());
  EXPECT_EQ(Markup(*access), "<Varaccess />");
  const auto chart = ObjectFactory::NewSFCCodeBlock(u"C");
  chart->SFCElements->Add(New<ISFCElement>());
  EXPECT_EQ(Markup(*chart), "<SFCCodeBlock Name='C' />");
}

TEST(OwnKinds, ThatClaimAClassOfTheLibraryCannotBeWritten) {
  EXPECT_EQ(Written<OwnCodeBlock>(TwoCodeBlocks(), true), kMismatch);
  EXPECT_EQ(Written<OwnControlModule>(TwoControlModules(), true), kMismatch);
  EXPECT_EQ(Written<OwnElement>(TwoElements(), true), kMismatch);
  EXPECT_EQ(ErrorOf([] { TwoProtocols(true)->Serialize(); }), kMismatch);
  EXPECT_EQ(Written<OwnMessage>(TwoMessages(), true), kMismatch);
  // What is no control module is taken for a single one, whatever it answers.
  EXPECT_EQ(Written<OwnControlModule>(TwoControlModules(), false), kMismatch);
  EXPECT_EQ(Markup(*TwoControlModules()),
            "<ControlModules><ControlModule Name='a' Type='t' />"
            "<SingleControlModule Name='b' TypeGuid=' ' /></ControlModules>");
}

// The questions of its kind that a new object answers with yes.
std::string Answers(const ClassDescription& kind, const ClassDescription& description) {
  const client::Handle object = client::Create(description.name);
  std::string names;
  for (const Member& member : kind.members) {
    if (member.type.kind != ValueKind::Boolean) continue;
    const Variant answer = client::Get(object, FromUtf8(member.name));
    if (answer.boolVal != VARIANT_FALSE) names += member.name;
  }
  return names;
}

TEST(Kinds, OfEveryClassExactlyOneIsTrue) {
  int count = 0;
  for (const ClassDescription& kind : AllClasses()) {
    if (!kind.isKind) continue;
    for (const ClassDescription* const description : ClassesOf(kind)) {
      const bool isInstance = description->name == "SingleControlModuleInst";
      const std::string name = isInstance ? "SingleControlModule" : std::string(description->name);
      EXPECT_EQ(Answers(kind, *description), description == &kind ? "" : "Is" + name);
      ++count;
    }
  }
  EXPECT_GE(count, 19);
  const auto nobody = New<IVAProtocol>();
  nobody->SetName(u"ignored");
  EXPECT_EQ(nobody->Name(), u"");
  EXPECT_FALSE(nobody->IsVANamedProtocol() || New<ISFCElement>()->IsSFCStep());
}

template <class Class, class Kind>
void ExpectOneName() {
  const auto object = New<Class>();
  Kind& kind = *object;
  kind.SetName(u"through the kind");
  EXPECT_EQ(object->Name, u"through the kind");
  object->Name = u"own";
  EXPECT_EQ(kind.Name(), u"own");
}

TEST(Kinds, ShareTheNameOfTheirClass) {
  ExpectOneName<LDCodeBlock, ICodeBlock>();
  ExpectOneName<SFCCodeBlock, ICodeBlock>();
  ExpectOneName<ControlModule, IControlModule>();
  ExpectOneName<SingleControlModuleInst, IControlModule>();
  ExpectOneName<VANamedProtocol, IVAProtocol>();
  ExpectOneName<VAAddressedProtocol, IVAProtocol>();
  const auto warning = New<WarningMsg>();
  static_cast<IMsg&>(*warning).SetMessage(u"m");
  EXPECT_EQ(warning->Message, u"m");
}

std::string Priorities(const SFCBranches& branches) {
  std::string digits;
  for (const SFCBranch& branch : branches) digits += std::to_string(branch.SFCPriority);
  return digits;
}

TEST(Chart, BranchesAreInsertedBesideAPosition) {
  using Insert = Ref<SFCBranch> (SFCBranches::*)(int32_t);
  constexpr Insert kBefore = &SFCBranches::AddBranchBefore, kAfter = &SFCBranches::AddBranchAfter;
  struct Case {
    Insert insert;
    int32_t position;
    const char* priorities;
  };
  const Case cases[] = {
      {kBefore, 1, "412"}, {kBefore, 2, "142"}, {kAfter, 1, "142"},         {kAfter, 2, "124"},
      {kBefore, 0, "12"},  {kBefore, 3, "12"},  {kBefore, -1, "12"},        {kAfter, 0, "12"},
      {kAfter, 3, "12"},   {kAfter, -1, "12"},  {kAfter, 2147483647, "12"},
  };
  for (const Case& test : cases) {
    const auto branches = New<SFCBranches>();
    branches->AddBranch()->SFCPriority = pxSFCPriorityLowest;
    branches->AddBranch()->SFCPriority = pxSFCPriorityLow;
    const std::string error =
        ErrorOf([&] { (*branches.*test.insert)(test.position)->SFCPriority = pxSFCPriorityHigh; });
    EXPECT_EQ(Priorities(*branches), test.priorities) << test.position;
    EXPECT_EQ(error, branches->Count() == 3 ? "none" : kBadPosition) << test.position;
  }
  EXPECT_EQ(ErrorOf([] { New<SFCBranches>()->AddBranchBefore(1); }), kBadPosition);
}

TEST(Chart, BranchingsHaveAsManyBranchesAsAreAskedFor) {
  struct Case {
    int32_t number;
    std::string branches;
  };
  for (const Case& test : {Case{2, "><SFCBranch /><SFCBranch /></"}, Case{0, ""}, Case{-1, ""}}) {
    const auto elements = New<SFCElements>();
    const Ref<SFCSelection> selection = elements->AddSelection1(test.number);
    const Ref<SFCSimultaneous> simultaneous = elements->AddSimultaneous1(test.number);
    EXPECT_EQ(elements->Item(1), selection);
    EXPECT_EQ(elements->Item(2), simultaneous);
    const auto element = [&](const std::string& name) {
      return "<" + name + (test.branches.empty() ? " />" : test.branches + name + ">");
    };
    EXPECT_EQ(Markup(*elements), element("SFCSelection") + element("SFCSimultaneous"));
    EXPECT_EQ(Markup(*ObjectFactory::NewSFCSelection(test.number)), element("SFCSelection"));
  }
  EXPECT_EQ(ErrorOf([] { ObjectFactory::NewSFCSimultaneous(1'000'001); }), "8002000A Overflow");
}

TEST(Chart, ActionsAreWrittenInTheirOwnOrder) {
  const auto elements = New<SFCElements>();
  const Ref<SFCStep> step = elements->AddStep2(u"S", true, u"rise", u"while", u"fall");
  EXPECT_EQ(Markup(*step),
            "<SFCStep Name='S' InitialStep='1'><P1_Action><ST_Code>rise</ST_Code></P1_Action>"
            "<N_Action><ST_Code>while</ST_Code></N_Action>"
            "<P0_Action><ST_Code>fall</ST_Code></P0_Action></SFCStep>");
}

TEST(Chart, TransitionsHoldTheirCondition) {
  const auto elements = New<SFCElements>();
  const Ref<SFCTransition> transition = elements->AddTransition2(u"T", u"a < b & c", u"S");
  EXPECT_EQ(Markup(*transition),
            "<SFCTransition Name='T' Dest='S' >a &lt; b &amp; c</SFCTransition>");
}

TEST(InstructionList, ARowIsAnInstructionOrAComment) {
  struct Case {
    std::function<Ref<ILRow>(ILRows&)> add;
    std::string row;
  };
  const Case cases[] = {
      {[](ILRows& rows) { return rows.AddRow(u"l", u"LD", u"x", u"d"); },
       "<ILRow><Label>l</Label><Instruction>LD</Instruction><Operand>x</Operand>"
       "<Description>d</Description></ILRow>"},
      {[](ILRows& rows) { return rows.AddComment(u"c"); },
       "<ILRow><ILRowComment>c</ILRowComment></ILRow>"},
      // What does not belong to its form is kept but not written.
      {[](ILRows& rows) {
         const Ref<ILRow> row = rows.AddRow(u"l", u"LD", u"x", u"d");
         row->IsRowComment = true;
         return row;
       },
       "<ILRow><ILRowComment></ILRowComment></ILRow>"},
      {[](ILRows& rows) {
         const Ref<ILRow> row = rows.AddComment(u"c");
         row->IsRowComment = false;
         return row;
       },
       "<ILRow />"},
  };
  const auto block = ObjectFactory::NewILCodeBlock(u"i");
  std::string rows;
  for (const Case& test : cases) {
    EXPECT_EQ(Markup(*test.add(*block->ILRows)), test.row);
    rows += test.row;
  }
  EXPECT_EQ(Markup(*block), "<ILCodeBlock Name='i'>" + rows + "</ILCodeBlock>");
}

TEST(Factory, SpellsTheUnknownTypeOfAccessVariables) {
  EXPECT_EQ(New<VANamedVariable>()->VAType, u"Unknown");
  EXPECT_EQ(Markup(*ObjectFactory::NewVANamedVariable(u"n", u"p")),
            "<VANamedVariable Name='n' Path='p' VAType='unknown' Row='0' />");
  EXPECT_EQ(Markup(*ObjectFactory::NewVANamedVariable1(u"n", u"p", u"a", 3)),
            "<VANamedVariable Name='n' Path='p' Attribute='a' VAType='unknown' Row='3' />");
  EXPECT_EQ(Markup(*New<VAAddressedProtocol>()->Add2(u"n", u"p", 3)),
            "<VAAddressedVariable Name='n' Path='p' VAType='unknown' Row='3' />");
}

TEST(Factory, TakesTheAddressOfAChannelBeforeItsName) {
  const auto channel =
      ObjectFactory::NewHWChannel1(u"0.1", u"Level", u"v", u"d", u"min", u"max", u"u", u"f", true);
  EXPECT_EQ(Markup(*channel),
            "<HWChannel Address='0.1' Name='Level' Min='min' Max='max' Unit='u' Fraction='f' "
            "Reversed='1'><ConVariable Signal='0' >v</ConVariable>"
            "<IODescription>d</IODescription></HWChannel>");
  const auto brief = ObjectFactory::NewHWChannel(u"0.1", u"Level", u"v", u"d");
  EXPECT_EQ(brief->Address + brief->Name, u"0.1Level");
}

TEST(Factory, SharesTheObjectsThatItIsGiven) {
  const auto position = ObjectFactory::NewGraphPos(1, 2, 3, 4, 5);
  const auto module =
      ObjectFactory::NewControlModule1(u"m", u"t", u"", pxInvisible, u"", u"", position);
  const auto list = New<ControlModules>();
  list->AddSingleControlModuleInst1(u"s", u"", pxDefault, u"g", u"", position);
  position->XPos = -2.5;
  const std::string graphics =
      "<GraphPos XPos='-2.5' YPos=' 2' Rotation=' 3' XScale=' 4' YScale=' 5' />";
  EXPECT_EQ(Markup(*module), "<ControlModule Name='m' Type='t' VisibilityInGraphics='invisible'>" +
                                 graphics + "</ControlModule>");
  EXPECT_EQ(Markup(*list), "<ControlModules><SingleControlModule Name='s' TypeGuid='g'>" +
                               graphics + "</SingleControlModule></ControlModules>");

  const auto corner = ObjectFactory::NewPoint(0, 0);
  const auto size = ObjectFactory::NewGraphSize(corner, corner);
  corner->Y = 3;
  EXPECT_EQ(Markup(*size), "<GraphSize><Point X=' 0' Y=' 3' /><Point X=' 0' Y=' 3' /></GraphSize>");
}

TEST(Factory, ConvertsTheAcknowledgeGroupOfASignalToText) {
  const auto group = [](const AnyValue& value) {
    return ToUtf8(ObjectFactory::NewSignal(u"s", u"", u"in", value)->AcknowledgeGroup);
  };
  EXPECT_EQ(group(u"fire"), "fire");
  EXPECT_EQ(group(7), "7");
  EXPECT_EQ(group(-2.5), "-2.5");
  EXPECT_EQ(group(true), "True");
  EXPECT_EQ(group(false), "False");
  EXPECT_EQ(group(u""), "");
}

}  // namespace
}  // namespace praxen::detail
