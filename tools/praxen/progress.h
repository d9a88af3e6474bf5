// Progress, which tells on standard error how far long work has come.
#ifndef PRAXEN_TOOLS_PRAXEN_PROGRESS_H_
#define PRAXEN_TOOLS_PRAXEN_PROGRESS_H_

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>

namespace praxen::detail {

/// Shows files, bytes and objects once the work has taken half a second, when standard error is a
/// terminal; the line vanishes at the end. May be told of from any thread.
class Progress {
 public:
  explicit Progress(size_t files);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  void AddBytes(size_t count);
  /// The file is read; its objects are made from here on.
  void StartObjects(const std::string& name);
  /// The file is done: prints what that gave, on the standard streams, in place of the line.
  void FinishFile(const std::string& out, const std::string& err);

 private:
  void Watch();
  void Show();
  void Clear();

  const bool visible_;
  const size_t files_;
  const int64_t objects_before_;
  std::mutex mutex_;
  std::condition_variable ending_;
  bool ended_ = false;
  size_t finished_ = 0;
  uint64_t bytes_ = 0;
  std::string current_;
  bool shown_ = false;
  std::thread watcher_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_PROGRESS_H_
