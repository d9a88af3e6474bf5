// CodeSynthesis C++/Tree, whose generated classes hold a program.
#include <closed_program.hxx>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "bench/peers.h"

namespace praxen::detail::bench {
namespace {

struct StopAtError final : xercesc::DOMErrorHandler {
  bool handleError(const xercesc::DOMError& error) override {
    failed |= error.getSeverity() != xercesc::DOMError::DOM_SEVERITY_WARNING;
    return true;
  }

  bool failed = false;
};

struct Released {
  template <class T>
  void operator()(T* object) const {
    object->release();
  }
};

struct Objects final : Parsed {
  explicit Objects(std::unique_ptr<tree::ProgramContent> content) : program(std::move(content)) {}

  size_t elements() const override;

  std::unique_ptr<tree::ProgramContent> program;
};

std::shared_ptr<xercesc::MemBufFormatTarget> Serialize(const tree::ProgramContent& program) {
  static const xml_schema::namespace_infomap names = [] {
    xml_schema::namespace_infomap map;
    map[""].name = "PraxenSchema3_0";
    return map;
  }();
  auto target = std::make_shared<xercesc::MemBufFormatTarget>();
  tree::Program(*target, program, names, "UTF-16LE",
                xml_schema::flags::dont_initialize | xml_schema::flags::dont_pretty_print);
  return target;
}

// Counted by another peer, in what the objects write.
size_t Objects::elements() const {
  const auto target = Serialize(*program);
  std::u16string text(target->getLen() / sizeof(char16_t), u'\0');
  std::memcpy(text.data(), target->getRawBuffer(), target->getLen());
  return PugixmlReader()(text)->elements();
}

class Parser {
 public:
  Parser() {
    using xercesc::XMLUni;
    auto* const implementation = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
    parser_.reset(
        implementation->createLSParser(xercesc::DOMImplementationLS::MODE_SYNCHRONOUS, nullptr,
                                       xercesc::XMLPlatformUtils::fgMemoryManager, &pool_));
    xercesc::DOMConfiguration& configuration = *parser_->getDomConfig();
    configuration.setParameter(XMLUni::fgDOMComments, false);
    configuration.setParameter(XMLUni::fgDOMDatatypeNormalization, true);
    configuration.setParameter(XMLUni::fgDOMEntities, false);
    configuration.setParameter(XMLUni::fgDOMNamespaces, true);
    configuration.setParameter(XMLUni::fgDOMElementContentWhitespace, false);
    configuration.setParameter(XMLUni::fgDOMValidate, true);
    configuration.setParameter(XMLUni::fgXercesSchema, true);
    configuration.setParameter(XMLUni::fgXercesSchemaFullChecking, false);
    configuration.setParameter(XMLUni::fgXercesUserAdoptsDOMDocument, true);
    configuration.setParameter(XMLUni::fgDOMErrorHandler, &errors_);
    LoadSchema();
    configuration.setParameter(XMLUni::fgXercesUseCachedGrammarInParse, true);
    configuration.setParameter(XMLUni::fgXercesLoadSchema, false);
  }

  std::unique_ptr<tree::ProgramContent> Parse(std::u16string_view text) {
    xercesc::MemBufInputSource bytes(reinterpret_cast<const XMLByte*>(text.data()),
                                     text.size() * sizeof(char16_t), "text");
    bytes.setEncoding(xercesc::XMLUni::fgXMLChEncodingString);
    bytes.setCopyBufToStream(false);
    const xercesc::Wrapper4InputSource source(&bytes, false);
    const std::unique_ptr<xercesc::DOMDocument, Released> document(parser_->parse(&source));
    if (errors_.failed) throw std::runtime_error("invalid");
    return tree::Program(*document, xml_schema::flags::dont_initialize);
  }

 private:
  void LoadSchema() {
    std::ifstream file(PRAXEN_CLOSED_SCHEMA, std::ios::binary);
    const std::string schema{std::istreambuf_iterator<char>(file), {}};
    xercesc::MemBufInputSource bytes(reinterpret_cast<const XMLByte*>(schema.data()), schema.size(),
                                     "schema");
    const xercesc::Wrapper4InputSource source(&bytes, false);
    parser_->loadGrammar(&source, xercesc::Grammar::SchemaGrammarType, true);
    if (errors_.failed || schema.empty()) throw std::runtime_error("schema");
    pool_.lockPool();
  }

  StopAtError errors_;
  xercesc::XMLGrammarPoolImpl pool_;
  std::unique_ptr<xercesc::DOMLSParser, Released> parser_;
};

std::shared_ptr<Parser> NewParser() {
  xercesc::XMLPlatformUtils::Initialize();
  return std::make_shared<Parser>();
}

}  // namespace

Reader TreeReader() {
  return [parser = NewParser()](std::u16string_view text) {
    return std::make_shared<Objects>(parser->Parse(text));
  };
}

Writer TreeWriter(std::u16string_view text) {
  return [objects = std::make_shared<Objects>(NewParser()->Parse(text))] {
    return Serialize(*objects->program);
  };
}

}  // namespace praxen::detail::bench
