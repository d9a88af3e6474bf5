// ObjectFactory, which creates every class of the model and reads it from XML.
#ifndef PRAXEN_FACTORY_OBJECT_FACTORY_H_
#define PRAXEN_FACTORY_OBJECT_FACTORY_H_

#include "praxen/factory/deserialization.h"
#include "praxen/model/model.h"

namespace praxen {

/// Every `New…` operation creates an object of the class it names and sets the properties that its
/// form lists from its arguments; every `Deserialize…` operation reads a document of its class. The
/// operations are callable constants: `ObjectFactory::NewVariable(u"Level", u"real")`.
class ObjectFactory final : public describe::Described<ObjectFactory> {
 public:
  static constexpr DataType::Form NewDataType{};
  static constexpr DataType::LongForm NewDataType1{};
  static constexpr ApplicationVariables::Form NewApplicationVariables{};
  static constexpr FunctionBlockType::Form NewFunctionBlockType{};
  static constexpr FunctionBlockType::LongForm NewFunctionBlockType1{};
  static constexpr FunctionBlock::Form NewFunctionBlock{};
  static constexpr FunctionBlock::LongForm NewFunctionBlock1{};
  static constexpr DiagramType::Form NewDiagramType{};
  static constexpr DiagramType::LongForm NewDiagramType1{};
  static constexpr DiagramInstance::Form NewDiagramInstance{};
  static constexpr DiagramInstance::LongForm NewDiagramInstance1{};
  static constexpr ControlModuleType::Form NewControlModuleType{};
  static constexpr ControlModuleType::LongForm NewControlModuleType1{};
  static constexpr Program::Form NewProgram{};
  static constexpr Program::LongForm NewProgram1{};
  static constexpr Diagram::Form NewDiagram{};
  static constexpr Diagram::LongForm NewDiagram1{};
  static constexpr ControlModule::Form NewControlModule{};
  static constexpr ControlModule::LongForm NewControlModule1{};
  static constexpr describe::Creation<ControlModules> NewControlModules{};
  static constexpr SingleControlModuleType::Form NewSingleControlModuleType{};
  static constexpr SingleControlModuleType::LongForm NewSingleControlModuleType1{};
  static constexpr SingleControlModuleInst::Form NewSingleControlModuleInst{};
  static constexpr SingleControlModuleInst::LongForm NewSingleControlModuleInst1{};
  static constexpr Task::Form NewTask{};
  static constexpr Task::LongForm NewTask1{};
  static constexpr ConnectedApplication::Form NewConnectedApplication{};
  static constexpr ConnectedApplication::LongForm NewConnectedApplication1{};
  static constexpr describe::Creation<ConnectedApplications> NewConnectedApplications{};
  static constexpr ConnectedHWLibrary::Form NewConnectedHWLibrary{};
  static constexpr ConnectedHWLibrary::LongForm NewConnectedHWLibrary1{};
  static constexpr describe::Creation<ConnectedHWLibraries> NewConnectedHWLibraries{};
  static constexpr ConnectedLibrary::Form NewConnectedLibrary{};
  static constexpr ConnectedLibrary::LongForm NewConnectedLibrary1{};
  static constexpr describe::Creation<ConnectedLibraries> NewConnectedLibraries{};
  static constexpr HWUnit::Form NewHWUnit{};
  static constexpr HWUnit::LongForm NewHWUnit1{};
  static constexpr HWUnit::FullForm NewHWUnit2{};
  static constexpr HWChannel::Form NewHWChannel{};
  static constexpr HWChannel::LongForm NewHWChannel1{};
  static constexpr ParameterSetting::Form NewParameterSetting{};
  static constexpr Variable::Form NewVariable{};
  static constexpr Variable::LongForm NewVariable1{};
  static constexpr CommVariable::Form NewCommVariable{};
  static constexpr CommVariable::LongForm NewCommVariable1{};
  static constexpr Signal::Form NewSignal{};
  static constexpr InitValue::Form NewInitValue{};
  static constexpr GlobalVariable::Form NewGlobalVariable{};
  static constexpr GlobalVariable::LongForm NewGlobalVariable1{};
  static constexpr ExternalVariable::Form NewExternalVariable{};
  static constexpr ExternalVariable::LongForm NewExternalVariable1{};
  static constexpr Parameter::Form NewParameter{};
  static constexpr Parameter::LongForm NewParameter1{};
  static constexpr CMParameter::Form NewCMParameter{};
  static constexpr CMParameter::LongForm NewCMParameter1{};
  static constexpr ExtensibleParameter::Form NewExtensibleParameter{};
  static constexpr ExtensibleParameter::LongForm NewExtensibleParameter1{};
  static constexpr Component::Form NewComponent{};
  static constexpr Component::LongForm NewComponent1{};
  static constexpr CMConnection::Form NewCMConnection{};
  static constexpr CMConnection::LongForm NewCMConnection1{};
  static constexpr AutoPoint::Form NewAutoPoint{};
  static constexpr Point::Form NewPoint{};
  static constexpr GraphPos::Form NewGraphPos{};
  static constexpr GraphSize::Form NewGraphSize{};
  static constexpr GraphNode::Form NewGraphNode{};
  static constexpr STCodeBlock::Form NewSTCodeBlock{};
  static constexpr STCodeBlock::LongForm NewSTCodeBlock1{};
  static constexpr LDCodeBlock::Form NewLDCodeBlock{};
  static constexpr LDCodeBlock::LongForm NewLDCodeBlock1{};
  static constexpr FBDCodeBlock::Form NewFBDCodeBlock{};
  static constexpr FBDCodeBlock::LongForm NewFBDCodeBlock1{};
  static constexpr SFCCodeBlock::Form NewSFCCodeBlock{};
  static constexpr SFCCodeBlock::LongForm NewSFCCodeBlock1{};
  static constexpr SFCStep::Form NewSFCStep{};
  static constexpr SFCStep::LongForm NewSFCStep1{};
  static constexpr SFCTransition::Form NewSFCTransition{};
  static constexpr SFCTransition::LongForm NewSFCTransition1{};
  static constexpr SFCSelection::Form NewSFCSelection{};
  static constexpr SFCSimultaneous::Form NewSFCSimultaneous{};
  static constexpr SFCSubSequence::Form NewSFCSubSequence{};
  static constexpr ILCodeBlock::Form NewILCodeBlock{};
  static constexpr ILRow::Form NewILRow{};
  static constexpr ILRow::CommentForm NewILComment{};
  static constexpr VANamedProtocol::Form NewVANamedProtocol{};
  static constexpr VAAddressedProtocol::Form NewVAAddressedProtocol{};
  static constexpr VANamedVariable::Form NewVANamedVariable{};
  static constexpr VANamedVariable::LongForm NewVANamedVariable1{};
  static constexpr VAAddressedVariable::Form NewVAAddressedVariable{};
  static constexpr VAAddressedVariable::LongForm NewVAAddressedVariable1{};
  static constexpr describe::Creation<AccessVariables> NewAccessVariables{};
  static constexpr describe::Creation<ProjectConstants> NewProjectConstants{};
  static constexpr ProjectConstant::Form NewProjectConstant{};
  static constexpr ApplicationProperties::Form NewApplicationProperties{};
  static constexpr describe::Creation<ExecutionOrder> NewExecutionOrder{};
  static constexpr ExecutionInstance::Form NewExecutionInstance{};

  static constexpr detail::Deserialization<ExternalVariable> DeserializeExternalVariable{};
  static constexpr detail::Deserialization<GlobalVariable> DeserializeGlobalVariable{};
  static constexpr detail::Deserialization<Variable> DeserializeVariable{};
  static constexpr detail::Deserialization<CommVariable> DeserializeCommVariable{};
  static constexpr detail::Deserialization<Signal> DeserializeSignal{};
  static constexpr detail::Deserialization<CMParameter> DeserializeCMParameter{};
  static constexpr detail::Deserialization<ExtensibleParameter> DeserializeExtensibleParameter{};
  static constexpr detail::Deserialization<Parameter> DeserializeParameter{};
  static constexpr detail::Deserialization<DataType> DeserializeDataType{};
  static constexpr detail::Deserialization<ApplicationVariables> DeserializeApplicationVariables{};
  static constexpr detail::CodeBlockDeserialization DeserializeCodeBlock{};
  static constexpr detail::Deserialization<CMConnection> DeserializeCMConnection{};
  static constexpr detail::Deserialization<FunctionBlockType> DeserializeFunctionBlockType{};
  static constexpr detail::Deserialization<FunctionBlock> DeserializeFunctionBlock{};
  static constexpr detail::Deserialization<DiagramType> DeserializeDiagramType{};
  static constexpr detail::Deserialization<DiagramInstance> DeserializeDiagramInstance{};
  static constexpr detail::Deserialization<ControlModuleType> DeserializeControlModuleType{};
  static constexpr detail::Deserialization<Program> DeserializeProgram{};
  static constexpr detail::Deserialization<Diagram> DeserializeDiagram{};
  static constexpr detail::Deserialization<ControlModule> DeserializeControlModule{};
  static constexpr detail::Deserialization<ControlModules> DeserializeControlModules{};
  static constexpr detail::Deserialization<SingleControlModuleType>
      DeserializeSingleControlModuleType{};
  static constexpr detail::Deserialization<SingleControlModuleInst>
      DeserializeSingleControlModuleInst{};
  static constexpr detail::Deserialization<Task> DeserializeTask{};
  static constexpr detail::Deserialization<ExecutionOrder> DeserializeExecutionOrder{};
  static constexpr detail::Deserialization<ConnectedApplications>
      DeserializeConnectedApplications{};
  static constexpr detail::Deserialization<ConnectedLibraries> DeserializeConnectedLibraries{};
  static constexpr detail::Deserialization<ConnectedHWLibraries> DeserializeConnectedHWLibraries{};
  static constexpr detail::Deserialization<ApplicationProperties>
      DeserializeApplicationProperties{};
  static constexpr detail::Deserialization<HWUnit> DeserializeHWUnit{};
  static constexpr detail::Deserialization<ProjectConstants> DeserializeProjectConstants{};
  static constexpr detail::Deserialization<AccessVariables> DeserializeAccessVariables{};
  static constexpr detail::Deserialization<MessageBucket> DeserializeMessageBucket{};

  static constexpr std::string_view kHelp = "Creates objects and reads them from XML.";
  static describe::Members members();
};

extern template const describe::ClassDescription& describe::Describe<ObjectFactory>();

}  // namespace praxen

#endif  // PRAXEN_FACTORY_OBJECT_FACTORY_H_
