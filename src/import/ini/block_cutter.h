// SPDX-License-Identifier: MIT
// Cuts a file into blocks, each from a "[" to the next.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace orrerix {

// Reads the file in chunks of 30,000 characters and cuts a block whenever the buffer holds a "["
// and is longer than that, or all is read. Every "[" starts a block, also one inside a comment or a
// value. What stands before the first "[" is dropped, and so is the last character before the next
// one. A block that fills the buffer ends there; its rest has no header and is dropped.
class BlockCutter {
 public:
  explicit BlockCutter(std::string_view file) : file_(file) {}

  // The next block, which may be empty; nothing at the end of the file.
  std::optional<std::string_view> Next();

  // Characters read and cut so far.
  std::size_t Consumed() const { return bufferStart_; }

 private:
  std::size_t BufferLength() const { return bufferEnd_ - bufferStart_; }
  bool AllRead() const { return bufferEnd_ == file_.size(); }
  std::size_t FindHeader();
  std::string_view Cut(std::size_t header);

  std::string_view file_;
  std::size_t bufferStart_ = 0;
  std::size_t bufferEnd_ = 0;
  std::size_t searched_ = 0;  // no "[" between the buffer's start and here
};

}  // namespace orrerix
