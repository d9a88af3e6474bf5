// The exact document of every serializable class, with everything set and with nothing but what is
// required, out and back. What is expected is in the folder "documents"; ./dev expect remakes it.
#include <gtest/gtest.h>

#include "praxen/core/counters.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/praxen.h"
#include "tests/support/documents.h"
#include "tests/support/example.h"
#include "tests/support/recorded.h"

namespace praxen::detail {
namespace {

// Deep enough for a property of every class that the document can contain.
constexpr int kDepth = 2;

std::string PathOfDocument(std::string_view className) {
  return "tests/model/documents/" + std::string(className) + ".xml";
}

// A document is longer than a failure should print: only the lines around the first difference.
std::string FirstDifference(const std::string& written, const std::string& expected) {
  size_t at = 0;
  while (at < written.size() && at < expected.size() && written[at] == expected[at]) ++at;
  const size_t start = at < 80 ? 0 : at - 80;
  return "written  …" + written.substr(start, 200) + "\nexpected …" + expected.substr(start, 200);
}

Text ReadAndWrite(const ClassDescription& description, const Text& document) {
  const Ref<Object> read = DeserializeObject(description, document);
  return dynamic_cast<SerializableObject&>(*read).Serialize();
}

// The factory has no operation for these; their documents are read as parts of others.
const std::set<std::string_view> kOnlyWritten{"ExecutionGroup", "InitValue"};

TEST(Documents, OfObjectsWithEverythingSet) {
  int count = 0;
  for (const ClassDescription& description : AllClasses()) {
    if (!IsDocument(description)) continue;
    const Ref<Object> object = description.create();
    FillExample(*object, kDepth);
    const std::string written = ExampleDocument(*object);
    const std::string expected = Recorded(PathOfDocument(description.name), written);
    EXPECT_TRUE(written == expected) << description.name << "\n"
                                     << FirstDifference(written, expected);
    const Text document = dynamic_cast<SerializableObject&>(*object).Serialize();
    EXPECT_EQ(ReadAndWrite(description, document), document) << description.name;
    // By the name of the root, too.
    const bool isRead = !kOnlyWritten.contains(description.name);
    EXPECT_EQ(Rewritten(Markup(*object)), isRead ? Markup(*object) : "604 Wrong root element");
    ++count;
  }
  EXPECT_EQ(count, 40);
}

TEST(Documents, OfNewObjectsHoldWhatIsAlwaysWritten) {
  const int32_t before = ObjectCounter();
  std::string all;
  for (const ClassDescription& description : AllClasses()) {
    if (!IsDocument(description)) continue;
    const Ref<Object> object = description.create();
    FillRequired(*object);
    const Text document = dynamic_cast<SerializableObject&>(*object).Serialize();
    EXPECT_EQ(ReadAndWrite(description, document), document) << description.name;
    all.append(description.name).append(": ").append(Markup(*object)).append("\n");
  }
  EXPECT_EQ(all, Recorded("tests/model/documents/new_objects.txt", all));
  EXPECT_EQ(ObjectCounter(), before);
}

}  // namespace
}  // namespace praxen::detail
