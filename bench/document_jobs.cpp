// Which documents are measured against which peers, and how often.
#include "bench/document_jobs.h"

#include <array>
#include <functional>
#include <stdexcept>
#include <thread>

#include "bench/documents.h"
#include "bench/peers.h"
#include "tests/support/both_ways.h"

namespace praxen::detail::bench {
namespace {

struct Peer {
  std::string name;
  Reader read;
};

std::vector<Peer> ReadingPeers(bool isProgram) {
  std::vector<Peer> peers{{"xerces sax2", XercesReader()},
                          {"libxml2 dom", Libxml2Reader()},
                          {"pugixml", PugixmlReader()}};
  if (isProgram) peers.push_back({"c++/tree", TreeReader()});
  return peers;
}

template <class Class>
Job WritingJob(const std::string& task, const Ref<Class>& object, size_t amount) {
  // Once before, because documents of other sizes come in between and leave the writer another
  // buffer.
  return {task, std::string(kOurs), amount,
          [object] { return std::make_shared<Text>(object->Serialize()); },
          [object] { object->Serialize(); }};
}

template <class Class>
Job ReadingJob(const std::string& task, const std::vector<Text>& texts, size_t amount,
               bool isDirect = true) {
  return {task, std::string(isDirect ? kOurs : kReference), amount, [texts, isDirect] {
            const WayOfReading way(isDirect);
            auto objects = std::make_shared<std::vector<Ref<Class>>>();
            for (const Text& text : texts) objects->push_back(Deserialization<Class>()(text));
            return objects;
          }};
}

Job PeerJob(const std::string& task, const Peer& peer, const std::vector<Text>& texts,
            size_t amount) {
  return {task, peer.name, amount, [read = peer.read, texts] {
            auto parsed = std::make_shared<std::vector<std::shared_ptr<Parsed>>>();
            for (const Text& text : texts) parsed->push_back(read(text));
            return parsed;
          }};
}

// Peers that disagree about a document are not comparable.
void RequireAgreement(const std::vector<Peer>& peers, const Text& text) {
  const size_t elements = peers.front().read(text)->elements();
  for (const Peer& peer : peers) {
    if (peer.read(text)->elements() != elements) {
      throw std::runtime_error(peer.name + " reads another number of elements");
    }
  }
}

template <class Class>
void AddReading(std::vector<Job>& jobs, const std::string& task, const std::vector<Text>& texts) {
  size_t amount = 0;
  for (const Text& text : texts) amount += text.size();
  for (const bool isDirect : {true, false}) {
    jobs.push_back(ReadingJob<Class>(task, texts, amount, isDirect));
  }
  const std::vector<Peer> peers = ReadingPeers(std::is_same_v<Class, Program>);
  RequireAgreement(peers, texts.front());
  for (const Peer& peer : peers) jobs.push_back(PeerJob(task, peer, texts, amount));
}

template <class Class>
void AddDocument(std::vector<Job>& jobs, const std::string& name, const Ref<Class>& object) {
  const Text text = object->Serialize();
  jobs.push_back(WritingJob(name + ", write", object, text.size()));
  jobs.push_back({name + ", write", "pugixml", text.size(), PugixmlWriter(text)});
  if constexpr (std::is_same_v<Class, Program>) {
    jobs.push_back({name + ", write", "c++/tree", text.size(), TreeWriter(text)});
  }
  AddReading<Class>(jobs, name + ", read", {text});
}

template <class Class>
void AddGrowth(std::vector<Result>& results, const std::string& name,
               const std::vector<size_t>& sizes, Ref<Class> (*build)(size_t), int rounds) {
  std::vector<Job> jobs;
  for (const size_t size : sizes) {
    const Ref<Class> object = build(size);
    const Text text = object->Serialize();
    const std::string suffix = ", " + std::to_string(size);
    jobs.push_back(WritingJob(name + " write" + suffix, object, text.size()));
    jobs.push_back(ReadingJob<Class>(name + " read" + suffix, {text}, text.size()));
    jobs.push_back({name + " build" + suffix, std::string(kOurs), size,
                    [build, size] { return std::make_shared<Ref<Class>>(build(size)); }});
  }
  for (const char* const operation : {" build", " write", " read"}) {
    const std::string task = name + operation;
    std::vector<Job> chosen;
    for (const Job& job : jobs) {
      if (job.task.starts_with(task + ",")) chosen.push_back(job);
    }
    for (Result& result : Measure(chosen, rounds)) {
      result.task = task;
      results.push_back(result);
    }
  }
}

}  // namespace

// Reads the text twice, one time after the other or both at once.
Product ReadTwice(const Text& text, bool atOnce) {
  auto objects = std::make_shared<std::array<Ref<Program>, 2>>();
  const auto read = [&text](Ref<Program>& object) {
    object = ObjectFactory::DeserializeProgram(text);
  };
  std::jthread other;
  if (atOnce) {
    other = std::jthread(read, std::ref((*objects)[1]));
  } else {
    read((*objects)[1]);
  }
  read((*objects)[0]);
  return objects;
}

void AddReadingTwice(std::vector<Job>& jobs) {
  const Text text = BuildProgram(20'000)->Serialize();
  for (const bool atOnce : {false, true}) {
    jobs.push_back({std::string(kReadTwice), std::string(atOnce ? kTwoThreads : kOurs),
                    2 * text.size(), [text, atOnce] { return ReadTwice(text, atOnce); }});
  }
}

// A foreign element with a prefix is nothing that is read directly.
void AddGivenUp(std::vector<Job>& jobs) {
  const std::string task(kGivenUp);
  const Ref<Program> program = BuildProgram(20'000);
  program->Description = u"All of the plant";
  std::u16string text(program->Serialize().view());
  text.insert(text.rfind(u"</"), u"<o:Other xmlns:o='other'/>");
  if (ReadDirectly(text)) throw std::runtime_error("nothing is given up");
  for (const bool isDirect : {true, false}) {
    jobs.push_back(ReadingJob<Program>(task, {text}, text.size(), isDirect));
  }
}

// One document after the other, so that none has to find its memory between the objects of others.
std::vector<Result> MeasureDocuments(int rounds) {
  using AddJobs = void (*)(std::vector<Job>&);
  constexpr AddJobs kDocuments[] = {
      [](auto& jobs) { AddDocument(jobs, "program", BuildProgram(20'000)); },
      [](auto& jobs) { AddDocument(jobs, "variables", BuildVariables(60'000)); },
      [](auto& jobs) { AddDocument(jobs, "hardware", BuildHardware(200'000)); },
      [](auto& jobs) { AddDocument(jobs, "messages", BuildMessages(100'000)); },
      [](auto& jobs) { AddDocument(jobs, "constants", BuildConstants(100'000)); },
      [](auto& jobs) { AddDocument(jobs, "modules", BuildModules(15'000)); },
      [](auto& jobs) { AddDocument(jobs, "charts", BuildCharts(300)); },
      [](auto& jobs) { AddDocument(jobs, "texts", BuildTexts(5'000)); },
      [](auto& jobs) { AddDocument(jobs, "instructions", BuildInstructions(50'000)); },
      [](auto& jobs) { AddReading<Program>(jobs, "edited, read", {BuildEdited(30'000)}); },
      [](auto& jobs) { AddReading<Program>(jobs, "small, read", BuildSmallDocuments(10'000)); },
      &AddGivenUp,
      &AddReadingTwice,
  };
  std::vector<Result> results;
  for (const AddJobs addJobs : kDocuments) {
    std::vector<Job> jobs;
    addJobs(jobs);
    for (Result& result : Measure(jobs, rounds)) results.push_back(std::move(result));
  }
  return results;
}

std::vector<Result> MeasureGrowth(int rounds) {
  std::vector<Result> results;
  AddGrowth<Program>(results, "program", {2'000, 20'000, 200'000}, &BuildProgram, rounds);
  AddGrowth<HWUnit>(results, "hardware", {20'000, 200'000}, &BuildHardware, rounds);
  AddGrowth<ProjectConstants>(results, "constants", {10'000, 100'000}, &BuildConstants, rounds);
  return results;
}

}  // namespace praxen::detail::bench
