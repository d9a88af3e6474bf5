// The state that the whole library shares.
#ifndef PRAXEN_CORE_LIBRARY_H_
#define PRAXEN_CORE_LIBRARY_H_

#include <cstdint>
#include <memory>
namespace praxen {

class ObjectFactory;
class XmlDocument;
class XMLStringWriter;

/// The one set of shared objects; it comes into being as the library is loaded.
class Library {
 public:
  static Library& Instance();
  ~Library();

  /// The writer through which every `Serialize` writes.
  XMLStringWriter& writer() noexcept;
  /// The factory through which lists create elements.
  ObjectFactory& factory() noexcept;
  /// The document, with the schema attached, through which everything is read.
  XmlDocument& readerDocument() noexcept;

 private:
  struct State;

  Library();

  std::unique_ptr<State> state_;
};

/// Whether documents are written with CR LF line breaks; true after start-up.
bool IncludeCRLFInXML() noexcept;
void SetIncludeCRLFInXML(bool include) noexcept;

/// The number of live objects of the counted classes: 2 after start-up, the shared writer and the
/// shared factory.
int32_t ObjectCounter() noexcept;
/// Raises `Overflow`, and counts nothing, when the counter is at its largest value.
void CountObject();
void UncountObject() noexcept;

/// What keeps the library from being unloaded: objects of every class, and locks. The shared
/// objects are not among them.
void CountModuleObject(int32_t change) noexcept;
bool ModuleInUse() noexcept;

}  // namespace praxen

#endif  // PRAXEN_CORE_LIBRARY_H_
