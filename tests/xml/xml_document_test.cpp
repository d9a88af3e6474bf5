// Tests of the XML document: trees, reasons, markup, and what hostile texts meet.
#include "praxen/xml/xml_document.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <xercesc/util/XMLString.hpp>

#include "praxen/core/error.h"
#include "praxen/core/numbers.h"
#include "praxen/xml/xml_limits.h"

namespace praxen::detail {
namespace {

constexpr char kSchema[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns="urn:test"
           targetNamespace="urn:test" elementFormDefault="qualified">
  <xs:element name="List">
    <xs:complexType>
      <xs:sequence>
        <xs:any namespace="##any" processContents="lax" minOccurs="0" maxOccurs="unbounded"/>
      </xs:sequence>
      <xs:attribute name="Name" type="xs:string" use="required"/>
      <xs:attribute name="Scope" type="xs:string" default="private"/>
      <xs:attribute name="Hidden" type="xs:string" default="0"/>
    </xs:complexType>
  </xs:element>
  <xs:element name="Value" type="xs:string"/>
  <xs:element name="Limits">
    <xs:complexType>
      <xs:sequence><xs:element ref="Value"/></xs:sequence>
      <xs:attribute name="High" type="xs:int"/>
      <xs:attribute name="Unit">
        <xs:simpleType>
          <xs:restriction base="xs:string">
            <xs:enumeration value="mm"/><xs:enumeration value="km"/>
          </xs:restriction>
        </xs:simpleType>
      </xs:attribute>
    </xs:complexType>
  </xs:element>
</xs:schema>)";

XmlSchemaSource TestSchema() { return {u"urn:test", kSchema, u"test.xsd"}; }

std::string Narrow(std::u16string_view text) {
  std::string out;
  for (const char16_t c : text) {
    out += c < 0x80 ? std::string(1, static_cast<char>(c)) : "{" + std::to_string(c) + "}";
  }
  return out;
}

std::u16string Repeated(std::u16string_view text, size_t count) {
  std::u16string out;
  out.reserve(text.size() * count);
  for (size_t i = 0; i < count; ++i) out += text;
  return out;
}

// A node and all below it: "Name(a='specified' b~'default')[children]", "'text'", "!comment",
// "?target data".
std::string Outline(const XmlNode& node) {
  const std::string name = Narrow(node.nodeName());
  const std::string value = Narrow(node.nodeValue());
  if (name == "#text") return "'" + value + "'";
  if (name == "#comment") return "!" + value;
  std::string out = name;
  if (!value.empty()) return "?" + name + " " + value;
  std::string separator = "(";
  for (const XmlAttribute& attribute : node.attributes()) {
    out += separator + Narrow(*attribute.name) + (attribute.specified ? "='" : "~'") +
           Narrow(attribute.value()) + "'";
    separator = " ";
  }
  if (separator == " ") out += ")";
  separator = "[";
  for (XmlNode child = node.firstChild(); child; child = child.nextSibling()) {
    out += separator + Outline(child);
    separator = " ";
  }
  return separator == " " ? out + "]" : out;
}

constexpr std::u16string_view kGood = u"<List xmlns='urn:test' Name='x'/>";

// Every document of a table is loaded into the same document, good ones between bad ones.
XmlDocument& Shared() {
  static XmlDocument document(TestSchema);
  return document;
}

std::string Load(std::u16string_view text) {
  XmlDocument& document = Shared();
  if (document.LoadXML(text)) return Outline(document.documentElement());
  EXPECT_FALSE(document.documentElement());
  const std::string reason = Narrow(document.parseError().reason);
  EXPECT_TRUE(document.LoadXML(kGood)) << "after: " << reason;
  return reason;
}

struct Case {
  std::u16string text;
  std::string expected;
};

void PrintTo(const Case& c, std::ostream* out) { *out << Narrow(c.text.substr(0, 80)); }

class Loading : public testing::TestWithParam<Case> {};

TEST_P(Loading, GivesTreeOrReason) { EXPECT_EQ(Load(GetParam().text), GetParam().expected); }

// The root element of most cases, to whose outline every test of content is equal but for that.
Case Holding(std::u16string_view content, std::string outline) {
  std::u16string text = u"<List xmlns='urn:test' Name='x'>";
  if (!outline.empty()) outline = "[" + outline + "]";
  return {text.append(content).append(u"</List>"),
          "List(xmlns='urn:test' Name='x' Scope~'private' Hidden~'0')" + outline};
}

const Case kTrees[] = {
    Holding(u"", ""),
    Holding(u"\n  \t", ""),
    {u"<a>\xD800\xDC00\xDBFF\xDFFF</a>", "a['{55296}{56320}{56319}{57343}']"},
    {u"\uFEFF<List xmlns='urn:test' Hidden='1' Name='&lt;&#x41;\n'/>",
     "List(xmlns='urn:test' Hidden='1' Name='<A ' Scope~'private')"},
    {u"<?xml version='1.0' encoding='Shift_JIS'?><!-- <!DOCTYPE x> --><?p?>\n"
     u"<Value xmlns='urn:test'>\xE4</Value><!-- end -->\n",
     "Value(xmlns='urn:test')['{228}']"},
    Holding(u"\n <Value> </Value>\n <Value>\r\n a\rb </Value>\n", "Value[' '] Value['\n a\nb ']"),
    Holding(u"<Value>a&amp;<![CDATA[<b>]]>c</Value>", "Value['a&<b>c']"),
    Holding(u" <!-- note --> <?pi  data ?> <Value/> ",
            "!"
            " note  ?pi data  Value"),
    Holding(u"<Other a='1'> <B/> tail <C/> </Other>", "Other(a='1')[B ' tail ' C]"),
    Holding(u"<o:X xmlns:o='urn:o' o:a='&quot;'><Value/></o:X>",
            "o:X(xmlns:o='urn:o' o:a='\"')[Value]"),
    Holding(u"<List Name='1'/><List Hidden='1' Name='2' Scope='s'/><List Name='3'/>",
            "List(Name='1' Scope~'private' Hidden~'0') "
            "List(Hidden='1' Name='2' Scope='s') "
            "List(Name='3' Scope~'private' Hidden~'0')"),
    {u"<List Name='x'><Nowhere b='c'/></List>", "List(Name='x')[Nowhere(b='c')]"},
    {u"<p:Odd xmlns:p='urn:odd'> </p:Odd>", "p:Odd(xmlns:p='urn:odd')[' ']"}};

INSTANTIATE_TEST_SUITE_P(Trees, Loading, testing::ValuesIn(kTrees));

const Case kInvalid[] = {
    {u"<List\n xmlns='urn:test'/>",
     "Element 'List' lacks the required attribute 'Name'. (line 1, column 1)"},
    {u"<List xmlns='urn:test'\r\n Name='x' Nme='y'/>",
     "Attribute 'Nme' is not declared for element 'List'. (line 2, column 11)"},
    {u"<List xmlns='urn:test' Name='x'>\r  text</List>",
     "Text is not allowed in element 'List'; only elements are expected. (line 2, column "
     "3)"},
    {u"<Limits xmlns='urn:test'>\n<Value/>\n<Value/></Limits>",
     "Element 'Value' is not allowed here in element 'Limits'; expected (Value). (line 3, "
     "column 9)"},
    {u"<Limits xmlns='urn:test'/>",
     "Element 'Limits' must not be empty; expected (Value). (line 1, column 1)"},
    {u"<Limits xmlns='urn:test'><Speed/></Limits>",
     "Element 'Speed' is not declared by the schema. (line 1, column 26)"},
    {u"<Limits xmlns='urn:test' Unit='ml'><Value/></Limits>",
     "Attribute 'Unit' of element 'Limits' is not valid: value 'ml' not in enumeration. "
     "(line 1, column 26)"}};

INSTANTIATE_TEST_SUITE_P(Invalid, Loading, testing::ValuesIn(kInvalid));

const Case kMalformed[] = {
    {u"", "The text is empty; a root element was expected. (line 1, column 1)"},
    {u" \r\n\t", "The text is empty; a root element was expected. (line 1, column 1)"},
    {u"\uFEFF", "The text is empty; a root element was expected. (line 1, column 1)"},
    {u"<!-- only -->", "There is no root element; expected one here. (line 1, column 14)"},
    {u"plain", "There is no root element; expected one here. (line 1, column 1)"},
    {u"<a>\n<b></a>", "End tag '</a>' does not match; expected '</b>'. (line 2, column 4)"},
    {u"<a>\n", "The text ends inside element 'a'; expected '</a>'. (line 2, column 1)"},
    {u"<a>\n <b c='>",
     "The text ends inside the markup that begins here; expected '>'. (line 2, column 2)"},
    {u"<a><!-- ->",
     "The text ends inside the markup that begins here; expected '-->'. (line 1, column "
     "4)"},
    {u"<a/><b/>",
     "Only one root element is allowed; expected the end of the text, a comment or a "
     "processing instruction. (line 1, column 5)"},
    {u"<a b='1' c='2' b='3'/>", "Attribute 'b' is given twice in element 'a'. (line 1, column 16)"},
    {u"<a b=1/>",
     "An attribute value of element 'a' is not quoted; expected '\"' or \"'\". (line 1, "
     "column 6)"},
    {u"<a>&nbsp;</a>",
     "Entity 'nbsp' is not defined; expected 'amp', 'lt', 'gt', 'apos' or 'quot'. (line 1, "
     "column 4)"},
    {u"<p:a/>", "Prefix 'p' is not declared; expected an attribute 'xmlns:p'. (line 1, column 1)"},
    {u"<?xml version='1.1'?><a/>",
     "XML version '1.1' is not supported; expected '1.0'. (line 1, column 7)"},
    {u"\n<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>", "DTD is prohibited. (line 2, column 1)"},
    {u"<a b='\x1'/>", "Character U+0001 is not allowed in XML. (line 1, column 7)"},
    {std::u16string(u"<a>\0</a>", 8), "Character U+0000 is not allowed in XML. (line 1, column 4)"},
    {u"<a>0123456789012345678901234567890123456789\n\xFFFF</a>",
     "Character U+FFFF is not allowed in XML. (line 2, column 1)"},
    {u"<a>" + std::u16string{0xD83D, 0xDE00, 0xD83D} + u"</a>",
     "Unpaired surrogate U+D83D is not a character. (line 1, column 6)"},
    {u"<a>" + std::u16string{0xDE00} + u"</a>",
     "Unpaired surrogate U+DE00 is not a character. (line 1, column 4)"},
    {u"<a>\xDFFF</a>", "Unpaired surrogate U+DFFF is not a character. (line 1, column 4)"},
    {u"<a>&#xD83D;</a>",
     "Reference '&#xD83D;' is to U+D83D, which is not allowed in XML. (line 1, column 4)"},
    {u"<a>&#0;</a>",
     "Reference '&#0;' is to U+0000, which is not allowed in XML. (line 1, column 4)"}};

INSTANTIATE_TEST_SUITE_P(Malformed, Loading, testing::ValuesIn(kMalformed));

// Start tags with a running number in place of "#".
std::u16string Numbered(std::u16string_view pattern, size_t count) {
  std::u16string out;
  for (size_t i = 0; i < count; ++i) {
    for (const char16_t c : pattern) c == u'#' ? out += DecimalText(i) : out += c;
  }
  return out;
}

// The pattern for so many names that Xerces keeps in one list of a table with that many lists.
std::u16string Alike(std::u16string_view pattern, size_t lists, size_t count) {
  std::u16string out;
  for (size_t number = 0; count > 0; ++number) {
    const std::u16string name = u"n" + DecimalText(number);
    if (xercesc::XMLString::hash(name.c_str(), lists) != 7) continue;
    for (const char16_t c : pattern) c == u'#' ? out += name : out += c;
    --count;
  }
  return out;
}

// Made when it is needed, since all the texts together are large.
struct HostileCase {
  const char* name;
  std::u16string_view head, repeated;
  size_t count;
  std::u16string_view tail;
  const char* expected;  // A part of the reason; null when the text is to load.
  size_t lists = 0;      // Of the table of Xerces in one of which the names fall, if any.

  std::u16string text() const {
    const bool isNumbered = repeated.find(u'#') != repeated.npos;
    return std::u16string(head)
        .append(lists != 0   ? Alike(repeated, lists, count)
                : isNumbered ? Numbered(repeated, count)
                             : Repeated(repeated, count))
        .append(tail);
  }
};

void PrintTo(const HostileCase& c, std::ostream* out) { *out << c.name; }

class HostileText : public testing::TestWithParam<HostileCase> {};

TEST_P(HostileText, IsReadOrRefused) {
  const HostileCase& hostile = GetParam();
  const bool loaded = Shared().LoadXML(hostile.text());
  const std::string reason = Narrow(Shared().parseError().reason);
  EXPECT_EQ(loaded, hostile.expected == nullptr) << reason.substr(0, 300);
  if (hostile.expected != nullptr) {
    EXPECT_NE(reason.find(hostile.expected), std::string::npos) << reason.substr(0, 300);
    EXPECT_LT(reason.size(), 3000U);
  }
  EXPECT_TRUE(Shared().LoadXML(kGood));
}

constexpr char kTooDeep[] =
    "Too many nested elements; at most 1000 are allowed. (line 1, column 3001)";
constexpr char kOneList[] =
    "Too many prefixes or namespaces fall into one list of the parser; at most 64";
constexpr char kNames[] =
    "Too many different names that the schema does not declare; at most 2000 are";
const std::u16string kDeepest = Repeated(u"</a>", 1000);
const std::u16string kScopesEnd = Repeated(u"</a>", 200);

const HostileCase kHostile[] = {
    {"deepest", u"", u"<a>", 1000, kDeepest, nullptr},
    {"too deep", u"", u"<a>", 100'000, u"", kTooDeep},
    {"one too deep", u"", u"<a>", 1001, u"", kTooDeep},
    {"marks of nesting in a value", u"<a b='", u">", 5000, u"'/>", nullptr},
    {"marks of nesting in a comment", u"<a><!--", u"<a>", 5000, u"--></a>", nullptr},
    {"marks of nesting in a section", u"<a><![CDATA[", u"<a>", 5000, u"]]></a>", nullptr},
    {"marks of nesting in an instruction", u"<a><?p ", u"<a b='", 5000, u"?></a>", nullptr},
    {"many attributes", u"<a", u" a#='#'", 1000, u"/>", nullptr},
    {"one attribute too many", u"<a", u" a#='#'", 1001, u"/>",
     "Too many attributes on one element; at most 1000 are allowed."},
    {"too many attributes", u"<a", u" a#='#'", 200'000, u"/>",
     "Too many attributes on one element"},
    {"long attribute", u"<a b='", u"&amp;", 2'000'000, u"'/>", nullptr},
    {"attribute too long by one", u"<a b='", u"c", 10'000'001, u"'/>",
     "An attribute value is too long; at most 10000000 characters are allowed."},
    {"long reference in an attribute", u"<a b='&#x", u"0", 60'000'000, u"41;'/>",
     "An attribute value is too long; at most 10000000 characters are allowed. (line 1, column 1)"},
    {"long text", u"<a>", u" &lt;", 4'000'000, u"</a>", nullptr},
    {"long name", u"<", u"a", 100'000, u"/>", nullptr},
    {"name too long by one", u"<a ", u"a", 100'001, u"=''/>",
     "A name is too long; at most 100000 characters are allowed."},
    {"too long name", u"<", u"a", 10'000'000, u"/>", "A name is too long"},
    {"too long target", u"<?", u"a", 10'000'000, u"?><a/>", "A name is too long"},
    {"long name with a fault", u"<", u"a", 100'000, u" b=/>", "is not quoted"},
    {"namespaces in scope", u"", u"<a xmlns:p#='u'  xmlns:q#='u' xmlns:r#='u'>", 999, u"",
     "Too many namespace declarations in scope"},
    {"as many namespaces in scope as there may be", u"", u"<a xmlns:p#='u'>", 200, kScopesEnd,
     nullptr},
    {"one namespace in scope too many", u"", u"<a xmlns:p#='u'>", 201, u"",
     "Too many namespace declarations in scope; at most 200 are allowed."},
    {"as many names as there may be", u"<a>", u"<b#/>", 1999, u"</a>", nullptr},
    {"one name too many", u"<a>", u"<b#/>", 2000, u"</a>", kNames},
    {"as many names of one list as there may be", u"<a>", u"<#/>", 200, u"</a>", nullptr, 29},
    {"one name of one list too many", u"<a>", u"<#/>", 201, u"</a>",
     "Too many names that the schema does not declare fall into one list of the parser; at most "
     "200 are allowed.",
     29},
    {"prefixes of one list", u"<a>", u"<b xmlns:#='u'/>", 65, u"</a>", kOneList, 439},
    {"namespaces of one list", u"<a>", u"<b xmlns='#'/>", 65, u"</a>", kOneList, 3519},
    {"names of one list under many namespaces", u"<a>", u"<b xmlns='u#'><c/><d/></b>", 100'000,
     u"</a>", "fall into one list of the parser"},
    {"prefixes one after the other", u"<List xmlns='urn:test' Name='x'>", u"<Value xmlns:p#='u'/>",
     100'000, u"</List>", kNames},
    {"targets one after the other", u"<a>", u"<?b#?>", 100'000, u"</a>", kNames},
    {"namespaces one after the other", u"<a>", u"<b xmlns:p='u#'/>", 1'000'000, u"</a>", kNames},
    {"names one after the other", u"<a>", u"<b#/>", 500'000, u"</a>", kNames},
    {"many elements", u"<a>", u"<b/>", 1'000'000, u"</a>", nullptr},
    {"references without end", u"<a>", u"&a", 5'000'000, u"", "entity reference"},
    {"brackets", u"<a><![CDATA[", u"]", 5'000'000, u"", "expected ']]>'"},
    {"many start tags without end", u"", u"<a b='", 2'000'000, u"", "line 1, column"},
};

INSTANTIATE_TEST_SUITE_P(Table, HostileText, testing::ValuesIn(kHostile));

// Of a text that is too long nothing is looked at.
TEST(XmlDocument, RefusesATextThatIsTooLong) {
  const std::u16string few = u"<a/>";
  EXPECT_FALSE(Shared().LoadXML({few.data(), 500'000'001}));
  EXPECT_EQ(Narrow(Shared().parseError().reason),
            "The document is too long; at most 500000000 characters are allowed.");
  EXPECT_EQ(Shared().parseError().place, Place());
}

TEST(XmlDocument, AsksForTheSchemaOnceAndWhenFirstNeeded) {
  int asked = 0;
  XmlDocument document([&] {
    ++asked;
    return TestSchema();
  });
  EXPECT_EQ(asked, 0);
  EXPECT_FALSE(document.documentElement());
  EXPECT_TRUE(document.LoadXML(kGood));
  EXPECT_FALSE(document.LoadXML(u"<"));
  EXPECT_TRUE(document.LoadXML(kGood));
  EXPECT_EQ(asked, 1);
}

// The reason for which no document can be loaded with a schema; empty when one can.
std::string SchemaFault(const std::string& content,
                        std::u16string_view targetNamespace = u"urn:test",
                        const std::map<std::u16string, std::string>& beside = {}) {
  XmlSchemaSource schema{std::u16string(targetNamespace), content, u"test.xsd"};
  schema.neighbour = [&](const std::u16string& name) {
    const auto found = beside.find(name);
    return found == beside.end() ? std::nullopt : std::optional(found->second);
  };
  XmlDocument document([&] { return schema; });
  if (document.LoadXML(kGood)) return {};
  const std::string reason = Narrow(document.parseError().reason);
  EXPECT_EQ(document.parseError().place, Place());
  EXPECT_TRUE(document.parseError().isOfSchema);
  constexpr std::string_view kStart = "The schema 'test.xsd' cannot be used: ";
  EXPECT_TRUE(reason.starts_with(kStart)) << reason;
  EXPECT_FALSE(document.LoadXML(kGood));
  EXPECT_EQ(Narrow(document.parseError().reason), reason);
  return reason.substr(std::min(kStart.size(), reason.size()));
}

// The schema with something put before its first element.
std::string SchemaWith(std::string_view inserted) {
  std::string content = kSchema;
  return content.insert(content.find("<xs:element"), inserted);
}

std::string InSchema(std::string_view content) {
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns='urn:test' "
         "targetNamespace='urn:test'>" +
         std::string(content) + "</xs:schema>";
}

// Groups of ten of the group before.
std::string NestedGroups(int depth) {
  std::string groups =
      "<xs:group name='g0'><xs:sequence><xs:element name='e'/></xs:sequence>"
      "</xs:group>";
  for (int i = 1; i <= depth; ++i) {
    groups += "<xs:group name='g" + std::to_string(i) + "'><xs:sequence>";
    for (int j = 0; j < 10; ++j) groups += "<xs:group ref='g" + std::to_string(i - 1) + "'/>";
    groups += "</xs:sequence></xs:group>";
  }
  return groups + "<xs:element name='Many'><xs:complexType><xs:group ref='g" +
         std::to_string(depth) + "'/></xs:complexType></xs:element>";
}

// A type with six particles that may occur so many times.
std::string Repeated(int times) {
  return "<xs:element name='Many'><xs:complexType><xs:sequence minOccurs='0' maxOccurs='" +
         std::to_string(times) +
         "'><xs:element name='a' minOccurs='0' maxOccurs='3'/><xs:element name='b' minOccurs='0' "
         "maxOccurs='3'/></xs:sequence></xs:complexType></xs:element>";
}

TEST(XmlDocument, TellsWhyASchemaCannotBeUsed) {
  const std::string many =
      "<xs:element name='Many'><xs:complexType><xs:sequence><xs:choice minOccurs='300000' "
      "maxOccurs='300000'><xs:element name='a'/><xs:element name='b'/></xs:choice></xs:sequence>"
      "</xs:complexType></xs:element>";
  // For which the automaton has to remember the last hundred elements.
  const std::string ambiguous =
      "<xs:element name='Many'><xs:complexType><xs:sequence><xs:choice minOccurs='0' "
      "maxOccurs='unbounded'><xs:element name='a'/><xs:element name='b'/></xs:choice>"
      "<xs:element name='a'/><xs:choice minOccurs='100' maxOccurs='100'><xs:element name='a'/>"
      "<xs:element name='b'/></xs:choice></xs:sequence></xs:complexType></xs:element>";
  const std::string odd =
      std::string(kSchema).replace(std::string(kSchema).find("xs:int"), 6, "xs:odd");
  const struct {
    std::string content;
    const char* expected;  // A part of the reason.
  } cases[] = {
      {"<xs:schema\n xs:a", "(line 2, column 6 of the schema)"},
      {"", "text is empty"},
      {odd, "odd"},
      {"<!DOCTYPE a [<!ENTITY a 'b'>]>" + SchemaWith(""),
       "DTD is prohibited. (line 1, column 1 of"},
      {SchemaWith("<xs:include schemaLocation='none.xsd'/>"), "no file 'none.xsd' beside it"},
      {SchemaWith("<xs:include schemaLocation='../types.xsd'/>"), "only files beside it are read"},
      {SchemaWith("<xs:include schemaLocation='/types.xsd'/>"), "only files beside it are read"},
      {SchemaWith("<xs:import namespace='u' schemaLocation='http://localhost/types.xsd'/>"),
       "only files beside it are read"},
      {SchemaWith("<xs:include schemaLocation='dtd.xsd'/>"), "(line 1, column 1 of 'dtd.xsd')"},
      {SchemaWith("<xs:include schemaLocation='bad.xsd'/>"), "of 'bad.xsd')"},
      {SchemaWith("<xs:include schemaLocation='large.xsd'/>"), "it is too large"},
      {SchemaWith(many), "too many particles"},
      {SchemaWith(Repeated(84)),
       "too many particles, each counted as often as it may occur; at "
       "most 500 are allowed"},
      {SchemaWith(Repeated(3000)), "too many particles"},
      {SchemaWith(NestedGroups(3)), "too many particles"},
      {SchemaWith(ambiguous), "it takes too much to compile"},
      {SchemaWith(NestedGroups(9)), "it takes too much to compile"},
      {"<?xml version='1.0' encoding='EBCDIC'?>" + InSchema(""), "encoding 'EBCDIC' is not known"},
      {InSchema("<!-- \xE9 -->"), "it is not in UTF-8"},
  };
  const std::map<std::u16string, std::string> beside = {
      {u"dtd.xsd", "<!DOCTYPE a>" + InSchema("")},
      {u"bad.xsd", InSchema("<xs:element name='a' type='None'/>")},
      {u"large.xsd", std::string(10'000'000, ' ')}};
  for (const auto& [content, expected] : cases) {
    const std::string reason = SchemaFault(content, u"urn:test", beside);
    EXPECT_NE(reason.find(expected), std::string::npos) << expected << ": " << reason;
  }
  EXPECT_EQ(SchemaFault(kSchema, u"urn:other"), "the target namespace is not 'urn:other'.");
}

TEST(XmlDocument, ReadsASchemaWithTheFilesBesideIt) {
  const std::string included = SchemaWith(
      "<xs:include schemaLocation='types.xsd'/><xs:attribute name='a' type='Included'/>");
  const std::string types = InSchema(
      "<xs:include schemaLocation='test.xsd'/>"
      "<xs:simpleType name='Included'><xs:restriction base='xs:int'/></xs:simpleType>");
  EXPECT_EQ(SchemaFault(included, u"urn:test", {{u"types.xsd", types}, {u"test.xsd", included}}),
            "");
  EXPECT_EQ(SchemaFault("<?xml version='1.0' encoding='iso-8859-1'?><!-- \xE9 -->" +
                        std::string(kSchema).substr(std::string(kSchema).find("<xs:schema"))),
            "");
  std::string wide = "\xFF\xFE";
  for (const char c : std::string(kSchema).substr(std::string(kSchema).find("<xs:schema"))) {
    wide += {c, '\0'};
  }
  EXPECT_EQ(SchemaFault(wide), "");
  EXPECT_EQ(SchemaFault(SchemaWith(Repeated(83))), "");
  EXPECT_EQ(SchemaFault(SchemaWith("<xs:complexType name='Counted'><xs:sequence><xs:element "
                                   "name='a' maxOccurs='3000'/></xs:sequence></xs:complexType>")),
            "");
}

TEST(XmlDocument, TellsWhetherTheRootIsDeclared) {
  XmlDocument document(TestSchema);
  const auto declared = [&](std::u16string_view text) {
    EXPECT_TRUE(document.LoadXML(text)) << Narrow(document.parseError().reason);
    return document.rootDeclared();
  };
  EXPECT_TRUE(declared(kGood));
  EXPECT_TRUE(declared(u"<t:Value xmlns:t='urn:test'/>"));
  EXPECT_FALSE(declared(u"<Value/>"));
  EXPECT_FALSE(declared(u"<Value xmlns='urn:other'/>"));
  EXPECT_FALSE(declared(u"<Other xmlns='urn:test'><Limits High='x'/></Other>"));
  EXPECT_FALSE(document.LoadXML(u"<Other xmlns='urn:test'><Limits></Other>"));
  EXPECT_FALSE(document.rootDeclared());
}

TEST(XmlDocument, ReadsMoreThanOneBlockOfEverything) {
  XmlDocument document(TestSchema);
  constexpr size_t kItems = 20'000;
  const std::u16string text = u"<List xmlns='urn:test' Name='all'>" +
                              Numbered(u"<List Name='#'><Value>text #</Value></List>\n", kItems) +
                              u"</List>";
  ASSERT_TRUE(document.LoadXML(text)) << Narrow(document.parseError().reason);
  size_t i = 0;
  for (XmlNode item = document.documentElement().firstChild(); item; item = item.nextSibling()) {
    const std::u16string number = DecimalText(i++);
    ASSERT_EQ(item.attribute(u"Name")->value(), number);
    ASSERT_EQ(item.attribute(u"Scope")->value(), u"private");
    ASSERT_EQ(item.firstChild().firstChild().nodeValue(), u"text " + number);
  }
  EXPECT_EQ(i, kItems);
}

TEST(XmlDocument, LoadsOnAfterManyForeignNamespaces) {
  XmlDocument document(TestSchema);
  for (size_t round = 0; round < 3; ++round) {
    const std::u16string other = u"'u" + DecimalText(round) + u"-#'";
    const std::u16string text =
        u"<a>" + Numbered(u"<b xmlns:p=" + other + u" p:c=''/>", 1900) + u"</a>";
    ASSERT_TRUE(document.LoadXML(text)) << Narrow(document.parseError().reason);
    EXPECT_EQ(Narrow(document.documentElement().firstChild().nodeName()), "b");
  }
  EXPECT_TRUE(document.LoadXML(kGood));
}

// Whatever is done to one character of a document, or to its end, it loads or fails with a reason
// and a place.
TEST(XmlDocument, SurvivesDamage) {
  const std::u16string whole =
      u"<?xml version='1.0'?><!-- a --><List xmlns='urn:test' Name=\"&#65;\">\n"
      u"<Limits High='1' Unit='mm'><Value>&lt;<![CDATA[b]]></Value></Limits><?c d?></List>";
  const auto check = [](std::u16string_view text) {
    XmlDocument& document = Shared();
    if (document.LoadXML(text)) {
      Outline(document.documentElement());
      document.documentElement().firstChild().Markup();
      return;
    }
    const XmlParseError& error = document.parseError();
    const std::string place = "(line " + std::to_string(error.place.line) + ", column " +
                              std::to_string(error.place.column) + ")";
    EXPECT_TRUE(Narrow(error.reason).ends_with(place)) << Narrow(text);
    EXPECT_GE(error.place, (Place{1, 1})) << Narrow(text);
  };
  for (size_t at = 0; at < whole.size(); ++at) {
    check(std::u16string_view(whole).substr(0, at));
    for (const char16_t c : std::u16string_view(u"<>&'\"/=!?]-: a\0\xD800", 16)) {
      std::u16string damaged = whole;
      damaged[at] = c;
      check(damaged);
    }
  }
  EXPECT_TRUE(Shared().LoadXML(whole)) << Narrow(Shared().parseError().reason);
}

TEST(XmlDocument, NeverFollowsSchemaLocations) {
  EXPECT_EQ(Load(u"<Value xmlns='urn:test' xmlns:i='http://www.w3.org/2001/XMLSchema-instance' "
                 u"i:schemaLocation='urn:no file:///dev/zero'>a</Value>"),
            "Value(xmlns='urn:test' xmlns:i='http://www.w3.org/2001/XMLSchema-instance' "
            "i:schemaLocation='urn:no file:///dev/zero')['a']");
}

TEST(XmlNode, AbsentNodesLeadToAbsentNodes) {
  const XmlNode absent;
  EXPECT_FALSE(absent.firstChild().nextSibling().childNode(3));
  EXPECT_EQ(absent.name(), nullptr);
  EXPECT_EQ(absent.attribute(u"a"), nullptr);
  EXPECT_TRUE(absent.nodeName().empty() && absent.nodeValue().empty() && absent.Markup().empty());
  EXPECT_EQ(absent.place(), Place());
}

TEST(XmlNode, FindsAttributesInAnyOrder) {
  XmlDocument document(TestSchema);
  ASSERT_TRUE(document.LoadXML(u"<List xmlns='urn:test' Name='x' Hidden=''><a b=''/></List>"));
  const XmlNode root = document.documentElement();
  for (const char16_t* const name : {u"Hidden", u"Name", u"Scope", u"Scope", u"xmlns"}) {
    const XmlAttribute* const attribute = root.attribute(InternXmlName(name));
    ASSERT_NE(attribute, nullptr) << Narrow(name);
    EXPECT_EQ(*attribute->name, name);
    EXPECT_EQ(attribute, root.attribute(std::u16string_view(name)));
  }
  EXPECT_EQ(root.attribute(u"name"), nullptr);
  const XmlNode only = root.firstChild();
  for (int i = 0; i < 3; ++i) EXPECT_NE(only.attribute(u"b"), nullptr) << i;
  EXPECT_EQ(root.name(), InternXmlName(u"List"));
}

TEST(XmlNode, NamesInternedAfterTheLoadAreTheSame) {
  XmlDocument document(TestSchema);
  ASSERT_TRUE(document.LoadXML(u"<Unheard><Unseen/></Unheard>"));
  EXPECT_EQ(document.documentElement().name(), InternXmlName(u"Unheard"));
  document.Clear();
  ASSERT_TRUE(document.LoadXML(u"<Unheard/>"));
  EXPECT_EQ(document.documentElement().name(), InternXmlName(u"Unheard"));
}

TEST(XmlNode, ChildrenByIndexAndPositions) {
  XmlDocument document(TestSchema);
  ASSERT_TRUE(
      document.LoadXML(u"<!-- a --><o>\r\n <b/> text\n<c> </c><!-- d -->\n"
                       u"<?e f?><g><![CDATA[h]]>i</g></o>"));
  const XmlNode root = document.documentElement();
  const struct {
    const char* name;
    Place place;
  } expected[] = {{"b", {2, 2}},        {"#text", {2, 6}}, {"c", {3, 1}},
                  {"#comment", {3, 9}}, {"e", {4, 1}},     {"g", {4, 8}}};
  for (size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(Narrow(root.childNode(i).nodeName()), expected[i].name);
    EXPECT_EQ(root.childNode(i).place(), expected[i].place) << expected[i].name;
  }
  EXPECT_FALSE(root.childNode(std::size(expected)));
  EXPECT_EQ(root.childNode(2).firstChild().place(), (Place{3, 4}));
  EXPECT_EQ(root.childNode(5).firstChild().place(), (Place{4, 11}));
  EXPECT_EQ(root.place(), (Place{1, 11}));
}

TEST(XmlNode, LimitsTheDeclarationsAddedToMarkup) {
  XmlDocument document(TestSchema);
  const std::u16string text =
      u"<a xmlns:p='" + Repeated(u"u", 100'000) + u"'>" + Repeated(u"<b p:c=''/>", 50) + u"</a>";
  ASSERT_TRUE(document.LoadXML(text));
  size_t taken = 0;
  const auto takeAll = [&] {
    XmlNode node = document.documentElement().firstChild();
    for (; node; node = node.nextSibling(), ++taken) node.Markup();
  };
  EXPECT_THROW(takeAll(), Error);
  EXPECT_EQ(taken, 20u);
  ASSERT_TRUE(document.LoadXML(kGood));
  EXPECT_FALSE(document.documentElement().Markup().empty());
}

// The markup of the first child of the root.
std::string FirstChildMarkup(std::u16string_view text) {
  XmlDocument document(TestSchema);
  EXPECT_TRUE(document.LoadXML(text)) << Narrow(document.parseError().reason);
  return Narrow(document.documentElement().firstChild().Markup());
}

TEST(XmlNode, MarkupStandsByItself) {
  const struct {
    std::u16string_view text;
    const char* expected;
  } cases[] = {
      {u"<List xmlns='urn:test' Name='x'> <Value >a &lt;<![CDATA[<>]]>\n</Value > </List>",
       "<Value >a &lt;<![CDATA[<>]]>\n</Value >"},
      {u"<a><b\nc=\"/>\"/></a>", "<b xmlns=''\nc=\"/>\"/>"},
      {u"<a><b xmlns='urn:test'/></a>", "<b xmlns='urn:test'/>"},
      {u"<a xmlns='o'><b/></a>", "<b xmlns='o'/>"},
      {u"<t:List xmlns:t='urn:test' xmlns='urn:test' Name='x'><t:Value/></t:List>",
       "<t:Value xmlns:t='urn:test'/>"},
      {u"<a xmlns='urn:test' xmlns:p=\"it's &lt;&amp;&#10;\" xmlns:q='q'><b p:c='q:d'/></a>",
       "<b xmlns:p='it&apos;s &lt;&amp;&#10;' p:c='q:d'/>"},
      {u"<a xmlns='urn:test' xmlns:p='1' xmlns:q='2'>"
       u"<b xml:lang='x'><p:c xmlns:p='3'><p:d/></p:c><q:e/><q:e/><!-- p:f --></b></a>",
       "<b xmlns:q='2' xml:lang='x'><p:c xmlns:p='3'><p:d/></p:c><q:e/><q:e/><!-- p:f --></b>"},
      {u"<a xmlns='urn:test' xmlns:p='1'><b><c xmlns:p='2'/><p:d/></b></a>",
       "<b xmlns:p='1'><c xmlns:p='2'/><p:d/></b>"},
      {u"<a>1 &lt; 2 &amp;&#13;]]&gt;</a>", "1 &lt; 2 &amp;&#13;]]&gt;"},
      {u"<a><!-- b --></a>", "<!-- b -->"},
      {u"<a><?b  c?></a>", "<?b c?>"},
      {u"<a><?b?></a>", "<?b?>"},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(FirstChildMarkup(text), expected);
}

}  // namespace
}  // namespace praxen::detail
