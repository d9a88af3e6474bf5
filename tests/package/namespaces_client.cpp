// A client that uses the names of the standard library and of this one without their namespaces.
#include <algorithm>
#include <functional>
#include <iterator>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <ranges>
#include <string>
#include <variant>
#include <vector>

#include "praxen/praxen.h"

using namespace std;
using namespace praxen;

int main() {
  optional<int> x;
  const list<string> names{"Level", "Speed"};
  vector<Ref<Variable>> made;
  const Ref<Variables> variables = New<Variables>();
  for (const string& name : names) {
    const Ref<Variable> variable = New<Variable>();
    variable->Name = u16string(name.begin(), name.end());
    variables->Add(variable);
    made.push_back(variable);
  }
  variables->Add1(u"Valve", u"bool");
  map<u16string, int> positions;
  for (const Variable& variable : *variables) positions[u16string(variable.Name)] = *x;
  try {
    const Ref<Program> program = New<Program>();
    program->Name = u"Main";
    const Text document = program->Serialize();
    const unique_ptr<u16string> copy = make_unique<u16string>(document);
    const Ref<Program> read = ObjectFactory().DeserializeProgram(document);
    return equal(copy->begin(), copy->end(), begin(*copy)) && read->Name == program->Name ? 0 : 1;
  } catch (const Error& error) {
    const function<size_t()> length = [&] { return string(error.what()).size(); };
    return static_cast<int>(length());
  }
}
