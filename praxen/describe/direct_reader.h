// DirectReader: from the characters of an ordinary document straight into objects.
#ifndef PRAXEN_DESCRIBE_DIRECT_READER_H_
#define PRAXEN_DESCRIBE_DIRECT_READER_H_

#include <cstddef>
#include <string_view>
#include <vector>

#include "praxen/describe/document_values.h"
#include "praxen/describe/layout.h"
#include "praxen/describe/object.h"
#include "praxen/xml/xml_scanner.h"

namespace praxen::describe {

/// Reads objects in one pass, steered by their layouts, out of a document that is as the library
/// would write it or little different: attributes in any order, blanks and comments between
/// elements, any way to write a character. Throws `XmlGivenUp`, or the error of a value, for every
/// other document; such a one is read through nodes, which tells what is wrong with it or passes
/// over it.
class DirectReader {
 public:
  /// Both have to stay alive.
  DirectReader(XmlScanner& scanner, std::u16string_view targetNamespace)
      : scanner_(scanner), namespace_(targetNamespace) {}

  /// Fills a fresh object from the element at the scanner's place.
  void Read(Object& object, std::u16string_view name);

 private:
  class Cursor;

  /// An element whose content is being read.
  struct Open {
    Object* object;
    const Layout* layout;
    std::u16string_view name;
    /// The first of the layout's children that may still come.
    size_t child = 0;
    /// The list that takes all elements that are left, and its layout.
    Object* list = nullptr;
    const Layout* items = nullptr;
  };

  void Begin(Object& object, std::u16string_view name);
  void ReadAttributes(Object& object, const Layout& layout);
  void ReadDeclaration(std::u16string_view name, bool& isDeclared);
  void ReadNext();
  void ReadChild(std::u16string_view name);
  static void StartItems(Open& open, Object& list, const Layout& layout);
  bool TryChild(Object& object, const Child& child, std::u16string_view name);
  void ReadItem(const Open& open, std::u16string_view name);
  void ReadText(Text& value, const Child& child);
  void ReadContent(Object& object, const Child& child, std::u16string_view name);
  bool ReadWithCursor(Object& object, const Child& child, bool isEmpty);
  static void PassComment(const Open& open);
  void Finish(const Open& open, bool isEmpty);

  XmlScanner& scanner_;
  const std::u16string_view namespace_;
  DocumentValues& values_ = DocumentValues::Instance();
  std::vector<Open> open_;
  /// Where what is being read begins with its blanks.
  const char16_t* beforeBlanks_ = nullptr;
};

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_DIRECT_READER_H_
