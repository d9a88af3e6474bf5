// The list of the classes of data.
#include "praxen/describe/define.h"
#include "praxen/model/data/auto_point.h"
#include "praxen/model/data/cm_parameter.h"
#include "praxen/model/data/comm_variable.h"
#include "praxen/model/data/component.h"
#include "praxen/model/data/data_type.h"
#include "praxen/model/data/extensible_parameter.h"
#include "praxen/model/data/external_variable.h"
#include "praxen/model/data/global_variable.h"
#include "praxen/model/data/graph_node.h"
#include "praxen/model/data/init_value.h"
#include "praxen/model/data/parameter.h"
#include "praxen/model/data/signal.h"
#include "praxen/model/data/variable.h"

namespace praxen {

template struct describe::Published<AutoPoint>;
template struct describe::Published<CMParameter>;
template struct describe::Published<CMParameters>;
template struct describe::Published<CommVariable>;
template struct describe::Published<CommVariables>;
template struct describe::Published<Component>;
template struct describe::Published<Components>;
template struct describe::Published<DataType>;
template struct describe::Published<ExtensibleParameter>;
template struct describe::Published<ExtensibleParameters>;
template struct describe::Published<ExternalVariable>;
template struct describe::Published<ExternalVariables>;
template struct describe::Published<GlobalVariable>;
template struct describe::Published<GlobalVariables>;
template struct describe::Published<GraphNode>;
template struct describe::Published<GraphNodes>;
template struct describe::Published<InitValue>;
template struct describe::Published<InitValues>;
template struct describe::Published<Parameter>;
template struct describe::Published<Parameters>;
template struct describe::Published<Signal>;
template struct describe::Published<Signals>;
template struct describe::Published<Variable>;
template struct describe::Published<Variables>;

}  // namespace praxen
