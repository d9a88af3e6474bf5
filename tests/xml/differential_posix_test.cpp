// Generated documents, sound and broken, read by the library and by libxml2 with the same schema:
// both agree on whether they are valid, and on every attribute, default and text of those that are.
#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlschemas.h>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>

#include "praxen/core/text.h"
#include "praxen/factory/reading_frame.h"
#include "tests/support/random_documents.h"
#include "tools/generate/schema.h"

namespace praxen::detail {
namespace {

template <auto Free>
struct Freed {
  template <class T>
  void operator()(T* object) const {
    Free(object);
  }
};
using Context = std::unique_ptr<xmlParserCtxt, Freed<xmlFreeParserCtxt>>;
using Tree = std::unique_ptr<xmlDoc, Freed<xmlFreeDoc>>;

void Ignore(void*, xmlError*) {}

std::string ToString(const xmlChar* text) {
  return text == nullptr ? "" : reinterpret_cast<const char*>(text);
}

// What stands for a tree in comparisons: names, attributes by name, texts, comments and
// instructions. Declarations of namespaces are not among the attributes.
using Attributes = std::map<std::string, std::string>;

std::string Outline(const std::string& name, const Attributes& attributes, const std::string& value,
                    const std::string& children) {
  std::string outline = name + "{";
  for (const auto& [attribute, text] : attributes) outline += attribute + "=" + text + ";";
  return outline + "}" + value + "[" + children + "]\n";
}

// The library's reading.
class Ours {
 public:
  std::optional<std::string> Read(const std::u16string& text) {
    if (!document_.LoadXML(text) || !document_.rootDeclared()) return std::nullopt;
    return OutlineOf(document_.documentElement());
  }

 private:
  static std::string OutlineOf(const XmlNode& node) {
    Attributes attributes;
    for (const XmlAttribute& attribute : node.attributes()) {
      const std::string name = ToUtf8(*attribute.name);
      if (name.starts_with("xmlns")) continue;
      attributes[name] = ToUtf8(attribute.value());
    }
    std::string children;
    for (XmlNode child = node.firstChild(); child; child = child.nextSibling()) {
      children += OutlineOf(child);
    }
    return Outline(ToUtf8(node.nodeName()), attributes, ToUtf8(node.nodeValue()), children);
  }

  XmlDocument document_{FindSchema()};
};

// libxml2's reading.
class Theirs {
 public:
  Theirs() {
    xmlSetStructuredErrorFunc(nullptr, Ignore);
    const std::string text = GenerateSchema();
    const std::unique_ptr<xmlSchemaParserCtxt, Freed<xmlSchemaFreeParserCtxt>> parser(
        xmlSchemaNewMemParserCtxt(text.data(), static_cast<int>(text.size())));
    schema_.reset(xmlSchemaParse(parser.get()));
  }
  ~Theirs() { xmlSetStructuredErrorFunc(nullptr, nullptr); }

  std::optional<std::string> Read(const std::u16string& text) const {
    const Context context(xmlNewParserCtxt());
    const Tree tree(xmlCtxtReadMemory(context.get(), reinterpret_cast<const char*>(text.data()),
                                      static_cast<int>(text.size() * sizeof(char16_t)), nullptr,
                                      "UTF-16LE",
                                      XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_NOCDATA));
    if (tree == nullptr || context->wellFormed == 0 || context->nsWellFormed == 0) return {};
    const std::unique_ptr<xmlSchemaValidCtxt, Freed<xmlSchemaFreeValidCtxt>> validation(
        xmlSchemaNewValidCtxt(schema_.get()));
    xmlSchemaSetValidOptions(validation.get(), XML_SCHEMA_VAL_VC_I_CREATE);
    if (xmlSchemaValidateDoc(validation.get(), tree.get()) != 0) return {};
    return OutlineOf(*xmlDocGetRootElement(tree.get()));
  }

 private:
  static std::string NameOf(const xmlChar* name, const xmlNs* space) {
    const std::string prefix = space == nullptr ? "" : ToString(space->prefix);
    return prefix.empty() ? ToString(name) : prefix + ":" + ToString(name);
  }

  static std::string OutlineOf(const xmlNode& node) {
    if (node.type == XML_COMMENT_NODE) return Outline("#comment", {}, ToString(node.content), "");
    if (node.type == XML_PI_NODE) {
      return Outline(ToString(node.name), {}, ToString(node.content), "");
    }
    Attributes attributes;
    for (const xmlAttr* attribute = node.properties; attribute != nullptr;
         attribute = attribute->next) {
      const std::unique_ptr<xmlChar, Freed<FreeText>> value(
          xmlNodeListGetString(node.doc, attribute->children, 1));
      attributes[NameOf(attribute->name, attribute->ns)] = ToString(value.get());
    }
    return Outline(NameOf(node.name, node.ns), attributes, "", ChildrenOf(node));
  }

  static void FreeText(xmlChar* text) { xmlFree(text); }

  // Adjoining pieces of text are one; blanks count where they are all that an element holds.
  static std::string ChildrenOf(const xmlNode& node) {
    std::string children, text;
    const auto EndText = [&](bool isOnlyChild) {
      if (!text.empty() && (isOnlyChild || text.find_first_not_of(" \t\r\n") != text.npos)) {
        children += Outline("#text", {}, text, "");
      }
      text.clear();
    };
    for (const xmlNode* child = node.children; child != nullptr; child = child->next) {
      if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
        text += ToString(child->content);
      } else {
        EndText(false);
        children += OutlineOf(*child);
      }
    }
    EndText(children.empty());
    return children;
  }

  std::unique_ptr<xmlSchema, Freed<xmlSchemaFree>> schema_;
};

TEST(Differential, BothReadersAgree) {
  constexpr int kDocuments = 2000;
  Ours ours;
  const Theirs theirs;
  RandomDocuments documents(20240229);
  std::map<std::string, int> disagreements, refused;
  int valid = 0;
  for (int i = 0; i < kDocuments; ++i) {
    const RandomDocument document = documents.Next();
    const auto our = ours.Read(document.text);
    const auto their = theirs.Read(document.text);
    if (our) ++valid;
    if (!our) ++refused[document.fault];
    if (our == their || ++disagreements[document.fault] > 2) continue;
    ADD_FAILURE() << "document " << i << ", " << document.fault << "\n"
                  << ToUtf8(document.text) << "\nours:   " << our.value_or("refused")
                  << "\ntheirs: " << their.value_or("refused");
  }
  for (const auto& [fault, count] : disagreements) ADD_FAILURE() << fault << ": " << count;
  RecordProperty("valid", valid);
  EXPECT_GT(valid, kDocuments * 2 / 5);
  // Each fault is one.
  for (const std::string& fault : RandomDocuments::Faults()) EXPECT_GT(refused[fault], 2) << fault;
}

TEST(Differential, NoDefaultStandsBesideAGivenValue) {
  XmlDocument document(FindSchema());
  for (const char16_t* const text :
       {u"<Program xmlns='PraxenSchema3_0' Name='p'><odd><Signal Path='' AcknowledgeGroup='g'/>"
        u"</odd></Program>",
        u"<FDCodeBlock xmlns='PraxenSchema3_0' Name='p'><odd><Signal AcknowledgeGroup='g'/></odd>"
        u"</FDCodeBlock>"}) {
    ASSERT_TRUE(document.LoadXML(text));
    const XmlNode signal = document.documentElement().firstChild().firstChild();
    const auto isGroup = [](const XmlAttribute& a) { return *a.name == u"AcknowledgeGroup"; };
    EXPECT_EQ(std::ranges::count_if(signal.attributes(), isGroup), 1);
    EXPECT_EQ(signal.attribute(u"AcknowledgeGroup")->value(), u"g");
  }
}

}  // namespace
}  // namespace praxen::detail
