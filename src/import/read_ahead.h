// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "import/whole_file.h"
#include "platform/game_path.h"

namespace orrerix {

// Reads the game's files in a thread of its own before they are asked for, in the order of a list.
class ReadAhead {
 public:
  // At most so many files are held, none of them longer than so many bytes.
  static constexpr std::size_t kMostFiles = 16;
  static constexpr std::streamoff kLongestFile = 4 << 20;

  // Begins to read the files at these paths of the folder, some of which may not be there. Throws
  // std::system_error if the system has no thread.
  ReadAhead(const GameFolder& folder, std::vector<std::string> paths);

  // Ends the reading after the file that is being read.
  ~ReadAhead();

  ReadAhead(const ReadAhead&) = delete;
  ReadAhead& operator=(const ReadAhead&) = delete;

  // The bytes of the next file with this path, once they are read; paths before it in the list are
  // passed over. Nothing if the list has no such path further on, or if the file is not there, is
  // too long or cannot be read: who wants to know more looks for it.
  std::optional<WholeFile> Take(const std::string& path);

 private:
  void Work();
  bool HasWork() const;
  void PassOver(std::size_t end);
  std::optional<WholeFile> Read(std::size_t place) const;

  const GameFolder folder_;
  const std::vector<std::string> paths_;
  std::size_t nextToTake_ = 0;

  // The rest is shared with the thread.
  std::mutex mutex_;
  std::condition_variable workCame_;
  std::condition_variable fileCame_;
  std::size_t nextToRead_ = 0;
  std::size_t firstHeld_ = 0;
  std::optional<std::size_t> reading_;
  bool isEnding_ = false;
  std::array<std::optional<WholeFile>, kMostFiles> held_;  // by place, modulo its size

  std::thread thread_;
};

}  // namespace orrerix
