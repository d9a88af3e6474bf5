// The markup that the writer makes.
#include "praxen/xml/xml_string_writer.h"

#include <gtest/gtest.h>

#include <functional>

#include "praxen/core/counters.h"
#include "praxen/core/error.h"
#include "praxen/xml/xml_escape.h"
#include "praxen/xml/xml_limits.h"

namespace praxen::detail {
namespace {

const std::u16string kDeclaration = u"<?xml version='1.0' encoding='UTF-16'?>";

std::u16string Written(const std::function<void(XMLStringWriter&)>& write) {
  XMLStringWriter writer;
  writer.WriteStartDocument();
  write(writer);
  const std::u16string document(writer.ToXMLString());
  EXPECT_EQ(document.substr(0, kDeclaration.size()), kDeclaration);
  return document.substr(kDeclaration.size());
}

TEST(XMLStringWriter, WritesElements) {
  struct Case {
    std::function<void(XMLStringWriter&)> write;
    std::u16string document;
  };
  const Case cases[] = {
      {[](XMLStringWriter& w) { w.WriteStartRootElement(u"A"), w.WriteEndElement(u"A"); },
       u"\r\n<A xmlns='PraxenSchema3_0' />\r\n"},
      {[](XMLStringWriter& w) {
         w.WriteStartElement(u"A");
         w.WriteAttributeString(u"n", u"");
         w.WriteEndElement(u"A");
       },
       u"<A n='' />\r\n"},
      {[](XMLStringWriter& w) {
         w.WriteStartElement(u"A");
         w.WriteElementString(u"B", u"");
         w.WriteStartElement(u"C");
         w.WriteEndElement(u"C");
         w.WriteEndElement(u"A");
       },
       u"<A>\r\n<B></B>\r\n<C />\r\n</A>\r\n"},
      {[](XMLStringWriter& w) {
         w.WriteStartElement(u"A");
         w.WriteElementValue(u"");
         w.WriteEndElement(u"A");
       },
       u"<A ></A>\r\n"},
      {[](XMLStringWriter& w) {
         w.WriteStartElement(u"A");
         w.WriteAttributeString(u"n", u"1");
         w.WriteXMLElementValue(u"<x/>&");
         w.WriteEndElement(u"A");
       },
       u"<A n='1' ><x/>&</A>\r\n"},
  };
  for (const Case& test : cases) EXPECT_EQ(Written(test.write), test.document);
}

TEST(XMLStringWriter, EscapesValues) {
  struct Case {
    std::u16string value, attribute, text;
  };
  const Case cases[] = {
      {u"a&b<c>d", u"a&amp;b&lt;c&gt;d", u"a&amp;b&lt;c&gt;d"},
      {u"it's \"x\"", u"it&apos;s &quot;x&quot;", u"it's \"x\""},
      {u"&lt;", u"&amp;lt;", u"&amp;lt;"},
      {u"\t\r\n\u0001\u00E4\u4E2D", u"\t\r\n\u0001\u00E4\u4E2D", u"\t\r\n\u0001\u00E4\u4E2D"},
      {u"<", u"&lt;", u"&lt;"},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(Written([&](XMLStringWriter& w) { w.WriteAttributeString(u"n", test.value); }),
              u" n='" + test.attribute + u"'");
    EXPECT_EQ(Written([&](XMLStringWriter& w) { w.WriteElementString(u"e", test.value); }),
              u"<e>" + test.text + u"</e>\r\n");
  }
}

// Values are copied and looked through in blocks, after a first character to be escaped in others.
TEST(XMLStringWriter, EscapesAtAnyPlaceOfAnyLength) {
  for (size_t size = 1; size <= 50; ++size) {
    for (size_t place = 0; place < size; ++place) {
      const std::u16string before(place, u'='), after(size - place - 1, u'%');
      for (const char16_t special : kEscapedInValues) {
        const std::u16string reference(XmlReference(special));
        const std::u16string value = before + special + after, escaped = before + reference + after;
        ASSERT_EQ(Written([&](XMLStringWriter& w) {
                    w.WriteAttributeString(u"n", value);
                    w.WriteAttributeString(u"m", special + value);
                  }),
                  u" n='" + escaped + u"' m='" + reference + escaped + u"'");
      }
    }
  }
}

TEST(XMLStringWriter, WritesNoLineBreaksWhenTheyAreOff) {
  SetIncludeCRLFInXML(false);
  const std::u16string document = Written([](XMLStringWriter& w) {
    w.WriteStartRootElement(u"A");
    w.WriteElementString(u"B", u"\r\n");
    w.WriteEndElement(u"A");
  });
  SetIncludeCRLFInXML(true);
  EXPECT_EQ(document, u"<A xmlns='PraxenSchema3_0'><B>\r\n</B></A>");
}

TEST(XMLStringWriter, RefusesEndlessNestingAndStartsAnew) {
  XMLStringWriter writer;
  writer.WriteStartDocument();
  for (uint32_t depth = 0; depth < kMaxXmlDepth; ++depth) writer.WriteStartElement(u"A");
  EXPECT_THROW(writer.WriteStartElement(u"A"), Error);
  writer.WriteStartDocument();
  writer.WriteStartRootElement(u"B");
  writer.WriteEndElement(u"B");
  EXPECT_EQ(writer.ToXMLString(), kDeclaration + u"\r\n<B xmlns='PraxenSchema3_0' />\r\n");
}

TEST(XMLStringWriter, CountsAsALiveObject) {
  const int32_t before = ObjectCounter();
  {
    const XMLStringWriter writer;
    EXPECT_EQ(ObjectCounter(), before + 1);
  }
  EXPECT_EQ(ObjectCounter(), before);
}

}  // namespace
}  // namespace praxen::detail
