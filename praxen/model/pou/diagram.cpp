// The description of Diagram.
#include "praxen/model/pou/diagram.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<Diagram>();

}  // namespace praxen
