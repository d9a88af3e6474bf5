// Classes, members and constants as texts, from the descriptions.
#include "praxen/server/class_information_posix.h"

#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include "praxen/automation/border.h"
#include "praxen/automation/guid.h"
#include "praxen/core/ascii.h"
#include "praxen/core/enumerations.h"
#include "praxen/core/text.h"
#include "praxen/describe/identifiers.h"
#include "praxen/describe/slots.h"
#include "praxen/factory/classes.h"
#include "praxen/server/registration.h"

namespace praxen::detail {

namespace {

std::string WriteClasses() {
  std::string lines;
  for (const ClassDescription* const description : CreatableClasses()) {
    lines += ProgId(*description) + '\t' + GuidToText(ClassId(*description)) + '\n';
  }
  return lines;
}

std::string WriteConstants() {
  std::string lines;
  for (const EnumerationDescription* const enumeration : AllEnumerations()) {
    for (const EnumerationConstant& constant : enumeration->constants) {
      lines.append(constant.name).append("\t" + std::to_string(constant.value) + "\n");
    }
  }
  return lines;
}

std::string_view WhatItIs(const Member& member) {
  if (member.isMethod) return "method";
  if (member.id == kEnumeratorId) return "enumerator";
  return member.put == nullptr ? "readonly" : "property";
}

void AppendMembers(std::string& lines, const ClassDescription& description) {
  for (const Member& member : description.members) {
    lines.append(WhatItIs(member)).append("\t").append(member.name);
    for (const MemberParameter& parameter : member.parameters) {
      lines.append("\t").append(parameter.name);
    }
    lines += '\n';
  }
  if (description.kind != nullptr) AppendMembers(lines, *description.kind);
}

struct ClassTexts {
  std::string name, members;
};

// Made when it is first asked for.
const ClassTexts& TextsOf(const ClassDescription& description) {
  static std::mutex mutex;
  static std::map<const ClassDescription*, ClassTexts> texts;
  const std::lock_guard lock(mutex);
  const auto known = texts.find(&description);
  if (known != texts.end()) return known->second;
  ClassTexts made{std::string(description.name), {}};
  AppendMembers(made.members, description);
  return texts.emplace(&description, std::move(made)).first->second;
}

// Null stands for an exception: memory is short, or an object is not of this library.
template <class Work>
const char* TextOrNull(Work work) noexcept {
  return AtBorder(work, [] { return nullptr; });
}

}  // namespace

}  // namespace praxen::detail

const char* PraxenClasses() noexcept {
  return praxen::detail::TextOrNull([] {
    static const std::string lines = praxen::detail::WriteClasses();
    return lines.c_str();
  });
}

const char* PraxenMembers(const char* className) noexcept {
  return praxen::detail::TextOrNull([&]() -> const char* {
    if (className == nullptr) return nullptr;
    const std::string_view name(className);
    const auto* const found = praxen::detail::FindClass(praxen::detail::WidenAscii(name));
    return found == nullptr ? nullptr : praxen::detail::TextsOf(*found).members.c_str();
  });
}

const char* PraxenConstants() noexcept {
  return praxen::detail::TextOrNull([] {
    static const std::string lines = praxen::detail::WriteConstants();
    return lines.c_str();
  });
}

const char* PraxenClassOf(IUnknown* object) noexcept {
  return praxen::detail::TextOrNull([&]() -> const char* {
    const auto found = praxen::detail::abi::ToObject(
        reinterpret_cast<praxen::detail::Interface*>(object), nullptr);
    return found ? praxen::detail::TextsOf(found->description()).name.c_str() : nullptr;
  });
}
