// Xerces-C's SAX2 reader.
#include <stdexcept>
#include <string>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "bench/peers.h"
#include "tools/generate/schema.h"

namespace praxen::detail::bench {
namespace {

struct Events final : Parsed {
  size_t elements() const override { return started; }

  size_t started = 0;
  size_t attributes = 0;
  size_t characters = 0;
};

class Counter final : public xercesc::DefaultHandler {
 public:
  void startElement(const XMLCh*, const XMLCh*, const XMLCh*,
                    const xercesc::Attributes& attributes) override {
    ++events.started;
    events.attributes += attributes.getLength();
  }
  void characters(const XMLCh*, const XMLSize_t length) override { events.characters += length; }
  void error(const xercesc::SAXParseException&) override { throw std::runtime_error("invalid"); }
  void fatalError(const xercesc::SAXParseException&) override {
    throw std::runtime_error("malformed");
  }

  Events events;
};

class Parser {
 public:
  Parser() {
    using xercesc::XMLUni;
    reader_.reset(xercesc::XMLReaderFactory::createXMLReader(
        xercesc::XMLPlatformUtils::fgMemoryManager, &pool_));
    reader_->setFeature(XMLUni::fgSAX2CoreValidation, true);
    reader_->setFeature(XMLUni::fgXercesDynamic, false);
    reader_->setFeature(XMLUni::fgXercesSchema, true);
    reader_->setErrorHandler(&counter_);
    reader_->setContentHandler(&counter_);
    const std::string schema = GenerateSchema();
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(schema.data()),
                                            schema.size(), "schema");
    reader_->loadGrammar(source, xercesc::Grammar::SchemaGrammarType, true);
    pool_.lockPool();
    reader_->setFeature(XMLUni::fgXercesUseCachedGrammarInParse, true);
    reader_->setFeature(XMLUni::fgXercesLoadSchema, false);
  }

  std::shared_ptr<Parsed> Parse(std::u16string_view text) {
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()),
                                      text.size() * sizeof(char16_t), "text");
    source.setEncoding(xercesc::XMLUni::fgXMLChEncodingString);
    source.setCopyBufToStream(false);
    counter_.events = {};
    reader_->parse(source);
    return std::make_shared<Events>(counter_.events);
  }

 private:
  Counter counter_;
  xercesc::XMLGrammarPoolImpl pool_;
  std::unique_ptr<xercesc::SAX2XMLReader> reader_;
};

}  // namespace

Reader XercesReader() {
  xercesc::XMLPlatformUtils::Initialize();
  return [parser = std::make_shared<Parser>()](std::u16string_view text) {
    return parser->Parse(text);
  };
}

}  // namespace praxen::detail::bench
