// The descriptions of Signal and Signals.
#include "praxen/model/data/signal.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<Signal>();
template const ClassDescription& Describe<Signals>();

}  // namespace praxen
