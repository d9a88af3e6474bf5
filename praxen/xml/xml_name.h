// Names of elements and attributes, kept once each, so that they compare as pointers.
#ifndef PRAXEN_XML_XML_NAME_H_
#define PRAXEN_XML_XML_NAME_H_

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace praxen::detail {

class NameTable;

/// The name of an element or attribute, kept once: two names are equal when their pointers are.
using XmlName = const std::u16string*;

/// The name for the life of the program, for names that are known beforehand. May be called from
/// any thread, before or after a document that uses the name is loaded.
XmlName InternXmlName(std::u16string_view name);

/// Names in use by a document, which are given up with it, so that documents full of foreign names
/// leave nothing behind. Users may be on different threads; only a name that is new to one waits
/// for others.
class XmlNameUser {
 public:
  XmlNameUser();
  XmlNameUser(const XmlNameUser&) = delete;
  XmlNameUser& operator=(const XmlNameUser&) = delete;
  ~XmlNameUser();

  /// The name, valid until `Clear`.
  XmlName Intern(std::u16string_view name);
  size_t size() const { return names_.size(); }
  void Clear();

 private:
  const std::shared_ptr<NameTable> table_;
  /// Ordered, so that no choice of names makes looking up slow.
  std::map<std::u16string_view, XmlName> names_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_NAME_H_
