// Builds the objects of a small plant, from which the sample documents come.
#include "tools/praxen/samples.h"

#include <algorithm>

namespace praxen::detail {

const std::vector<SampleFamily>& SampleFamilies() {
  static const std::vector<SampleFamily> families = [] {
    std::vector<SampleFamily> all;
    for (const auto& part : {DataSamples(), UnitSamples(), CodeSamples(), ApplicationSamples()}) {
      all.insert(all.end(), part.begin(), part.end());
    }
    return all;
  }();
  return families;
}

const SampleFamily* FindSampleFamily(std::string_view name) {
  const auto found = std::ranges::find(SampleFamilies(), name, &SampleFamily::name);
  return found == SampleFamilies().end() ? nullptr : &*found;
}

}  // namespace praxen::detail
