// SPDX-License-Identifier: MIT
// Long work beside the event loop.
#pragma once

#include <QObject>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <utility>

#include "platform/freed_memory.h"

namespace orrerix {

// Runs one piece of work at a time in a thread of its own. Results arrive in the thread that owns
// this, from the event loop; those of work that was cancelled do not arrive.
class BackgroundTask {
 public:
  // What the work looks at: it returns soon after this has become true.
  using IsCancelled = std::function<bool()>;

  BackgroundTask() = default;
  BackgroundTask(const BackgroundTask&) = delete;
  BackgroundTask& operator=(const BackgroundTask&) = delete;
  ~BackgroundTask() { Cancel(); }

  bool IsRunning() const { return thread_.joinable(); }

  // Starts work, after cancelling what runs. `work` is called with an IsCancelled in the other
  // thread and throws nothing; `done` gets its result.
  template <typename Work, typename Done>
  void Start(Work work, Done done) {
    Cancel();
    auto cancelled = std::make_shared<std::atomic<bool>>(false);
    cancelled_ = cancelled;
    thread_ =
        std::thread([this, cancelled, work = std::move(work), done = std::move(done)]() mutable {
          auto result = std::make_shared<decltype(work(IsCancelled()))>(
              work([cancelled] { return cancelled->load(); }));
          ReturnFreedMemory();  // the result takes a part of what the work took
          QMetaObject::invokeMethod(&receiver_, [this, cancelled, result, done]() mutable {
            if (cancelled->load()) return;
            Finish();
            done(std::move(*result));
          });
        });
  }

  // Runs `report` in the owner's thread while the work goes on; called by the work.
  template <typename Report>
  void Post(Report report) {
    QMetaObject::invokeMethod(&receiver_, std::move(report));
  }

  // Waits until the work has returned; its result is dropped.
  void Cancel() {
    if (!IsRunning()) return;
    cancelled_->store(true);
    Finish();
  }

 private:
  // Returns when the thread itself has ended; waiting for a QThread returns a moment earlier, and a
  // search for leaks at the program's end then meets a thread that is half gone.
  void Finish() { thread_.join(); }

  QObject receiver_;
  std::shared_ptr<std::atomic<bool>> cancelled_;
  std::thread thread_;
};

}  // namespace orrerix
