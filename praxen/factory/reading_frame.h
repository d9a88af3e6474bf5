// The frame of all reading: the shared document with its schema, loading, and the checks of the
// document element.
#ifndef PRAXEN_FACTORY_READING_FRAME_H_
#define PRAXEN_FACTORY_READING_FRAME_H_

#include <memory>
#include <string_view>

#include "praxen/core/text.h"
#include "praxen/platform/xml_document.h"

namespace praxen {

/// Makes the reader document and finds the place of the schema: "PraxenSchema3_0.xsd" in the
/// current folder, beside the library or in the installed data folder, else the copy in the
/// library. The schema is read and compiled by the first loading.
std::unique_ptr<XmlDocument> InitXMLReader();

/// The one document through which everything is read.
XmlDocument& GetReaderDocument();

/// Gives up what a reading has loaded when it ends; nothing refers to the caller's text after that.
class LoadedDocument {
 public:
  /// Parses and validates the text; raises `InvalidXml`.
  explicit LoadedDocument(const Text& XMLStr);
  LoadedDocument(const LoadedDocument&) = delete;
  LoadedDocument& operator=(const LoadedDocument&) = delete;
  ~LoadedDocument();

  XmlNode root() const;
  /// Whether the root has that name; raises `InvalidXml` when it has, but not in the namespace of
  /// the exchange format.
  bool IsRoot(std::u16string_view name) const;
};

/// Loads a text whose root has that name; raises `WrongRootElement` when it has another.
std::unique_ptr<LoadedDocument> LoadXMLDocument(const Text& XMLStr, std::u16string_view RootName);

}  // namespace praxen

#endif  // PRAXEN_FACTORY_READING_FRAME_H_
