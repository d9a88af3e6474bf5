// The generated files that are checked in are those that the descriptions give now.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "praxen/describe/description.h"
#include "praxen/factory/classes.h"
#include "tools/generate/documents.h"
#include "tools/generate/schema.h"

namespace praxen::detail {
namespace {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(GeneratedFiles, AreUpToDate) {
  for (const GeneratedFile& file : GenerateFiles()) {
    EXPECT_TRUE(ReadFile(std::filesystem::path(PRAXEN_SOURCE_FOLDER) / file.path) == file.content)
        << file.path << " is stale: run ./dev generate";
  }
}

TEST(Readme, ShowsTheExampleThatIsCompiled) {
  const std::filesystem::path root(PRAXEN_SOURCE_FOLDER);
  const std::string example = ReadFile(root / "examples/readme_example.cpp");
  const std::string shown = example.substr(example.find("#include"));
  EXPECT_NE(ReadFile(root / "README.md").find(shown), std::string::npos) << shown;
}

size_t Count(const std::string& text, std::string_view part) {
  size_t count = 0;
  for (size_t at = 0; (at = text.find(part, at)) != std::string::npos; ++at) ++count;
  return count;
}

TEST(GeneratedFiles, TheTypeLibraryPublishesEverything) {
  const std::string idl =
      ReadFile(std::filesystem::path(PRAXEN_SOURCE_FOLDER) / "praxen/server/PraxenHelper.idl");
  EXPECT_EQ(Count(idl, "\n  coclass "), 100u);
  EXPECT_EQ(Count(idl, "noncreatable"), 3u);
  EXPECT_EQ(Count(idl, "\n  enum "), 9u);
  EXPECT_EQ(Count(idl, "\n    HRESULT New"), 96u + 33u);  // 33 lists have a NewEnum
  EXPECT_EQ(Count(idl, "\n    HRESULT Deserialize"), 33u);
}

// The schema declares what the layouts say, and nothing else.
TEST(GeneratedFiles, TheSchemaKnowsEveryAttribute) {
  const auto elements = DeclareElements();
  for (const ClassDescription& description : AllClasses()) {
    if (description.layout == nullptr) continue;
    const Layout& layout = description.layout();
    if (layout.container == Container::None) continue;
    const ElementDeclaration& element = elements.at(layout.element);
    for (const Attribute& attribute : layout.attributes) {
      const auto declared =
          std::ranges::find(element.attributes, attribute.name, &AttributeDeclaration::name);
      ASSERT_NE(declared, element.attributes.end()) << description.name;
      EXPECT_EQ(declared->required,
                attribute.rule == Rule::Required ||
                    (attribute.rule == Rule::Always && !attribute.readIfPresent));
      if (attribute.rule == Rule::Optional) {
        EXPECT_EQ(declared->defaultValue, attribute.absentText.view());
      }
    }
  }
}

}  // namespace
}  // namespace praxen::detail
