// From the parser's reports to nodes.
#include "praxen/xml/xml_tree_builder.h"

#include <cstdint>

#include "praxen/xml/xml_limits.h"

namespace praxen::detail {
namespace {

// Attributes beyond this number on one declaration come from a wildcard and are not remembered.
constexpr size_t kRememberedAttributes = 256;

constexpr std::u16string_view kXmlns = u"xmlns";

bool Equals(const XMLCh* text, std::u16string_view other) {
  for (const char16_t c : other) {
    if (*text++ != c) return false;
  }
  return *text == 0;
}

}  // namespace

void XmlTreeBuilder::Begin(XmlTree& tree) {
  tree_ = &tree;
  startedElements_ = 0;
  rootDeclared_ = false;
  hasLongValue_ = false;
  foreignNames_.BeginDocument();
}

void XmlTreeBuilder::BeginParser() {
  foreignNames_.BeginParser();
  // Attributes that wildcards let in are among those that are known.
  known_.clear();
  schemaNames_.Clear();
}

std::u16string_view XmlTreeBuilder::openElement() const {
  return tree_->depth() == 0 ? std::u16string_view() : *tree_->openElement().name;
}

void XmlTreeBuilder::startElement(const xercesc::XMLElementDecl& declaration, unsigned int,
                                  const XMLCh* prefix,
                                  const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                                  XMLSize_t attributeCount, bool, bool isRoot) {
  ++startedElements_;
  const bool declared = declaration.isDeclared();
  if (isRoot) rootDeclared_ = declared;
  // Only declarations of the schema live longer than the load.
  KnownElement* const element = declared ? &Known(declaration) : nullptr;
  if (!declared) foreignNames_.AddElement(declaration.getId(), declaration.getBaseName());
  const XmlName name = element != nullptr && *prefix == 0
                           ? element->name
                           : foreignNames_.Intern(Qualified(prefix, declaration.getBaseName()));

  ++element_;
  XmlAttribute* const run = tree_->NewAttributes(attributeCount);
  size_t count = 0;
  size_t cursor = 0;
  for (XMLSize_t i = 0; i < attributeCount; ++i) {
    const xercesc::XMLAttr& given = *attributes.elementAt(i);
    const bool specified = given.getSpecified();
    const bool declaresPrefix = *given.getPrefix() != 0 && Equals(given.getPrefix(), kXmlns);
    if (declaresPrefix || (*given.getName() == u'x' && Equals(given.getName(), kXmlns))) {
      AddNamespace(declaresPrefix ? given.getName() : u"", given.getValue());
    }
    KnownAttribute* const attribute =
        element == nullptr || declaresPrefix ? nullptr : Find(*element, cursor, given);
    if (attribute != nullptr) {
      // Where it does not validate, as inside an unknown element, Xerces adds the default of an
      // attribute also when the text gives it.
      if (!specified && attribute->givenIn == element_) continue;
      attribute->givenIn = element_;
    }
    const std::u16string_view value =
        specified ? tree_->Copy(given.getValue()) : DefaultValue(attribute, given.getValue());
    if (value.size() > kMaxXmlAttributeLength) hasLongValue_ = true;
    run[count++] = {attribute != nullptr
                        ? attribute->name
                        : foreignNames_.Intern(Qualified(given.getPrefix(), given.getName())),
                    value.data(), static_cast<uint32_t>(value.size()), specified};
  }
  tree_->AddElement(name, {run, count});
  if (onMarkup) onMarkup();
}

void XmlTreeBuilder::endElement(const xercesc::XMLElementDecl&, unsigned int, bool, const XMLCh*) {
  tree_->EndElement();
}

void XmlTreeBuilder::docCharacters(const XMLCh* characters, XMLSize_t length, bool) {
  tree_->AddText({characters, length});
}

void XmlTreeBuilder::docComment(const XMLCh* comment) { tree_->AddComment(comment); }

void XmlTreeBuilder::docPI(const XMLCh* target, const XMLCh* data) {
  tree_->AddInstruction(foreignNames_.Intern(target), data);
  if (onMarkup) onMarkup();
}

void XmlTreeBuilder::AddNamespace(std::u16string_view prefix, std::u16string_view name) {
  const bool isSchemas = prefix.empty() && name == tree_->targetNamespace();
  if (!isSchemas) foreignNames_.AddNamespace(prefix, name);
}

XmlTreeBuilder::KnownElement& XmlTreeBuilder::Known(const xercesc::XMLElementDecl& declaration) {
  KnownElement& element = known_[&declaration];
  if (element.name == nullptr) element.name = schemaNames_.Intern(declaration.getBaseName());
  return element;
}

// What is known of the attribute, which is mostly found at the cursor; null when it is not to be
// remembered.
XmlTreeBuilder::KnownAttribute* XmlTreeBuilder::Find(KnownElement& element, size_t& cursor,
                                                     const xercesc::XMLAttr& attribute) {
  const bool prefixed = *attribute.getPrefix() != 0;
  std::vector<KnownAttribute>& all = element.attributes;
  if (!prefixed && cursor < all.size() && Equals(attribute.getName(), *all[cursor].name)) {
    return &all[cursor++];
  }
  const std::u16string_view name = Qualified(attribute.getPrefix(), attribute.getName());
  for (size_t i = 0; i < all.size(); ++i) {
    if (*all[i].name != name) continue;
    cursor = i + 1;
    return &all[i];
  }
  if (all.size() == kRememberedAttributes) return nullptr;
  all.push_back({schemaNames_.Intern(name)});
  cursor = all.size();
  return &all.back();
}

std::u16string_view XmlTreeBuilder::DefaultValue(KnownAttribute* attribute, const XMLCh* value) {
  if (attribute != nullptr && attribute->defaultValue.data() != nullptr &&
      Equals(value, attribute->defaultValue)) {
    return attribute->defaultValue;
  }
  const std::u16string_view text = value;
  auto kept = defaultValues_.find(text);
  if (kept == defaultValues_.end()) kept = defaultValues_.emplace(text).first;
  if (attribute != nullptr) attribute->defaultValue = *kept;
  return *kept;
}

// The name with its prefix, valid until the next call.
std::u16string_view XmlTreeBuilder::Qualified(const XMLCh* prefix, const XMLCh* local) {
  if (*prefix == 0) return local;
  qualifiedName_ = prefix;
  return qualifiedName_.append(u":").append(local);
}

}  // namespace praxen::detail
