// The description of Diagram.
#include "praxen/model/pou/diagram.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<Diagram>();

}  // namespace praxen
