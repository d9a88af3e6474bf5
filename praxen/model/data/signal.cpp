// The descriptions of Signal and Signals.
#include "praxen/model/data/signal.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<Signal>();
template const ClassDescription& describe::Describe<Signals>();

}  // namespace praxen
