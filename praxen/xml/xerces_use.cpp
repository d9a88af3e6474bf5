// Initialising Xerces, which counts its users, but not for several threads.
#include "praxen/xml/xerces_use.h"

#include <cstddef>
#include <mutex>
#include <new>
#include <xercesc/util/PanicHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "praxen/core/static_mutex.h"

namespace praxen::detail {
namespace {

// Keeps Xerces from ending the process.
class NoPanic final : public xercesc::PanicHandler {
 public:
  void panic(const PanicReasons) override { throw std::bad_alloc(); }
};

constinit StaticMutex mutex;

}  // namespace

XercesUse::XercesUse() {
  const std::lock_guard lock(mutex);
  static bool isBroken = false;
  // Never destroyed, since Xerces may be in use when static objects are; in no heap, so that
  // nothing stays behind when the library is unloaded.
  alignas(NoPanic) static std::byte place[sizeof(NoPanic)];
  static NoPanic& panic = *new (place) NoPanic;
  if (isBroken) throw std::bad_alloc();
  isBroken = true;
  xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, &panic);
  isBroken = false;
}

XercesUse::~XercesUse() {
  const std::lock_guard lock(mutex);
  xercesc::XMLPlatformUtils::Terminate();
}

}  // namespace praxen::detail
