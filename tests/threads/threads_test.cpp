// Many threads with objects of their own at once, and what passes from one to another.
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "praxen/core/counters.h"
#include "praxen/core/thread_state.h"
#include "praxen/factory/read_document.h"
#include "praxen/praxen.h"
#include "praxen/server/class_object.h"
#include "praxen/xml/xml_string_writer.h"
#include "tests/server/client.h"
#include "tests/support/documents.h"
#include "tests/support/example.h"

namespace praxen::detail {
namespace {

// Runs `work` with the numbers from 0 on so many threads, which begin together.
void OnThreads(int count, const std::function<void(int)>& work) {
  std::atomic<int> waiting = count;
  std::vector<std::thread> threads;
  for (int i = 0; i < count; ++i) {
    threads.emplace_back([&, i] {
      --waiting;
      while (waiting > 0) std::this_thread::yield();
      work(i);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

void OnThread(const std::function<void()>& work) { std::thread(work).join(); }

constexpr int kThreads = 8;

client::Handle HandleOf(Object& object) {
  return client::Handle(reinterpret_cast<IDispatch*>(static_cast<Interface*>(&object)));
}

Text WrittenExample(const ClassDescription& description) {
  const Ref<Object> object = description.create();
  FillExample(*object, 1);
  return Text(client::GetText(HandleOf(*object), u"Serialize"));
}

// A list whose document has so many characters that it stands in the writer's buffer.
Ref<ApplicationVariables> LongList(std::u16string_view name) {
  const auto list = New<ApplicationVariables>();
  for (int i = 0; i < 1'000; ++i) list->GlobalVariables->Add1(name, u"real");
  return list;
}

class Threads : public testing::Test {
 protected:
  ~Threads() override {
    EXPECT_EQ(ObjectCounter(), objects_);
    EXPECT_EQ(CanUnload(), canUnload_);
  }

 private:
  const int32_t objects_ = ObjectCounter();
  const bool canUnload_ = CanUnload();
};

// The first test, so that the threads meet in what is made when it is first used as well.
TEST_F(Threads, BuildWriteReadAndFailAtOnce) {
  std::vector<std::vector<Text>> written(kThreads);
  OnThreads(kThreads, [&](int number) {
    const auto& classes = DocumentClasses();
    std::vector<Text>& documents = written[static_cast<size_t>(number)];
    documents.resize(classes.size());
    for (size_t i = 0; i < classes.size(); ++i) {
      // Every thread has another class at the same time.
      const size_t at = (i + static_cast<size_t>(number)) % classes.size();
      documents[at] = WrittenExample(*classes[at]);
      const Ref<Object> read = ReadDocument(documents[at]);
      EXPECT_EQ(documents[at], client::GetText(HandleOf(*read), u"Serialize"));

      // The error that is told is the thread's own.
      const client::Handle variable = client::Create("Variable");
      const bool writes = (i + static_cast<size_t>(number)) % 2 == 0;
      const client::Outcome failed = writes
                                         ? client::Call(variable, u"Serialize")
                                         : client::Put(variable, u"Name", client::OfType(VT_NULL));
      EXPECT_EQ(failed.reported, writes ? u"Required fields empty" : u"Type mismatch");
      EXPECT_EQ(ErrorOf([] { ReadDocument(u"<Nobody/>"); }).substr(0, 3), "604");
    }
  });
  for (size_t at = 0; at < DocumentClasses().size(); ++at) {
    const Text expected = WrittenExample(*DocumentClasses()[at]);
    for (const std::vector<Text>& documents : written) EXPECT_EQ(documents[at], expected);
  }
}

TEST_F(Threads, SeeOneCounterAndOneSetting) {
  std::atomic<bool> stop = false;
  std::thread watcher([&] {
    while (!stop) EXPECT_GE(client::CountedObjects(), 2);
  });
  OnThreads(kThreads, [](int) {
    const int32_t before = client::CountedObjects();
    const auto list = LongList(u"Counted");
    EXPECT_GE(before, 2);
    EXPECT_GE(ObjectCounter(), 2'000);
  });
  stop = true;
  watcher.join();
  const auto variable = ObjectFactory::NewVariable(u"a", u"real");
  const auto whole = variable->Serialize();
  OnThread([] { New<maintenance>()->SetIncludeCRLFInXML(false); });
  EXPECT_LT(variable->Serialize().size(), whole.size());
  OnThread([] { SetIncludeCRLFInXML(true); });
  EXPECT_EQ(variable->Serialize(), whole);
}

TEST_F(Threads, PassObjectsOn) {
  const int32_t before = ObjectCounter();
  Ref<ApplicationVariables> list = LongList(u"Passed");
  const int32_t with = ObjectCounter();
  // More than what a thread may hold back.
  OnThread([&] { list = nullptr; });
  EXPECT_EQ(ObjectCounter(), before);
  OnThread([&] { list = LongList(u"Passed"); });
  EXPECT_EQ(ObjectCounter(), with);
  EXPECT_FALSE(CanUnload());
  // A chain that needs no more stack than one object on whatever thread.
  Ref<HWUnit> chain = New<HWUnit>();
  for (int i = 0; i < 100'000; ++i) {
    const auto outer = New<HWUnit>();
    outer->HWUnits->Add(chain);
    chain = outer;
  }
  OnThread([&] { chain = nullptr; });
  list = nullptr;
}

TEST_F(Threads, PassTextsOnThatStandInABuffer) {
  const auto list = LongList(u"Text");
  const auto other = LongList(u"Another");
  const Text expected = list->Serialize().view();
  const Text further = other->Serialize().view();
  for (int i = 0; i < 20; ++i) {
    std::thread reader([text = list->Serialize(), &expected] { EXPECT_EQ(text, expected); });
    EXPECT_EQ(other->Serialize(), further);
    reader.join();
  }
  Text left;
  OnThread([&] { left = LongList(u"Text")->Serialize(); });
  EXPECT_EQ(left, expected);
}

struct Kept final : KeptByThread {
  Kept() { ++made; }
  ~Kept() override { ++destroyed; }

  static inline std::atomic<int> made = 0;
  static inline std::atomic<int> destroyed = 0;
};

TEST_F(Threads, KeepTheirOwnUntilTheyEnd) {
  const auto countStates = [] {
    const auto lock = ThreadState::Lock();
    int count = 0;
    for (auto* state = ThreadState::first(); state != nullptr; state = state->next()) ++count;
    return count;
  };
  const int before = countStates();
  OnThreads(kThreads, [](int) {
    Kept& kept = ThreadState::Current().Keep<Kept>();
    // Others come before it.
    ReadDocument(ObjectFactory::NewVariable(u"a", u"real")->Serialize());
    EXPECT_EQ(&ThreadState::Current().Keep<Kept>(), &kept);
  });
  EXPECT_EQ(Kept::made, kThreads);
  EXPECT_EQ(Kept::destroyed, kThreads);
  EXPECT_EQ(countStates(), before);
}

}  // namespace
}  // namespace praxen::detail
