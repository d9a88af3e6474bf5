// Errors, round trips and counters as docs/guarantees.md promises them.
#include "fuzz/promises.h"

#include <sanitizer/allocator_interface.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

#include "praxen/core/counters.h"
#include "praxen/core/losses.h"
#include "praxen/describe/description.h"
#include "praxen/factory/deserialization.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen::detail {

namespace {

bool Contains(const Text& text, std::u16string_view part) {
  return text.view().find(part) != std::u16string_view::npos;
}

// Whether code may hold entity texts, each of which reads back as what it stands for.
bool HasEntityTexts(const Text& document) {
  return Contains(document, u"DCodeBlock") && Contains(document, u"&amp;");
}

// Whether reading changes nothing of a document that was written without line breaks: white space
// is brought into one form, and a group of project constants without a name is no level.
bool IsStable(const Text& document) {
  return document.view().find_first_of(u"\r\n\t") == std::u16string_view::npos &&
         !Contains(document, u"<ProjectConstant Name=''>");
}

// Whether a project constant lacks its type or value, as does one whose name is empty.
bool HasBareConstant(const Text& document) {
  return Contains(document, u"<Type></Type>") || Contains(document, u"<Value></Value>");
}

Text Write(Object& object) { return dynamic_cast<SerializableObject&>(object).Serialize(); }

// What reading and writing does to a document must be done with the first time, but for entity
// texts, of which each time takes one level.
void HoldDocument(const ClassDescription& description, Text document, Values values, bool stable) {
  for (int time = 0;; ++time) {
    Ref<Object> read;
    Losses losses;
    const auto reading = [&] { read = DeserializeObject(description, document, &losses); };
    if (!Succeeds(ReadingErrors(), reading)) {
      if (HasBareConstant(document) || (time == 0 && values == Values::Arbitrary)) return;
      Broken("what was written is read", document);
    }
    const auto isPassed = [](const Loss& loss) { return loss.kind == LossKind::NotRead; };
    if ((stable || time > 0) && std::ranges::any_of(losses, isPassed)) {
      Broken("what was written is read as a whole", document);
    }
    Text again;
    if (!Succeeds(WritingErrors(), [&] { again = Write(*read); })) {
      // Markup of a client's own may be read as anything, which then lacks something.
      if (time == 0 && values == Values::Arbitrary) return;
      Broken("what was read is written", document);
    }
    if (again == document) return;
    const bool peeled = HasEntityTexts(document) && again.size() < document.size();
    if (!peeled && (stable || time > 0)) {
      Broken("what was written is written again alike", document + u"\n=>\n" + again);
    }
    document = again;
  }
}

size_t requested = 0;

void CountRequest(const volatile void*, size_t size) { requested += size; }

// Whatever runs before the first input is not counted.
[[maybe_unused]] const int hooked =
    __sanitizer_install_malloc_and_free_hooks(&CountRequest, [](const volatile void*) {});

// The setting is put back to what it is at start-up.
class LineBreaks {
 public:
  explicit LineBreaks(bool include) { SetIncludeCRLFInXML(include); }
  LineBreaks(const LineBreaks&) = delete;
  LineBreaks& operator=(const LineBreaks&) = delete;
  ~LineBreaks() { SetIncludeCRLFInXML(true); }
};

}  // namespace

void Broken(std::string_view promise, std::u16string_view text) {
  std::cerr << "Broken: " << promise << '\n' << ToUtf8(text) << std::endl;
  std::abort();
}

std::span<const uint32_t> ReadingErrors() {
  static const uint32_t numbers[] = {InvalidXml(u"", {}).number(),
                                     WrongRootElement({}, {}).number(),
                                     WrongElementName({}, {}).number(),
                                     MissingObject().number(),
                                     TypeMismatch().number(),
                                     Overflow().number(),
                                     NestedTooDeep(kMaxXmlDepth).number()};
  return numbers;
}

std::span<const uint32_t> WritingErrors() {
  static const uint32_t numbers[] = {RequiredFieldsEmpty({}).number(), MissingObject().number(),
                                     NestedTooDeep(kMaxXmlDepth).number(), Overflow().number(),
                                     InvalidArgument().number()};
  return numbers;
}

void HoldError(uint32_t number, std::span<const uint32_t> documented) {
  if (std::ranges::find(documented, number) == documented.end()) {
    Broken("errors are documented: " + std::to_string(number));
  }
}

void HoldRoundTrip(Object& object, Values values) {
  bool stable = values == Values::Carried;
  for (const bool include : {false, true}) {
    const LineBreaks setting(include);
    Text document;
    if (!Succeeds(WritingErrors(), [&] { document = Write(object); })) return;
    if (!include) stable = stable && IsStable(document);
    HoldDocument(object.description(), document, values, stable);
  }
}

// A parser is made anew now and then, and with it the schema compiled.
InProportion::InProportion(size_t characters)
    : allowed_(100'000'000 + 2'000 * characters), before_(requested) {}

InProportion::~InProportion() {
  const size_t taken = requested - before_;
  if (taken > allowed_) Broken("memory in proportion to the text: " + std::to_string(taken));
}

NothingStays::NothingStays() : before_(ObjectCounter()) {}

NothingStays::~NothingStays() {
  if (ObjectCounter() != before_) Broken("the counter returns");
  // The counter leaves out enumerators and the code blocks of ladder diagrams.
  if (ModuleInUse()) Broken("nothing keeps the library in use");
}

}  // namespace praxen::detail
