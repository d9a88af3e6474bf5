// The other libraries, each doing its best with the same text.
#ifndef PRAXEN_BENCH_PEERS_H_
#define PRAXEN_BENCH_PEERS_H_

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>

namespace praxen::detail::bench {

/// What a peer has made of a document.
class Parsed {
 public:
  virtual ~Parsed() = default;
  /// How many elements it found, by which the peers are checked against each other.
  virtual size_t elements() const = 0;
};

/// Reads a document; throws when it is invalid to a peer that validates.
using Reader = std::function<std::shared_ptr<Parsed>(std::u16string_view text)>;
/// Writes a document and returns its text in the peer's own type.
using Writer = std::function<std::shared_ptr<void>()>;

/// Xerces-C's SAX2 reader with our schema cached: events are counted, nothing is built.
Reader XercesReader();
/// libxml2's DOM, validated with our schema, whose defaults are filled in.
Reader Libxml2Reader();
/// pugixml's tree, not validated.
Reader PugixmlReader();
/// pugixml saving its tree as UTF-16.
Writer PugixmlWriter(std::u16string_view text);
/// C++/Tree classes of a closed schema, validated with cached grammar. For programs only.
Reader TreeReader();
/// C++/Tree serializing the classes as UTF-16.
Writer TreeWriter(std::u16string_view text);

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_PEERS_H_
