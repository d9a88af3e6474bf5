// Start-up of the library, its shared state and its counters.
#include "praxen/core/library.h"

#include <limits>
#include <memory>

#include "praxen/core/error.h"
#include "praxen/core/xml_string_writer.h"
#include "praxen/factory/object_factory.h"
#include "praxen/factory/reading_frame.h"
#include "praxen/platform/xml_document.h"

namespace praxen {

namespace {

constinit int32_t object_counter = 0;
constinit int32_t module_objects = 0;
constinit bool include_line_breaks = true;

// The shared factory is an object of the module like any other, but keeps nothing loaded.
constexpr int32_t kSharedModuleObjects = 1;

// Brings the shared objects into being as the library is loaded.
[[maybe_unused]] const Library& started = Library::Instance();

}  // namespace

// What stands behind a `Library`, in the order of start-up.
struct Library::State {
  std::unique_ptr<XmlDocument> reader_document = InitXMLReader();
  XMLStringWriter writer;
  Ref<ObjectFactory> factory = New<ObjectFactory>();
};

Library& Library::Instance() {
  static Library library;
  return library;
}

Library::Library() : state_(std::make_unique<State>()) {}

Library::~Library() = default;

XMLStringWriter& Library::writer() noexcept { return state_->writer; }

ObjectFactory& Library::factory() noexcept { return *state_->factory; }

XmlDocument& Library::readerDocument() noexcept { return *state_->reader_document; }

bool IncludeCRLFInXML() noexcept { return include_line_breaks; }

void SetIncludeCRLFInXML(bool include) noexcept { include_line_breaks = include; }

int32_t ObjectCounter() noexcept { return object_counter; }

void CountObject() {
  if (object_counter == std::numeric_limits<int32_t>::max()) throw Overflow();
  ++object_counter;
}

void UncountObject() noexcept { --object_counter; }

void CountModuleObject(int32_t change) noexcept { module_objects += change; }

bool ModuleInUse() noexcept { return module_objects > kSharedModuleObjects; }

}  // namespace praxen
