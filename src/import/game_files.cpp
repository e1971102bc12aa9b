// SPDX-License-Identifier: MIT
#include "import/game_files.h"

#include <system_error>
#include <utility>

#include "platform/path_text.h"

namespace orrerix {

void GameFiles::Expect(std::vector<std::string> paths) {
  ahead_.reset();
  if (!kOpeningWaits || paths.empty()) return;
  try {
    ahead_.emplace(folder_, std::move(paths));
  } catch (const std::system_error&) {
    // Without a thread each file is read when it is asked for.
  }
}

std::optional<FoundFile> GameFiles::Read(const std::string& path, std::streamoff longest) {
  if (ahead_) {
    if (auto whole = ahead_->Take(path)) {
      const bool isTooLong = static_cast<std::streamoff>(whole->Bytes().size()) > longest;
      return isTooLong ? FoundFile{} : FoundFile{std::move(whole)};
    }
  }
  auto stream = folder_.OpenFile(path);
  return stream ? std::optional(FoundFile{WholeFile::Read(*stream, longest)}) : std::nullopt;
}

}  // namespace orrerix
