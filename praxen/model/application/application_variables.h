// ApplicationVariables, the variables and signals of an application.
#ifndef PRAXEN_MODEL_APPLICATION_APPLICATION_VARIABLES_H_
#define PRAXEN_MODEL_APPLICATION_APPLICATION_VARIABLES_H_

#include "praxen/model/data/global_variable.h"
#include "praxen/model/data/signal.h"
#include "praxen/model/data/variable.h"

namespace praxen {

class ApplicationVariables final : public describe::Serializable<ApplicationVariables> {
 public:
  Ref<praxen::GlobalVariables> GlobalVariables = New<praxen::GlobalVariables>();
  Ref<praxen::Variables> Variables = New<praxen::Variables>();
  Text Description;
  Ref<praxen::Signals> Signals = New<praxen::Signals>();

  static constexpr std::string_view kHelp = "The variables and signals of an application.";
  static describe::Members members() {
    using namespace describe;
    return {property<&ApplicationVariables::GlobalVariables>("Global variables."),
            property<&ApplicationVariables::Variables>("Local variables."),
            property<&ApplicationVariables::Description>("Free text."), serialize(),
            property<&ApplicationVariables::Signals>("Signals.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.children = {list<&ApplicationVariables::GlobalVariables>(),
                         list<&ApplicationVariables::Variables>(),
                         list<&ApplicationVariables::Signals>(),
                         strictText<&ApplicationVariables::Description>()}};
  }
  using Form = describe::Creation<ApplicationVariables, &ApplicationVariables::Description>;
};

extern template const describe::ClassDescription& describe::Describe<ApplicationVariables>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_APPLICATION_VARIABLES_H_
