// Reading operations, each described by the class that it reads.
#ifndef PRAXEN_FACTORY_DESERIALIZATION_H_
#define PRAXEN_FACTORY_DESERIALIZATION_H_

#include <string_view>
#include <vector>

#include "praxen/core/losses.h"
#include "praxen/describe/description.h"
#include "praxen/describe/object.h"
#include "praxen/model/pou/code_block.h"

namespace praxen::detail {

/// Creates an object of a described class and reads it from a document whose root is its element.
/// What that leaves out replaces `losses` when these are given.
Ref<Object> DeserializeObject(const ClassDescription& description, const Text& XMLStr,
                              Losses* losses = nullptr);

/// What the reading operations have in common: the text is passed by reference.
struct Reading {
  static constexpr uint32_t kByReference = 1;

  static std::vector<std::string_view> ParameterNames() { return {"XMLStr"}; }
};

/// Reads a document of `Class`. Raises `InvalidXml` for a text that does not parse or validate,
/// `WrongRootElement` for the document of another class, and what reading its contents raises.
template <class Class>
struct Deserialization : Reading {
  Ref<Class> operator()(const Text& XMLStr) const {
    return static_cast<Class*>(DeserializeObject(Describe<Class>(), XMLStr).get());
  }

  static std::string_view Help() { return "Reads the object from an XML document."; }
};

/// Reads a code block of any language, as its root element tells; raises `WrongRootElement` for the
/// document of anything else.
struct CodeBlockDeserialization : Reading {
  Ref<ICodeBlock> operator()(const Text& XMLStr) const;

  static std::string_view Help() { return "Reads a code block of any language."; }
};

}  // namespace praxen::detail

#endif  // PRAXEN_FACTORY_DESERIALIZATION_H_
