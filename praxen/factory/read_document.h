// Reading of a document whose class only its root tells.
#ifndef PRAXEN_FACTORY_READ_DOCUMENT_H_
#define PRAXEN_FACTORY_READ_DOCUMENT_H_

#include <string_view>
#include <vector>

#include "praxen/core/losses.h"
#include "praxen/describe/object.h"
#include "praxen/factory/deserialization.h"

namespace praxen {

/// Reads a document of any class that the factory reads, as its root element tells.
///
/// A root element that two classes have is taken for the one that knows the most of its attributes
/// and children, and for the first of them in the factory when they know the same. Raises
/// `InvalidXml` for a text that does not parse or validate, `WrongRootElement`, which names the
/// element, for the document of no class, and what reading its contents raises.
///
/// Reading passes over what stands out of place and takes what it does not know for something else.
/// What it so leaves out replaces `losses` when these are given; an error leaves them alone.
Ref<Object> ReadDocument(const Text& text, Losses* losses = nullptr);

/// The same for a document whose class is known, which `ObjectFactory` reads without losses; raises
/// `WrongRootElement` for the document of another class.
template <class Class>
Ref<Class> ReadDocument(const Text& text, Losses* losses = nullptr) {
  const Ref<Object> object = detail::DeserializeObject(describe::Describe<Class>(), text, losses);
  return static_cast<Class*>(object.get());
}

}  // namespace praxen

namespace praxen::detail {

/// The first class whose documents have that root element; null for none.
const describe::ClassDescription* FirstDocumentClass(std::u16string_view root);

/// The classes that the factory reads from documents, in the order of its operations.
const std::vector<const describe::ClassDescription*>& DocumentClasses();

}  // namespace praxen::detail

#endif  // PRAXEN_FACTORY_READ_DOCUMENT_H_
