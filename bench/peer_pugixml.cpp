// pugixml's document tree.
#include <pugixml.hpp>
#include <stdexcept>
#include <string>

#include "bench/peers.h"

namespace praxen::detail::bench {
namespace {

struct Tree final : Parsed {
  struct Walker : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node& node) override {
      count += node.type() == pugi::node_element ? 1U : 0U;
      return true;
    }
    size_t count = 0;
  };

  explicit Tree(std::u16string_view text) {
    if (!document.load_buffer(text.data(), text.size() * sizeof(char16_t), pugi::parse_default,
                              pugi::encoding_utf16_le)) {
      throw std::runtime_error("malformed");
    }
  }
  size_t elements() const override {
    Walker walker;
    const_cast<pugi::xml_document&>(document).traverse(walker);
    return walker.count;
  }

  pugi::xml_document document;
};

struct Sink final : pugi::xml_writer {
  void write(const void* data, size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }

  std::string text;
};

}  // namespace

Reader PugixmlReader() {
  return [](std::u16string_view text) { return std::make_shared<Tree>(text); };
}

Writer PugixmlWriter(std::u16string_view text) {
  return [tree = std::make_shared<Tree>(text)] {
    auto sink = std::make_shared<Sink>();
    tree->document.save(*sink, "", pugi::format_raw, pugi::encoding_utf16_le);
    return sink;
  };
}

}  // namespace praxen::detail::bench
