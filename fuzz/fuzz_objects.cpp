// Builds objects by calls of their published members that a client could mean; those that are
// documents are then written, read and written again. The first byte tells whether texts and
// numbers are such as a document can carry.
#include <algorithm>
#include <bit>
#include <cmath>
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/object_pool.h"
#include "fuzz/promises.h"
#include "praxen/automation/values.h"
#include "praxen/describe/reflection.h"
#include "praxen/xml/xml_string_writer.h"
#include "tests/support/example.h"

namespace {

using praxen::AnyValue;
using praxen::Object;
using praxen::Ref;
using praxen::Text;
using praxen::Variant;
using praxen::describe::EnumerationDescription;
using praxen::describe::IsDocument;
using praxen::describe::IsObject;
using praxen::describe::Overloaded;
using praxen::describe::ValueType;
using praxen::describe::VisitType;
using praxen::detail::FuzzInput;
using praxen::detail::Member;
using praxen::detail::Values;

constexpr int kMostCalls = 100;
constexpr int kDepth = 7;
constexpr size_t kMostDocuments = 8;

// The markup of a function diagram is written as it is.
constexpr std::string_view kMarkupProperty = "FDAsXMLStr";
// Characters that survive writing and reading, markup among them. Without a semicolon there are no
// entity texts.
constexpr std::u16string_view kCharacters =
    u"aabcdefgxyzABCXYZ012789__.. -+*/=:,()[]{}<>&'\"#%$\u00E4\u00DF\u20AC\u3042\uE000\uFFFD";

Text CarriedText(FuzzInput& input) {
  if (input.OneIn(16)) return {};
  if (input.OneIn(16)) return u"\U0001F600\U0010FFFD";
  return u"n" + input.TextOf(12, [](FuzzInput& from) {
    return kCharacters[from.Below(kCharacters.size())];
  });
}

double Number(FuzzInput& input, Values values) {
  static const double kNumbers[] = {0, 1, -1, 0.5, 0.1, 1e15, -1e-15, 1e300, 5e-324, 123456789.25};
  if (input.OneIn(2)) return input.OneOf(kNumbers);
  const double number = std::bit_cast<double>(input.Bits<uint64_t>());
  return std::isfinite(number) || values == Values::Arbitrary ? number : 0;
}

// A run: the objects, and the values that their members are called with.
class Client {
 public:
  explicit Client(FuzzInput input)
      : input_(input),
        values_(input_.OneIn(2) ? Values::Arbitrary : Values::Carried),
        pool_(input_) {}

  void Run() {
    for (size_t i = pool_.objects().size(); i > 0; --i) Grow(*pool_.objects()[i - 1], kDepth);
    for (int calls = 0; calls < kMostCalls && !input_.empty(); ++calls) {
      Object* const object = pool_.Choose(input_);
      if (object == nullptr) return;
      CallAny(*object);
    }
    // A call may have changed the setting.
    praxen::detail::SetIncludeCRLFInXML(true);
    // What a client must set before an object can be written.
    for (const Ref<Object>& object : pool_.objects()) praxen::detail::FillRequired(*object);
    const size_t count = std::min(pool_.objects().size(), kMostDocuments);
    for (size_t i = 0; i < count; ++i) Hold(*pool_.objects()[i]);
  }

 private:
  int32_t Integer() {
    return input_.OneIn(8) ? input_.Bits<int32_t>() : static_cast<int32_t>(input_.Below(12)) - 2;
  }

  int32_t Constant(const EnumerationDescription& enumeration) {
    if (values_ == Values::Arbitrary && input_.OneIn(4)) return input_.Bits<int32_t>();
    const auto& constant = enumeration.constants[input_.Below(enumeration.constants.size())];
    // Two constants may share a text, which reads as the first of them.
    return values_ == Values::Carried ? enumeration.FromText(constant.text) : constant.value;
  }

  Text String(std::string_view name) {
    if (name == "XMLStr") return document_;
    if (values_ == Values::Arbitrary) return input_.AnyText();
    if (name != kMarkupProperty) return CarriedText(input_);
    static const char16_t* const kMarkup[] = {u"<FunctionDiagram/>", u"<a b='c'> d <e>f</e></a>",
                                              u"<x xmlns='other' ><!-- --><y>&amp;</y></x>"};
    return input_.OneOf(kMarkup);
  }

  // No document tells that there is no object where a new one has one, so a client who sets what a
  // document can carry calls with none by mistake only, as with a value of another type.
  Variant Reference(const praxen::detail::ClassDescription& wanted) {
    Object* const object = input_.OneIn(32) ? nullptr : pool_.Choose(input_, wanted);
    if (object != nullptr) return Variant(praxen::detail::AsDispatch(*object));
    return values_ == Values::Carried ? Variant() : Variant(static_cast<IDispatch*>(nullptr));
  }

  Variant Value(std::string_view name, const ValueType& type) {
    // Before so many branches end, memory does.
    if (name == "NrOfBranches") return Variant(static_cast<int32_t>(input_.Below(6)) - 1);
    using std::type_identity;
    return VisitType(
        type, Overloaded{[&](type_identity<bool>) { return Variant(input_.OneIn(2)); },
                         [&](type_identity<int32_t>) { return Variant(Integer()); },
                         [&](type_identity<EnumerationDescription>) {
                           return Variant(Constant(*type.enumeration));
                         },
                         [&](type_identity<double>) { return Variant(Number(input_, values_)); },
                         [&](type_identity<AnyValue>) {
                           return input_.OneIn(2) ? Variant(Number(input_, values_))
                                                  : Variant(String(name).view());
                         },
                         [&](type_identity<Object>) { return Reference(type.object()); },
                         [&](auto) { return Variant(String(name).view()); }});
  }

  // Gives properties values and lists elements, and goes on with the objects that these are.
  void Grow(Object& object, int depth) {
    for (const Member& member : object.description().members) {
      if (input_.empty()) return;
      if (IsObject(member.type)) {
        const bool leads = member.storage != nullptr || member.name.starts_with("Add");
        if (leads && depth > 0 && input_.OneIn(2)) GrowResult(object, member, depth - 1);
      } else if (member.put != nullptr && input_.OneIn(2)) {
        Put(object, member);
      }
    }
  }

  void GrowResult(Object& object, const Member& member, int depth) {
    const Variant result = Call(object, member);
    if (result.vt != VT_DISPATCH) return;
    const Ref<Object> grown = praxen::detail::ObjectFromVariant(result, nullptr);
    if (grown) Grow(*grown, depth);
  }

  void CallAny(Object& object) {
    const auto& members = object.description().members;
    if (members.empty()) return;
    const Member& member = members[input_.Below(members.size())];
    if (member.put != nullptr && !input_.OneIn(4)) return Put(object, member);
    Call(object, member);
  }

  Variant Call(Object& object, const Member& member) {
    const bool writes = member.name == "Serialize";
    if (writes && !praxen::detail::IsSmall(object)) return {};
    // Last argument first.
    std::vector<Variant> arguments;
    for (const auto& parameter : member.parameters) {
      arguments.push_back(Value(parameter.name, parameter.type));
    }
    std::ranges::reverse(arguments);
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    Variant result;
    Invoke(object, member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, parameters, &result);
    if (writes) document_ = result.View();
    pool_.Keep(result);
    return result;
  }

  void Put(Object& object, const Member& member) {
    Variant value = Value(member.name, member.type);
    DISPID name = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&value, &name, 1, 1};
    Invoke(object, member, IsObject(member.type) ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT,
           parameters, nullptr);
  }

  static void Invoke(Object& object, const Member& member, WORD flags, DISPPARAMS& parameters,
                     VARIANT* result) {
    praxen::detail::AsDispatch(object)->Invoke(member.id, IID_NULL, 0, flags, &parameters, result,
                                               nullptr, nullptr);
  }

  void Hold(Object& object) {
    if (IsDocument(object.description()) && praxen::detail::IsSmall(object)) {
      praxen::detail::HoldRoundTrip(object, values_);
    }
  }

  FuzzInput input_;
  const Values values_;
  praxen::detail::ObjectPool pool_;
  // What was written last.
  Text document_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const praxen::detail::NothingStays counted;
  Client(FuzzInput(data, size)).Run();
  return 0;
}
