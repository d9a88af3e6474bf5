// Memory that is taken in order and given back in any.
#include "praxen/core/region.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <thread>
#include <vector>

namespace praxen::detail {
namespace {

struct Taken {
  unsigned char* memory;
  size_t size;
  unsigned char content;
};

void GiveBack(const std::vector<Taken>& all, size_t from, size_t to) {
  for (size_t i = from; i < to; ++i) {
    const Taken& taken = all[i];
    for (size_t at = 0; at < taken.size; ++at) ASSERT_EQ(taken.memory[at], taken.content);
    std::memset(taken.memory, 0xDD, taken.size);
    Region::Free(taken.memory);
  }
}

// The memory tools find what is left, and what is used after it was given back.
TEST(Region, IsGivenBackByAnyThreadWhenItIsGoneItself) {
  for (const size_t firstPiece : {size_t{0}, size_t{5'000}, size_t{1'000'000}}) {
    auto region = std::make_unique<Region>(firstPiece);
    std::mt19937 random(1);
    std::vector<Taken> all;
    for (size_t i = 0; i < 2'000; ++i) {
      const size_t size = i % 7 == 0 ? Region::kLargest - i % 3 : 1 + random() % 300;
      all.push_back({static_cast<unsigned char*>(region->Allocate(size)), size,
                     static_cast<unsigned char>(i)});
      ASSERT_EQ(reinterpret_cast<uintptr_t>(all.back().memory) % alignof(double), 0U);
      std::memset(all.back().memory, all.back().content, size);
    }
    GiveBack(all, 0, 100);
    region.reset();
    std::shuffle(all.begin() + 100, all.end(), random);
    std::thread other([&] { GiveBack(all, 100, 1'000); });
    GiveBack(all, 1'000, all.size());
    other.join();
  }
}

}  // namespace
}  // namespace praxen::detail
