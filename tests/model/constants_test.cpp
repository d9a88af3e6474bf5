// Project constants: the conflict rule of Add1 and the tree that they are written as.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "praxen/core/text_functions.h"
#include "praxen/praxen.h"
#include "tests/support/documents.h"

namespace praxen::detail {
namespace {

constexpr const char* kConflict = "607 Name is in conflict with an existing name";

std::string Add(ProjectConstants& list, const char16_t* name) {
  return ErrorOf([&] { list.Add1(name, u"dint", u"1"); });
}

TEST(ProjectConstants, RefuseNamesInConflict) {
  struct Case {
    const char16_t *existing, *added;
    bool isFree;
  };
  const Case cases[] = {
      {u"A.B", u"A.B", false}, {u"A.B", u"A", false}, {u"A.B", u"A.B.C", false},
      {u"A.B", u"A.C", true},  {u"A.B", u"AB", true}, {u"A.B", u"B", true},
      {u"A.B", u"a.b", true},  {u"A", u"A.B", false}, {u"A.B", u"", false},
      {u"", u"A", false},      {u"A.", u"A", false},  {u"A.", u"A.B", false},
      {u".A", u".B", true},    {u".A", u"A", true},   {u"A..B", u"A.B", true},
  };
  for (const Case& test : cases) {
    const auto list = New<ProjectConstants>();
    list->Add(ObjectFactory::NewProjectConstant(test.existing, u"dint", u"1"));
    EXPECT_EQ(Add(*list, test.added), test.isFree ? "none" : kConflict)
        << ToUtf8(test.existing) << " " << ToUtf8(test.added);
    EXPECT_EQ(list->Count(), test.isFree ? 2 : 1);
  }
}

// The rule, spelled out over all constants.
bool IsFree(const ProjectConstants& list, std::u16string_view name) {
  for (const ProjectConstant& constant : list) {
    const Text existing(constant.Name);
    std::u16string_view a = name, b = existing;
    bool conflict = true;
    while (!a.empty() && !b.empty() && conflict) {
      conflict = TextBeforeFirstDot(a) == TextBeforeFirstDot(b);
      a = TextAfterFirstDot(a);
      b = TextAfterFirstDot(b);
    }
    if (conflict) return false;
  }
  return true;
}

TEST(ProjectConstants, AgreeWithTheRuleOnAnyHistory) {
  std::mt19937 random(3);
  const auto pick = [&](uint32_t below) { return static_cast<int32_t>(random() % below); };
  const auto name = [&] {
    std::u16string text;
    for (int32_t parts = pick(4); parts >= 0; --parts) {
      text += static_cast<char16_t>(u'A' + pick(3));
      if (parts > 0) text += u'.';
    }
    return text;
  };
  const auto list = New<ProjectConstants>();
  Ref<ProjectConstant> removed;
  for (int step = 0; step < 5000; ++step) {
    const std::u16string text = name();
    const int32_t count = list->Count();
    int32_t at = 0;
    switch (pick(6)) {
      case 0:
        list->Add(ObjectFactory::NewProjectConstant(text, u"dint", u"1"));
        break;
      case 1:
        if (count == 0) break;
        at = 1 + pick(static_cast<uint32_t>(count));
        removed = list->Item(at);
        list->Remove(at);
        break;
      case 2:
        if (count > 0) list->Item(1 + pick(static_cast<uint32_t>(count)))->Name = text;
        if (removed) removed->Name = name();
        break;
      default: {
        const bool isFree = IsFree(*list, text);
        const bool added = ErrorOf([&] { list->Add1(text, u"dint", u"1"); }) == "none";
        ASSERT_EQ(added, isFree) << "step " << step << " " << ToUtf8(text);
      }
    }
    if (list->Count() > 12) list->Remove(1);
  }
}

std::string Leaf(const std::string& name, const std::string& value) {
  return "<ProjectConstant Name='" + name + "'><Type>dint</Type><Value>" + value +
         "</Value></ProjectConstant>";
}

std::string Group(const std::string& name, const std::string& members) {
  return "<ProjectConstant Name='" + name + "'><ProjectConstants>" + members +
         "</ProjectConstants></ProjectConstant>";
}

TEST(ProjectConstants, AreWrittenAsATree) {
  struct Case {
    std::vector<const char16_t*> names;
    std::string members;
  };
  const Case cases[] = {
      {{u"K"}, Leaf("K", "1")},
      {{u"A.B", u"C", u"A.D"}, Group("A", Leaf("B", "1") + Leaf("D", "3")) + Leaf("C", "2")},
      {{u"M.S.X", u"M.S.Y"}, Group("M", Group("S", Leaf("X", "1") + Leaf("Y", "2")))},
      {{u"A.B", u"C.D", u"E"},
       Group("A", Leaf("B", "1")) + Group("C", Leaf("D", "2")) + Leaf("E", "3")},
      {{u"A", u"A"}, Leaf("A", "1")},
      {{u"A", u"A.B"}, Group("A", Leaf("B", "2"))},
      {{u"A.B", u"A"}, Group("A", Leaf("B", "1"))},
  };
  for (const Case& test : cases) {
    const auto list = New<ProjectConstants>();
    int32_t value = 0;
    for (const char16_t* const name : test.names) {
      list->Add(
          ObjectFactory::NewProjectConstant(name, u"dint", FromUtf8(std::to_string(++value))));
    }
    EXPECT_EQ(Markup(*list), "<ProjectConstants>" + test.members + "</ProjectConstants>");
  }
  const auto read = ObjectFactory::DeserializeProjectConstants(
      Document("<ProjectConstants>" + cases[1].members + "</ProjectConstants>"));
  std::string names;
  for (const ProjectConstant& constant : *read) names += ToUtf8(Text(constant.Name)) + " ";
  EXPECT_EQ(names, "A.B A.D C ");
}

TEST(ProjectConstants, KeepTheirPlacesOnALargeLevel) {
  const auto list = New<ProjectConstants>();
  const auto add = [&](const std::string& name) {
    const Text value = FromUtf8(std::to_string(list->Count()));
    list->Add(ObjectFactory::NewProjectConstant(FromUtf8("G." + name), u"dint", value));
  };
  std::string members;
  for (int number = 0; number < 20; ++number) {
    const std::string name = "L" + std::to_string(number);
    members += Group(name, Leaf("x", std::to_string(list->Count())));
    add(name + ".x");
  }
  for (int number = 0; number < 300; ++number) {
    // Every name comes twice, and one of them is a group as well.
    const std::string name = "K" + std::to_string(number * 7 % 150);
    const std::string value = std::to_string(list->Count());
    add(name);
    if (number == 200) add("K7.L");
    if (number < 150) members += name == "K7" ? Group(name, Leaf("L", "221")) : Leaf(name, value);
  }
  EXPECT_EQ(Markup(*list), "<ProjectConstants>" + Group("G", members) + "</ProjectConstants>");
}

// Names in order are written without a tree. A second constant of the first name changes nothing
// but the order.
TEST(ProjectConstants, AreWrittenAlikeInOrderAndNot) {
  std::mt19937 random(5);
  for (int round = 0; round < 3000; ++round) {
    std::set<std::vector<std::u16string>> names;
    for (uint32_t count = random() % 8 + 1; count > 0; --count) {
      std::vector<std::u16string> segments(random() % 3 + 1);
      for (std::u16string& segment : segments) {
        segment = std::u16string(u"A-B B").substr(random() % 3, random() % 20 == 0 ? 0 : 2);
      }
      names.insert(segments);
    }
    // A second one of such a name is another constant.
    if (std::ranges::count(*names.begin(), u"") > 0) continue;
    const auto list = New<ProjectConstants>();
    for (const std::vector<std::u16string>& segments : names) {
      std::u16string name;
      for (const std::u16string& segment : segments) name += (name.empty() ? u"" : u".") + segment;
      list->Add(ObjectFactory::NewProjectConstant(name, u"dint", Text(name)));
    }
    const std::string inOrder = Markup(*list);
    list->Add(ObjectFactory::NewProjectConstant(list->Item(1)->GetName(), u"real", u"2"));
    ASSERT_EQ(Markup(*list), inOrder);
  }
}

// Constants of short names in a group of a long one: as many as can be written can be read.
TEST(ProjectConstants, LimitTheirNamesTogether) {
  const std::string group(100'000, 'g');
  for (size_t test = 0; test < 4; ++test) {
    const size_t count = 20 + test % 2;
    const bool isInOrder = test >= 2;
    const auto list = New<ProjectConstants>();
    std::string members;
    for (size_t i = 0; i < count; ++i) {
      const std::string name = "c" + std::to_string(isInOrder ? 10 + i : i);
      members += Leaf(name, "1");
      list->Add(ObjectFactory::NewProjectConstant(FromUtf8(group + "." + name), u"dint", u"1"));
    }
    const std::string document =
        "<ProjectConstants>" + Group(group, members) + "</ProjectConstants>";
    const bool isAllowed = count == 20;
    EXPECT_EQ(ErrorOf([&] { list->Serialize(); }), isAllowed ? "none" : "8002000A Overflow");
    EXPECT_EQ(Rewritten(document), isAllowed ? document : "8002000A Overflow");
  }
}

TEST(ProjectConstants, NeedTypeAndValueWhenRead) {
  for (const char* const child : {"", "<Type>dint</Type>", "<Type/><Value>1</Value>",
                                  "<Type>dint</Type><Value/>", "<ProjectConstants/>"}) {
    const std::string document = "<ProjectConstants><ProjectConstant Name='A'>" +
                                 std::string(child) + "</ProjectConstant></ProjectConstants>";
    const bool isEmptyGroup = std::string_view(child) == "<ProjectConstants/>";
    EXPECT_EQ(Rewritten(document).substr(0, 8), isEmptyGroup ? "<Project" : "800A005B") << child;
  }
}

}  // namespace
}  // namespace praxen::detail
