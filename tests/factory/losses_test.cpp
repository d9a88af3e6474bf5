// What reading leaves out is told: of documents of every class, changed at every place.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "praxen/core/ascii.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/praxen.h"
#include "praxen/xml/xml_markup.h"
#include "tests/support/documents.h"
#include "tests/support/example.h"
#include "tools/generate/schema.h"
#include "tools/praxen/losses.h"
#include "tools/praxen/samples.h"

namespace praxen::detail {
namespace {

constexpr int kDepth = 2;

struct Element {
  size_t begin = 0, tagEnd = 0, contentEnd = 0, end = 0;
  std::u16string name = {};
  std::vector<size_t> children = {};
};

// A document with the places where it can be changed.
struct Sample {
  std::u16string text;
  std::vector<Element> elements = {};
  // Where something can be inserted, each with the element around it.
  std::vector<std::pair<size_t, size_t>> places = {};
};

Sample SampleOf(const std::u16string& text) {
  Sample sample{text};
  std::vector<size_t> open;
  for (XmlMarkupReader reader(text); reader.Next();) {
    const XmlMarkup& markup = reader.markup();
    if (!open.empty()) {
      sample.places.push_back({markup.begin, open.back()});
      if (markup.kind == XmlMarkupKind::Text) {
        sample.places.push_back({(markup.begin + markup.end) / 2, open.back()});
      }
    }
    if (markup.startsElement()) {
      if (!open.empty()) sample.elements[open.back()].children.push_back(sample.elements.size());
      const std::u16string_view tag =
          std::u16string_view(text).substr(markup.begin, markup.end - markup.begin);
      sample.elements.push_back(
          {markup.begin, markup.end, markup.end, markup.end, std::u16string(XmlTagName(tag))});
      if (markup.kind == XmlMarkupKind::StartTag) open.push_back(sample.elements.size() - 1);
    } else if (markup.kind == XmlMarkupKind::EndTag) {
      sample.elements[open.back()].contentEnd = markup.begin;
      sample.elements[open.back()].end = markup.end;
      open.pop_back();
    }
  }
  return sample;
}

// The document with the attributes of each element in the order of their names, and without the
// blanks before numbers.
std::u16string Plain(std::u16string_view text) {
  std::u16string plain;
  for (XmlMarkupReader reader(text); reader.Next();) {
    const XmlMarkup& markup = reader.markup();
    const std::u16string_view piece = text.substr(markup.begin, markup.end - markup.begin);
    if (!markup.startsElement()) {
      plain += piece;
      continue;
    }
    std::map<std::u16string_view, std::u16string_view> attributes;
    size_t at = 1 + XmlTagName(piece).size();
    for (XmlRawAttribute given; (given = NextXmlAttribute(piece, at)).offset != piece.npos;) {
      at = static_cast<size_t>(given.value.data() - piece.data()) + given.value.size() + 1;
      attributes[given.name] = given.value.substr(given.value.starts_with(u' ') ? 1 : 0);
    }
    plain.append(u"<").append(XmlTagName(piece));
    for (const auto& [name, value] : attributes) plain.append(name).append(value);
    plain.append(markup.kind == XmlMarkupKind::EmptyTag ? u"/>" : u">");
  }
  return plain;
}

// The document without the attributes that are only read.
std::u16string WithoutInformation(std::u16string text, const Losses& losses) {
  for (auto loss = losses.rbegin(); loss != losses.rend(); ++loss) {
    if (!IsInformation(*loss)) continue;
    const size_t at = OffsetAt(text, loss->place), quote = text.find_first_of(u"'\"", at);
    text.erase(at, text.find(text[quote], quote + 1) + 1 - at);
  }
  return text;
}

class Changes {
 public:
  explicit Changes(Object& object)
      : description_(object.description()), sample_(SampleOf(FromUtf8(ExampleDocument(object)))) {}

  void Try() {
    Expect(sample_.text, sample_.text, 0, 0);
    EXPECT_EQ(losses_, 0);
    for (const auto& [place, around] : sample_.places) {
      const Element& element = sample_.elements[around];
      for (const std::u16string_view note : {u"<!-- c -->", u"<?p c?>"}) {
        Expect(Replaced(place, 0, note), sample_.text, place, element.end + note.size());
      }
      // An unknown element is told where it stands; as a diagram it is read in place of the other.
      const bool isDiagram = element.name == u"FDCodeBlock";
      Expect(Replaced(place, 0, u"<Odd/>"), {}, place, isDiagram ? element.end : place);
    }
    for (const Element& element : sample_.elements) {
      if (&element == &sample_.elements.front()) continue;
      Misspell(element);
    }
    for (const Element& element : sample_.elements) Reverse(element);
    for (const Element& element : sample_.elements) GiveOddValues(element);
  }

  int losses() const { return losses_; }

 private:
  std::u16string Replaced(size_t at, size_t count, std::u16string_view by) const {
    return std::u16string(sample_.text).replace(at, count, by);
  }

  void Misspell(const Element& element) {
    std::u16string text = sample_.text;
    if (element.contentEnd != element.tagEnd || text[element.tagEnd - 2] != u'/') {
      text.insert(element.end - 1, u"x");
    }
    text.insert(element.begin + 1 + element.name.size(), u"x");
    Expect(text, sample_.text, element.begin, text.size());
  }

  void Reverse(const Element& element) {
    if (element.children.size() < 2) return;
    const Element& first = sample_.elements[element.children.front()];
    const Element& last = sample_.elements[element.children.back()];
    std::u16string content;
    for (auto at = element.children.rbegin(); at != element.children.rend(); ++at) {
      const Element& child = sample_.elements[*at];
      if (!content.empty()) content += u'\n';
      content.append(sample_.text, child.begin, child.end - child.begin);
    }
    Expect(Replaced(first.begin, last.end - first.begin, content), {}, first.begin, element.end);
  }

  void GiveOddValues(const Element& element) {
    static const std::map<std::u16string, ElementDeclaration> declarations = DeclareElements();
    const auto declaration = declarations.find(element.name);
    if (declaration == declarations.end()) return;
    for (const AttributeDeclaration& attribute : declaration->second.attributes) {
      for (const std::u16string value : {u"odd", u"9.5", u""}) {
        GiveValue(element, attribute, value);
      }
    }
  }

  void GiveValue(const Element& element, const AttributeDeclaration& attribute,
                 const std::u16string& value) {
    const std::u16string start = u" " + attribute.name + u"='";
    const std::u16string tag = sample_.text.substr(element.begin, element.tagEnd - element.begin);
    const size_t found = tag.find(start);
    const size_t at = element.begin + (found == tag.npos ? 1 + element.name.size() : found);
    const size_t size = found == tag.npos ? 0 : tag.find(u'\'', found + start.size()) + 1 - found;
    // The writer leaves out what is the schema's default.
    const bool isDefault = attribute.defaultValue == value;
    Expect(Replaced(at, size, start + value + u"'"),
           isDefault ? Replaced(at, size, u"") : std::u16string(), at + 1, at + 1);
  }

  // The text is refused, or what was read of it is written as the text itself or as `kept`, or a
  // loss of content is told between the two offsets.
  void Expect(const std::u16string& text, const std::u16string& kept, size_t from, size_t to) {
    Losses losses;
    std::u16string written;
    try {
      const Ref<Object> object = DeserializeObject(description_, text, &losses);
      written = FromUtf8(ExampleDocument(*object));
    } catch (const Error&) {
      return;
    }
    const Losses content = LossesOfContent(losses);
    losses_ += static_cast<int>(content.size());
    const bool isTold = std::ranges::any_of(content, [&](const Loss& loss) {
      const size_t offset = OffsetAt(text, loss.place);
      return from <= offset && offset <= to;
    });
    const bool isKept =
        Plain(written) == Plain(WithoutInformation(text, losses)) || Plain(written) == Plain(kept);
    const size_t start = from < 120 ? 0 : from - 120;
    EXPECT_TRUE(isKept || isTold) << description_.name << ": " << content.size() << " losses in …"
                                  << ToUtf8(text.substr(start, from - start)) << "▶"
                                  << ToUtf8(text.substr(from, 120));
  }

  const ClassDescription& description_;
  const Sample sample_;
  int losses_ = 0;
};

int LossesOfChanges(Object& object) {
  Changes changes(object);
  changes.Try();
  return changes.losses();
}

TEST(Losses, OfAnyChangeAreToldWhereTheyAre) {
  int losses = 0;
  for (const ClassDescription& description : AllClasses()) {
    if (!IsDocument(description)) continue;
    const Ref<Object> object = description.create();
    FillExample(*object, kDepth);
    losses += LossesOfChanges(*object);
  }
  EXPECT_GT(losses, 5000);
  for (const SampleFamily& family : SampleFamilies()) {
    EXPECT_GT(LossesOfChanges(*family.build()), 0) << family.name;
  }
}

// The losses of a document, each as "line:column sentence".
std::string LossesOf(const std::string& markup) {
  Losses losses;
  ReadDocument(Document(markup), &losses);
  std::string told;
  for (const Loss& loss : losses) {
    told += std::to_string(loss.place.line) + ':' + std::to_string(loss.place.column) + ' ' +
            ToUtf8(loss.description) + '\n';
  }
  return told;
}

TEST(Losses, AreToldWithTheirCause) {
  const std::string block = "<STCodeBlock Name='s'>\n<ST_Code>";
  const std::string codeEnd = "</ST_Code></STCodeBlock>";
  const std::string unit = "<HWUnit Path='0' TypeID='' TypeDescription=''>\n";
  const std::string constant = "<ProjectConstants>\n<ProjectConstant Name='A'>";
  const std::string constantEnd = "</ProjectConstant></ProjectConstants>";
  const std::string type = "<Type>t</Type><Value>v</Value>";
  const struct {
    std::string document, losses;
  } cases[] = {
      {unit + "<!-- c --><HWChannels/><HWUnits/></HWUnit>",
       "2:11 'HWChannels' and what follows it was not read; a comment stands before it\n"},
      {unit + "<HWChannels/><ParameterSettings/></HWUnit>",
       "2:14 'ParameterSettings' was not read; it stands out of place\n"},
      {unit + "<HWChanels/></HWUnit>",
       "2:1 'HWChanels' was not read; 'HWUnit' has no place for it\n"},
      {unit + "<HWUnits><?p q?>\n<Odd/><!-- c -->\n<Even/></HWUnits></HWUnit>",
       "3:1 'Odd' was not read; 'HWUnits' has no place for it\n"
       "4:1 'Even' was not read; 'HWUnits' has no place for it\n"},
      {unit + "</HWUnit><!-- c -->", ""},
      {block + "a := 1; <!-- c --> b := 2;" + codeEnd,
       "2:28 text in 'ST_Code' was not read; a comment stands before it\n"},
      {block + "<?p q?>x" + codeEnd,
       "2:10 a processing instruction was read as the content of 'ST_Code'\n"
       "2:17 text in 'ST_Code' was not read; a processing instruction stands before it\n"},
      {block + "a := 1;<!-- c -->" + codeEnd, ""},
      {block + " \n " + codeEnd, "2:10 blanks were read as the content of 'ST_Code'\n"},
      {"<LDCodeBlock Name='s'>\n<ST_Code>&amp;lt;</ST_Code></LDCodeBlock>",
       "2:1 entity texts in 'ST_Code' are written as the characters that they stand for\n"},
      {"<DataType Name='d' Scope='PUBLIC' Protected='yes' Hidden='TRUE'/>",
       "1:83 'Scope' is 'PUBLIC', which was read as 'private'\n"
       "1:98 'Protected' is 'yes', which was read as '0'\n"
       "1:114 'Hidden' is 'TRUE', which was read as '0'\n"},
      {"<DataType Name='d' Scope='PRIVATE' Protected='false' Hidden='False'/>", ""},
      {"<Task Name='t' IntervalTime='1' Priority='9' Offset='+5' OutputUpdate='LAST' "
       "LatencySupervision='1' LatencyPercentage='05' TaskSILLevel='SIL1'/>",
       "1:96 'Priority' is '9', which was read as '5'\n"
       "1:187 'TaskSILLevel' is 'SIL1', which was read as 'SIL3'\n"},
      {"<CMConnection Name='c' ActualParameter=''><Point X='1.50' Y='-0'/></CMConnection>", ""},
      {"<ControlModuleType Name='t'><GraphSize>\n<Up X='1' Y='2'/><Point X='3' Y='4'/><Odd/>"
       "</GraphSize></ControlModuleType>",
       "2:1 'Up' was read as 'Point'\n"
       "2:38 'Odd' was not read; 'GraphSize' has no place for it\n"},
      {"<Variable Name='v' Type='t' Attribute='' TypeGuid='g'/>",
       "1:105 'TypeGuid' is only read; writing leaves it out\n"},
      {"<Variable xmlns:x='http://www.w3.org/2001/XMLSchema-instance' x:schemaLocation='a b' "
       "Name='v' Type='t' Attribute=''/>",
       ""},
      {"<FDCodeBlock Name='f'>\n<!-- c --><D/></FDCodeBlock>",
       "2:1 a comment was read as the content of 'FDCodeBlock'\n"
       "2:11 'D' was not read; a comment stands before it\n"},
      {constant + "<ProjectConstants/>" + constantEnd,
       "2:27 a group without constants was not read\n"},
      {constant + "<Value>v</Value><Type>t</Type><Odd/>" + constantEnd,
       "2:27 'Value' was read as 'Type'\n2:43 'Type' was read as 'Value'\n"
       "2:57 'Odd' was not read; 'ProjectConstant' has no place for it\n"},
      {constant + type + "</ProjectConstant>\n<ProjectConstant Name='A.B'>" + type + constantEnd,
       "3:1 'A.B' is the name or the group of another constant, which is written\n"
       "3:18 'A.B' was read as a name with its groups\n"},
  };
  for (const auto& test : cases) EXPECT_EQ(LossesOf(test.document), test.losses) << test.document;

  Losses losses;
  const auto unitRead = ReadDocument<SingleControlModuleInst>(
      Document("<SingleControlModule Name='s' TypeGuid='' AlarmOwner='1'/>"), &losses);
  EXPECT_EQ(unitRead->Name, u"s");
  ASSERT_EQ(losses.size(), 1u);
  EXPECT_EQ(losses.front().kind, LossKind::NotRead);
  EXPECT_EQ(losses.front().description, u"'AlarmOwner' was not read");
  EXPECT_EQ(ErrorOf([&] { ReadDocument<Task>(u"<Odd/>", &losses); }), "604 Wrong root element");
  EXPECT_EQ(losses.size(), 1u);
}

}  // namespace
}  // namespace praxen::detail
