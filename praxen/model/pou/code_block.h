// ICodeBlock, the kind of all code blocks.
#ifndef PRAXEN_MODEL_POU_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_CODE_BLOCK_H_

#include "praxen/describe/creation.h"
#include "praxen/describe/kind.h"

namespace praxen {

class STCodeBlock;
class SFCCodeBlock;
class ILCodeBlock;
class FBDCodeBlock;
class LDCodeBlock;
class FDCodeBlock;

/// A code block of any language. On its own it has no name and is of no language.
class ICodeBlock : public describe::KindBase<ICodeBlock, SerializableObject> {
 public:
  virtual Text Name() const { return GetText(); }
  virtual void SetName(const Text& name) { SetText(name); }
  virtual bool IsSTCodeBlock() const { return Answer<&T::IsSTCodeBlock>(); }
  virtual bool IsSFCCodeBlock() const { return Answer<&T::IsSFCCodeBlock>(); }
  virtual bool IsILCodeBlock() const { return Answer<&T::IsILCodeBlock>(); }
  virtual bool IsFBDCodeBlock() const { return Answer<&T::IsFBDCodeBlock>(); }
  virtual bool IsLDCodeBlock() const { return Answer<&T::IsLDCodeBlock>(); }
  virtual bool IsFDCodeBlock() const { return Answer<&T::IsFDCodeBlock>(); }

  using Classes = describe::KindClasses<describe::Asked<STCodeBlock, &T::IsSTCodeBlock>,
                                        describe::Asked<SFCCodeBlock, &T::IsSFCCodeBlock>,
                                        describe::Asked<ILCodeBlock, &T::IsILCodeBlock>,
                                        describe::Asked<FBDCodeBlock, &T::IsFBDCodeBlock>,
                                        describe::Asked<LDCodeBlock, &T::IsLDCodeBlock>,
                                        describe::Asked<FDCodeBlock, &T::IsFDCodeBlock>>;
  static auto& kindText(auto& object) { return object.Name; }

  static constexpr std::string_view kHelp = "A code block of any language.";
  static describe::Members members() {
    using namespace describe;
    return Members{accessors<&T::Name, &T::SetName>("Name", "Name of the code block.")} +
           Classes::questions();
  }

 protected:
  using KindBase::KindBase;
  ICodeBlock() = default;
};

extern template struct describe::Published<ICodeBlock>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CODE_BLOCK_H_
