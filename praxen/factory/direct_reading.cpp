// When documents are read directly, and what stands for their roots.
#include "praxen/factory/direct_reading.h"

#include <atomic>

#include "praxen/core/error.h"
#include "praxen/describe/direct_reader.h"
#include "praxen/factory/read_document.h"
#include "praxen/factory/reading_frame.h"

namespace praxen::detail {

namespace {

std::atomic<bool> isUsed_ = true;

}  // namespace

void UseDirectReading(bool isUsed) noexcept { isUsed_.store(isUsed, std::memory_order_relaxed); }

bool UsesDirectReading() noexcept { return isUsed_.load(std::memory_order_relaxed); }

Ref<Object> ReadDirectly(const Text& text, RootCreator create, const void* context) {
  if (!IsShippedSchemaUsed()) return nullptr;
  const DocumentInReading inReading(text.size());
  try {
    XmlScanner scanner(text);
    scanner.ReadProlog();
    const std::u16string_view root = scanner.PeekName();
    Ref<Object> object = create(root, context);
    if (!object) return nullptr;
    DirectReader(scanner, kSchemaNamespace).Read(*object, root);
    scanner.ReadEpilog();
    return object;
  } catch (const XmlGivenUp&) {
    return nullptr;
  } catch (const Error&) {
    // What is wrong and where is told by the way that has nodes.
    return nullptr;
  }
}

Ref<Object> ReadDirectly(const Text& text) {
  return ReadDirectly(
      text,
      [](std::u16string_view root, const void*) -> Ref<Object> {
        // Of several classes, it is the first one that knows all of what is read directly.
        const ClassDescription* const description = FirstDocumentClass(root);
        return description == nullptr ? nullptr : description->create();
      },
      nullptr);
}

}  // namespace praxen::detail
