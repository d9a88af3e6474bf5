// The direct way of reading, held against the reference way.
#ifndef PRAXEN_TESTS_SUPPORT_BOTH_WAYS_H_
#define PRAXEN_TESTS_SUPPORT_BOTH_WAYS_H_

#include <string>

#include "praxen/describe/object.h"
#include "praxen/factory/direct_reading.h"

namespace praxen::detail {

/// Reading goes the one way while it lives, and then as it went before.
class WayOfReading {
 public:
  explicit WayOfReading(bool isDirect) { UseDirectReading(isDirect); }
  WayOfReading(const WayOfReading&) = delete;
  WayOfReading& operator=(const WayOfReading&) = delete;
  ~WayOfReading() { UseDirectReading(before_); }

 private:
  const bool before_ = UsesDirectReading();
};

/// The locale's decimal separator is a comma while it lives.
class DecimalComma {
 public:
  DecimalComma();
  DecimalComma(const DecimalComma&) = delete;
  DecimalComma& operator=(const DecimalComma&) = delete;
  ~DecimalComma();
};

/// What two ways of reading a text have given.
struct BothWays {
  /// Whether the direct way has read the text rather than given up.
  bool isDirect = false;
  /// Where the direct way, which may give up, is not as the reference; empty where it is.
  std::string difference = {};
};

/// Reads a text by both ways as a document of any class, and as one of each class whose element is
/// its root. What they build is compared in every value, published or not, in every object held
/// and in what it writes; what they refuse in its error. An attempt that is given up leaves no
/// object.
BothWays ReadBothWays(const Text& text);

}  // namespace praxen::detail

#endif  // PRAXEN_TESTS_SUPPORT_BOTH_WAYS_H_
