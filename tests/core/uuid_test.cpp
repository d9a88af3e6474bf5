// Identifiers derived from names, and their text form.
#include "praxen/core/uuid.h"

#include <gtest/gtest.h>

#include <string>

namespace praxen::detail {
namespace {

constexpr Uuid kDns = {
    0x6BA7B810, 0x9DAD, 0x11D1, {0x80, 0xB4, 0x00, 0xC0, 0x4F, 0xD4, 0x30, 0xC8}};

constexpr Uuid kExample = NameUuid(kDns, "www.example.com");
static_assert(kExample.data1 == 0x2ED6657D && kExample.data4[7] == 0xA2);

TEST(Uuid, OfNamesMatchesKnownValues) {
  const struct {
    std::string name;
    const char* expected;
  } cases[] = {
      {"www.example.com", "{2ED6657D-E927-568B-95E1-2665A8AEA6A2}"},
      {"python.org", "{886313E1-3B8A-5372-9B90-0C9AEE199E5D}"},
      // Lengths at which the padding of the hash needs a block of its own, or just does not.
      {"", "{4EBD0208-8328-5D69-8C44-EC50939C0967}"},
      {std::string(39, 'a'), "{5824F981-4282-59D4-9716-ACB6D741350E}"},
      {std::string(40, 'a'), "{39F39C20-DB47-5131-8879-62F8F67F9014}"},
      {std::string(48, 'a'), "{7280CC42-274A-5C4A-91FC-AE23F853EEB7}"},
      {std::string(1000, 'a'), "{062A6B1A-DDC3-5FCC-B238-790846E533D6}"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(UuidToText(NameUuid(kDns, row.name)), row.expected) << row.name;
  }
}

TEST(Uuid, TextIsReadInAllItsForms) {
  EXPECT_EQ(TextToUuid("{2ED6657D-E927-568B-95E1-2665A8AEA6A2}"), kExample);
  EXPECT_EQ(TextToUuid("2ed6657d-e927-568b-95e1-2665a8aea6a2"), kExample);
  EXPECT_EQ(TextToUuid(u"{2ed6657D-e927-568B-95E1-2665A8AEA6A2}"), kExample);
  for (const char* const text : {
           "",
           "{}",
           "{2ED6657D-E927-568B-95E1-2665A8AEA6A2",
           "2ED6657D-E927-568B-95E1-2665A8AEA6A2}",
           "{2ED6657D-E927-568B-95E1-2665A8AEA6A}",
           "{2ED6657D-E927-568B-95E1-2665A8AEA6A22}",
           "{2ED6657DE-927-568B-95E1-2665A8AEA6A2}",
           "{2ED6657D-E927-568B-95E1-2665A8AEA6G2}",
           "(2ED6657D-E927-568B-95E1-2665A8AEA6A2)",
       }) {
    EXPECT_FALSE(TextToUuid(text)) << text;
  }
  EXPECT_FALSE(TextToUuid(u"{2ED6657D-E927-568B-95E1-2665A8AEA6\u0141\u0141}"));
}

}  // namespace
}  // namespace praxen::detail
