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
        property<&T::Name>("Name of the program."),
        property<&T::TaskConnection>("Name of the task that runs the program."),
        property<&T::TypeGuid>("GUID of the type."),
        property<&T::InstGuid>("GUID of the instance."),
        property<&T::Description>("Free text."),
        property<&T::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&T::SimulationMark>("Whether the program is marked as simulated."),
        property<&T::ReservedByFunction>("Function that the unit is reserved by."),
        property<&T::Variables>("Variables of the program."),
        property<&T::FunctionBlocks>("Function blocks in the program."),
        property<&T::CodeBlocks>("Code of the program."),
        serialize(),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
        property<&T::CommVariables>("Communication variables of the program."),
        property<&T::InitValues>("Initial values of variables in the program."),
        property<&T::Signals>("Signals of the program."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&T::Name>(), optional<&T::TaskConnection>(),
                       optional<&T::TypeGuid>(), optional<&T::InstGuid>(), optional<&T::SILLevel>(),
                       optional<&T::SimulationMark>(), optional<&T::ReservedByFunction>(),
                       optional<&T::AccessLevel>(), optional<&T::SafetyType>()},
        .children = {list<&T::Variables>(), list<&T::CommVariables>(), list<&T::Signals>(),
                     list<&T::FunctionBlocks>(), list<&T::InitValues>(), list<&T::CodeBlocks>(),
                     strictText<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::Description>;
  using LongForm = describe::Extended<Form, &T::TaskConnection, &T::TypeGuid, &T::InstGuid>;
};

extern template struct describe::Published<Program>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_PROGRAM_H_
