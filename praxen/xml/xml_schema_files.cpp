// Decoding of schema documents, and which files a schema may name.
#include "praxen/xml/xml_schema_files.h"

#include <optional>
#include <utility>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "praxen/core/ascii.h"
#include "praxen/core/numbers.h"
#include "praxen/core/text.h"
#include "praxen/xml/xml_check.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_markup.h"

namespace praxen::detail {
namespace {

std::u16string FromUtf16(std::string_view bytes, bool isBigEndian) {
  std::u16string text;
  text.reserve(bytes.size() / 2);
  for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto high = static_cast<unsigned char>(bytes[isBigEndian ? i : i + 1]);
    const auto low = static_cast<unsigned char>(bytes[isBigEndian ? i + 1 : i]);
    text += static_cast<char16_t>(high << 8 | low);
  }
  return text;
}

std::u16string Widened(std::string_view bytes) {
  std::u16string text;
  for (const char c : bytes) text += static_cast<char16_t>(static_cast<unsigned char>(c));
  return text;
}

// The encoding that the declaration of a document in single bytes names; empty when it names none.
std::u16string DeclaredEncoding(std::string_view bytes) {
  if (!bytes.starts_with("<?xml")) return {};
  const std::u16string declaration = Widened(bytes.substr(0, bytes.find('>')));
  for (XmlRawAttribute attribute = NextXmlAttribute(declaration, 5);
       attribute.offset != std::u16string_view::npos;) {
    if (attribute.name == u"encoding") return std::u16string(attribute.value);
    const auto close = static_cast<size_t>(attribute.value.end() - declaration.data());
    attribute = NextXmlAttribute(declaration, close + 1);
  }
  return {};
}

bool Is(std::u16string_view encoding, std::string_view name) {
  return EqualsIgnoringCase(encoding, name);
}

// A name without a folder, which cannot lead out of the one in which it is looked for.
bool IsFileName(std::u16string_view name) {
  return !name.empty() && name != u"." && name != u".." &&
         name.find_first_of(u"/\\:%?#") == std::u16string_view::npos;
}

}  // namespace

xercesc::InputSource* XmlSchemaFiles::resolveEntity(xercesc::XMLResourceIdentifier* resource) {
  if (resource->getSystemId() == nullptr) return nullptr;
  const std::u16string name = resource->getSystemId();
  if (!IsFileName(name)) {
    reporter_.Refuse(u"it refers to '" + name + u"', and only files beside it are read", {});
  }
  const std::optional<std::string> bytes =
      schema_.neighbour == nullptr ? std::nullopt : schema_.neighbour(name);
  if (!bytes) {
    reporter_.Refuse(u"there is no file '" + name + u"' beside it that could be read", {});
  }
  return Open(*bytes, name).release();
}

std::unique_ptr<xercesc::InputSource> XmlSchemaFiles::Open(std::string_view bytes,
                                                           const std::u16string& name) {
  size_ += bytes.size();
  if (size_ > kMaxXmlSchemaSize || texts_.size() == kMaxXmlSchemaFiles) {
    reporter_.Refuse(u"it is too large; at most " + DecimalText(kMaxXmlSchemaSize) + u" bytes in " +
                         DecimalText(kMaxXmlSchemaFiles) + u" files are allowed",
                     {}, name);
  }
  const std::u16string& text = texts_.emplace_back(Decode(bytes, name));
  if (const std::optional<XmlParseError> fault = CheckXmlText(text)) {
    reporter_.Refuse(fault->reason.substr(0, fault->reason.rfind(u" (")), fault->place, name);
  }
  auto source = std::make_unique<xercesc::MemBufInputSource>(
      reinterpret_cast<const XMLByte*>(text.data()), text.size() * sizeof(char16_t), name.c_str());
  source->setEncoding(xercesc::XMLUni::fgXMLChEncodingString);
  source->setCopyBufToStream(false);
  return source;
}

std::u16string XmlSchemaFiles::Decode(std::string_view bytes, const std::u16string& name) const {
  using namespace std::string_view_literals;
  if (bytes.starts_with("\xFF\xFE"sv)) return FromUtf16(bytes.substr(2), false);
  if (bytes.starts_with("\xFE\xFF"sv)) return FromUtf16(bytes.substr(2), true);
  if (bytes.starts_with("<\0"sv)) return FromUtf16(bytes, false);
  if (bytes.starts_with("\0<"sv)) return FromUtf16(bytes, true);
  if (bytes.starts_with("\xEF\xBB\xBF"sv)) bytes.remove_prefix(3);
  const std::u16string encoding = DeclaredEncoding(bytes);
  if (Is(encoding, "ISO-8859-1")) return Widened(bytes);
  const bool isUtf8 = encoding.empty() || Is(encoding, "UTF-8") || Is(encoding, "US-ASCII");
  std::u16string text = FromUtf8(bytes);
  if (!isUtf8 || ToUtf8(text) != bytes) {
    reporter_.Refuse(isUtf8 ? u"it is not in UTF-8, as it should be"
                            : u"its encoding '" + encoding + u"' is not known",
                     {}, name);
  }
  return text;
}

}  // namespace praxen::detail
