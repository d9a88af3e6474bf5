// The descriptions of ExternalVariable and ExternalVariables.
#include "praxen/model/data/external_variable.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ExternalVariable>();
template const ClassDescription& Describe<ExternalVariables>();

}  // namespace praxen
