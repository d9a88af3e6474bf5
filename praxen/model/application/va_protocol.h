// The protocols VANamedProtocol and VAAddressedProtocol, and their kind IVAProtocol.
#ifndef PRAXEN_MODEL_APPLICATION_VA_PROTOCOL_H_
#define PRAXEN_MODEL_APPLICATION_VA_PROTOCOL_H_

#include "praxen/describe/kind.h"
#include "praxen/model/application/va_variable.h"
#include "praxen/model/collection.h"

namespace praxen {

class VANamedProtocol;
class VAAddressedProtocol;

/// A protocol over which other systems reach variables. On its own it has no name and no variables.
class IVAProtocol : public describe::KindBase<IVAProtocol> {
 public:
  IVAProtocol() = default;

  virtual Text Name() const { return GetText(); }
  virtual void SetName(const Text& name) { SetText(name); }
  virtual bool IsVANamedProtocol() const { return Answer<&T::IsVANamedProtocol>(); }
  virtual bool IsVAAddressedProtocol() const { return Answer<&T::IsVAAddressedProtocol>(); }

  using Classes =
      describe::KindClasses<describe::Asked<VANamedProtocol, &T::IsVANamedProtocol>,
                            describe::Asked<VAAddressedProtocol, &T::IsVAAddressedProtocol>>;
  static auto& kindText(auto& object) { return object.Name; }

  static constexpr std::string_view kHelp = "A protocol over which other systems reach variables.";
  static describe::Members members() {
    using namespace describe;
    return Members{accessors<&T::Name, &T::SetName>("Name", "Name of the protocol.")} +
           Classes::questions();
  }

 protected:
  using KindBase::KindBase;
};

}  // namespace praxen

namespace praxen::detail {

/// A protocol as the list of its variables. `Class` holds the name.
template <class Class, class Variable>
class VAProtocol : public Collection<Class, Variable, IVAProtocol> {
  using List = Collection<Class, Variable, IVAProtocol>;

 public:
  bool IVAProtocol_IsVANamedProtocol() const { return this->IsVANamedProtocol(); }
  bool IVAProtocol_IsVAAddressedProtocol() const { return this->IsVAAddressedProtocol(); }

  static constexpr std::string_view kArgument = "variable";
  static Members members() {
    return Members{property<&Class::Name>("Name of the protocol.")} + List::members() +
           Members{computed<&VAProtocol::IVAProtocol_IsVANamedProtocol>(
                       Asked<VANamedProtocol, &IVAProtocol::IsVANamedProtocol>::help()),
                   computed<&VAProtocol::IVAProtocol_IsVAAddressedProtocol>(
                       Asked<VAAddressedProtocol, &IVAProtocol::IsVAAddressedProtocol>::help())};
  }
  static Layout layout() {
    return {.attributes = {always<&Class::Name>()},
            .elements = {choice<Variable>()},
            .container = Container::Always};
  }
};

}  // namespace praxen::detail

namespace praxen {

class VANamedProtocol final : public detail::VAProtocol<VANamedProtocol, VANamedVariable> {
 public:
  Text Name;

  static constexpr std::string_view kHelp = "A protocol whose variables are published under names.";
  using Form = describe::Creation<T, &T::Name>;
};

class VAAddressedProtocol final
    : public detail::VAProtocol<VAAddressedProtocol, VAAddressedVariable> {
 public:
  Text Name;

  static constexpr std::string_view kHelp =
      "A protocol whose variables are published at addresses.";
  using Form = describe::Creation<T, &T::Name>;
};

extern template struct describe::Published<IVAProtocol>;
extern template struct describe::Published<VANamedProtocol>;
extern template struct describe::Published<VAAddressedProtocol>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_VA_PROTOCOL_H_
