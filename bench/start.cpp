// The first calls of a process.
#include "bench/start.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <stdexcept>
#include <string>

#include "bench/documents.h"
#include "bench/memory.h"

namespace praxen::detail::bench {
namespace {

double ProcessorMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

template <class Step>
void PrintStep(const char* name, Step step) {
  const double before = ProcessorMilliseconds();
  const MemoryCount count;
  step();
  std::printf("%-34s %14.2f %14lld\n", name, ProcessorMilliseconds() - before,
              static_cast<long long>(count.use().allocations));
}

// From its start to its end.
double RunProgram(const char* file) {
  const auto start = std::chrono::steady_clock::now();
  char* const arguments[] = {const_cast<char*>(file), nullptr};
  pid_t process = 0;
  int status = 0;
  if (posix_spawn(&process, file, nullptr, nullptr, arguments, environ) != 0 ||
      waitpid(process, &status, 0) != process || status != 0) {
    throw std::runtime_error(std::string(file) + " does not run");
  }
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

void PrintStart() {
  std::printf("%-34s %14s %14s\n", "start", "processor ms", "allocations");
  std::printf("%-34s %14.2f\n", "loading the process", ProcessorMilliseconds());
  Text text;
  PrintStep("first document built and written", [&] { text = BuildSmallDocuments(1).front(); });
  PrintStep("first document read", [&] { ObjectFactory::DeserializeProgram(text); });
  PrintStep("second document read", [&] { ObjectFactory::DeserializeProgram(text); });
}

std::vector<Goal> StartGoals() {
  constexpr int kStarts = 201;
  constexpr double kMilliseconds = 1e3;
  std::vector<double> empty, variable;
  for (int i = 0; i < kStarts; ++i) {
    empty.push_back(RunProgram(PRAXEN_EMPTY_PROGRAM));
    variable.push_back(RunProgram(PRAXEN_VARIABLE_PROGRAM));
  }
  const double without = Median(empty) * kMilliseconds, with = Median(variable) * kMilliseconds;
  std::printf("\n%-34s %14s\n", "program", "ms");
  std::printf("%-34s %14.2f\n%-34s %14.2f\n", "empty", without, "one variable", with);
  return {{"start of a program with one variable over an empty one, in ms", with - without,
           Goal::Bound::AtMost, 3}};
}

}  // namespace praxen::detail::bench
