// Which complaints of the parser count.
#include "praxen/xml/xml_reporter.h"

#include <cstdint>
#include <utility>
#include <xercesc/framework/XMLValidityCodes.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace praxen::detail {
namespace {

XmlRuleList ListOf(const XMLCh* domain) {
  using xercesc::XMLString;
  using xercesc::XMLUni;
  if (XMLString::equals(domain, XMLUni::fgXMLErrDomain)) return XmlRuleList::Xml;
  if (XMLString::equals(domain, XMLUni::fgValidityDomain)) return XmlRuleList::Schema;
  return XmlRuleList::Other;
}

}  // namespace

void XmlReporter::Begin(const XmlTreeBuilder* builder) {
  builder_ = builder;
  rootUndeclared_ = false;
  complaint_ = {};
}

void XmlReporter::Refuse(std::u16string text, Place place, std::u16string document) {
  complaint_ = {XmlRuleList::Other, 0, true, std::move(text), place, std::move(document)};
  throw ParsingEnded();
}

void XmlReporter::error(unsigned int code, const XMLCh* domain, ErrTypes type, const XMLCh* text,
                        const XMLCh* document, const XMLCh*, XMLFileLoc line, XMLFileLoc column) {
  const XmlRuleList list = ListOf(domain);
  if (type == ErrType_Warning || IsTolerated(list, code, type)) return;
  complaint_ = {list,
                code,
                type == ErrType_Fatal,
                text,
                {static_cast<uint32_t>(line), static_cast<uint32_t>(column)},
                document == nullptr ? u"" : document};
  throw ParsingEnded();
}

// What an undeclared root element holds is only checked to be well-formed.
bool XmlReporter::IsTolerated(XmlRuleList list, unsigned int code, ErrTypes type) {
  using xercesc::XMLValid;
  if (builder_ != nullptr && builder_->startedElements() == 0 && list == XmlRuleList::Schema &&
      (code == XMLValid::ElementNotDefined || code == XMLValid::GrammarNotFound)) {
    rootUndeclared_ = true;
  }
  return rootUndeclared_ && type != ErrType_Fatal;
}

}  // namespace praxen::detail
