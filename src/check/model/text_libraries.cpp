// SPDX-License-Identifier: MIT
#include "check/model/text_libraries.h"

#include "check/files/paths.h"
#include "import/resources/resource_library.h"

namespace orrerix::check {
namespace {

constexpr std::uint32_t kNumbersInLibrary = 65536;
constexpr std::string_view kProgramTexts = "exe/resources.dll";

// Fills a library in place, because its cards point into its bytes.
void ReadLibrary(TextLibrary& library, const FileTree& tree, const DiskFile* disk) {
  if (disk == nullptr) return;
  library.IsDamaged = true;
  auto bytes = tree.ReadBytes(*disk);
  if (!bytes) return;
  library.Bytes = std::move(*bytes);
  const auto opened = ResourceLibrary::Open(library.Bytes);
  if (!opened) return;
  library.IsDamaged = false;
  library.IsRead = true;
  library.Cards = opened->Cards();
  library.HasString.resize(kNumbersInLibrary);
  for (const auto& [number, text] : opened->Strings()) library.HasString[number] = true;
}

}  // namespace

TextLibraries::TextLibraries(const GameFiles& files) {
  const FileTree& tree = files.Tree();
  ReadLibrary(libraries_.emplace_back(), tree, tree.Find(kProgramTexts));
  for (const IniEntry* line : files.LibraryLines()) {
    TextLibrary& library = libraries_.emplace_back();
    if (line->At(1).empty()) continue;
    ReadLibrary(library, tree, tree.Find(PathKey(JoinPath("EXE", line->At(1)))));
  }
}

const TextLibrary* TextLibraries::Of(std::uint32_t number) const {
  const std::size_t place = number / kNumbersInLibrary;
  if (place >= libraries_.size() || !libraries_[place].IsRead) return nullptr;
  return &libraries_[place];
}

bool TextLibraries::HasString(std::uint32_t number) const {
  const TextLibrary* library = Of(number);
  return library != nullptr && library->HasString[number % kNumbersInLibrary];
}

std::optional<std::string_view> TextLibraries::Card(std::uint32_t number) const {
  const TextLibrary* library = Of(number);
  if (library == nullptr) return std::nullopt;
  const auto found = library->Cards.find(number % kNumbersInLibrary);
  if (found == library->Cards.end()) return std::nullopt;
  return found->second;
}

}  // namespace orrerix::check
