// The documents that the tests expect.
#ifndef PRAXEN_TESTS_SUPPORT_SOUND_DOCUMENTS_H_
#define PRAXEN_TESTS_SUPPORT_SOUND_DOCUMENTS_H_

#include <string>
#include <vector>

#include "praxen/describe/description.h"

namespace praxen::detail {

struct SoundDocument {
  std::string name;
  const ClassDescription* description;
  Text text;
};

/// A document of every class that the factory reads, with everything set and with nothing but what
/// is required, each with CR LF, with LF and without line breaks, and the samples of the command
/// line. Numbers have the locale's decimal separator.
std::vector<SoundDocument> SoundDocuments();

/// Whether the direct way reads a document of its class and does not give up.
bool IsReadDirectly(const SoundDocument& document);

}  // namespace praxen::detail

#endif  // PRAXEN_TESTS_SUPPORT_SOUND_DOCUMENTS_H_
