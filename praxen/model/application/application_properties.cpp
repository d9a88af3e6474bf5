// The description of ApplicationProperties.
#include "praxen/model/application/application_properties.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ApplicationProperties>();

}  // namespace praxen
