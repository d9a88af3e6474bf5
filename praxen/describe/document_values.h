// What the values of one document have in common while it is read.
#ifndef PRAXEN_DESCRIBE_DOCUMENT_VALUES_H_
#define PRAXEN_DESCRIBE_DOCUMENT_VALUES_H_

#include "praxen/core/numbers.h"
#include "praxen/core/thread_state.h"
#include "praxen/describe/shared_texts.h"

namespace praxen::describe {

/// The texts that repeat, and how the user's numbers are written.
struct DocumentValues final : KeptByThread {
  /// Those of the document that the thread is reading.
  static DocumentValues& Instance() { return ThreadState::Current().Keep<DocumentValues>(); }

  void Clear() noexcept {
    texts.Clear();
    numbers.Clear();
  }

  SharedTexts texts;
  XMLNumbers numbers;
};

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_DOCUMENT_VALUES_H_
