// The frame of all reading: the place of the schema, loading, and the checks of the document
// element.
#ifndef PRAXEN_FACTORY_READING_FRAME_H_
#define PRAXEN_FACTORY_READING_FRAME_H_

#include <functional>
#include <string_view>

#include "praxen/core/losses.h"
#include "praxen/core/region.h"
#include "praxen/core/text.h"
#include "praxen/describe/document_values.h"
#include "praxen/describe/object.h"
#include "praxen/factory/library.h"
#include "praxen/xml/xml_document.h"

namespace praxen::detail {

inline constexpr std::u16string_view kSchemaNamespace = u"PraxenSchema3_0";

/// Finds the place of the schema: "PraxenSchema3_0.xsd" in the current folder, beside the library
/// or in the installed data folder, else the copy in the library. What is returned gives the
/// schema, to any thread: the first call reads it, and it is kept.
std::function<XmlSchemaSource()> FindSchema();

/// Whether that is the schema which the library came with, whatever place it has. Raises
/// `UnusableSchema` when it cannot be read.
bool IsShippedSchemaUsed();

/// While a document of so many characters is read: its objects lie in one region, and what its
/// values have in common is given up as this ends.
class DocumentInReading {
 public:
  explicit DocumentInReading(size_t characters);
  DocumentInReading(const DocumentInReading&) = delete;
  DocumentInReading& operator=(const DocumentInReading&) = delete;
  ~DocumentInReading();

 private:
  DocumentValues& values_ = DocumentValues::Instance();
  Region region_;
};

/// A document that is being read. What it has loaded is given up when it ends; nothing refers to
/// the caller's text after that.
class LoadedDocument {
 public:
  /// Parses and validates the text; raises `InvalidXml`, or `UnusableSchema` when that is at fault.
  explicit LoadedDocument(const Text& XMLStr);
  /// The same for a text whose root has to have that name; raises `WrongRootElement` when it has
  /// another.
  LoadedDocument(const Text& XMLStr, std::u16string_view rootName);
  LoadedDocument(const LoadedDocument&) = delete;
  LoadedDocument& operator=(const LoadedDocument&) = delete;

  XmlNode root() const { return document_->documentElement(); }
  /// Whether the root has that name; raises `InvalidXml` when it has, but not in the namespace of
  /// the exchange format, or not as the schema declares it.
  bool IsRoot(std::u16string_view name) const;
  /// Fills a fresh object from the root; what that leaves out replaces `losses` when these are
  /// given.
  void ReadRoot(Object& object, Losses* losses) const;

 private:
  // The nodes refer to its characters.
  const Text text_;
  const DocumentInReading inReading_{text_.size()};
  const ReaderDocument document_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_FACTORY_READING_FRAME_H_
