// The time during which Xerces is initialised.
#ifndef PRAXEN_XML_XERCES_USE_H_
#define PRAXEN_XML_XERCES_USE_H_

namespace praxen::detail {

/// Keeps Xerces initialised, from any thread. Raises std::bad_alloc when that fails; what was half
/// made can be neither completed nor taken down, so that it fails from then on.
class XercesUse {
 public:
  XercesUse();
  XercesUse(const XercesUse&) = delete;
  XercesUse& operator=(const XercesUse&) = delete;
  ~XercesUse();
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XERCES_USE_H_
