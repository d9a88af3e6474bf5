// A sample document of every family of objects, with the content of a small plant.
#ifndef PRAXEN_TOOLS_PRAXEN_SAMPLES_H_
#define PRAXEN_TOOLS_PRAXEN_SAMPLES_H_

#include <span>
#include <string_view>
#include <vector>

#include "praxen/describe/description.h"

namespace praxen::detail {

struct SampleFamily {
  std::string_view name;
  Ref<SerializableObject> (*build)();
};

// The families of each part of the model, beside the functions that build them.

std::span<const SampleFamily> DataSamples();
std::span<const SampleFamily> UnitSamples();
std::span<const SampleFamily> CodeSamples();
std::span<const SampleFamily> ApplicationSamples();

/// All families in the order in which they are listed.
const std::vector<SampleFamily>& SampleFamilies();

/// The family of that name, or null.
const SampleFamily* FindSampleFamily(std::string_view name);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_SAMPLES_H_
