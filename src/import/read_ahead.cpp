// SPDX-License-Identifier: MIT
#include "import/read_ahead.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace orrerix {
namespace {

// The thread is woken when so many files are left at most: to wake it for each would cost what it
// saves.
constexpr std::size_t kFewFiles = ReadAhead::kMostFiles / 2;

}  // namespace

ReadAhead::ReadAhead(const GameFolder& folder, std::vector<std::string> paths)
    : folder_(folder.Text()), paths_(std::move(paths)), thread_([this] { Work(); }) {}

ReadAhead::~ReadAhead() {
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
  }
  workCame_.notify_one();
  thread_.join();
}

std::optional<WholeFile> ReadAhead::Take(const std::string& path) {
  const auto from = paths_.begin() + static_cast<std::ptrdiff_t>(nextToTake_);
  const auto found = std::find(from, paths_.end(), path);
  if (found == paths_.end()) return std::nullopt;
  const auto place = static_cast<std::size_t>(found - paths_.begin());
  nextToTake_ = place + 1;

  std::unique_lock lock(mutex_);
  PassOver(place);
  if (nextToRead_ - firstHeld_ <= kFewFiles) workCame_.notify_one();
  fileCame_.wait(lock, [&] { return nextToRead_ > place && reading_ != place; });
  return std::exchange(held_[place % kMostFiles], std::nullopt);
}

// The files before a place are not read or held any more.
void ReadAhead::PassOver(std::size_t end) {
  const std::size_t endOfHeld = std::min(end, firstHeld_ + kMostFiles);
  for (; firstHeld_ < endOfHeld; ++firstHeld_) held_[firstHeld_ % kMostFiles].reset();
  firstHeld_ = end;
  nextToRead_ = std::max(nextToRead_, end);
}

bool ReadAhead::HasWork() const {
  return nextToRead_ < paths_.size() && nextToRead_ - firstHeld_ < kMostFiles;
}

void ReadAhead::Work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    workCame_.wait(lock, [&] { return isEnding_ || HasWork(); });
    if (isEnding_) return;
    const std::size_t place = nextToRead_++;
    reading_ = place;
    lock.unlock();
    std::optional<WholeFile> file = Read(place);
    lock.lock();
    reading_.reset();
    if (place >= firstHeld_) held_[place % kMostFiles] = std::move(file);
    fileCame_.notify_one();
  }
}

std::optional<WholeFile> ReadAhead::Read(std::size_t place) const {
  try {
    auto stream = folder_.OpenFile(paths_[place]);
    return stream ? WholeFile::Read(*stream, kLongestFile) : std::nullopt;
  } catch (const std::exception&) {
    // Who takes the file reads it, and tells of the trouble.
    return std::nullopt;
  }
}

}  // namespace orrerix
