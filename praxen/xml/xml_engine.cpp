// Compiling the schema, and driving the parser over a text.
#include "praxen/xml/xml_engine.h"

#include <algorithm>
#include <new>
#include <string>
#include <utility>
#include <vector>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/SynchronizedStringPool.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/common/ContentSpecNode.hpp>
#include <xercesc/validators/common/Grammar.hpp>
#include <xercesc/validators/schema/ComplexTypeInfo.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>

#include "praxen/core/numbers.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_reason.h"
#include "praxen/xml/xml_schema_files.h"

namespace praxen::detail {
namespace {

// After so many characters, or so many names that the schema does not declare, what a scanner has
// kept of them is no longer little beside a new scanner.
constexpr size_t kMostReadCharacters = 1'000'000;
constexpr size_t kMostKeptNames = 100;

std::unique_ptr<xercesc::SGXMLScanner> NewScanner(xercesc::XMLDocumentHandler* handler,
                                                  xercesc::XMLEntityHandler& entities,
                                                  XmlReporter& reporter,
                                                  xercesc::GrammarResolver& grammars,
                                                  XmlMemory& memory) {
  auto scanner = std::make_unique<xercesc::SGXMLScanner>(handler, nullptr, &entities, &reporter,
                                                         nullptr, &grammars, &memory);
  scanner->setURIStringPool(grammars.getStringPool());
  scanner->setValidationScheme(xercesc::XMLScanner::Val_Always);
  scanner->setLoadSchema(false);
  scanner->setDisableDefaultEntityResolution(true);
  scanner->setCalculateSrcOfs(false);
  return scanner;
}

const XMLByte* Bytes(const void* data) { return static_cast<const XMLByte*>(data); }

// Does work of Xerces, which has an exception of its own for memory that runs out.
template <class Work>
auto WithMemory(Work work) {
  try {
    return work();
  } catch (const xercesc::OutOfMemoryException&) {
    throw std::bad_alloc();
  }
}

// The particles of a content model, of which one that may occur more than once takes so many as it
// has to or may. Xerces counts those of elements instead where none of a group is optional or may
// occur more than once. Ends when there are too many.
size_t CountParticles(const xercesc::ContentSpecNode& content) {
  struct Part {
    const xercesc::ContentSpecNode* node;
    size_t times;
  };
  size_t particles = 0, counted = 0;
  bool isSimple = true;
  std::vector<Part> parts{{&content, 1}};
  while (!parts.empty() && particles <= kMaxXmlSchemaParticles) {
    const auto [node, times] = parts.back();
    parts.pop_back();
    if (node == nullptr) continue;
    const int least = node->getMinOccurs(), most = node->getMaxOccurs();
    const auto occurrences = static_cast<size_t>(std::max({least, most, 1}));
    const size_t all = std::min(times * occurrences, kMaxXmlSchemaParticles + 1);
    if (node->getFirst() == nullptr && node->getSecond() == nullptr) {
      ++particles;
      counted = std::min(counted + all, kMaxXmlSchemaParticles + 1);
      continue;
    }
    isSimple = isSimple && least == 1 && most == 1;
    parts.push_back({node->getFirst(), all});
    parts.push_back({node->getSecond(), all});
  }
  return isSimple ? particles : counted;
}

// Runs the parser; the error that it ended with is left to `explain`.
template <class Parse, class Explain>
XmlParseError Run(Parse parse, Explain explain) {
  try {
    parse();
    return {};
  } catch (const XmlReporter::ParsingEnded&) {
    return explain();
  } catch (const xercesc::XMLException& failure) {
    return MakeXmlError(failure.getMessage(), {});
  }
}

}  // namespace

void XmlGrammarPool::RenewNamespaces() {
  constexpr unsigned int kLists = 109;
  namespaces_ = nullptr;
  namespaces_ = std::make_unique<xercesc::XMLSynchronizedStringPool>(getURIStringPool(), kLists,
                                                                     getMemoryManager());
}

void XmlGrammarPool::CompleteTypes(XmlReporter& reporter) {
  for (auto all = getGrammarEnumerator(); all.hasMoreElements();) {
    auto& grammar = dynamic_cast<xercesc::SchemaGrammar&>(all.nextElement());
    xercesc::RefHashTableOfEnumerator<xercesc::ComplexTypeInfo> types(
        grammar.getComplexTypeRegistry(), false, getMemoryManager());
    while (types.hasMoreElements()) {
      xercesc::ComplexTypeInfo& type = types.nextElement();
      const int content = type.getContentType();
      const bool hasModel = content == xercesc::SchemaElementDecl::Children ||
                            content == xercesc::SchemaElementDecl::Mixed_Complex;
      if (!hasModel || type.getContentSpec() == nullptr) continue;
      if (CountParticles(*type.getContentSpec()) > kMaxXmlSchemaParticles) {
        reporter.Refuse(
            u"the content of one type has too many particles, each counted as often as "
            u"it may occur; at most " +
                DecimalText(kMaxXmlSchemaParticles) + u" are allowed",
            {});
      }
      type.getContentModel();
    }
  }
}

xercesc::InputSource* NoEntities::resolveEntity(xercesc::XMLResourceIdentifier* resource) {
  if (resource->getResourceIdentifierType() != xercesc::XMLResourceIdentifier::ExternalEntity) {
    return nullptr;
  }
  return new xercesc::MemBufInputSource(nullptr, 0, xercesc::XMLUni::fgZeroLenString);
}

std::unique_ptr<XmlEngine> XmlEngine::Make(const XmlSchemaSource& schema) {
  return WithMemory([&] { return std::unique_ptr<XmlEngine>(new XmlEngine(schema)); });
}

XmlEngine::XmlEngine(const XmlSchemaSource& schema) {
  schemaError_ =
      Run([&] { CompileWithinBudget(schema); },
          [&] { return ExplainSchemaComplaint(schema.systemId, reporter_.complaint()); });
  memory_->RequireNoShortage();
  if (!schemaError_.reason.empty()) return;
  memory_->EndCompilation();
  MakeScanner();
  memory_->RequireNoShortage();
  builder_.onMarkup = [this] {
    memory_->RequireNoShortage();
    RequireWithinLimits();
  };
}

XmlEngine::~XmlEngine() { release_.emplace(*memory_); }

XmlLoadResult XmlEngine::Load(std::u16string_view text, XmlTree& tree) {
  memory_->ForgetShortage();
  return WithMemory([&] {
    // What a parser that could not end is good for is not known.
    retired_ = true;
    if (scanner_ == nullptr) MakeScanner();
    readCharacters_ += text.size();
    XmlLoadResult result;
    result.error =
        Run([&] { Parse(text, tree); },
            [&] {
              return ExplainXmlComplaint(text, reporter_.complaint(),
                                         {builder_.startedElements(), builder_.openElement()});
            });
    result.rootDeclared = builder_.rootDeclared();
    if (readCharacters_ > kMostReadCharacters || builder_.foreignNames().kept() > kMostKeptNames) {
      GiveUpScanner();
    }
    memory_->RequireNoShortage();
    retired_ = false;
    return result;
  });
}

void XmlEngine::CompileWithinBudget(const XmlSchemaSource& schema) {
  const XmlMemory::Budget budget(*memory_, kMaxXmlSchemaMemory);
  reporter_.Begin(nullptr);
  try {
    Compile(schema);
  } catch (const xercesc::OutOfMemoryException&) {
    if (!budget.isSpent()) throw;
    reporter_.Refuse(u"it takes too much to compile", {});
  } catch (const xercesc::XMLException& failure) {
    reporter_.Refuse(failure.getMessage(), {});
  }
}

void XmlEngine::Compile(const XmlSchemaSource& schema) {
  xercesc::GrammarResolver grammars(&pool_, memory_.get());
  XmlSchemaFiles files(schema, reporter_);
  const auto scanner = NewScanner(nullptr, files, reporter_, grammars, *memory_);
  const std::unique_ptr<xercesc::InputSource> source = files.Open();
  const xercesc::Grammar* const grammar =
      scanner->loadGrammar(*source, xercesc::Grammar::SchemaGrammarType, true);
  if (grammar == nullptr || grammar->getTargetNamespace() != schema.targetNamespace) {
    reporter_.Refuse(u"the target namespace is not '" + schema.targetNamespace + u"'", {});
  }
  pool_.CompleteTypes(reporter_);
}

void XmlEngine::Parse(std::u16string_view text, XmlTree& tree) {
  xercesc::MemBufInputSource source(Bytes(text.data()), text.size() * sizeof(char16_t),
                                    xercesc::XMLUni::fgZeroLenString);
  source.setEncoding(xercesc::XMLUni::fgXMLChEncodingString);
  source.setCopyBufToStream(false);
  builder_.Begin(tree);
  reporter_.Begin(&builder_);
  scanner_->scanDocument(source);
}

// The grammars stay; namespaces, names and the buffers of elements and attributes will be new.
void XmlEngine::GiveUpScanner() {
  const XmlMemory::Release release(*memory_);
  scanner_.reset();
  grammars_.reset();
}

void XmlEngine::MakeScanner() {
  pool_.RenewNamespaces();
  builder_.BeginParser();
  readCharacters_ = 0;
  grammars_ = std::make_unique<xercesc::GrammarResolver>(&pool_, memory_.get());
  scanner_ = NewScanner(&builder_, entities_, reporter_, *grammars_, *memory_);
  scanner_->useCachedGrammarInParse(true);
}

void XmlEngine::RequireWithinLimits() {
  std::u16string excess = builder_.foreignNames().Excess();
  if (builder_.hasLongValue()) {
    excess = u"an attribute value is too long; at most " + DecimalText(kMaxXmlAttributeLength) +
             u" characters are allowed";
  }
  if (excess.empty()) return;
  const xercesc::Locator& place = *scanner_->getLocator();
  reporter_.Refuse(std::move(excess), {static_cast<uint32_t>(place.getLineNumber()),
                                       static_cast<uint32_t>(place.getColumnNumber())});
}

}  // namespace praxen::detail
