// Shows on standard error how far long work has come.
#include "tools/praxen/progress.h"

#include <iostream>

#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

constexpr auto kPatience = std::chrono::milliseconds(500);
constexpr auto kInterval = std::chrono::milliseconds(100);

}  // namespace

Progress::Progress(size_t files)
    : visible_(IsTerminal(stderr)), files_(files), next_(Clock::now() + kPatience) {}

void Progress::AddBytes(size_t count) {
  bytes_ += count;
  Show();
}

void Progress::FinishFile() {
  ++finished_;
  Show();
}

void Progress::Show() {
  if (!visible_) return;
  const Clock::time_point now = Clock::now();
  if (now < next_) return;
  next_ = now + kInterval;
  shown_ = true;
  std::cerr << "\rpraxen: " << finished_ << " of " << files_ << " files, " << bytes_ / 1024
            << " KiB read\x1b[K" << std::flush;
}

void Progress::Clear() {
  if (!shown_) return;
  shown_ = false;
  std::cerr << "\r\x1b[K" << std::flush;
}

}  // namespace praxen::detail
