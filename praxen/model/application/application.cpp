// The list of the classes of applications.
#include "praxen/describe/define.h"
#include "praxen/model/application/access_variables.h"
#include "praxen/model/application/application_properties.h"
#include "praxen/model/application/application_variables.h"
#include "praxen/model/application/connected_item.h"
#include "praxen/model/application/execution_order.h"
#include "praxen/model/application/project_constant.h"
#include "praxen/model/application/task.h"
#include "praxen/model/application/va_protocol.h"
#include "praxen/model/application/va_variable.h"

namespace praxen {

template struct describe::Published<AccessVariables>;
template struct describe::Published<ApplicationProperties>;
template struct describe::Published<ApplicationVariables>;
template struct describe::Published<ConnectedApplication>;
template struct describe::Published<ConnectedApplications>;
template struct describe::Published<ConnectedHWLibraries>;
template struct describe::Published<ConnectedHWLibrary>;
template struct describe::Published<ConnectedLibraries>;
template struct describe::Published<ConnectedLibrary>;
template struct describe::Published<ExecutionGroup>;
template struct describe::Published<ExecutionInstance>;
template struct describe::Published<ExecutionOrder>;
template struct describe::Published<IVAProtocol>;
template struct describe::Published<ProjectConstant>;
template struct describe::Published<ProjectConstants>;
template struct describe::Published<Task>;
template struct describe::Published<VAAddressedProtocol>;
template struct describe::Published<VAAddressedVariable>;
template struct describe::Published<VANamedProtocol>;
template struct describe::Published<VANamedVariable>;
template struct describe::Published<VAProtocols>;

}  // namespace praxen
