// Prints an object and all below it as a tree of lines.
#include "tools/praxen/outline.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "praxen/core/numbers.h"
#include "praxen/describe/reflection.h"

namespace praxen::detail {

namespace {

// A longer text has a line of its own.
constexpr size_t kLongestInline = 72;

// A property's value, and whether a new object holds another.
struct Property {
  const Member* member;
  Value value;
  bool differs;
};

std::string Number(std::u16string_view text) {
  const size_t start = text.find_first_not_of(u' ');
  return Printable(text.substr(start == std::u16string_view::npos ? text.size() : start));
}

std::string ValueText(const Property& property) {
  const auto* const enumeration = property.member->type.enumeration;
  const auto toText = [&]<class T>(const T& value) -> std::string {
    if constexpr (std::is_same_v<T, Text>) {
      return Printable(value);
    } else if constexpr (std::is_same_v<T, bool>) {
      return value ? "true" : "false";
    } else if constexpr (std::is_same_v<T, int32_t>) {
      return enumeration == nullptr ? Number(NumberText(value))
                                    : Printable(enumeration->ToText(value));
    } else {
      return Number(NumberText(value));
    }
  };
  return std::visit(toText, property.value);
}

// Quotes what would not be seen to be one value.
std::string Quoted(const std::string& value) {
  const bool plain = !value.empty() && value.find_first_of(" \t,:\"") == std::string::npos;
  return plain ? value : '"' + value + '"';
}

std::vector<std::u16string_view> LinesOf(std::u16string_view text) {
  std::vector<std::u16string_view> lines;
  while (!text.empty()) {
    const size_t end = std::min(text.find(u'\n'), text.size());
    std::u16string_view line = text.substr(0, end);
    if (line.ends_with(u'\r')) line.remove_suffix(1);
    lines.push_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

// Where a property stands.
enum class Placement : uint8_t {
  Hidden,
  /// Behind the class, without its name: what writing requires, else the first if it is a name.
  Title,
  /// Behind the title and a colon: the text that is all an element holds.
  Content,
  /// In the same line, after its name.
  Inline,
  /// In lines of its own.
  Block
};

bool IsTitle(const ClassDescription& description, const Member& member) {
  const auto isRequired = [](const Attribute& a) { return a.rule == Rule::Required; };
  if (std::ranges::none_of(AttributesOf(description), isRequired)) {
    return &member == &description.members.front() && member.name.ends_with("Name");
  }
  const Attribute* const attribute = AttributeOf(description, member);
  return attribute != nullptr && isRequired(*attribute);
}

bool IsContent(const ClassDescription& description, const Member& member) {
  const Child* const child = ChildOf(description, member);
  return child != nullptr && child->kind == ChildKind::Content;
}

bool IsCode(const Member& member) {
  return member.name.ends_with("code") || member.name.ends_with("Code");
}

bool IsLong(const Text& text) {
  return text.size() > kLongestInline ||
         text.view().find_first_of(u"\r\n") != std::u16string_view::npos;
}

Placement PlacementOf(const ClassDescription& description, const Property& property) {
  if (IsTitle(description, *property.member)) return Placement::Title;
  if (!property.differs) return Placement::Hidden;
  const Text* const text = std::get_if<Text>(&property.value);
  if (text == nullptr) return Placement::Inline;
  if (IsLong(*text)) return Placement::Block;
  if (IsContent(description, *property.member)) return Placement::Content;
  return IsCode(*property.member) ? Placement::Block : Placement::Inline;
}

// The place of a property in its element, after all others when the class writes it itself.
size_t RankOf(const ClassDescription& description, const Property& property) {
  const std::span<const Attribute> attributes = AttributesOf(description);
  const std::span<const Child> children = ChildrenOf(description);
  if (const Attribute* const attribute = AttributeOf(description, *property.member)) {
    return static_cast<size_t>(attribute - attributes.data());
  }
  const Child* const child = ChildOf(description, *property.member);
  return attributes.size() +
         (child == nullptr ? children.size() : static_cast<size_t>(child - children.data()));
}

// A line of the tree: an object with what a new one in its place would hold.
struct Branch {
  std::string label;
  Object& object;
  Object& created;
};

class OutlinePrinter {
 public:
  OutlinePrinter(const Colours& colours, std::ostream& stream)
      : colours_(colours), stream_(stream) {}

  void Print(const Branch& branch, const std::string& prefix, size_t depth) {
    const std::vector<Branch> branches = BranchesOf(branch);
    PrintHeading(branch);
    const bool isCut = depth == 0 && !branches.empty();
    stream_ << (isCut ? " …\n" : "\n");
    PrintBlocks(branch, prefix + (branches.empty() || isCut ? "   " : "│  "));
    if (isCut) return;
    for (const Branch& below : branches) {
      const bool isLast = &below == &branches.back();
      stream_ << colours_.dim << prefix << (isLast ? "└─ " : "├─ ") << colours_.reset;
      Print(below, prefix + (isLast ? "   " : "│  "), depth - 1);
    }
  }

  Branch BranchOf(Object& object) {
    return {std::string(object.description().name), object, new_.Like(object)};
  }

 private:
  std::vector<Property> PropertiesOf(const Branch& branch) const {
    std::vector<Property> properties;
    for (const Member& member : branch.object.description().members) {
      if (!IsKeptValue(member)) continue;
      const Value value = ReadProperty(branch.object, member);
      properties.push_back({&member, value, value != ReadProperty(branch.created, member)});
    }
    std::ranges::stable_sort(properties, {}, [&](const Property& property) {
      return RankOf(branch.object.description(), property);
    });
    return properties;
  }

  // Elements that stand in their owner's element without one around them are the owner's branches.
  std::vector<Branch> BranchesOf(const Branch& branch) {
    std::vector<Branch> branches;
    for (const Child& child : ChildrenOf(branch.object.description())) {
      Object* const held = Held(branch.object, child);
      if (held == nullptr) continue;
      if (child.kind == ChildKind::Items) {
        AppendElements(branches, *held);
      } else {
        AppendHeld(branches, child, *held, Held(branch.created, child));
      }
    }
    AppendElements(branches, branch.object);
    return branches;
  }

  void AppendElements(std::vector<Branch>& branches, Object& list) {
    for (const Ref<Object>& element : ElementsOf(list)) branches.push_back(BranchOf(*element));
  }

  // Leaves out what a new owner holds as well.
  void AppendHeld(std::vector<Branch>& branches, const Child& child, Object& held,
                  Object* created) {
    const Branch branch{std::string(child.property), held,
                        created == nullptr ? new_.Like(held) : *created};
    if (created == nullptr || IsWorthShowing(branch)) branches.push_back(branch);
  }

  bool IsWorthShowing(const Branch& branch) {
    return std::ranges::any_of(PropertiesOf(branch), &Property::differs) ||
           !BranchesOf(branch).empty();
  }

  void PrintHeading(const Branch& branch) {
    const ClassDescription& description = branch.object.description();
    stream_ << colours_.cyan << branch.label << colours_.reset;
    std::string content, inlined;
    for (const Property& property : PropertiesOf(branch)) {
      const Placement placement = PlacementOf(description, property);
      if (placement == Placement::Title) {
        stream_ << ' ' << colours_.bold << ValueText(property) << colours_.reset;
      } else if (placement == Placement::Content) {
        content = ": " + ValueText(property);
      } else if (placement == Placement::Inline) {
        inlined.append(inlined.empty() ? "  " : ", ").append(Inlined(property));
      }
    }
    if (const auto* const elements = branch.object.elements(); elements != nullptr) {
      stream_ << " (" << elements->size() << ')';
    }
    stream_ << content << inlined;
  }

  std::string Inlined(const Property& property) const {
    std::string text(colours_.dim);
    text.append(property.member->name).append(": ").append(colours_.reset);
    return text + Quoted(ValueText(property));
  }

  void PrintBlocks(const Branch& branch, const std::string& prefix) {
    const ClassDescription& description = branch.object.description();
    for (const Property& property : PropertiesOf(branch)) {
      if (PlacementOf(description, property) != Placement::Block) continue;
      stream_ << colours_.dim << prefix << property.member->name << ":\n" << colours_.reset;
      for (const std::u16string_view line : LinesOf(std::get<Text>(property.value))) {
        stream_ << colours_.dim << prefix << colours_.reset << "  " << Printable(line) << '\n';
      }
    }
  }

  const Colours& colours_;
  std::ostream& stream_;
  NewObjects new_;
};

}  // namespace

void PrintOutline(Object& object, size_t depth, const Colours& colours, std::ostream& stream) {
  OutlinePrinter printer(colours, stream);
  printer.Print(printer.BranchOf(object), "", depth);
}

}  // namespace praxen::detail
