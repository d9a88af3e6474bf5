// Compiling the schema, and driving the parser over a text.
#include "praxen/xml/xml_engine.h"

#include <mutex>
#include <new>
#include <utility>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLEntityHandler.hpp>
#include <xercesc/framework/XMLErrorReporter.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/framework/XMLValidityCodes.hpp>
#include <xercesc/internal/SGXMLScanner.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PanicHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/common/Grammar.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>

#include "praxen/core/numbers.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_memory.h"
#include "praxen/xml/xml_reason.h"
#include "praxen/xml/xml_tree_builder.h"

namespace praxen::detail {
namespace {

// Keeps Xerces from ending the process.
class NoPanic final : public xercesc::PanicHandler {
 public:
  void panic(const PanicReasons) override { throw std::bad_alloc(); }
};

// Keeps Xerces initialised. Xerces counts its users, but not for several threads.
class XercesUse {
 public:
  XercesUse() {
    const std::lock_guard lock(mutex());
    // What was half made can be neither completed nor taken down.
    static bool isBroken = false;
    static NoPanic& panic = *new NoPanic;
    if (isBroken) throw std::bad_alloc();
    isBroken = true;
    xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, &panic);
    isBroken = false;
  }
  XercesUse(const XercesUse&) = delete;
  XercesUse& operator=(const XercesUse&) = delete;
  ~XercesUse() {
    const std::lock_guard lock(mutex());
    xercesc::XMLPlatformUtils::Terminate();
  }

 private:
  static std::mutex& mutex() {
    static std::mutex& mutex = *new std::mutex;
    return mutex;
  }
};

// Leaves the parser at the first complaint.
struct ParsingEnded {};

// Keeps the first complaint that counts and ends the parsing with it.
class Reporter final : public xercesc::XMLErrorReporter {
 public:
  void begin(const XmlTreeBuilder* builder) {
    builder_ = builder;
    rootUndeclared_ = false;
    complaint_ = {};
  }

  void error(unsigned int code, const XMLCh* domain, ErrTypes type, const XMLCh* text, const XMLCh*,
             const XMLCh*, XMLFileLoc line, XMLFileLoc column) override {
    const XmlRuleList list = listOf(domain);
    if (type == ErrType_Warning || isTolerated(list, code, type)) return;
    complaint_ = {list,
                  code,
                  type == ErrType_Fatal,
                  text,
                  {static_cast<uint32_t>(line), static_cast<uint32_t>(column)}};
    throw ParsingEnded();
  }
  void resetErrors() override {}

  const XmlComplaint& complaint() const { return complaint_; }

 private:
  static XmlRuleList listOf(const XMLCh* domain) {
    using xercesc::XMLString;
    using xercesc::XMLUni;
    if (XMLString::equals(domain, XMLUni::fgXMLErrDomain)) return XmlRuleList::kXml;
    if (XMLString::equals(domain, XMLUni::fgValidityDomain)) return XmlRuleList::kSchema;
    return XmlRuleList::kOther;
  }

  // What an undeclared root element holds is only checked to be well-formed.
  bool isTolerated(XmlRuleList list, unsigned int code, ErrTypes type) {
    if (builder_ != nullptr && builder_->startedElements() == 0 && list == XmlRuleList::kSchema &&
        (code == xercesc::XMLValid::ElementNotDefined ||
         code == xercesc::XMLValid::GrammarNotFound)) {
      rootUndeclared_ = true;
    }
    return rootUndeclared_ && type != ErrType_Fatal;
  }

  const XmlTreeBuilder* builder_ = nullptr;
  bool rootUndeclared_ = false;
  XmlComplaint complaint_;
};

// Keeps the parser from opening files and connections: schemas are not found, entities are empty.
class NoEntities final : public xercesc::XMLEntityHandler {
 public:
  xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override {
    if (resource->getResourceIdentifierType() != xercesc::XMLResourceIdentifier::ExternalEntity) {
      return nullptr;
    }
    return new xercesc::MemBufInputSource(nullptr, 0, xercesc::XMLUni::fgZeroLenString);
  }
  bool expandSystemId(const XMLCh*, xercesc::XMLBuffer&) override { return false; }
  void endInputSource(const xercesc::InputSource&) override {}
  void startInputSource(const xercesc::InputSource&) override {}
  void resetEntities() override {}
};

std::unique_ptr<xercesc::SGXMLScanner> MakeScanner(xercesc::XMLDocumentHandler* handler,
                                                   NoEntities& entities, Reporter& reporter,
                                                   xercesc::GrammarResolver& grammars) {
  auto scanner = std::make_unique<xercesc::SGXMLScanner>(
      handler, nullptr, &entities, &reporter, nullptr, &grammars, &XmlMemory::Instance());
  scanner->setURIStringPool(grammars.getStringPool());
  scanner->setValidationScheme(xercesc::XMLScanner::Val_Always);
  scanner->setLoadSchema(false);
  scanner->setDisableDefaultEntityResolution(true);
  scanner->setCalculateSrcOfs(false);
  return scanner;
}

const XMLByte* Bytes(const void* data) { return static_cast<const XMLByte*>(data); }

// Does work of Xerces, which has an exception of its own for want of memory.
template <class Work>
auto WithMemory(Work work) {
  XmlMemory::Instance().ForgetShortage();
  try {
    return work();
  } catch (const xercesc::OutOfMemoryException&) {
    throw std::bad_alloc();
  }
}

// Runs the parser; the error that it ended with is left to `explain`.
template <class Parse, class Explain>
XmlParseError Run(Parse parse, Explain explain) {
  try {
    parse();
    return {};
  } catch (const ParsingEnded&) {
    return explain();
  } catch (const xercesc::XMLException& failure) {
    return MakeXmlError(failure.getMessage(), {});
  }
}

}  // namespace

class XmlEngine::Parser {
 public:
  explicit Parser(const XmlSchemaSource& schema) {
    schemaError_ =
        Run([&] { compile(schema); },
            [&] {
              const std::u16string systemId(schema.systemId.begin(), schema.systemId.end());
              return ExplainSchemaComplaint(systemId, reporter_.complaint());
            });
    XmlMemory::Instance().RequireNoShortage();
    if (!schemaError_.reason.empty()) return;
    pool_.lockPool();
    grammars_ = std::make_unique<xercesc::GrammarResolver>(&pool_, &XmlMemory::Instance());
    scanner_ = MakeScanner(&builder_, entities_, reporter_, *grammars_);
    scanner_->useCachedGrammarInParse(true);
    ownNamespaces_ = namespaces();
    XmlMemory::Instance().RequireNoShortage();
    builder_.onElement = [this] {
      XmlMemory::Instance().RequireNoShortage();
      checkNames();
    };
  }

  XmlLoadResult load(std::u16string_view text, XmlTree& tree) {
    // What a parser that could not end is good for is not known.
    retired_ = true;
    XmlLoadResult result;
    result.error =
        Run([&] { parse(text, tree); },
            [&] {
              return ExplainXmlComplaint(text, reporter_.complaint(),
                                         {builder_.startedElements(), builder_.openElement()});
            });
    result.rootDeclared = builder_.rootDeclared();
    XmlMemory::Instance().RequireNoShortage();
    retired_ = namespaces() > ownNamespaces_ + kMaxXmlForeignNames / 2;
    return result;
  }

  const XmlParseError& schemaError() const { return schemaError_; }
  bool retired() const { return retired_; }

 private:
  void compile(const XmlSchemaSource& schema) {
    xercesc::GrammarResolver grammars(&pool_, &XmlMemory::Instance());
    const auto scanner = MakeScanner(nullptr, entities_, reporter_, grammars);
    const xercesc::MemBufInputSource source(Bytes(schema.content.data()), schema.content.size(),
                                            schema.systemId.c_str());
    reporter_.begin(nullptr);
    const xercesc::Grammar* const grammar =
        scanner->loadGrammar(source, xercesc::Grammar::SchemaGrammarType, true);
    if (grammar != nullptr && grammar->getTargetNamespace() == schema.targetNamespace) return;
    reporter_.error(0, nullptr, xercesc::XMLErrorReporter::ErrType_Error,
                    (u"the target namespace is not '" + schema.targetNamespace + u"'").c_str(),
                    nullptr, nullptr, 0, 0);
  }

  void parse(std::u16string_view text, XmlTree& tree) {
    xercesc::MemBufInputSource source(Bytes(text.data()), text.size() * sizeof(char16_t),
                                      xercesc::XMLUni::fgZeroLenString);
    source.setEncoding(xercesc::XMLUni::fgXMLChEncodingString);
    source.setCopyBufToStream(false);
    builder_.begin(tree);
    reporter_.begin(&builder_);
    scanner_->scanDocument(source);
  }

  size_t namespaces() const { return grammars_->getStringPool()->getStringCount(); }

  // Xerces looks names up in tables that can be made slow by a choice of names.
  void checkNames() {
    if (builder_.foreignNames() <= kMaxXmlForeignNames &&
        namespaces() <= ownNamespaces_ + 2 * kMaxXmlForeignNames) {
      return;
    }
    const xercesc::Locator& place = *scanner_->getLocator();
    reporter_.error(0, nullptr, xercesc::XMLErrorReporter::ErrType_Fatal,
                    (u"too many different names that the schema does not declare; at most " +
                     DecimalText(kMaxXmlForeignNames) + u" are allowed")
                        .c_str(),
                    nullptr, nullptr, place.getLineNumber(), place.getColumnNumber());
  }

  // First, because everything else needs Xerces up to its end.
  const XercesUse xerces_;
  NoEntities entities_;
  Reporter reporter_;
  XmlTreeBuilder builder_;
  xercesc::XMLGrammarPoolImpl pool_{&XmlMemory::Instance()};
  std::unique_ptr<xercesc::GrammarResolver> grammars_;
  std::unique_ptr<xercesc::SGXMLScanner> scanner_;
  XmlParseError schemaError_;
  size_t ownNamespaces_ = 0;
  bool retired_ = false;
};

XmlEngine::XmlEngine(const XmlSchemaSource& schema)
    : parser_(WithMemory([&] { return std::make_unique<Parser>(schema); })) {}

XmlEngine::~XmlEngine() {
  const XmlMemory::Release release(XmlMemory::Instance());
  parser_.reset();
}

const XmlParseError& XmlEngine::schemaError() const { return parser_->schemaError(); }

XmlLoadResult XmlEngine::load(std::u16string_view text, XmlTree& tree) {
  return WithMemory([&] { return parser_->load(text, tree); });
}

bool XmlEngine::retired() const { return parser_->retired(); }

}  // namespace praxen::detail
