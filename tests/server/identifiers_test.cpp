// The identifiers of the type library, which existing clients are bound to for all time.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "praxen/automation/guid.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"

namespace praxen::detail {
namespace {

std::string PublishedIdentifiers() {
  std::ostringstream list;
  list << "library PraxenHelper " << GuidToText(TypeLibraryId()) << "\n";
  for (const EnumerationDescription* const enumeration : AllEnumerations()) {
    list << "enumeration " << enumeration->name << " " << GuidToText(EnumerationId(*enumeration))
         << "\n";
  }
  for (const ClassDescription& description : AllClasses()) {
    list << "class " << description.name << " " << GuidToText(ClassId(description)) << "\n"
         << "interface " << InterfaceName(description) << " "
         << GuidToText(InterfaceId(description)) << "\n";
  }
  return list.str();
}

TEST(Identifiers, NeverChange) {
  std::ifstream file(PRAXEN_SOURCE_FOLDER "/tests/server/identifiers.txt");
  std::ostringstream recorded;
  recorded << file.rdbuf();
  EXPECT_EQ(PublishedIdentifiers(), recorded.str());
}

TEST(Identifiers, LeadBackToTheirClasses) {
  for (const ClassDescription& description : AllClasses()) {
    EXPECT_EQ(FindClassById(description.classId), &description);
    EXPECT_EQ(FindClassById(description.interfaceId), nullptr);
  }
}

}  // namespace
}  // namespace praxen::detail
