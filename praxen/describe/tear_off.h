// The interfaces that every object answers besides its own ones.
#ifndef PRAXEN_DESCRIBE_TEAR_OFF_H_
#define PRAXEN_DESCRIBE_TEAR_OFF_H_

#include "praxen/automation/automation.h"
#include "praxen/automation/counted.h"
#include "praxen/describe/dispatch.h"

namespace praxen::describe {

/// An interface that needs no place in the object. It is counted on its own, so that the object
/// needs to know nothing of it; any other interface is asked of the object.
template <class I>
class TearOff : public detail::Counted<I> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    return dispatch::QueryInterface(*object_, iid, out);
  }

 protected:
  explicit TearOff(Object& object) : object_(&object) {}

  const ClassDescription& description() const { return object_->description(); }

 private:
  const Ref<Object> object_;
};

/// Makes ISupportErrorInfo, or what `MakeClassInformation` knows, for the object. The
/// interface keeps the object alive and shares its identity. E_NOINTERFACE for any other
/// identifier.
HRESULT MakeTearOff(Object& object, REFIID iid, void** out);

/// The same for the interfaces that tell of the class: IProvideClassInfo2 and its base, where the
/// system knows type libraries.
HRESULT MakeClassInformation(Object& object, REFIID iid, void** out);

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_TEAR_OFF_H_
