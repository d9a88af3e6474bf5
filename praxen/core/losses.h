// Losses: what reading a document leaves out of the objects that it makes.
#ifndef PRAXEN_CORE_LOSSES_H_
#define PRAXEN_CORE_LOSSES_H_

#include <cstdint>
#include <vector>

#include "praxen/core/place.h"
#include "praxen/core/text.h"

namespace praxen {

enum class LossKind : uint8_t {
  /// An element, an attribute or a text that is in none of the objects.
  NotRead,
  /// It is in an object as something else: an attribute as another value, a comment as a text, an
  /// element in the place of another.
  Changed,
  /// It is in an object as the document has it, but writing the object leaves it out.
  NotWritten
};

/// One thing that a document holds and the objects read from it do not, or not alike.
struct Loss {
  LossKind kind = LossKind::NotRead;
  /// Of the element or attribute; of a text or comment that of the element around it.
  Text name;
  Place place;
  /// A sentence without its end, such as "'HWChannels' and what follows it was not read; a comment
  /// stands before it".
  Text description;
};

/// The losses of a document in the order of their places.
using Losses = std::vector<Loss>;

}  // namespace praxen

#endif  // PRAXEN_CORE_LOSSES_H_
