// Objects inside objects of their own class: up to the limit, beyond it, and without end.
#ifndef _WIN32
#include <pthread.h>
#endif

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <set>

#include "praxen/core/counters.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/factory/deserialization.h"
#include "praxen/praxen.h"
#include "tests/server/client.h"
#include "tests/support/build.h"
#include "tests/support/documents.h"
#include "tests/support/example.h"

namespace praxen::detail {
namespace {

// In bytes, less than which writing and reading to the limit of depth need.
[[maybe_unused]] constexpr size_t kStack = 256 * 1024;

constexpr const char* kTooDeep =
    "800A001C Nested deeper than 1000 elements; an object may contain itself";

// From an object to one that it holds, or from a list to a new element.
struct Step {
  const Child* child;
  const Choice* choice;

  const ClassDescription& target() const {
    return child == nullptr ? choice->object() : child->type.object();
  }
};
using Path = std::vector<Step>;

std::vector<Step> StepsFrom(const ClassDescription& description) {
  std::vector<Step> steps;
  if (description.layout == nullptr) return steps;
  for (const Child& child : ChildrenOf(description)) {
    if (IsObject(child.type)) steps.push_back({&child, nullptr});
  }
  for (const Choice& choice : description.layout().elements) steps.push_back({nullptr, &choice});
  return steps;
}

// The shortest way from an object to another of its class inside it; empty when there is none.
Path PathToItself(const ClassDescription& start) {
  std::set<const ClassDescription*> seen;
  std::deque<Path> paths{{}};
  while (!paths.empty()) {
    const Path path = paths.front();
    paths.pop_front();
    const ClassDescription& end = path.empty() ? start : path.back().target();
    if (!path.empty() && &end == &start) return path;
    if (!seen.insert(&end).second) continue;
    for (const Step& step : StepsFrom(end)) {
      paths.push_back(path);
      paths.back().push_back(step);
    }
  }
  return {};
}

std::vector<const ClassDescription*> ClassesThatNest() {
  std::vector<const ClassDescription*> classes;
  for (const ClassDescription& description : AllClasses()) {
    if (!PathToItself(description).empty()) classes.push_back(&description);
  }
  return classes;
}

Ref<Object> NewObject(const ClassDescription& description) {
  const Ref<Object> object = description.create();
  FillRequired(*object);
  return object;
}

Object& Take(Object& object, const Step& step) {
  if (step.child != nullptr) return HeldOrCreated(object, *step.child);
  const Ref<Object> element = NewObject(step.target());
  object.Append(element);
  return *element;
}

// An object with others of its class inside each other.
Ref<Object> Nested(const ClassDescription& description, const Path& path, size_t count) {
  const Ref<Object> outermost = NewObject(description);
  Object* at = outermost.get();
  for (; count > 0; --count) {
    for (const Step& step : path) at = &Take(*at, step);
  }
  return outermost;
}

size_t DepthOf(const std::string& markup) {
  size_t depth = 0, deepest = 0;
  for (size_t i = 0; i + 1 < markup.size(); ++i) {
    if (markup[i] == '<' && markup[i + 1] != '/') deepest = std::max(deepest, ++depth);
    if (markup.compare(i, 2, "</") == 0 || markup.compare(i, 2, "/>") == 0) --depth;
  }
  return deepest;
}

std::string ErrorOfWriting(const Ref<Object>& object) {
  const std::string error = ErrorOf([&] { Markup(*object); });
  if (const auto root = Cast<SerializableObject>(object)) {
    EXPECT_EQ(ErrorOf([&] { root->Serialize(); }), error);
  }
  return error;
}

class Nesting : public testing::TestWithParam<const ClassDescription*> {
 protected:
  const ClassDescription& class_ = *GetParam();
  const Path path_ = PathToItself(class_);
  const std::string plain_ = Markup(*NewObject(class_));
  // The depth of an object with one of its class in it, what each further one adds, and how many
  // there can be.
  const size_t once_ = DepthOf(Markup(*Nested(class_, path_, 1)));
  const size_t step_ = DepthOf(Markup(*Nested(class_, path_, 2))) - once_;
  const size_t most_ = step_ == 0 ? 0 : 1 + (1000 - once_) / step_;
  const int32_t objects_ = ObjectCounter();
};

TEST_P(Nesting, GoesBothWaysUpToTheLimitAndNotBeyond) {
  ASSERT_GT(step_, 0u);
  const std::string markup = Markup(*Nested(class_, path_, most_));
  EXPECT_GT(DepthOf(markup) + step_, 1000u);
  // What stands in no element of its own is no document.
  if (plain_.starts_with("<" + ToUtf8(class_.layout().element))) {
    EXPECT_EQ(Rewritten(markup, class_.name), markup);
  }
  EXPECT_EQ(ErrorOfWriting(Nested(class_, path_, most_ + 1)), kTooDeep);
  EXPECT_EQ(Markup(*NewObject(class_)), plain_);
  EXPECT_EQ(ObjectCounter(), objects_);
}

#ifndef _WIN32

// Runs in a thread that has so much stack.
void RunWithStack(size_t size, const std::function<void()>& work) {
  pthread_attr_t attributes;
  ASSERT_EQ(::pthread_attr_init(&attributes), 0);
  ASSERT_EQ(::pthread_attr_setstacksize(&attributes, size), 0);
  pthread_t thread;
  const auto run = [](void* argument) -> void* {
    (*static_cast<const std::function<void()>*>(argument))();
    return nullptr;
  };
  ASSERT_EQ(::pthread_create(&thread, &attributes, run,
                             const_cast<void*>(static_cast<const void*>(&work))),
            0);
  ::pthread_join(thread, nullptr);
  ::pthread_attr_destroy(&attributes);
}

TEST_P(Nesting, NeedsLittleStack) {
  if (kHasSanitizer || !kIsOptimised) GTEST_SKIP() << "the guarantee is for optimised builds";
  const Ref<Object> deepest = Nested(class_, path_, most_);
  const std::string markup = Markup(*deepest);
  std::string written, rewritten = markup;
  const auto write = [&] { written = Markup(*deepest); };
  const auto rewrite = [&] { rewritten = Rewritten(markup, class_.name); };
  RunWithStack(kStack, write);
  if (plain_.starts_with("<" + ToUtf8(class_.layout().element))) RunWithStack(kStack, rewrite);
  EXPECT_EQ(written, markup);
  EXPECT_EQ(rewritten, markup);
}

#endif

TEST_P(Nesting, OfAnyDepthIsRefusedAndReleased) {
  EXPECT_EQ(ErrorOfWriting(Nested(class_, path_, 50'000)), kTooDeep);
  EXPECT_EQ(Markup(*NewObject(class_)), plain_);
  EXPECT_EQ(ObjectCounter(), objects_);
}

client::Handle HandleOf(Object& object) {
  return client::Handle(reinterpret_cast<IDispatch*>(static_cast<Interface*>(&object)));
}

// An object inside itself is refused, and lives until the client takes it out.
TEST_P(Nesting, WithoutEndIsRefusedUntilTheClientEndsIt) {
  {
    const Ref<Object> outermost = NewObject(class_);
    Object* last = outermost.get();
    for (size_t i = 0; i + 1 < path_.size(); ++i) last = &Take(*last, path_[i]);
    const client::Handle holder = HandleOf(*last);
    const Variant itself(HandleOf(*outermost).Get());
    const Child* const child = path_.back().child;
    if (child == nullptr) {
      ASSERT_EQ(client::Call(holder, u"Add", {itself}).result, S_OK);
    } else {
      ASSERT_EQ(client::Put(holder, FromUtf8(child->property), itself).result, S_OK);
    }
    EXPECT_EQ(ErrorOfWriting(outermost), kTooDeep);
    EXPECT_EQ(Markup(*NewObject(class_)), plain_);
    if (child == nullptr) {
      EXPECT_EQ(client::Call(holder, u"Remove", {Variant(1)}).result, S_OK);
    } else {
      const Ref<Object> empty = child->type.object().create();
      const Variant other(HandleOf(*empty).Get());
      EXPECT_EQ(client::Put(holder, FromUtf8(child->property), other).result, S_OK);
    }
    EXPECT_EQ(ErrorOfWriting(outermost), "none");
  }
  EXPECT_EQ(ObjectCounter(), objects_);
}

INSTANTIATE_TEST_SUITE_P(Classes, Nesting, testing::ValuesIn(ClassesThatNest()),
                         [](const auto& test) { return std::string(test.param->name); });

// The names of constants nest in the document only.
TEST(NestingOfNames, EndsAtTheLimit) {
  const auto constants = New<ProjectConstants>();
  const auto setSegments = [&](size_t count) {
    std::u16string name = u"a";
    while (--count > 0) name += u".a";
    if (constants->Count() > 0) constants->Remove(1);
    constants->Add1(name, u"real", u"1");
  };
  setSegments(499);
  const std::string markup = Markup(*constants);
  EXPECT_EQ(DepthOf(markup), 999u);
  EXPECT_EQ(Rewritten(markup), markup);
  for (const size_t count : {size_t{500}, size_t{501}, size_t{100'000}}) {
    setSegments(count);
    EXPECT_EQ(ErrorOfWriting(constants), kTooDeep) << count;
  }
  setSegments(1);
  EXPECT_EQ(Rewritten(Markup(*constants)), Markup(*constants));
}

}  // namespace
}  // namespace praxen::detail
