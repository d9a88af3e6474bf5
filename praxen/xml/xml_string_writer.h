// XMLStringWriter, the forward-only writer through which every object serializes.
#ifndef PRAXEN_XML_XML_STRING_WRITER_H_
#define PRAXEN_XML_XML_STRING_WRITER_H_

#include <cstdint>
#include <memory>
#include <string_view>

#include "praxen/core/string_builder.h"
#include "praxen/core/text.h"

namespace praxen::detail {

/// Writes a document into a text buffer, without indentation and without checks of names or
/// nesting order.
///
/// Attribute values stand between apostrophes. Line breaks are CR LF, and are left out while
/// `IncludeCRLFInXML` is false. A writer counts as one live object, unless it is one of those that
/// together stand for the shared writer. It is used by one thread at a time.
class XMLStringWriter {
 public:
  enum class Counting : bool { No, Yes };

  explicit XMLStringWriter(Counting counting = Counting::Yes);
  ~XMLStringWriter();
  XMLStringWriter(const XMLStringWriter&) = delete;
  XMLStringWriter& operator=(const XMLStringWriter&) = delete;

  /// Empties the buffer and writes the declaration.
  void WriteStartDocument();
  /// Starts the root element, with the namespace of the exchange format.
  void WriteStartRootElement(std::u16string_view name);
  /// Starts an element; raises `NestedTooDeep` beyond `kMaxXmlDepth` open elements.
  void WriteStartElement(std::u16string_view name);
  void WriteEndElement(std::u16string_view name);
  /// Writes an attribute of the element just started; raises `Overflow` for a value longer than
  /// `kMaxXmlAttributeLength`.
  void WriteAttributeString(std::u16string_view name, std::u16string_view value);
  /// Writes an element that holds only text; an empty text gives a start and an end tag. Raises
  /// `NestedTooDeep` as `WriteStartElement` does.
  void WriteElementString(std::u16string_view name, std::u16string_view value);
  /// Writes the text content of the element just started.
  void WriteElementValue(std::u16string_view value);
  /// Writes content that is markup already.
  void WriteXMLElementValue(std::u16string_view markup);
  /// The document so far.
  Text ToXMLString() { return buffer_.ToString(); }

 private:
  char16_t* CloseStartTag(char16_t* end) const;
  void StartContent();
  void OpenElement();
  template <bool Attribute>
  void WriteEscaped(std::u16string_view value);

  CStringBuilder buffer_;
  bool start_tag_open_ = false;
  bool element_empty_ = false;
  uint32_t depth_ = 0;
  const Counting counting_;
};

/// The writer of one document: the thread's own, which keeps its buffer for the next one, and for a
/// document that is written while the thread writes another, one that goes with the document.
class DocumentWriter {
 public:
  DocumentWriter();
  DocumentWriter(const DocumentWriter&) = delete;
  DocumentWriter& operator=(const DocumentWriter&) = delete;
  ~DocumentWriter();

  XMLStringWriter& operator*() const noexcept { return *writer_; }

 private:
  struct OfThread;

  OfThread& own_;
  std::unique_ptr<XMLStringWriter> further_;
  XMLStringWriter* writer_;
};

/// Whether documents are written with CR LF line breaks, on whatever thread; true after start-up.
bool IncludeCRLFInXML() noexcept;
void SetIncludeCRLFInXML(bool include) noexcept;

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_STRING_WRITER_H_
