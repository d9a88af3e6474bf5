// The documents of which a schema consists.
#ifndef PRAXEN_XML_XML_SCHEMA_FILES_H_
#define PRAXEN_XML_XML_SCHEMA_FILES_H_

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <xercesc/framework/XMLEntityHandler.hpp>
#include <xercesc/sax/InputSource.hpp>

#include "praxen/xml/xml_reporter.h"
#include "praxen/xml/xml_schema_source.h"

namespace praxen::detail {

/// Gives Xerces the document of a schema and those that it includes or imports, which are files
/// beside it. Each is looked over as documents are, so that none has a document type declaration.
/// What is refused is told to the reporter. Lives as long as the schema is compiled.
class XmlSchemaFiles final : public xercesc::XMLEntityHandler {
 public:
  XmlSchemaFiles(const XmlSchemaSource& schema, XmlReporter& reporter)
      : schema_(schema), reporter_(reporter) {}

  /// The schema document itself.
  std::unique_ptr<xercesc::InputSource> Open() { return Open(schema_.content, schema_.systemId); }

  xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;
  bool expandSystemId(const XMLCh*, xercesc::XMLBuffer&) override { return false; }
  void endInputSource(const xercesc::InputSource&) override {}
  void startInputSource(const xercesc::InputSource&) override {}
  void resetEntities() override {}

 private:
  std::unique_ptr<xercesc::InputSource> Open(std::string_view bytes, const std::u16string& name);
  std::u16string Decode(std::string_view bytes, const std::u16string& name) const;

  const XmlSchemaSource& schema_;
  XmlReporter& reporter_;
  /// What Xerces reads from.
  std::deque<std::u16string> texts_;
  size_t size_ = 0;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_SCHEMA_FILES_H_
