// Short forms for tests that read and write documents.
#include "tests/support/documents.h"

#include <cstdio>

#include "praxen/core/error.h"
#include "praxen/describe/description.h"
#include "praxen/factory/classes.h"
#include "praxen/factory/deserialization.h"
#include "praxen/factory/read_document.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen::detail {

namespace {

constexpr std::string_view kDeclaration = "<?xml version='1.0' encoding='UTF-16'?>";
constexpr std::string_view kNamespace = " xmlns='PraxenSchema3_0'";

size_t EndOfName(std::string_view markup) { return markup.find_first_of(" />", 1); }

}  // namespace

Text Document(std::string_view markup) {
  const size_t end = EndOfName(markup);
  return FromUtf8(std::string(kDeclaration)
                      .append(markup.substr(0, end))
                      .append(kNamespace)
                      .append(markup.substr(end)));
}

std::string Markup(Object& object) {
  struct NoLineBreaks {
    NoLineBreaks() { SetIncludeCRLFInXML(false); }
    ~NoLineBreaks() { SetIncludeCRLFInXML(true); }
  };
  const NoLineBreaks setting;
  XMLStringWriter writer;
  writer.WriteStartDocument();
  object.WriteXML(writer);
  return ToUtf8(writer.ToXMLString()).substr(kDeclaration.size());
}

std::string Rewritten(std::string_view markup, std::string_view className) {
  const Text document = Document(markup);
  std::string written;
  const std::string error = ErrorOf([&] {
    written =
        Markup(className.empty() ? *ReadDocument(document)
                                 : *DeserializeObject(*FindClass(FromUtf8(className)), document));
  });
  return error == "none" ? written : error;
}

std::string ErrorOf(const std::function<void()>& operation) {
  try {
    operation();
    return "none";
  } catch (const Error& error) {
    char number[16];
    const bool isObjectError = error.number() >> 16 == 0x8004;
    std::snprintf(number, sizeof number, isObjectError ? "%u " : "%08X ",
                  isObjectError ? error.number() & 0xFFFF : error.number());
    return number + error.description().utf8();
  }
}

}  // namespace praxen::detail
