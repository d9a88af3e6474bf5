// The descriptions of Point and Points.
#include "praxen/model/pou/point.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<Point>();
template const ClassDescription& describe::Describe<Points>();

}  // namespace praxen
