// The objects that the whole library shares; they come into being as it is loaded.
#ifndef PRAXEN_FACTORY_LIBRARY_H_
#define PRAXEN_FACTORY_LIBRARY_H_

namespace praxen {

class ObjectFactory;

}  // namespace praxen

namespace praxen::detail {

class XmlDocument;

/// The factory that counts as a live object from start-up on.
ObjectFactory& SharedFactory();

/// The document, with the schema attached, through which everything is read.
XmlDocument& ReaderDocument();

}  // namespace praxen::detail

#endif  // PRAXEN_FACTORY_LIBRARY_H_
