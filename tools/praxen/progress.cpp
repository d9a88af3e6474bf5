// Shows on standard error how far long work has come.
#include "tools/praxen/progress.h"

#include <chrono>
#include <iostream>

#include "praxen/core/counters.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

constexpr auto kPatience = std::chrono::milliseconds(500);
constexpr auto kInterval = std::chrono::milliseconds(100);

}  // namespace

Progress::Progress(size_t files)
    : visible_(IsTerminal(stderr)), files_(files), objects_before_(ObjectCounter()) {
  if (visible_) watcher_ = std::thread([this] { Watch(); });
}

Progress::~Progress() {
  if (!visible_) return;
  {
    const std::lock_guard lock(mutex_);
    ended_ = true;
    Clear();
  }
  ending_.notify_one();
  watcher_.join();
}

void Progress::AddBytes(size_t count) {
  const std::lock_guard lock(mutex_);
  bytes_ += count;
}

void Progress::StartObjects(const std::string& name) {
  const std::lock_guard lock(mutex_);
  current_ = name;
}

void Progress::FinishFile(const std::string& out, const std::string& err) {
  const std::lock_guard lock(mutex_);
  Clear();
  ++finished_;
  std::cout << out;
  if (err.empty()) return;
  std::cout.flush();
  std::cerr << err << std::flush;
}

// The time is not seen to by the work itself, which may be inside the library for long.
void Progress::Watch() {
  std::unique_lock lock(mutex_);
  for (auto wait = kPatience; !ending_.wait_for(lock, wait, [this] { return ended_; });
       wait = kInterval) {
    Show();
  }
}

void Progress::Show() {
  shown_ = true;
  std::cerr << "\rpraxen: " << finished_ << " of " << files_ << " files, " << bytes_ / 1024
            << " KiB read";
  const int64_t objects = ObjectCounter() - objects_before_;
  if (objects > 0) std::cerr << ", " << objects << " objects of " << current_;
  std::cerr << "\x1b[K" << std::flush;
}

void Progress::Clear() {
  if (!shown_) return;
  shown_ = false;
  std::cerr << "\r\x1b[K" << std::flush;
}

}  // namespace praxen::detail
