// The description of ApplicationProperties.
#include "praxen/model/application/application_properties.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ApplicationProperties>();

}  // namespace praxen
