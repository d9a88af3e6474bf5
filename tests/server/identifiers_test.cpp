// The identifiers of the type library, which existing clients are bound to for all time.
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

#include "praxen/describe/identifiers.h"
#include "praxen/describe/type_library.h"
#include "praxen/platform/uuid.h"

namespace praxen {
namespace {

std::string PublishedIdentifiers() {
  std::ostringstream list;
  list << "library PraxenHelper " << UuidToText(TypeLibraryId()) << "\n";
  for (const EnumerationDescription* const enumeration : AllEnumerations()) {
    list << "enumeration " << enumeration->name << " " << UuidToText(EnumerationId(*enumeration))
         << "\n";
  }
  for (const auto describe : AllClasses()) {
    list << "class " << describe().name << " " << UuidToText(ClassId(describe())) << "\n"
         << "interface " << InterfaceName(describe()) << " " << UuidToText(InterfaceId(describe()))
         << "\n";
  }
  return list.str();
}

TEST(Identifiers, NeverChange) {
  std::ifstream file(PRAXEN_SOURCE_FOLDER "/tests/server/identifiers.txt");
  std::ostringstream recorded;
  recorded << file.rdbuf();
  EXPECT_EQ(PublishedIdentifiers(), recorded.str());
}

TEST(Identifiers, AreUnique) {
  std::set<std::string> identifiers;
  std::istringstream list(PublishedIdentifiers());
  size_t count = 0;
  for (std::string role, name, identifier; list >> role >> name >> identifier; ++count) {
    EXPECT_TRUE(identifiers.insert(identifier).second) << name;
  }
  EXPECT_EQ(count, 1u + 9u + 2u * 100u);
}

TEST(Identifiers, LeadBackToTheirClasses) {
  for (const auto describe : AllClasses()) {
    EXPECT_EQ(FindClassById(ClassId(describe())), &describe());
    EXPECT_EQ(FindClassById(InterfaceId(describe())), nullptr);
  }
}

}  // namespace
}  // namespace praxen
