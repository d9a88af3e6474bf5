// ProjectConstant, a value that the whole project can use, and the list of them.
#ifndef PRAXEN_MODEL_APPLICATION_PROJECT_CONSTANT_H_
#define PRAXEN_MODEL_APPLICATION_PROJECT_CONSTANT_H_

#include <memory>

#include "praxen/model/application/constant_name.h"
#include "praxen/model/collection.h"

namespace praxen {

class ProjectConstant final : public describe::Described<ProjectConstant> {
 public:
  /// Dots separate the levels of groups, as in "Motor.Speed.Max".
  detail::ConstantName Name;
  Text PCType = u"dint"_text;
  Text Value = u"0"_text;

  Text GetName() const { return Name; }
  void SetName(const Text& name) { Name = name; }

  static constexpr std::string_view kHelp = "A value that the whole project can use.";
  static describe::Members members() {
    using namespace describe;
    return {accessors<&T::GetName, &T::SetName>(detail::EntityName<&T::Name>(),
                                                "Name with its groups, separated by dots."),
            property<&T::PCType>("Data type."), property<&T::Value>("Value as text.")};
  }
  using Form = describe::Creation<T, describe::asText<&T::Name>, &T::PCType, &T::Value>;
};

/// Written as a tree of groups. `Add1` raises `NameConflict` when the name of the new constant
/// equals that of a constant of the list or when one of the two is a dotted prefix of the other.
/// The other additions do not test the name.
class ProjectConstants final
    : public Collection<ProjectConstants, ProjectConstant, SerializableObject> {
 public:
  ~ProjectConstants() override;

  static constexpr std::string_view kHelp = "Project constants, in order.";
  static describe::Members members();
  static describe::Layout layout();

 private:
  void WriteTree(detail::XMLStringWriter& writer);
  void ReadTree(detail::XmlCursor& cursor);

  void RequireAddable(const ProjectConstant& created) override;
  /// Indexes the constants; `name` is the one that is about to be tested.
  void IndexNames(const Text& name);
  void DropIndex() noexcept;
  void ElementAdded(Object* element) noexcept override;
  void ElementRemoved(Object* element) noexcept override;

  // The names of all constants; none before the first `Add1`, and while a reference is empty.
  std::unique_ptr<detail::DottedNameIndex> names_;
};

extern template struct describe::Published<ProjectConstant>;
extern template struct describe::Published<ProjectConstants>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_PROJECT_CONSTANT_H_
