// Limits of the documents that are read: beyond them a document is refused before it is parsed.
#ifndef PRAXEN_XML_XML_LIMITS_H_
#define PRAXEN_XML_XML_LIMITS_H_

#include <cstddef>
#include <cstdint>

namespace praxen::detail {

/// How deep elements may be nested; the root element has depth 1.
inline constexpr uint32_t kMaxXmlDepth = 1'000;

/// How many attributes one start tag may have, namespace declarations included.
inline constexpr uint32_t kMaxXmlAttributes = 1'000;

/// How many namespace declarations may be in scope at once. A prefix is looked up among them one
/// after the other.
inline constexpr uint32_t kMaxXmlNamespacesInScope = 200;

/// How many different names that the schema does not declare, prefixes included, how many elements
/// of such names and their namespaces, and how many different namespaces a document may use.
inline constexpr size_t kMaxXmlForeignNames = 2'000;

/// How many of these elements, and how many prefixes or namespaces, may fall into one list of the
/// parser's tables, which it searches from end to end. Only names that are chosen for it do.
inline constexpr size_t kMaxXmlAlikeElements = 200;
inline constexpr size_t kMaxXmlAlikeNamespaces = 64;

/// The length of a name of an element, attribute or processing instruction in UTF-16 units.
inline constexpr size_t kMaxXmlNameLength = 100'000;

/// The length of an attribute value in UTF-16 units, read and written, and how many it may take in
/// markup, where the longest reference that is written takes six.
inline constexpr size_t kMaxXmlAttributeLength = 10'000'000;
inline constexpr size_t kMaxXmlAttributeMarkup = 6 * kMaxXmlAttributeLength;

/// How many characters of namespace declarations may be added to pieces of a document that are
/// taken out of it, together: so many, and so many for each character of the document.
inline constexpr size_t kMaxXmlAddedDeclarations = 1'000'000;
inline constexpr size_t kMaxXmlAddedDeclarationsPerCharacter = 10;

/// How many bytes a schema may have, the files that it includes and imports among them, how many
/// files, and how many bytes may be asked for while it is compiled, which bounds the time too.
inline constexpr size_t kMaxXmlSchemaSize = 10'000'000;
inline constexpr size_t kMaxXmlSchemaFiles = 100;
inline constexpr size_t kMaxXmlSchemaMemory = 20'000'000;

/// How many particles the content of one type of a schema may have, each counted as often as it may
/// occur: the time for the automaton of the type grows faster than they do.
inline constexpr size_t kMaxXmlSchemaParticles = 500;

/// The length of a document in UTF-16 units.
inline constexpr size_t kMaxXmlDocumentLength = 500'000'000;

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_LIMITS_H_
