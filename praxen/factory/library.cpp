// Start-up of the library.
#include "praxen/factory/library.h"

#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include "praxen/core/counters.h"
#include "praxen/factory/object_factory.h"
#include "praxen/factory/reading_frame.h"
#include "praxen/xml/xml_document.h"

namespace praxen::detail {

namespace {

// Documents that nobody reads with. Each has compiled the schema, which takes longer than reading a
// short text, and keeps the memory that this took; so they are kept, but not too many.
class IdleDocuments {
 public:
  IdleDocuments() { idle_.reserve(kMost); }

  // Null when there is none.
  std::unique_ptr<XmlDocument> Take() noexcept {
    const std::lock_guard lock(mutex_);
    if (idle_.empty()) return nullptr;
    std::unique_ptr<XmlDocument> document = std::move(idle_.back());
    idle_.pop_back();
    return document;
  }
  // Leaves a document to the caller that is one too many.
  void Give(std::unique_ptr<XmlDocument>& document) noexcept {
    const std::lock_guard lock(mutex_);
    if (idle_.size() < kMost) idle_.push_back(std::move(document));
  }

 private:
  static constexpr size_t kMost = 16;

  std::mutex mutex_;
  std::vector<std::unique_ptr<XmlDocument>> idle_;
};

// Counts for the writers of all threads, which are one to clients.
struct SharedWriter {
  SharedWriter() { CountObject(); }
  SharedWriter(const SharedWriter&) = delete;
  SharedWriter& operator=(const SharedWriter&) = delete;
  ~SharedWriter() { UncountObject(); }
};

// In the order of start-up.
struct Library {
  const std::function<XmlSchemaSource()> schema = FindSchema();
  IdleDocuments documents;
  const SharedWriter writer;
  const Ref<ObjectFactory> factory = New<ObjectFactory>();
};

Library& Shared() {
  static Library library;
  return library;
}

[[maybe_unused]] const Library& started = Shared();

}  // namespace

ObjectFactory& SharedFactory() { return *Shared().factory; }

ReaderDocument::ReaderDocument() : document_(Shared().documents.Take()) {
  if (document_ == nullptr) document_ = std::make_unique<XmlDocument>(Shared().schema);
}

ReaderDocument::~ReaderDocument() {
  document_->Clear();
  Shared().documents.Give(document_);
}

}  // namespace praxen::detail
