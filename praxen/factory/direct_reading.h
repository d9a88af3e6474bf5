// The direct way of reading: documents that need no nodes to be made of them.
#ifndef PRAXEN_FACTORY_DIRECT_READING_H_
#define PRAXEN_FACTORY_DIRECT_READING_H_

#include <string_view>

#include "praxen/core/text.h"
#include "praxen/describe/object.h"

namespace praxen::detail {

/// Whether documents are read directly where that is possible, which they are from the start; for
/// tests and benchmarks. Any thread.
void UseDirectReading(bool isUsed) noexcept;
bool UsesDirectReading() noexcept;

/// Creates the object that a root element of that name stands for; null for none.
using RootCreator = Ref<Object> (*)(std::u16string_view root, const void* context);

/// Reads a document in one pass over its characters, where it is an ordinary one and the schema in
/// use is the one that the library came with; whatever `UsesDirectReading` says. Null where the
/// document has to be read through nodes, which finds its faults too; nothing is left of the
/// attempt then.
Ref<Object> ReadDirectly(const Text& text, RootCreator create, const void* context);
/// The same for a document of any class, as `ReadDocument` reads it.
Ref<Object> ReadDirectly(const Text& text);

}  // namespace praxen::detail

#endif  // PRAXEN_FACTORY_DIRECT_READING_H_
