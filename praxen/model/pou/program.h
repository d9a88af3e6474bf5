// Program, a program of an application.
#ifndef PRAXEN_MODEL_POU_PROGRAM_H_
#define PRAXEN_MODEL_POU_PROGRAM_H_

#include "praxen/model/data/comm_variable.h"
#include "praxen/model/data/init_value.h"
#include "praxen/model/data/signal.h"
#include "praxen/model/data/variable.h"
#include "praxen/model/pou/code_blocks.h"
#include "praxen/model/pou/function_block.h"

namespace praxen {

class Program final : public describe::Serializable<Program> {
 public:
  Text Name, TaskConnection, TypeGuid, InstGuid, Description;
  Text SILLevel = u"NonSIL"_text;
  bool SimulationMark = false;
  Text ReservedByFunction;
  Ref<praxen::Variables> Variables = New<praxen::Variables>();
  Ref<praxen::FunctionBlocks> FunctionBlocks = New<praxen::FunctionBlocks>();
  Ref<praxen::CodeBlocks> CodeBlocks = New<praxen::CodeBlocks>();
  Text AccessLevel, SafetyType;
  Ref<praxen::CommVariables> CommVariables = New<praxen::CommVariables>();
  Ref<praxen::InitValues> InitValues = New<praxen::InitValues>();
  Ref<praxen::Signals> Signals = New<praxen::Signals>();

  static constexpr std::string_view kHelp = "A program of an application.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&Program::Name>("Name of the program; required for writing."),
        property<&Program::TaskConnection>("Name of the task that runs the program."),
        property<&Program::TypeGuid>("GUID of the type."),
        property<&Program::InstGuid>("GUID of the instance."),
        property<&Program::Description>("Free text."),
        property<&Program::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&Program::SimulationMark>("Whether the program is marked as simulated."),
        property<&Program::ReservedByFunction>("Function that the unit is reserved by."),
        property<&Program::Variables>("Variables of the program."),
        property<&Program::FunctionBlocks>("Function blocks in the program."),
        property<&Program::CodeBlocks>("Code of the program."),
        serialize(),
        property<&Program::AccessLevel>("Access level for safety."),
        property<&Program::SafetyType>("Safety type."),
        property<&Program::CommVariables>("Communication variables of the program."),
        property<&Program::InitValues>("Initial values of variables in the program."),
        property<&Program::Signals>("Signals of the program."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&Program::Name>(), optional<&Program::TaskConnection>(),
                           optional<&Program::TypeGuid>(), optional<&Program::InstGuid>(),
                           optional<&Program::SILLevel>(), optional<&Program::SimulationMark>(),
                           optional<&Program::ReservedByFunction>(),
                           optional<&Program::AccessLevel>(), optional<&Program::SafetyType>()},
            .children = {list<&Program::Variables>(), list<&Program::CommVariables>(),
                         list<&Program::Signals>(), list<&Program::FunctionBlocks>(),
                         list<&Program::InitValues>(), list<&Program::CodeBlocks>(),
                         strictText<&Program::Description>()}};
  }
  using Form = describe::Creation<Program, &Program::Name, &Program::Description>;
  using LongForm =
      describe::Extended<Form, &Program::TaskConnection, &Program::TypeGuid, &Program::InstGuid>;
};

extern template const describe::ClassDescription& describe::Describe<Program>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_PROGRAM_H_
