// Every request for memory of an operation fails once, or from then on: the operation gives its
// error and nothing else, and the next one works as ever.
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <thread>
#include <utility>

#include "praxen/core/counters.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/reading_frame.h"
#include "praxen/praxen.h"
#include "praxen/server/class_object.h"
#include "praxen/xml/xml_string_writer.h"
#include "tests/server/client.h"
#include "tests/support/documents.h"
#include "tests/support/example.h"
#include "tests/support/failing_allocator.h"

namespace praxen::detail {
namespace {

using Failing = FailingAllocator::Failing;

struct Operation {
  /// What the operation gives; it takes back what it does to lasting objects.
  std::function<Text()> run;
  /// What a failure must leave as it was.
  std::function<std::string()> state = [] { return std::string(); };
  /// What comes before each run, with memory enough.
  std::function<void()> prepare = [] {};
};

// The result, or nothing when there is not enough memory.
std::optional<Text> RunFailing(const Operation& operation, size_t request, Failing failing,
                               bool& failed) {
  const FailingAllocator allocator(request, failing);
  std::optional<Text> result;
  try {
    result = operation.run();
  } catch (const std::bad_alloc&) {
  }
  failed = allocator.hasFailed();
  return result;
}

struct Case {
  const char* name;
  Operation (*make)();
};

void PrintTo(const Case& test, std::ostream* stream) { *stream << test.name; }

class AllocationFailure : public testing::TestWithParam<std::tuple<Case, Failing>> {};

TEST_P(AllocationFailure, GivesItsErrorAndLeavesNoTrace) {
  const auto& [test, failing] = GetParam();
  const Operation operation = test.make();
  operation.prepare();
  const Text expected = operation.run();
  const std::string state = operation.state();
  const int32_t objects = ObjectCounter();
  size_t requests = 0;
  for (bool failed = true; failed && !HasFailure();) {
    operation.prepare();
    // Every request of the first two hundred, and then one in so many that tests stay short.
    const std::optional<Text> result =
        RunFailing(operation, requests += requests < 200 ? 1 : requests / 50, failing, failed);
    // What can do with less memory may give its result all the same.
    EXPECT_TRUE(failed || result) << requests;
    EXPECT_EQ(result.value_or(expected), expected) << requests;
    EXPECT_EQ(ObjectCounter(), objects) << requests;
    EXPECT_EQ(operation.state(), state) << requests;
    EXPECT_EQ(operation.run(), expected) << requests;
    EXPECT_EQ(ObjectCounter(), objects) << requests;
  }
  RecordProperty("requests", static_cast<int>(requests - 1));
  EXPECT_GT(requests, 1u);
}

// A program with content of every kind.
Ref<Program> MakeProgram() {
  const auto program = New<Program>();
  FillExample(*program, 1);
  return program;
}

Operation Serializing() {
  return {[program = MakeProgram()] { return program->Serialize(); }};
}

// The shared writer keeps its buffer; a new one has to grow.
Operation WritingALongDocument() {
  const auto block = ObjectFactory::NewSTCodeBlock(u"Code");
  block->STcode = std::u16string(200'000, u'<');
  return {[block] {
    XMLStringWriter writer;
    writer.WriteStartDocument();
    block->IsRoot = true;
    block->WriteXML(writer);
    return writer.ToXMLString();
  }};
}

Operation FailingToSerialize() {
  const auto program = MakeProgram();
  program->Variables->Add1(u"", u"real");
  return {[program] { return Text(FromUtf8(ErrorOf([&] { program->Serialize(); }))); }};
}

Operation Reading() {
  const auto program = MakeProgram();
  return {[document = program->Serialize()] {
    return ObjectFactory::DeserializeProgram(document)->Serialize();
  }};
}

Operation FailingToRead(const char* document) {
  return {[text = Text(FromUtf8(document))] {
    return Text(FromUtf8(ErrorOf([&] { ObjectFactory::DeserializeVariable(text); })));
  }};
}

Operation Creating() {
  const auto list = New<Variables>();
  list->Add1(u"First", u"real");
  return {[list] {
            struct Removal {
              ~Removal() {
                while (list.Count() > 1) list.Remove(list.Count());
              }
              Variables& list;
            } removal{*list};
            list->Add1(u"Third", u"real")->GraphNodes->Add1(u"n", 1, 2);
            list->AddBefore(ObjectFactory::NewVariable(u"Second", u"real"), 2);
            return list->Item(2)->Name + list->Item(3)->Name;
          },
          [list] { return Markup(*list); }};
}

// The names of constants are tested for conflicts in an index that is made when it is needed.
Operation AddingAConstant() {
  const auto list = New<ProjectConstants>();
  list->Add1(u"a.b.c", u"real", u"1");
  return {.run =
              [list] {
                list->Add1(u"a.b.d", u"real", u"2");
                list->Remove(2);
                return Text(FromUtf8(ErrorOf([&] { list->Add1(u"a.b", u"real", u"2"); })));
              },
          .state = [list] { return Markup(*list); },
          .prepare =
              [list] {
                // An empty reference drops the index.
                list->Add(nullptr);
                list->Remove(2);
              }};
}

Operation Enumerating() {
  const auto list = New<Variables>();
  list->Add1(u"First", u"real");
  return {[list] {
    const Ref<Enumerator> enumerator = list->NewEnum();
    return enumerator ? u"made"_text : u"none"_text;
  }};
}

// A document of its own, which compiles the schema first. Xerces itself is started before.
Operation LoadingForTheFirstTime() {
  ErrorOf([] { ObjectFactory::DeserializeVariable(u""); });
  return {[] {
    XmlDocument document(FindSchema());
    return document.LoadXML(u"<Variable xmlns='PraxenSchema3_0' Name='n' Type='' Attribute=''/>")
               ? Text(document.documentElement().attribute(u"Name")->value())
               : Text(document.parseError().reason);
  }};
}

// A late-bound call whose arguments stand ready, so that only the library's own requests fail.
struct LateCall {
  Ref<Object> object;
  DISPID member;
  WORD flags;
  client::Values arguments;
  DISPID put = DISPID_PROPERTYPUT;

  LateCall(const Ref<Object>& called, const char16_t* name, WORD how, client::Values values = {})
      : object(called),
        member(called->description().FindMember(std::u16string_view(name))->id),
        flags(how),
        arguments(std::move(values)) {}

  // The result; raises what stands for the error that a client is told.
  Text operator()() {
    const bool puts = flags == DISPATCH_PROPERTYPUT;
    DISPPARAMS parameters = {arguments.data(), puts ? &put : nullptr,
                             static_cast<UINT>(arguments.size()), puts ? 1u : 0u};
    Variant result;
    EXCEPINFO exception = {};
    const HRESULT code =
        reinterpret_cast<IDispatch*>(static_cast<Interface*>(object.get()))
            ->Invoke(member, IID_NULL, 0, flags, &parameters, &result, &exception, nullptr);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
    if (code == DISP_E_EXCEPTION && exception.scode == E_OUTOFMEMORY) throw std::bad_alloc();
    if (FAILED(code)) return u"error"_text;
    return result.vt == VT_BSTR ? Text(result.View()) : u"none"_text;
  }
};

Operation CallingSerialize() { return {LateCall(MakeProgram(), u"Serialize", DISPATCH_METHOD)}; }

Operation CallingDeserialize() {
  const Variant document(MakeProgram()->Serialize().view());
  return {LateCall(New<ObjectFactory>(), u"DeserializeProgram", DISPATCH_METHOD, {document})};
}

Operation CallingAddition() {
  const auto list = New<Variables>();
  return {[list, call = LateCall(list, u"Add1", DISPATCH_METHOD,
                                 {Variant(u"real"), Variant(42)})]() mutable {
            call();
            const Ref<Variable> added = list->Item(1);
            list->Remove(1);
            return added->Name;
          },
          [list] { return std::to_string(list->Count()); }};
}

Operation CallingAssignment() {
  const auto variable = ObjectFactory::NewVariable(u"Old", u"real");
  return {[variable,
           call = LateCall(variable, u"Name", DISPATCH_PROPERTYPUT, {Variant(u"New")})]() mutable {
            call();
            return std::exchange(variable->Name, u"Old"_text);
          },
          [variable] { return ToUtf8(variable->Name); }};
}

Operation CallingWhatFails() { return {LateCall(New<Program>(), u"Serialize", DISPATCH_METHOD)}; }

Operation CreatingThroughClassObject() {
  return {[] {
    ComPointer<IClassFactory> factory;
    client::Handle object;
    HRESULT code = GetClassObject(ClassId(Describe<Program>()), IID_IClassFactory,
                                  reinterpret_cast<void**>(factory.Receive()));
    if (SUCCEEDED(code)) {
      code = factory->CreateInstance(nullptr, IID_IDispatch,
                                     reinterpret_cast<void**>(object.Receive()));
    }
    if (code == E_OUTOFMEMORY) throw std::bad_alloc();
    return code == S_OK && object ? u"created"_text : u"error"_text;
  }};
}

INSTANTIATE_TEST_SUITE_P(
    Table, AllocationFailure,
    testing::Combine(
        testing::Values(
            Case{"Serialize", Serializing}, Case{"WriteLongDocument", WritingALongDocument},
            Case{"FailToSerialize", FailingToSerialize}, Case{"Deserialize", Reading},
            Case{"ReadMalformedText",
                 [] { return FailingToRead("<Variable xmlns='PraxenSchema3_0' Name='"); }},
            Case{"ReadInvalidText",
                 [] { return FailingToRead("<Variable xmlns='PraxenSchema3_0' Name='' A=''/>"); }},
            Case{"ReadOtherRoot", [] { return FailingToRead("<Other/>"); }},
            Case{"FirstLoad", LoadingForTheFirstTime}, Case{"AddConstant", AddingAConstant},
            Case{"Enumerate", Enumerating}, Case{"Create", Creating},
            Case{"InvokeSerialize", CallingSerialize},
            Case{"InvokeDeserialize", CallingDeserialize}, Case{"InvokeAdd1", CallingAddition},
            Case{"InvokePut", CallingAssignment}, Case{"InvokeFailing", CallingWhatFails},
            Case{"CreateInstance", CreatingThroughClassObject}),
        testing::Values(Failing::Once, Failing::FromThenOn)),
    [](const auto& test) {
      return std::string(std::get<0>(test.param).name) +
             (std::get<1>(test.param) == Failing::Once ? "Once" : "FromThenOn");
    });

// Releasing cannot fail, and needs no more stack than ever.
TEST(AllocationFailureOnAThread, LetsItReleaseObjectsAllTheSame) {
  const int32_t before = ObjectCounter();
  Ref<HWUnit> chain = New<HWUnit>();
  for (int i = 0; i < 100'000; ++i) {
    const auto outer = New<HWUnit>();
    outer->HWUnits->Add(chain);
    chain = outer;
  }
  bool failed = false;
  std::atomic<int> step = 0;
  std::thread thread([&] {
    ++step;
    while (step == 1) std::this_thread::yield();
    chain = nullptr;
    ++step;
  });
  while (step == 0) std::this_thread::yield();
  {
    const FailingAllocator allocator(1, Failing::FromThenOn);
    ++step;
    while (step == 2) std::this_thread::yield();
    failed = allocator.hasFailed();
  }
  thread.join();
  EXPECT_TRUE(failed);
  EXPECT_EQ(ObjectCounter(), before);
}

}  // namespace
}  // namespace praxen::detail
