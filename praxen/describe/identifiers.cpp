// Identifiers made from names; those of the published classes are made once.
#include "praxen/describe/identifiers.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "praxen/platform/uuid.h"

namespace praxen {

namespace {

constexpr GUID kOwnObjectId = NameUuid(kIdentifierNamespace, "interface own object");

GUID Identifier(std::string_view role, std::string_view name) {
  return NameUuid(kIdentifierNamespace, std::string(role).append(name));
}

struct ClassIdentifiers {
  explicit ClassIdentifiers(const ClassDescription& described)
      : description(&described),
        classId(Identifier("class ", described.name)),
        interfaceId(Identifier("interface _", described.name)) {}

  const ClassDescription* description;
  GUID classId;
  GUID interfaceId;
};

std::vector<ClassIdentifiers> MakeIdentifiers() {
  std::vector<ClassIdentifiers> made;
  for (const auto describe : AllClasses()) made.emplace_back(describe());
  std::ranges::sort(made, std::less<>(), &ClassIdentifiers::description);
  return made;
}

const std::vector<ClassIdentifiers>& PublishedIdentifiers() {
  static const std::vector<ClassIdentifiers> identifiers = MakeIdentifiers();
  return identifiers;
}

// A class that is not published has identifiers too, though no client can know them.
ClassIdentifiers IdentifiersOf(const ClassDescription& description) {
  const std::vector<ClassIdentifiers>& published = PublishedIdentifiers();
  const auto found = std::ranges::lower_bound(published, &description, std::less<>(),
                                              &ClassIdentifiers::description);
  if (found != published.end() && found->description == &description) return *found;
  return ClassIdentifiers(description);
}

}  // namespace

GUID ClassId(const ClassDescription& description) { return IdentifiersOf(description).classId; }

GUID InterfaceId(const ClassDescription& description) {
  return IdentifiersOf(description).interfaceId;
}

GUID EnumerationId(const EnumerationDescription& enumeration) {
  return Identifier("enumeration ", enumeration.name);
}

GUID TypeLibraryId() { return NameUuid(kIdentifierNamespace, "library PraxenHelper"); }

const ClassDescription* FindClassById(const GUID& id) {
  const std::vector<ClassIdentifiers>& published = PublishedIdentifiers();
  const auto found = std::ranges::find_if(
      published, [&](const ClassIdentifiers& identifiers) { return identifiers.classId == id; });
  return found == published.end() ? nullptr : found->description;
}

const GUID& OwnObjectId() noexcept { return kOwnObjectId; }

}  // namespace praxen
