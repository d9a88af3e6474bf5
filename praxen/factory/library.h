// The objects that the whole library shares; they come into being as it is loaded.
#ifndef PRAXEN_FACTORY_LIBRARY_H_
#define PRAXEN_FACTORY_LIBRARY_H_

#include <memory>

#include "praxen/core/namespaces.h"

namespace praxen {

class ObjectFactory;

}  // namespace praxen

namespace praxen::detail {

class XmlDocument;

/// The factory that counts as a live object from start-up on.
ObjectFactory& SharedFactory();

/// A document, with the schema attached, for the time of one reading. Documents are used again, by
/// whatever thread; what one has loaded is given up before.
class ReaderDocument {
 public:
  ReaderDocument();
  ReaderDocument(const ReaderDocument&) = delete;
  ReaderDocument& operator=(const ReaderDocument&) = delete;
  ~ReaderDocument();

  XmlDocument& operator*() const noexcept { return *document_; }
  XmlDocument* operator->() const noexcept { return document_.get(); }

 private:
  std::unique_ptr<XmlDocument> document_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_FACTORY_LIBRARY_H_
