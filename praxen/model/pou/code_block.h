// ICodeBlock, the kind of all code blocks, and the base that the code-block classes share.
#ifndef PRAXEN_MODEL_POU_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_CODE_BLOCK_H_

#include <type_traits>

#include "praxen/describe/creation.h"
#include "praxen/describe/kind.h"

namespace praxen {

class STCodeBlock;
class LDCodeBlock;
class FBDCodeBlock;
class FDCodeBlock;
class ILCodeBlock;
class SFCCodeBlock;

/// A code block of any language. On its own it has no name and is of no language.
class ICodeBlock : public describe::KindBase<ICodeBlock, SerializableObject> {
 public:
  virtual Text Name() const { return {}; }
  virtual void SetName(const Text&) {}
  virtual bool IsSTCodeBlock() const { return false; }
  virtual bool IsSFCCodeBlock() const { return false; }
  virtual bool IsILCodeBlock() const { return false; }
  virtual bool IsFBDCodeBlock() const { return false; }
  virtual bool IsLDCodeBlock() const { return false; }
  virtual bool IsFDCodeBlock() const { return false; }

  /// Holds a code block that is implemented outside the library.
  static Ref<Object> Adapt(detail::Interface* foreign);

  static constexpr std::string_view kHelp = "A code block of any language.";
  static describe::Members members() {
    using namespace describe;
    return {
        accessors<&ICodeBlock::Name, &ICodeBlock::SetName>("Name", "Name of the code block."),
        computed<&ICodeBlock::IsSTCodeBlock>("Whether it is an STCodeBlock."),
        computed<&ICodeBlock::IsSFCCodeBlock>("Whether it is an SFCCodeBlock."),
        computed<&ICodeBlock::IsILCodeBlock>("Whether it is an ILCodeBlock."),
        computed<&ICodeBlock::IsFBDCodeBlock>("Whether it is an FBDCodeBlock."),
        computed<&ICodeBlock::IsLDCodeBlock>("Whether it is an LDCodeBlock."),
        computed<&ICodeBlock::IsFDCodeBlock>("Whether it is an FDCodeBlock."),
    };
  }

 protected:
  using KindBase::KindBase;
  ICodeBlock() = default;
};

/// Answers what `ICodeBlock` asks for the concrete `Class`.
template <class Class>
class CodeBlock : public describe::Described<Class, ICodeBlock> {
 public:
  Text Name() const final { return static_cast<const Class&>(*this).Name; }
  void SetName(const Text& name) final { static_cast<Class&>(*this).Name = name; }
  bool IsSTCodeBlock() const final { return std::is_same_v<Class, STCodeBlock>; }
  bool IsSFCCodeBlock() const final { return std::is_same_v<Class, SFCCodeBlock>; }
  bool IsILCodeBlock() const final { return std::is_same_v<Class, ILCodeBlock>; }
  bool IsFBDCodeBlock() const final { return std::is_same_v<Class, FBDCodeBlock>; }
  bool IsLDCodeBlock() const final { return std::is_same_v<Class, LDCodeBlock>; }
  bool IsFDCodeBlock() const final { return std::is_same_v<Class, FDCodeBlock>; }

 protected:
  using describe::Described<Class, ICodeBlock>::Described;
  CodeBlock() = default;
};

extern template const describe::ClassDescription& describe::Describe<ICodeBlock>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CODE_BLOCK_H_
