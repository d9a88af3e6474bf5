// The description of AutoPoint.
#include "praxen/model/data/auto_point.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<AutoPoint>();

}  // namespace praxen
