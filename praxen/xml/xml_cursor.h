// XmlCursor: what a class reads its own children through, whichever way the document is read.
#ifndef PRAXEN_XML_XML_CURSOR_H_
#define PRAXEN_XML_XML_CURSOR_H_

#include <cstddef>
#include <string_view>

#include "praxen/xml/xml_document.h"

namespace praxen::detail {

/// A place among the children of an element, which only moves forward. Views that are returned are
/// valid until the next call.
class XmlCursor {
 public:
  XmlCursor() = default;
  XmlCursor(const XmlCursor&) = delete;
  XmlCursor& operator=(const XmlCursor&) = delete;
  virtual ~XmlCursor() = default;

  /// The name of the node at the cursor; empty where there is none left.
  virtual std::u16string_view name() = 0;
  /// Whether there is nothing left but blanks.
  virtual bool isAtEnd() = 0;

  /// The value of an attribute of the element at the cursor, which is asked for before the element
  /// is read or entered; raises `MissingObject` when it is absent.
  virtual std::u16string_view ReadAttribute(std::u16string_view attribute) = 0;
  /// Whether the attribute is exactly "1" or "true".
  virtual bool ReadBoolean(std::u16string_view attribute) = 0;

  /// The text of the element at the cursor, which moves past it.
  virtual std::u16string_view ReadText() = 0;
  /// The same of what is taken for the element `name`; raises `MissingObject` when it is empty.
  virtual std::u16string_view ReadRequiredText(std::u16string_view name) = 0;
  /// The node at the cursor as markup that stands by itself; the cursor moves past it. `owner` is
  /// the name of the element that holds it.
  virtual Text ReadMarkup(std::u16string_view owner) = 0;

  /// Moves to the first child of the element at the cursor.
  virtual void Enter() = 0;
  /// Raises `MissingObject` when the element that was entered last has fewer children.
  virtual void RequireChildren(size_t count) = 0;
  /// Moves back to the element that was entered last, and past it.
  virtual void Leave() = 0;

  /// The node at the cursor, for errors and for what records losses; absent where the document is
  /// read without nodes, which nobody records.
  virtual XmlNode node() const { return {}; }
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_CURSOR_H_
