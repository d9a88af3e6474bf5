// The count of references of the small objects that only implement interfaces.
#ifndef PRAXEN_AUTOMATION_COUNTED_H_
#define PRAXEN_AUTOMATION_COUNTED_H_

#include <atomic>

#include "praxen/automation/automation.h"

namespace praxen::detail {

/// The base of an object with these interfaces. It is made with one reference, which is its
/// maker's, and destroyed with the last; any thread may count.
template <class... Interfaces>
class Counted : public Interfaces... {
 public:
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  Counted() = default;
  virtual ~Counted() = default;

 private:
  std::atomic<ULONG> references_ = 1;
};

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_COUNTED_H_
