// The list of the classes of program organisation units but for their code.
#include "praxen/describe/define.h"
#include "praxen/model/pou/cm_connection.h"
#include "praxen/model/pou/control_module.h"
#include "praxen/model/pou/control_module_type.h"
#include "praxen/model/pou/control_modules.h"
#include "praxen/model/pou/diagram.h"
#include "praxen/model/pou/diagram_instance.h"
#include "praxen/model/pou/diagram_type.h"
#include "praxen/model/pou/function_block.h"
#include "praxen/model/pou/function_block_type.h"
#include "praxen/model/pou/graphics.h"
#include "praxen/model/pou/program.h"
#include "praxen/model/pou/single_control_module_type.h"

namespace praxen {

template struct describe::Published<CMConnection>;
template struct describe::Published<CMConnections>;
template struct describe::Published<ControlModule>;
template struct describe::Published<ControlModules>;
template struct describe::Published<ControlModuleType>;
template struct describe::Published<Diagram>;
template struct describe::Published<DiagramInstance>;
template struct describe::Published<DiagramInstances>;
template struct describe::Published<DiagramType>;
template struct describe::Published<FunctionBlock>;
template struct describe::Published<FunctionBlocks>;
template struct describe::Published<FunctionBlockType>;
template struct describe::Published<GraphPos>;
template struct describe::Published<GraphSize>;
template struct describe::Published<IControlModule>;
template struct describe::Published<Point>;
template struct describe::Published<Points>;
template struct describe::Published<Program>;
template struct describe::Published<SingleControlModuleInst>;
template struct describe::Published<SingleControlModuleType>;

}  // namespace praxen
