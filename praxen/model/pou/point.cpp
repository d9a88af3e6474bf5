// The descriptions of Point and Points.
#include "praxen/model/pou/point.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<Point>();
template const ClassDescription& Describe<Points>();

}  // namespace praxen
