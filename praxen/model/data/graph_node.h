// GraphNode, a named point of a variable or parameter, and the list of them.
#ifndef PRAXEN_MODEL_DATA_GRAPH_NODE_H_
#define PRAXEN_MODEL_DATA_GRAPH_NODE_H_

#include "praxen/model/collection.h"

namespace praxen {

class GraphNode final : public describe::Described<GraphNode> {
 public:
  Text Name;
  double X = 0, Y = 0;

  static constexpr std::string_view kHelp = "A named point of a variable or parameter.";
  static describe::Members members() {
    using namespace describe;
    return {property<&T::Name>("Name of the node."),
            property<&T::X>("Horizontal coordinate in the type's graphics."),
            property<&T::Y>("Vertical coordinate in the type's graphics.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&T::Name>(), always<&T::X>(), always<&T::Y>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::X, &T::Y>;
};

class GraphNodes final : public Collection<GraphNodes, GraphNode> {
 public:
  static constexpr std::string_view kHelp = "The graph nodes of a variable or parameter.";
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<GraphNode>()}, .container = Container::None};
  }
};

extern template struct describe::Published<GraphNode>;
extern template struct describe::Published<GraphNodes>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_GRAPH_NODE_H_
