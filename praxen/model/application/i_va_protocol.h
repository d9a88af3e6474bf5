// IVAProtocol, the kind of the protocols of variable access, and the base of its classes.
#ifndef PRAXEN_MODEL_APPLICATION_I_VA_PROTOCOL_H_
#define PRAXEN_MODEL_APPLICATION_I_VA_PROTOCOL_H_

#include <type_traits>

#include "praxen/describe/kind.h"
#include "praxen/model/collection.h"

namespace praxen {

class VANamedProtocol;
class VAAddressedProtocol;

/// A protocol over which other systems reach variables. On its own it has no name and no variables.
class IVAProtocol : public describe::KindBase<IVAProtocol> {
 public:
  IVAProtocol() = default;

  virtual Text Name() const { return {}; }
  virtual void SetName(const Text&) {}
  virtual bool IsVANamedProtocol() const { return false; }
  virtual bool IsVAAddressedProtocol() const { return false; }

  /// Holds a protocol that is implemented outside the library.
  static Ref<Object> Adapt(detail::Interface* foreign);

  static constexpr std::string_view kHelp = "A protocol over which other systems reach variables.";
  static describe::Members members() {
    using namespace describe;
    return {accessors<&IVAProtocol::Name, &IVAProtocol::SetName>("Name", "Name of the protocol."),
            computed<&IVAProtocol::IsVANamedProtocol>("Whether it is a VANamedProtocol."),
            computed<&IVAProtocol::IsVAAddressedProtocol>("Whether it is a VAAddressedProtocol.")};
  }

 protected:
  using KindBase::KindBase;
};

/// A protocol as the list of its variables. `Class` holds the name.
template <class Class, class Variable>
class VAProtocol : public Collection<Class, Variable, IVAProtocol> {
  using List = Collection<Class, Variable, IVAProtocol>;

 public:
  Text Name() const final { return static_cast<const Class&>(*this).Name; }
  void SetName(const Text& name) final { static_cast<Class&>(*this).Name = name; }
  bool IsVANamedProtocol() const final { return std::is_same_v<Class, VANamedProtocol>; }
  bool IsVAAddressedProtocol() const final { return std::is_same_v<Class, VAAddressedProtocol>; }
  bool IVAProtocol_IsVANamedProtocol() const { return IsVANamedProtocol(); }
  bool IVAProtocol_IsVAAddressedProtocol() const { return IsVAAddressedProtocol(); }

  static constexpr std::string_view kArgument = "variable";
  static describe::Members members() {
    using namespace describe;
    return Members{property<&Class::Name>("Name of the protocol.")} + List::members() +
           Members{computed<&VAProtocol::IVAProtocol_IsVANamedProtocol>(
                       "Whether it is a VANamedProtocol."),
                   computed<&VAProtocol::IVAProtocol_IsVAAddressedProtocol>(
                       "Whether it is a VAAddressedProtocol.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&Class::Name>()},
            .elements = {choice<Variable>()},
            .container = Container::Always};
  }
};

extern template const describe::ClassDescription& describe::Describe<IVAProtocol>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_I_VA_PROTOCOL_H_
