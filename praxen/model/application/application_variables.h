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
    return {property<&T::GlobalVariables>("Global variables."),
            property<&T::Variables>("Local variables."), property<&T::Description>("Free text."),
            serialize(), property<&T::Signals>("Signals.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.children = {list<&T::GlobalVariables>(), list<&T::Variables>(), list<&T::Signals>(),
                         strictText<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Description>;
};

extern template struct describe::Published<ApplicationVariables>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_APPLICATION_VARIABLES_H_
