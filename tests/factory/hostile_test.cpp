// Huge and hostile texts are refused, or read, in time linear in their length.
#include <gtest/gtest.h>

#include "praxen/praxen.h"
#include "tests/support/documents.h"

namespace praxen::detail {
namespace {

std::string Repeat(std::string_view text, size_t count) {
  std::string repeated;
  repeated.reserve(text.size() * count);
  for (size_t i = 0; i < count; ++i) repeated += text;
  return repeated;
}

TEST(Hostile, OversizedDocumentsAreRefused) {
  const std::string start = "<Variable xmlns='PraxenSchema3_0' Name='v' Type='t' Attribute=''";
  std::string attributes = start;
  for (int i = 0; i < 200000; ++i) attributes += " a" + std::to_string(i) + "='x'";
  const std::string documents[] = {
      start + ">" + Repeat("<a>", 100000) + Repeat("</a>", 100000) + "</Variable>",
      start + ">" + Repeat("<a>", 100000),
      attributes + "/>",
      start + " InitialValue='" + std::string(50'000'000, 'x') + "'/>",
      start + "><" + std::string(10'000'000, 'x') + "/></Variable>",
      Repeat("<", 1'000'000),
      Repeat("&amp;", 1'000'000),
      start + ">" + Repeat("<!--", 1'000'000),
      start + "><Description>" + Repeat("]]>", 1'000'000),
  };
  for (const std::string& document : documents) {
    const Text text = FromUtf8(document);
    const std::string error = ErrorOf([&] { ObjectFactory::DeserializeVariable(text); });
    EXPECT_EQ(error.substr(0, 17), "603 Invalid XML: ") << document.substr(0, 100) << error;
    EXPECT_EQ(Rewritten("<Signal Name='s' Path='' Direction=''/>"),
              "<Signal Name='s' Path='' Direction='' />");
  }
}

TEST(Hostile, LongValuesAreRead) {
  const std::string value(5'000'000, 'x');
  const std::string head = "<Variable Name='v' Type='t' Attribute='a' InitialValue='" + value + "'";
  EXPECT_EQ(Rewritten(head + "/>"), head + " />");
  const std::string text = "<STCodeBlock Name='s'><ST_Code>" + Repeat("a := b;\n", 1'000'000) +
                           "</ST_Code></STCodeBlock>";
  EXPECT_EQ(Rewritten(text), text);
}

// A value that takes six times its length in markup is read as it is written, up to the limit.
TEST(Hostile, ValuesAreAsLongWhenWrittenAsWhenRead) {
  const auto variable = ObjectFactory::NewVariable(u"v", u"t");
  variable->InitialValue = std::u16string(10'000'000, u'\'');
  const Text document = variable->Serialize();
  EXPECT_EQ(ObjectFactory::DeserializeVariable(document)->Serialize(), document);
  variable->InitialValue = variable->InitialValue + u"'";
  EXPECT_EQ(ErrorOf([&] { variable->Serialize(); }), "8002000A Overflow");
}

}  // namespace
}  // namespace praxen::detail
