// The description of DataType.
#include "praxen/model/data/data_type.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<DataType>();

}  // namespace praxen
