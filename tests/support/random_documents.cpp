// The making of random documents, and the faults that they are given.
//
// Left out, since the library refuses or passes over on purpose what other readers take: document
// types, XML 1.1, and locations of schemas, which it never follows. Left out, too, are declared
// elements inside unknown ones and inside a function diagram: Xerces stops validating at the outer
// element but goes on to add defaults, libxml2 validates what is inside an unknown element and adds
// no defaults inside a function diagram. No class reads what stands there. Namespaces are URIs,
// which libxml2 demands of them.
#include "tests/support/random_documents.h"

#include <algorithm>
#include <functional>

namespace praxen::detail {

using Content = ElementDeclaration::Content;

/// A fault of one element; false where it cannot have it.
struct ElementFault {
  const char* name;
  std::function<bool(RandomDocuments& random, RandomElement& element)> apply;
};

namespace {

constexpr int kDeepest = 3;
constexpr std::u16string_view kNamespace = u"PraxenSchema3_0";

void Insert(RandomElement& element, const std::u16string& markup) {
  element.content = markup + element.content;
}

// Into the content or a value, where both hold text.
void InsertText(RandomDocuments& random, RandomElement& element, const std::u16string& text) {
  if (element.attributes.empty() || random.Chance(2)) return Insert(element, text);
  element.attributes[random.Below(element.attributes.size())].second += text;
}

// Puts one of the texts into the element.
ElementFault Inserting(const char* name, const std::vector<std::u16string>& texts) {
  return {name, [texts](RandomDocuments& random, RandomElement& element) {
            Insert(element, texts[random.Below(texts.size())]);
            return true;
          }};
}

const ElementFault kElementFaults[] = {
    {"required attribute missing",
     [](RandomDocuments&, RandomElement& element) {
       for (const AttributeDeclaration& declared : element.declaration->attributes) {
         if (!declared.required) continue;
         std::erase_if(element.attributes, [&](const auto& a) { return a.first == declared.name; });
         return true;
       }
       return false;
     }},
    {"unknown attribute",
     [](RandomDocuments& random, RandomElement& element) {
       element.attributes.emplace_back(random.Any({u"Odd", u"name", u"xml:lang"}), u"");
       return true;
     }},
    {"attribute of another namespace",
     [](RandomDocuments&, RandomElement& element) {
       element.attributes.emplace_back(u"xmlns:o", u"urn:o");
       element.attributes.emplace_back(u"o:Name", u"");
       return true;
     }},
    {"text among elements",
     [](RandomDocuments& random, RandomElement& element) {
       if (element.declaration->content != Content::Children) return false;
       Insert(element, random.Any({u"text", u"<![CDATA[text]]>", u"&#65;", u"&lt;"}));
       return true;
     }},
    {"element in text",
     [](RandomDocuments& random, RandomElement& element) {
       if (element.declaration->content != Content::Text) return false;
       Insert(element, random.Any({u"<Odd/>", u"<Name>a</Name>"}));
       return true;
     }},
    {"attribute twice",
     [](RandomDocuments&, RandomElement& element) {
       if (element.attributes.empty()) return false;
       element.attributes.push_back(element.attributes.front());
       return true;
     }},
    Inserting("attribute twice by its namespace",
              {u"<a xmlns:o='urn:o' xmlns:q='urn:o' o:a='' q:a=''/>"}),
    Inserting("prefix that is not declared", {u"<o:a/>", u"<a o:a=''/>"}),
    Inserting("reserved prefix",
              {u"<a xmlns:xmlns='urn:o'/>", u"<a xmlns:xml='urn:o'/>", u"<a xmlns:o=''/>"}),
    {"less-than sign in a value",
     [](RandomDocuments&, RandomElement& element) {
       if (element.attributes.empty()) return false;
       element.attributes.back().second += u'<';
       return true;
     }},
    {"bad reference",
     [](RandomDocuments& random, RandomElement& element) {
       InsertText(random, element,
                  random.Any({u"&", u"& ", u"&amp", u"&odd;", u"&nbsp;", u"&#;", u"&#x;", u"&#0;",
                              u"&#1;", u"&#xD800;", u"&#xDFFF;", u"&#xFFFE;", u"&#xFFFF;",
                              u"&#x110000;", u"&#99999999999;", u"&#X41;", u"&#4A;"}));
       return true;
     }},
    {"bad character",
     [](RandomDocuments& random, RandomElement& element) {
       const char16_t character = random.Any<char16_t>(
           {1, 8, 0xB, 0xC, 0xE, 0x1F, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xFFFE, 0xFFFF});
       InsertText(random, element, {character});
       return true;
     }},
    Inserting("end of a section in text", {u"]]>"}),
    Inserting("bad comment", {u"<!-- a -- b -->", u"<!-- a --->", u"<!- a -->", u"<! a>"}),
    Inserting("bad instruction", {u"<?xml version='1.0'?>", u"<?XML?>", u"<? a?>"}),
    Inserting("bad name", {u"<1/>", u"<-a/>", u"<.a/>", u"< a/>", u"<a$/>", u"<a/ >", u"<\u00D7/>",
                           u"<a 1=''/>", u"<a b$=''/>", u"<:/>", u"<a:b:c xmlns:a='urn:o'/>",
                           u"<a: xmlns:a='urn:o'/>"}),
    Inserting("bad attribute", {u"<a b/>", u"<a b=/>", u"<a b=c/>", u"<a b='\"/>", u"<a b=''c=''/>",
                                u"<a =''/>", u"<a b=' c=''/>"}),
    Inserting("tags that do not match",
              {u"<a></b>", u"<a><b></a></b>", u"<a>", u"</a>", u"<a></A>"}),
    Inserting("bad section", {u"<![cdata[a]]>", u"<![CDATA a]]>", u"<![CDATA[a]]"}),
};

struct DocumentFault {
  const char* name;
  void (*apply)(RandomDocuments& random, std::u16string& text);
};

void Replace(std::u16string& text, std::u16string_view piece, std::u16string_view replacement) {
  text.replace(text.find(piece), piece.size(), replacement);
}

const DocumentFault kDocumentFaults[] = {
    {"text cut off", [](RandomDocuments& random,
                        std::u16string& text) { text.resize(random.Below(text.rfind(u'>'))); }},
    {"something after the root",
     [](RandomDocuments& random, std::u16string& text) {
       text += random.Any({u"<a/>", u"text", u"&#32;", u"<![CDATA[ ]]>", u"</a>"});
     }},
    {"something before the declaration",
     [](RandomDocuments& random, std::u16string& text) {
       text.insert(0, random.Any({u"text<?xml version='1.0'?>", u" <?xml version='1.0'?>",
                                  u"<!-- --><?xml version='1.0'?>", u"text", u"&#32;"}));
     }},
    {"root in another namespace",
     [](RandomDocuments& random, std::u16string& text) {
       Replace(text, kNamespace,
               random.Any({u"", u"praxenschema3_0", u"urn:PraxenSchema3_0", u"PraxenSchema3_1"}));
     }},
    {"unknown root",
     [](RandomDocuments& random, std::u16string& text) {
       text = random.Any(
           {u"<Odd xmlns='PraxenSchema3_0'/>", u"<program xmlns='PraxenSchema3_0'/>", u"<Odd/>"});
     }},
    {"no root", [](RandomDocuments& random, std::u16string& text) {
       text = random.Any({u"", u" ", u"<!-- -->", u"<?xml version='1.0'?>", u"<?a?>"});
     }}};

}  // namespace

RandomDocuments::RandomDocuments(uint32_t seed) : random_(seed) {
  for (const auto& [name, declaration] : DeclareElements()) declarations_.push_back(declaration);
}

std::vector<std::string> RandomDocuments::Faults() {
  std::vector<std::string> names;
  for (const ElementFault& fault : kElementFaults) names.push_back(fault.name);
  for (const DocumentFault& fault : kDocumentFaults) names.push_back(fault.name);
  return names;
}

RandomDocument RandomDocuments::Next() {
  const bool isFaulty = Chance(2);
  const bool isOfElement = Chance(4) == false;
  for (;;) {
    pending_ =
        isFaulty && isOfElement ? &kElementFaults[Below(std::size(kElementFaults))] : nullptr;
    const std::string name = pending_ == nullptr ? "none" : pending_->name;
    RandomDocument document{MakeElement(AnyDeclaration(), 0), name};
    if (pending_ != nullptr) continue;
    if (isFaulty && !isOfElement) {
      const DocumentFault& fault = kDocumentFaults[Below(std::size(kDocumentFaults))];
      fault.apply(*this, document.text);
      document.fault = fault.name;
    } else {
      document.text.insert(
          0, Any({u"", u"<?xml version='1.0'?>", u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n",
                  u"<?xml version='1.0' encoding='UTF-8' standalone='yes' ?>\n<!-- c -->",
                  u"\n<?a b?>"}));
      document.text += Any({u"", u"\r\n", u"<!-- end --> ", u"<?end?>"});
    }
    return document;
  }
}

const ElementDeclaration& RandomDocuments::AnyDeclaration() {
  return declarations_[Below(declarations_.size())];
}

std::u16string RandomDocuments::MakeElement(const ElementDeclaration& declaration, int depth) {
  RandomElement element{&declaration};
  if (depth == 0 || Chance(8)) element.attributes.emplace_back(u"xmlns", kNamespace);
  if (Chance(6)) {
    element.prefix = u"p:";
    element.attributes.emplace_back(u"xmlns:p", kNamespace);
  }
  for (const AttributeDeclaration& declared : declaration.attributes) {
    if (!declared.required && Chance(2)) continue;
    element.attributes.emplace_back(declared.name, Characters(true));
  }
  for (size_t i = element.attributes.size(); i > 1; --i) {
    std::swap(element.attributes[i - 1], element.attributes[Below(i)]);
  }
  element.content = MakeContent(declaration, depth);
  if (pending_ != nullptr && (depth == 0 || Chance(4)) && pending_->apply(*this, element)) {
    pending_ = nullptr;
  }
  return Render(element);
}

std::u16string RandomDocuments::MakeContent(const ElementDeclaration& declaration, int depth) {
  std::u16string content;
  for (size_t count = Below(5); count > 0; --count) {
    if (declaration.content != Content::Children) content += Characters(false);
    if (declaration.content == Content::Children) content += Child(depth);
    if (declaration.content == Content::Markup) content += Child(kDeepest);
    content += Any({u"", u"", u" ", u"\r\n\t", u"<!-- c & <d> -->", u"<?target content ?>"});
  }
  return content;
}

std::u16string RandomDocuments::Characters(bool isValue) {
  std::u16string characters;
  for (size_t count = Below(4); count > 0; --count) {
    characters += Any<std::u16string>(
        {u"a",      u"Level 1", u"&lt;",   u"&gt;",   u"&amp;",      u"&quot;",    u"&apos;",
         u"\"",     u">",       u" ",      u"\t",     u"\n",         u"\r\n",      u"\r",
         u"&#10;",  u"&#13;",   u"&#9;",   u"&#x41;", u"&#65;",      u"&#x1F600;", u"\u00E4\u4E2D",
         u"\u0085", u"\u2028",  u"\uFEFF", u"\uFFFD", u"\U0001F600", u"&#xA0;",    u"]]"});
    if (!isValue && Chance(4)) characters += Any({u"<![CDATA[<&>]]>", u"<![CDATA[ ]]>", u"'"});
  }
  return characters;
}

// A declared element, or one that the schema does not know and lets pass.
std::u16string RandomDocuments::Child(int depth) {
  if (depth == kDeepest || Chance(6)) {
    return Any({u"<odd/>", u"<odd a='&lt;'>text<b/></odd>", u"<o:a xmlns:o='urn:o' o:b='c'/>",
                u"<Name xmlns=''>x</Name>", u"<Variable xmlns='urn:o'/>"});
  }
  return MakeElement(AnyDeclaration(), depth + 1);
}

std::u16string RandomDocuments::Render(const RandomElement& element) {
  const std::u16string name = element.prefix + element.declaration->name;
  std::u16string markup = u"<" + name;
  for (const auto& [attribute, value] : element.attributes) {
    markup += Any({u" ", u"  ", u"\r\n"}) + attribute + Any({u"=", u" = "}) + u"'" + value + u"'";
  }
  if (element.content.empty() && Chance(2)) return markup + Any({u"/>", u" />"});
  return markup + u">" + element.content + u"</" + name + Any({u">", u" >"});
}

}  // namespace praxen::detail
