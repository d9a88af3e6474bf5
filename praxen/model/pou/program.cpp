// The description of Program.
#include "praxen/model/pou/program.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<Program>();

}  // namespace praxen
