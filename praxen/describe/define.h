// The definition of `Published`; included by the sources of the families only. Each of them is the
// list of the family's classes: a line `template struct describe::Published<Class>;` makes the
// description of the class and publishes it.
#ifndef PRAXEN_DESCRIBE_DEFINE_H_
#define PRAXEN_DESCRIBE_DEFINE_H_

#include <type_traits>

#include "praxen/describe/description.h"
#include "praxen/describe/dispatch.h"
#include "praxen/describe/foreign_kind.h"

namespace praxen::describe {

template <class Class>
concept HasLayout = requires {
  Class::layout();
};

template <class Class>
concept ImplementsKind = requires {
  typename Class::Kind;
}
&&!KindClass<Class>;

}  // namespace praxen::describe

namespace praxen::detail {

template <class Class>
const Layout& LayoutOf() {
  static const Layout layout = CompleteLayout(Class::layout(), ElementName<Class>(), *New<Class>());
  return layout;
}

template <class Class>
ClassFacts FactsOf() {
  ClassFacts facts;
  facts.name = TypeName<Class>();
  facts.help = Class::kHelp;
  constexpr std::string_view kName = TypeName<Class>();
  static constexpr Uuid kClassId = NamedIdentifier("class ", kName);
  static constexpr Uuid kInterfaceId = NamedIdentifier("interface _", kName);
  facts.classId = kClassId;
  facts.interfaceId = kInterfaceId;
  facts.members = Class::members();
  facts.head = DispatchHead<Object>();
  facts.isSerializable = std::is_base_of_v<SerializableObject, Class>;
  if constexpr (KindClass<Class>) {
    facts.isKind = true;
    facts.kindHead = DispatchHead<Class>();
    facts.adapt = &Adapt<Class>;
  }
  if constexpr (std::is_default_constructible_v<Class>) {
    facts.create = [] { return Ref<Object>(New<Class>()); };
  }
  if constexpr (HasLayout<Class>) {
    facts.layout = &LayoutOf<Class>;
    StateRequired(facts.members, Class::layout());
  }
  if constexpr (ImplementsKind<Class>) facts.kind = &Describe<typename Class::Kind>();
  return facts;
}

}  // namespace praxen::detail

namespace praxen::describe {

template <class Class>
const ClassDescription& Published<Class>::Description() {
  static const ClassDescription description(detail::FactsOf<Class>());
  return description;
}

template <class Class>
const Publication Published<Class>::publication(&Published::Description);

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_DEFINE_H_
