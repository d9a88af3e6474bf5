// XMLStringWriter, the forward-only writer through which every object serializes.
#ifndef PRAXEN_XML_XML_STRING_WRITER_H_
#define PRAXEN_XML_XML_STRING_WRITER_H_

#include <atomic>
#include <cstdint>
#include <memory>
#include <string_view>

#include "praxen/core/string_builder.h"
#include "praxen/core/text.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_pen.h"

namespace praxen::detail {

inline constinit std::atomic<bool> include_line_breaks = true;

/// Whether documents are written with CR LF line breaks, on whatever thread; true after start-up.
inline bool IncludeCRLFInXML() noexcept {
  return include_line_breaks.load(std::memory_order_relaxed);
}
inline void SetIncludeCRLFInXML(bool include) noexcept {
  include_line_breaks.store(include, std::memory_order_relaxed);
}

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
  void WriteElementString(const XmlTags& tags, std::u16string_view value) {
    RequireDepth(1);
    XmlPen pen = Pen();
    pen.Reserve(kMostTagEnd);
    CloseStartTag(pen);
    pen.PutText(tags, value);
    pen.Finish();
  }
  /// Writes the text content of the element just started.
  void WriteElementValue(std::u16string_view value);
  /// Writes content that is markup already.
  void WriteXMLElementValue(std::u16string_view markup);
  /// The document so far.
  Text ToXMLString() { return buffer_.ToString(); }

  // For who puts whole elements with a pen, with the room for them and for `kMostTagEnd`.

  /// Room for what ends a start tag.
  static constexpr size_t kMostTagEnd = kXmlBlock;

  /// A pen at the end of the document.
  XmlPen Pen() { return XmlPen(buffer_, IncludeCRLFInXML()); }
  /// Ends the start tag that is open, before an element inside.
  void CloseStartTag(XmlPen& pen) {
    if (start_tag_open_) pen.PutStartTagEnd();
    start_tag_open_ = false;
  }
  /// The same before a text.
  void StartContent(XmlPen& pen) {
    if (start_tag_open_) pen.Put(u" >");
    start_tag_open_ = false;
  }
  /// Tells that a start tag was put but for attributes and its end; raises `NestedTooDeep`.
  void OpenElement() {
    RequireDepth(1);
    ++depth_;
    start_tag_open_ = true;
  }
  /// Whether nothing was put after the start tag, which is open then.
  bool isEmpty() const noexcept { return start_tag_open_; }
  /// Tells that an end was put.
  void CloseElement() {
    start_tag_open_ = false;
    --depth_;
  }
  /// Tells that so many start tags were put with their ends, and so many ends; the first raises
  /// `NestedTooDeep`.
  void Enter(uint32_t levels) {
    RequireDepth(levels);
    depth_ += levels;
  }
  void Leave(uint32_t levels) { depth_ -= levels; }
  /// Raises `NestedTooDeep` where so many elements may not begin inside each other.
  void RequireDepth(uint32_t levels) const {
    if (depth_ + levels > kMaxXmlDepth) [[unlikely]]
      ThrowNestedTooDeep();
  }

 private:
  [[noreturn]] static void ThrowNestedTooDeep();

  CStringBuilder buffer_;
  // An element is empty as long as its start tag is open.
  bool start_tag_open_ = false;
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

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_STRING_WRITER_H_
