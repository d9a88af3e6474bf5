// The description of DiagramType.
#include "praxen/model/pou/diagram_type.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<DiagramType>();

}  // namespace praxen
