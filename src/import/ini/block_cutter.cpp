// SPDX-License-Identifier: MIT
#include "import/ini/block_cutter.h"

#include <algorithm>

namespace orrerix {
namespace {

constexpr std::size_t kChunk = 30000;

}  // namespace

// Place of the first "[" in the buffer; the buffer's end if there is none.
std::size_t BlockCutter::FindHeader() {
  searched_ = std::max(searched_, bufferStart_);
  const std::size_t found = file_.substr(0, bufferEnd_).find('[', searched_);
  searched_ = found == std::string_view::npos ? bufferEnd_ : found;
  return searched_;
}

std::string_view BlockCutter::Cut(std::size_t header) {
  const std::string_view buffer = file_.substr(0, bufferEnd_);
  const std::size_t next = buffer.find('[', header + 1);
  if (next == std::string_view::npos) {
    // The last block keeps what stands before its header; the reader drops that later.
    const std::string_view block = buffer.substr(bufferStart_);
    bufferStart_ = bufferEnd_;
    return block;
  }
  bufferStart_ = next;
  return buffer.substr(header, next - header - 1);
}

std::optional<std::string_view> BlockCutter::Next() {
  while (true) {
    const std::size_t header = FindHeader();
    if (header < bufferEnd_ && (BufferLength() > kChunk || AllRead())) return Cut(header);
    if (AllRead()) return std::nullopt;
    bufferEnd_ = std::min(bufferEnd_ + kChunk, file_.size());
  }
}

}  // namespace orrerix
