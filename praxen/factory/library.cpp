// Start-up of the library.
#include "praxen/factory/library.h"

#include "praxen/factory/object_factory.h"
#include "praxen/factory/reading_frame.h"
#include "praxen/xml/xml_document.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen::detail {

namespace {

// In the order of start-up.
struct Library {
  XmlDocument readerDocument{FindSchema()};
  XMLStringWriter& writer = SharedWriter();
  Ref<ObjectFactory> factory = New<ObjectFactory>();
};

Library& Shared() {
  static Library library;
  return library;
}

[[maybe_unused]] const Library& started = Shared();

}  // namespace

ObjectFactory& SharedFactory() { return *Shared().factory; }

XmlDocument& ReaderDocument() { return Shared().readerDocument; }

}  // namespace praxen::detail
