// The description of Program.
#include "praxen/model/pou/program.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<Program>();

}  // namespace praxen
