// ForeignKind, the adapter through which the model holds a client's own implementation of a kind.
#ifndef PRAXEN_DESCRIBE_FOREIGN_KIND_H_
#define PRAXEN_DESCRIBE_FOREIGN_KIND_H_

#include <string_view>
#include <utility>

#include "praxen/describe/foreign_object.h"
#include "praxen/describe/value_type.h"

namespace praxen::describe {

template <KindClass Kind>
class ForeignKind final : public Kind, public ForeignObject {
 public:
  explicit ForeignKind(ComPointer<IUnknown> client)
      : ForeignObject(Describe<Kind>(), std::move(client)) {}

 private:
  bool IsOf(const ClassDescription&, std::string_view question) const override {
    return Ask(question);
  }
  Text GetText() const override { return ForeignObject::GetText(); }
  void SetText(const Text& text) override { PutText(text); }
};

/// Holds a foreign object; an empty reference when it does not implement the kind.
template <KindClass Kind>
Ref<Object> Adapt(Interface* foreign) {
  ComPointer<IUnknown> client = KindOfForeign(Describe<Kind>(), foreign);
  return client ? Ref<Object>(new ForeignKind<Kind>(std::move(client))) : Ref<Object>();
}

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_FOREIGN_KIND_H_
