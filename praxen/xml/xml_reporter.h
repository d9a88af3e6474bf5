// What becomes of the parser's complaints.
#ifndef PRAXEN_XML_XML_REPORTER_H_
#define PRAXEN_XML_XML_REPORTER_H_

#include <string>
#include <xercesc/framework/XMLErrorReporter.hpp>

#include "praxen/core/place.h"
#include "praxen/xml/xml_reason.h"
#include "praxen/xml/xml_tree_builder.h"

namespace praxen::detail {

/// Keeps the first complaint that counts and ends the parsing with it.
class XmlReporter final : public xercesc::XMLErrorReporter {
 public:
  /// Leaves the parser at the first complaint.
  struct ParsingEnded {};

  /// Prepares for a parsing of which `builder` is told, null for a schema.
  void Begin(const XmlTreeBuilder* builder);
  /// Complains in place of the parser, about a schema's document of that name or about the text
  /// that is read; throws `ParsingEnded`.
  [[noreturn]] void Refuse(std::u16string text, Place place, std::u16string document = {});

  void error(unsigned int code, const XMLCh* domain, ErrTypes type, const XMLCh* text,
             const XMLCh* document, const XMLCh*, XMLFileLoc line, XMLFileLoc column) override;
  void resetErrors() override {}

  const XmlComplaint& complaint() const { return complaint_; }

 private:
  bool IsTolerated(XmlRuleList list, unsigned int code, ErrTypes type);

  const XmlTreeBuilder* builder_ = nullptr;
  bool rootUndeclared_ = false;
  XmlComplaint complaint_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_REPORTER_H_
