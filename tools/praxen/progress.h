// Progress, which tells on standard error how far long work has come.
#ifndef PRAXEN_TOOLS_PRAXEN_PROGRESS_H_
#define PRAXEN_TOOLS_PRAXEN_PROGRESS_H_

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace praxen::detail {

/// Shows files and bytes once the work has taken half a second, when standard error is a terminal;
/// the line vanishes at the end.
class Progress {
 public:
  explicit Progress(size_t files);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { Clear(); }

  void AddBytes(size_t count);
  void FinishFile();
  /// Takes the line away before something else is printed.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;

  void Show();

  const bool visible_;
  const size_t files_;
  size_t finished_ = 0;
  uint64_t bytes_ = 0;
  bool shown_ = false;
  Clock::time_point next_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_PROGRESS_H_
