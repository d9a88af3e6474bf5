// The direct way of reading, held against the reference way.
#include "praxen/factory/direct_reading.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "praxen/core/numbers.h"
#include "praxen/xml/xml_limits.h"
#include "tests/support/both_ways.h"
#include "tests/support/random_documents.h"
#include "tests/support/sound_documents.h"
#include "tests/support/xml_mutation.h"

namespace praxen::detail {
namespace {

TEST(DirectReading, TakesTheOrdinaryDocument) {
  for (const SoundDocument& document : SoundDocuments()) {
    EXPECT_TRUE(IsReadDirectly(document)) << document.name;
  }
}

// With the decimal separator that the parameter tells.
class BothWaysOfReading : public testing::TestWithParam<bool> {
 protected:
  BothWaysOfReading() {
    if (GetParam()) comma_.emplace();
  }

  void Compare(const Text& text) {
    const BothWays ways = ReadBothWays(text);
    EXPECT_TRUE(ways.difference.empty()) << ways.difference << "\nof\n" << text.utf8();
    ++(ways.isDirect ? direct_ : givenUp_);
  }

  size_t direct_ = 0, givenUp_ = 0;

 private:
  std::optional<DecimalComma> comma_;
};

INSTANTIATE_TEST_SUITE_P(Separators, BothWaysOfReading, testing::Bool(),
                         [](const auto& separator) { return separator.param ? "Comma" : "Point"; });

TEST_P(BothWaysOfReading, BuildTheSameOfSoundDocuments) {
  for (const SoundDocument& document : SoundDocuments()) Compare(document.text);
}

TEST_P(BothWaysOfReading, BuildTheSameOfGeneratedDocuments) {
  RandomDocuments documents(GetParam() ? 1 : 2);
  for (int count = 0; count < 1000; ++count) Compare(documents.Next().text);
}

TEST_P(BothWaysOfReading, BuildTheSameOfChangedDocuments) {
  Random random(GetParam() ? 1 : 2);
  const std::vector<SoundDocument> documents = SoundDocuments();
  for (int count = 0; count < 2000; ++count) {
    const std::string xml = random.OneOf(documents).text.utf8();
    std::u16string text = FromUtf8(random.OneIn(3) ? xml : Mutated(xml, random));
    if (random.OneIn(3)) text = Spoiled(std::move(text), random);
    Compare(text);
  }
  // Of both there are enough to tell.
  EXPECT_GT(direct_, 100u);
  EXPECT_GT(givenUp_, 100u);
}

std::u16string Repeat(std::u16string_view text, size_t count) {
  std::u16string repeated;
  for (size_t i = 0; i < count; ++i) repeated += text;
  return repeated;
}

TEST_P(BothWaysOfReading, EndAtTheSameLimits) {
  const std::u16string start = u"<ProjectConstants xmlns='PraxenSchema3_0'>";
  for (const size_t groups : {size_t{498}, size_t{499}}) {
    Compare(start + Repeat(u"<ProjectConstant Name='a'><ProjectConstants>", groups) +
            u"<ProjectConstant Name='b'><Type>t</Type><Value>v</Value></ProjectConstant>" +
            Repeat(u"</ProjectConstants></ProjectConstant>", groups) + u"</ProjectConstants>");
  }
  // Few characters of much markup.
  Compare(u"<Variable xmlns='PraxenSchema3_0' Type='t' Attribute='' Name='" +
          Repeat(u"&#" + std::u16string(1'000, u'0') + u"65;", 61'000) + u"'/>");
  // Few foreign names in each diagram.
  std::u16string diagrams;
  for (size_t i = 0; i <= kMaxXmlForeignNames / 2; ++i) {
    const std::u16string number = DecimalText(i);
    diagrams += u"<FDCodeBlock Name='b'><e" + number + u" f" + number + u"=''/></FDCodeBlock>";
  }
  Compare(u"<Program xmlns='PraxenSchema3_0' Name='a'><CodeBlocks>" + diagrams +
          u"</CodeBlocks></Program>");
}

// Project constants may be elements of any name, which the schema may know for something else.
TEST_P(BothWaysOfReading, AgreeOnConstantsByOtherNames) {
  for (const std::u16string name : {u"ProjectConstant", u"Other", u"Type", u"Variable"}) {
    Compare(u"<ProjectConstants xmlns='PraxenSchema3_0'><" + name +
            u" Name='a'><Type>t</Type><Value>v</Value></" + name + u"></ProjectConstants>");
  }
}

TEST_P(BothWaysOfReading, TakeNoBlanksForADiagram) {
  for (const std::u16string content :
       {u"&#10;", u" &#x20; ", u"&#10;a", u"<![CDATA[ ]]>", u"&#xA0;"}) {
    Compare(u"<FDCodeBlock xmlns='PraxenSchema3_0' Name='f'>" + content + u"</FDCodeBlock>");
  }
}

}  // namespace
}  // namespace praxen::detail
