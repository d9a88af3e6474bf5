// Initialising Xerces, which counts its users, but not for several threads.
#include "praxen/xml/xerces_use.h"

#include <mutex>
#include <new>
#include <xercesc/util/PanicHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace praxen::detail {
namespace {

// Keeps Xerces from ending the process.
class NoPanic final : public xercesc::PanicHandler {
 public:
  void panic(const PanicReasons) override { throw std::bad_alloc(); }
};

std::mutex& Mutex() {
  static std::mutex& mutex = *new std::mutex;
  return mutex;
}

}  // namespace

XercesUse::XercesUse() {
  const std::lock_guard lock(Mutex());
  static bool isBroken = false;
  static NoPanic& panic = *new NoPanic;
  if (isBroken) throw std::bad_alloc();
  isBroken = true;
  xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, &panic);
  isBroken = false;
}

XercesUse::~XercesUse() {
  const std::lock_guard lock(Mutex());
  xercesc::XMLPlatformUtils::Terminate();
}

}  // namespace praxen::detail
