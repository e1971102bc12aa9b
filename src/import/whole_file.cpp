// SPDX-License-Identifier: MIT
#include "import/whole_file.h"

#include <utility>

namespace orrerix {

std::optional<WholeFile> WholeFile::Read(std::ifstream& stream, std::streamoff longest) {
  if (!stream.seekg(0, std::ios::end)) return std::nullopt;
  const std::streamoff size = stream.tellg();
  if (size < 0 || size > longest) return std::nullopt;
  WholeFile file(static_cast<std::size_t>(size));
  stream.seekg(0);
  stream.read(file.bytes_.get(), static_cast<std::streamsize>(size));
  return stream ? std::optional(std::move(file)) : std::nullopt;
}

}  // namespace orrerix
