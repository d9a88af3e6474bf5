// Twice a hostile text takes about twice the work, whatever its shape: what is asked of the
// allocator, or the instructions where callgrind counts them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "praxen/praxen.h"
#include "tests/support/documents.h"
#include "tests/support/failing_allocator.h"

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#endif

namespace praxen::detail {
namespace {

#ifdef CALLGRIND_ZERO_STATS
bool CountsInstructions() { return RUNNING_ON_VALGRIND != 0; }

// The instructions since the counters were set to zero, which callgrind writes into a file.
size_t Instructions() {
  static int dumps = 0;
  CALLGRIND_DUMP_STATS;
  const std::string name = "growth.callgrind." + std::to_string(++dumps);
  std::ifstream file(name);
  size_t count = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("totals: ")) count = std::stoull(line.substr(8));
  }
  std::remove(name.c_str());
  EXPECT_GT(count, 0u) << name;
  return count;
}
#else
bool CountsInstructions() { return false; }
#define CALLGRIND_ZERO_STATS
size_t Instructions() { return 0; }
#endif

size_t WorkOf(const std::function<void()>& operation) {
  if (!CountsInstructions()) {
    const CountedRequests counted;
    operation();
    return counted.bytes() + 64 * counted.requests();
  }
  CALLGRIND_ZERO_STATS;
  operation();
  return Instructions();
}

std::string Repeat(std::string_view text, size_t count) {
  std::string repeated;
  for (size_t i = 0; i < count; ++i) repeated += text;
  return repeated;
}

size_t XercesHash(std::string_view name) {
  size_t hash = static_cast<unsigned char>(name.front());
  for (const char c : name.substr(1)) {
    hash = hash * 38 + (hash >> 24) + static_cast<unsigned char>(c);
  }
  return hash;
}

// Names that the parser keeps in one of 29 lists.
const std::string& AlikeName(size_t index) {
  static std::vector<std::string> names;
  for (static size_t number = 0; names.size() <= index; ++number) {
    std::string name = "n" + std::to_string(number);
    if (XercesHash(name) % 29 == 7) names.push_back(std::move(name));
  }
  return names[index];
}

// Names with one hash: "ag" and "bA" have the same.
std::string EqualName(size_t index) {
  std::string name;
  for (size_t bit = 1; bit < 2048; bit *= 2) name += (index & bit) != 0 ? "ag" : "bA";
  return name;
}

// The pattern n times: # stands for the number unless it begins a reference, @ for a name of one
// list, % for a name of one hash, ~ for many characters,
// * for forty elements of one list.
std::string Filled(std::string_view pattern, size_t n) {
  std::string filled;
  for (size_t i = 0; i < n; ++i) {
    for (const char c : pattern) {
      switch (c) {
        case '#':
          filled += filled.ends_with('&') ? "#" : std::to_string(i);
          break;
        case '@':
          filled += AlikeName(i);
          break;
        case '%':
          filled += EqualName(i);
          break;
        case '*':
          for (size_t name = 0; name < 40; ++name) filled += "<" + AlikeName(name) + "/>";
          break;
        case '~':
          filled.append(200, 'x');
          break;
        default:
          filled += c;
      }
    }
  }
  return filled;
}

struct Shape {
  const char* name;
  std::string_view head, repeated, tail;
};

constexpr std::string_view kVariable =
    "<Variable xmlns='PraxenSchema3_0' Name='v' Type='t' Attribute='";
constexpr std::string_view kVariables = "<ApplicationVariables xmlns='PraxenSchema3_0'><Variables>";
constexpr std::string_view kVariablesEnd = "</Variables></ApplicationVariables>";
constexpr std::string_view kConstants = "<ProjectConstants xmlns='PraxenSchema3_0'>";
constexpr std::string_view kConstantsEnd = "</ProjectConstants>";
constexpr std::string_view kCode = "<STCodeBlock xmlns='PraxenSchema3_0' Name='s'><ST_Code>";
constexpr std::string_view kCodeEnd = "</ST_Code></STCodeBlock>";
constexpr std::string_view kDiagram = "<FDCodeBlock xmlns='PraxenSchema3_0' Name='f'>";
constexpr std::string_view kDiagramEnd = "</FDCodeBlock>";
constexpr std::string_view kChart = "<SFCCodeBlock xmlns='PraxenSchema3_0' Name='s'>";
constexpr std::string_view kChartEnd = "</SFCCodeBlock>";

constexpr Shape kShapes[] = {
    // Names and namespaces that the schema does not declare.
    {"names", "<a>", "<b#/>", "</a>"},
    {"names of one list", "<a>", "<@/>", "</a>"},
    {"names of one hash", "<a>", "<%/>", "</a>"},
    {"one name", "<a>", "<b/>", "</a>"},
    {"nested names", "<a>", "<b#><c/></b#>", "</a>"},
    {"long names", "<a>", "<~#/>", "</a>"},
    {"long names in one element", "<a", " ~#=''", "/>"},
    {"names under namespaces", "<a>", "<b xmlns='u#'><c/><d/></b>", "</a>"},
    {"names of one list under namespaces", "<a>", "<b xmlns='u#'>*</b>", "</a>"},
    {"namespaces", "<a>", "<b xmlns='#'/>", "</a>"},
    {"namespaces of one list", "<a>", "<b xmlns='@'/>", "</a>"},
    {"namespaces of one hash", "<a>", "<b xmlns='%'/>", "</a>"},
    {"long namespaces", "<a>", "<b xmlns='~#'/>", "</a>"},
    {"prefixes", "<a>", "<b xmlns:p#='u'/>", "</a>"},
    {"prefixes of one list", "<a>", "<b xmlns:@='u'/>", "</a>"},
    {"prefixes of one hash", "<a>", "<b xmlns:%='u'/>", "</a>"},
    {"long prefixes", "<a>", "<b xmlns:~#='u'/>", "</a>"},
    {"prefixes in one element", "<a", " xmlns:p#='u'", "/>"},
    {"prefixes of one hash in one element", "<a", " xmlns:%='u'", "/>"},
    {"one prefix declared again", "<a>", "<p:b xmlns:p='u'/>", "</a>"},
    {"prefixes on known elements", kVariables,
     "<Variable xmlns:p#='u' Name='#' Type='t' Attribute=''/>", kVariablesEnd},
    {"prefixed root", "<p:a xmlns:p='u'>", "<p:b p:c='#'/>", "</p:a>"},
    {"undeclared prefixes", "<a>", "<p#:b/>", "</a>"},
    // Attributes.
    {"attributes", "<a>", "<b c='#' d='#'/>", "</a>"},
    {"attribute names", "<a>", "<b c#=''/>", "</a>"},
    {"attributes of one element", "<a", " b#='#'", "/>"},
    {"attributes of one list", "<a", " @=''", "/>"},
    {"attributes of one hash", "<a", " %=''", "/>"},
    {"an attribute given again", "<a", " b=''", "/>"},
    {"attribute without value", "<a", " b#", "/>"},
    {"attributes of a known element", kVariable, "' b#='", "'/>"},
    {"long value", kVariable, "xxxxxxxxxxxxxxxx", "'/>"},
    {"references in a value", kVariable, "&amp;&#x41;&lt;", "'/>"},
    {"apostrophes in a value", "<Variable xmlns='PraxenSchema3_0' Name='v' Type='t' Attribute=\"",
     "''''''''", "\"/>"},
    {"blanks in a value", kVariable, "\n\t \r\n", "'/>"},
    {"long reference", kVariable, "&#x00000000000041;", "'/>"},
    {"value without end", kVariable, "x y='", ""},
    // Texts.
    {"text", kCode, "a := b; ", kCodeEnd},
    {"references", kCode, "&lt;&#65;&gt;", kCodeEnd},
    {"line breaks", kCode, "\r\n\r\n", kCodeEnd},
    {"pieces of text", kCode, "a<![CDATA[b]]>", kCodeEnd},
    {"comments in a text", kCode, "a<!-- b -->", kCodeEnd},
    {"brackets", kCode, "]]]]]]]]", kCodeEnd},
    {"marks of the end of a section", kCode, "]]>", kCodeEnd},
    {"other than ASCII", kCode, "\xC3\xA9\xF0\x9F\x9A\xB0", kCodeEnd},
    {"undefined entities", kCode, "&a#;", kCodeEnd},
    {"references without end", kCode, "&a", kCodeEnd},
    {"section without end", kCode, "<![CDATA[]]", ""},
    {"text between elements", kVariables, "x", kVariablesEnd},
    {"blanks between elements", kVariables, " \n\t\r", kVariablesEnd},
    // Other markup.
    {"comments", kVariables, "<!-- # -->", kVariablesEnd},
    {"comments before the root", "", "<!-- # -->", "<a/>"},
    {"comment without end", "<a><!--", "- -- ", ""},
    {"instructions", "<a>", "<?p #?>", "</a>"},
    {"targets", "<a>", "<?p#?>", "</a>"},
    {"targets before the root", "", "<?p#?>", "<a/>"},
    {"instruction without end", "<a><?p", "? ?", ""},
    {"marks of a beginning", "<a>", "<", "</a>"},
    {"marks of an end", "<a>", ">", "</a>"},
    {"type declaration", "<!DOCTYPE a [", "<!ENTITY a# 'b'>", "]><a/>"},
    {"sections in a type declaration", "<!DOCTYPE a [", "<![INCLUDE[", ""},
    {"roots", "", "<a/>", ""},
    {"start tags without end", "<a>", "<b c='", ""},
    {"start tags", "", "<a>", ""},
    {"end tags", "<a>", "</a>", ""},
    {"wrong end tags", "<a>", "<b></c>", "</a>"},
    // What the library reads.
    {"variables", kVariables, "<Variable Name='v#' Type='t' Attribute=''/>", kVariablesEnd},
    {"variables with all values", kVariables,
     "<Variable Name='v' Type='t' Attribute='' InitialValue='~'/>", kVariablesEnd},
    {"elements of no class", kVariables, "<Odd#/>", kVariablesEnd},
    {"constants", kConstants,
     "<ProjectConstant Name='c#'><Type>t</Type><Value>1</Value></ProjectConstant>", kConstantsEnd},
    {"constants of one name", kConstants,
     "<ProjectConstant Name='c'><Type>t</Type><Value>1</Value></ProjectConstant>", kConstantsEnd},
    {"groups of one name", kConstants,
     "<ProjectConstant Name='g'><ProjectConstants><ProjectConstant Name='c#'><Type>t</Type>"
     "<Value>1</Value></ProjectConstant></ProjectConstants></ProjectConstant>",
     kConstantsEnd},
    {"long names of constants", kConstants,
     "<ProjectConstant Name='~'><Type>t</Type><Value>1</Value></ProjectConstant>", kConstantsEnd},
    {"dots in names of constants", kConstants,
     "<ProjectConstant Name='a.b.c.#'><Type>t</Type><Value>1</Value></ProjectConstant>",
     kConstantsEnd},
    {"one diagram", kDiagram, "<b/>", kDiagramEnd},
    {"diagram with prefixes", "<FDCodeBlock xmlns='PraxenSchema3_0' xmlns:p='u' Name='f'><d>",
     "<p:b p:c=''/>", "</d></FDCodeBlock>"},
    {"declarations in a diagram", kDiagram, "<p:b xmlns:p='u#'/>", kDiagramEnd},
    {"steps", kChart, "<SFCStep Name='s#'/>", kChartEnd},
    {"branches", "<SFCCodeBlock xmlns='PraxenSchema3_0' Name='s'><SFCSelection>", "<SFCBranch/>",
     "</SFCSelection></SFCCodeBlock>"},
    {"nested sequences", kChart, "<SFCSubSequence>", kChartEnd},
};

// What is not one document.
struct Attack {
  const char* name;
  /// Makes what the operation needs, which is not counted.
  std::function<void()> (*prepare)(size_t n);
};

void Read(const std::string& document) {
  const Text text = FromUtf8(document);
  Losses losses;
  ErrorOf([&] { Markup(*ReadDocument(text, &losses)); });
}

// What is valid comes as far as its limit.
void ReadToTheLimit(const std::string& document) {
  const Text text = FromUtf8(document);
  EXPECT_EQ(ErrorOf([&] { Markup(*ReadDocument(text)); }), "8002000A Overflow");
}

Ref<ProjectConstants> Constants(const std::string& pattern, size_t n) {
  const auto list = New<ProjectConstants>();
  for (size_t i = 0; i < n; ++i) {
    std::string name;
    for (const char c : pattern) c == '#' ? name += std::to_string(i) : name += c;
    list->Add(ObjectFactory::NewProjectConstant(FromUtf8(name), u"t", u"1"));
  }
  return list;
}

const Attack kAttacks[] = {
    {"long group over short constants",
     [](size_t n) -> std::function<void()> {
       const std::string document =
           std::string(kConstants) + "<ProjectConstant Name='" + std::string(20 * n, 'g') +
           "'><ProjectConstants>" +
           Filled("<ProjectConstant Name='c'><Type>t</Type><Value>1</Value></ProjectConstant>", n) +
           "</ProjectConstants></ProjectConstant></ProjectConstants>";
       return [document] { ReadToTheLimit(document); };
     }},
    {"long declaration around diagrams",
     [](size_t n) -> std::function<void()> {
       const std::string document =
           "<Program xmlns='PraxenSchema3_0' Name='m' TaskConnection='' xmlns:p='" +
           std::string(20 * n, 'u') + "'><CodeBlocks>" +
           Filled("<FDCodeBlock Name='f#'><p:b/></FDCodeBlock>", n) + "</CodeBlocks></Program>";
       return [document] { ReadToTheLimit(document); };
     }},
    {"documents with prefixes of their own",
     [](size_t n) -> std::function<void()> {
       return [n] {
         for (size_t i = 0; i < n; i += 20) {
           Read("<a" + Filled(" xmlns:p" + std::to_string(i) + "-#='u'", 20) + "/>");
         }
       };
     }},
    {"documents with names of their own",
     [](size_t n) -> std::function<void()> {
       return [n] {
         for (size_t i = 0; i < n; i += 20) {
           Read("<a>" + Filled("<b xmlns='u" + std::to_string(i) + "'><@/></b>", 180) + "</a>");
         }
       };
     }},
    {"short documents after a hostile one",
     [](size_t n) -> std::function<void()> {
       Read("<a>" + Filled("<@/>", 200) + "</a>");
       return [n] {
         for (size_t i = 0; i < n; ++i) Read(std::string(kVariable) + "'/>");
       };
     }},
    {"constants added one after the other",
     [](size_t n) -> std::function<void()> {
       return [n] {
         const auto list = New<ProjectConstants>();
         for (size_t i = 0; i < n; ++i) {
           list->Add1(FromUtf8("G.c" + std::to_string(i)), u"t", u"1");
         }
       };
     }},
    {"groups of constants",
     [](size_t n) -> std::function<void()> {
       return [list = Constants("a#.b.c", n)] { Markup(*list); };
     }},
    {"constants in deep groups",
     [](size_t n) -> std::function<void()> {
       return [list = Constants(Repeat("g.", 100) + "c#", n)] { Markup(*list); };
     }},
    {"a name of many dots",
     [](size_t n) -> std::function<void()> {
       return [list = Constants(Repeat("g.", n) + "c", 1)] { ErrorOf([&] { Markup(*list); }); };
     }},
    {"characters that are escaped",
     [](size_t n) -> std::function<void()> {
       const auto variable = ObjectFactory::NewVariable(FromUtf8(Repeat("'", n)), u"real");
       return [variable] { Markup(*variable); };
     }},
};

constexpr double kMostGrowth = 2.5;

void ExpectGrowth(const char* name, const std::function<std::function<void()>(size_t)>& prepare) {
  const size_t size = CountsInstructions() ? 500 : 5000;
  // The first time is left out; it leaves buffers that are large enough for both.
  prepare(2 * size)();
  const std::function<void()> one = prepare(size);
  const std::function<void()> two = prepare(2 * size);
  const auto once = static_cast<double>(WorkOf(one));
  const auto twice = static_cast<double>(WorkOf(two));
  // A new scanner or a doubled buffer more or less is no growth.
  constexpr double kSlack = 1'000'000;
  EXPECT_LT(twice, kMostGrowth * once + kSlack) << name << ": " << once << " and " << twice;
}

TEST(Growth, IsInProportionToTheText) {
  static_assert(std::size(kShapes) >= 80);
  for (const Shape& shape : kShapes) {
    ExpectGrowth(shape.name, [&](size_t n) -> std::function<void()> {
      const std::string document =
          std::string(shape.head) + Filled(shape.repeated, n) + std::string(shape.tail);
      return [document] { Read(document); };
    });
  }
  for (const Attack& attack : kAttacks) ExpectGrowth(attack.name, attack.prepare);
}

}  // namespace
}  // namespace praxen::detail
