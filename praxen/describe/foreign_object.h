// ForeignObject, which stands in the model for an object implemented outside the library.
#ifndef PRAXEN_DESCRIBE_FOREIGN_OBJECT_H_
#define PRAXEN_DESCRIBE_FOREIGN_OBJECT_H_

#include <string_view>

#include "praxen/automation/values.h"
#include "praxen/core/text.h"
#include "praxen/describe/description.h"

namespace praxen::describe {

/// A second base of the adapters that hold a client's implementation of a kind. What the client's
/// object is asked goes through its kind interface; errors that it reports are raised as ours.
class ForeignObject {
 public:
  virtual ~ForeignObject() = default;

  /// The client's kind interface and its IDispatch, which are handed out in place of the adapter.
  Interface* kindOfClient() const noexcept;
  Interface* dispatchOfClient() const noexcept;

 protected:
  ForeignObject(const ClassDescription& kind, ComPointer<IUnknown> client);

  bool Ask(std::string_view question) const;
  /// The property of the kind that can be set.
  Text GetText() const;
  void PutText(const Text& text) const;

 private:
  struct Slots {
    size_t get, put;
  };

  template <class Matches>
  Slots SlotsOf(Matches matches) const;
  Slots SlotsOfText() const;
  template <class... Arguments>
  void Call(size_t slot, Arguments... arguments) const;

  const ClassDescription& kind_;
  const ComPointer<IUnknown> client_;
  const ComPointer<IDispatch> dispatch_;
};

/// The interface of a kind that a foreign object has; empty when it does not implement the kind.
ComPointer<IUnknown> KindOfForeign(const ClassDescription& kind, Interface* foreign);

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_FOREIGN_OBJECT_H_
