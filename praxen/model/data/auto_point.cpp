// The description of AutoPoint.
#include "praxen/model/data/auto_point.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<AutoPoint>();

}  // namespace praxen
