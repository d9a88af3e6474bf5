// libxml2's document tree.
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlschemas.h>

#include <stdexcept>
#include <string>

#include "bench/peers.h"
#include "tools/generate/schema.h"

namespace praxen::detail::bench {
namespace {

template <auto Free>
struct Freed {
  template <class T>
  void operator()(T* object) const {
    Free(object);
  }
};

size_t CountElements(const xmlNode* node) {
  size_t count = 0;
  for (; node != nullptr; node = node->next) {
    if (node->type == XML_ELEMENT_NODE) count += 1 + CountElements(node->children);
  }
  return count;
}

class Tree final : public Parsed {
 public:
  explicit Tree(std::u16string_view text)
      : document_(xmlReadMemory(reinterpret_cast<const char*>(text.data()),
                                static_cast<int>(text.size() * sizeof(char16_t)), nullptr,
                                "UTF-16LE",
                                XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_NOWARNING)) {
    if (document_ == nullptr) throw std::runtime_error("malformed");
  }

  xmlDoc* document() const { return document_.get(); }
  size_t elements() const override { return CountElements(xmlDocGetRootElement(document_.get())); }

 private:
  std::unique_ptr<xmlDoc, Freed<xmlFreeDoc>> document_;
};

class Schema {
 public:
  Schema() {
    const std::string text = GenerateSchema();
    const std::unique_ptr<xmlSchemaParserCtxt, Freed<xmlSchemaFreeParserCtxt>> parser(
        xmlSchemaNewMemParserCtxt(text.data(), static_cast<int>(text.size())));
    schema_.reset(xmlSchemaParse(parser.get()));
    if (schema_ == nullptr) throw std::runtime_error("schema");
  }

  void Validate(xmlDoc* document) const {
    const std::unique_ptr<xmlSchemaValidCtxt, Freed<xmlSchemaFreeValidCtxt>> context(
        xmlSchemaNewValidCtxt(schema_.get()));
    xmlSchemaSetValidOptions(context.get(), XML_SCHEMA_VAL_VC_I_CREATE);
    if (xmlSchemaValidateDoc(context.get(), document) != 0) throw std::runtime_error("invalid");
  }

 private:
  std::unique_ptr<xmlSchema, Freed<xmlSchemaFree>> schema_;
};

}  // namespace

Reader Libxml2Reader() {
  return [schema = std::make_shared<Schema>()](std::u16string_view text) {
    auto tree = std::make_shared<Tree>(text);
    schema->Validate(tree->document());
    return tree;
  };
}

}  // namespace praxen::detail::bench
