// The list of all published classes.
#include "praxen/factory/classes.h"

#include <algorithm>
#include <vector>

#include "praxen/core/ascii.h"
#include "praxen/factory/object_factory.h"
#include "praxen/model/maintenance.h"
#include "praxen/model/model.h"

namespace praxen::detail {

namespace {

std::vector<std::reference_wrapper<const ClassDescription>> DescribeAll() {
  return {
      Describe<AccessVariables>(),
      Describe<ApplicationProperties>(),
      Describe<ApplicationVariables>(),
      Describe<AutoPoint>(),
      Describe<CMConnection>(),
      Describe<CMConnections>(),
      Describe<CMParameter>(),
      Describe<CMParameters>(),
      Describe<CodeBlocks>(),
      Describe<CommVariable>(),
      Describe<CommVariables>(),
      Describe<Component>(),
      Describe<Components>(),
      Describe<ConnectedApplication>(),
      Describe<ConnectedApplications>(),
      Describe<ConnectedHWLibraries>(),
      Describe<ConnectedHWLibrary>(),
      Describe<ConnectedLibraries>(),
      Describe<ConnectedLibrary>(),
      Describe<ControlModule>(),
      Describe<ControlModules>(),
      Describe<ControlModuleType>(),
      Describe<DataType>(),
      Describe<Diagram>(),
      Describe<DiagramInstance>(),
      Describe<DiagramInstances>(),
      Describe<DiagramType>(),
      Describe<ErrorMsg>(),
      Describe<ExecutionGroup>(),
      Describe<ExecutionInstance>(),
      Describe<ExecutionOrder>(),
      Describe<ExtensibleParameter>(),
      Describe<ExtensibleParameters>(),
      Describe<ExternalVariable>(),
      Describe<ExternalVariables>(),
      Describe<ExtraInfo>(),
      Describe<FBDCodeBlock>(),
      Describe<FDCodeBlock>(),
      Describe<FindMsg>(),
      Describe<FunctionBlock>(),
      Describe<FunctionBlocks>(),
      Describe<FunctionBlockType>(),
      Describe<GlobalVariable>(),
      Describe<GlobalVariables>(),
      Describe<GraphNode>(),
      Describe<GraphNodes>(),
      Describe<GraphPos>(),
      Describe<GraphSize>(),
      Describe<HWChannel>(),
      Describe<HWChannels>(),
      Describe<HWUnit>(),
      Describe<HWUnits>(),
      Describe<ICodeBlock>(),
      Describe<IControlModule>(),
      Describe<ILCodeBlock>(),
      Describe<ILRow>(),
      Describe<ILRows>(),
      Describe<IMsg>(),
      Describe<InfoMsg>(),
      Describe<InitValue>(),
      Describe<InitValues>(),
      Describe<ISFCElement>(),
      Describe<IVAProtocol>(),
      Describe<LDCodeBlock>(),
      Describe<maintenance>(),
      Describe<MessageBucket>(),
      Describe<ObjectFactory>(),
      Describe<Parameter>(),
      Describe<Parameters>(),
      Describe<ParameterSetting>(),
      Describe<ParameterSettings>(),
      Describe<Point>(),
      Describe<Points>(),
      Describe<PosInfo>(),
      Describe<Program>(),
      Describe<ProjectConstant>(),
      Describe<ProjectConstants>(),
      Describe<SFCBranch>(),
      Describe<SFCBranches>(),
      Describe<SFCCodeBlock>(),
      Describe<SFCElements>(),
      Describe<SFCSelection>(),
      Describe<SFCSimultaneous>(),
      Describe<SFCStep>(),
      Describe<SFCSubSequence>(),
      Describe<SFCTransition>(),
      Describe<Signal>(),
      Describe<Signals>(),
      Describe<SingleControlModuleInst>(),
      Describe<SingleControlModuleType>(),
      Describe<STCodeBlock>(),
      Describe<Task>(),
      Describe<VAAddressedProtocol>(),
      Describe<VAAddressedVariable>(),
      Describe<VANamedProtocol>(),
      Describe<VANamedVariable>(),
      Describe<VAProtocols>(),
      Describe<Variable>(),
      Describe<Variables>(),
      Describe<WarningMsg>(),
  };
}

}  // namespace

std::span<const std::reference_wrapper<const ClassDescription>> AllClasses() {
  static const std::vector<std::reference_wrapper<const ClassDescription>> classes = DescribeAll();
  return classes;
}

std::vector<const ClassDescription*> ClassesOf(const ClassDescription& wanted) {
  if (!wanted.isKind) return {&wanted};
  std::vector<const ClassDescription*> classes;
  for (const ClassDescription& description : AllClasses()) {
    if (description.kind == &wanted) classes.push_back(&description);
  }
  return classes;
}

const ClassDescription* FindClass(std::u16string_view name) {
  for (const ClassDescription& description : AllClasses()) {
    if (EqualsIgnoringCase(description.name, name)) return &description;
  }
  return nullptr;
}

const ClassDescription* FindClassById(const Uuid& id) {
  for (const ClassDescription& description : AllClasses()) {
    if (description.classId == id) return &description;
  }
  return nullptr;
}

}  // namespace praxen::detail
