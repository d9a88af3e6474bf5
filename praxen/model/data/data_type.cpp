// The description of DataType.
#include "praxen/model/data/data_type.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<DataType>();

}  // namespace praxen
