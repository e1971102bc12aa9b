// SPDX-License-Identifier: MIT
#include "demo/format/resource_section.h"

#include <cstddef>

#include "demo/format/byte_writer.h"

namespace orrerix {
namespace {

constexpr std::uint32_t kHeaderSize = 16;
constexpr std::uint32_t kEntrySize = 8;
constexpr std::uint32_t kLeafSize = 16;
constexpr std::uint32_t kDataBoundary = 8;
constexpr std::uint32_t kSubdirectoryFlag = 0x80000000;

using Languages = std::map<std::uint32_t, const std::string*>;
using Numbers = std::map<std::uint32_t, Languages>;
using Types = std::map<std::uint32_t, Numbers>;

// Offsets within the section at which each level of the tree begins.
struct Levels {
  std::uint32_t Numbers = 0;
  std::uint32_t Languages = 0;
  std::uint32_t Leaves = 0;
  std::uint32_t Data = 0;
};

template <typename Directory>
std::uint32_t DirectorySize(const Directory& directory) {
  return kHeaderSize + kEntrySize * static_cast<std::uint32_t>(directory.size());
}

std::uint32_t Aligned(std::uint32_t offset) {
  return (offset + kDataBoundary - 1) / kDataBoundary * kDataBoundary;
}

Types TreeOf(const ResourceMap& resources) {
  Types tree;
  for (const auto& [key, data] : resources) tree[key.Type][key.Number][key.Language] = &data;
  return tree;
}

Levels LevelsOf(const Types& tree, std::size_t leaves) {
  Levels levels;
  levels.Numbers = DirectorySize(tree);
  levels.Languages = levels.Numbers;
  for (const auto& [type, numbers] : tree) levels.Languages += DirectorySize(numbers);
  levels.Leaves = levels.Languages;
  for (const auto& [type, numbers] : tree) {
    for (const auto& [number, languages] : numbers) levels.Leaves += DirectorySize(languages);
  }
  levels.Data = Aligned(levels.Leaves + kLeafSize * static_cast<std::uint32_t>(leaves));
  return levels;
}

void WriteHeader(demo::ByteWriter& out, std::size_t entries) {
  out.U32(0);
  out.U32(0);
  out.U32(0);
  out.U16(0);
  out.U16(static_cast<std::uint32_t>(entries));
}

void WriteRoot(demo::ByteWriter& out, const Types& tree, std::uint32_t offset) {
  WriteHeader(out, tree.size());
  for (const auto& [type, numbers] : tree) {
    out.U32(type);
    out.U32(offset | kSubdirectoryFlag);
    offset += DirectorySize(numbers);
  }
}

void WriteNumbers(demo::ByteWriter& out, const Types& tree, std::uint32_t offset) {
  for (const auto& [type, numbers] : tree) {
    WriteHeader(out, numbers.size());
    for (const auto& [number, languages] : numbers) {
      out.U32(number);
      out.U32(offset | kSubdirectoryFlag);
      offset += DirectorySize(languages);
    }
  }
}

void WriteLanguages(demo::ByteWriter& out, const Types& tree, std::uint32_t offset) {
  for (const auto& [type, numbers] : tree) {
    for (const auto& [number, languages] : numbers) {
      WriteHeader(out, languages.size());
      for (const auto& [language, data] : languages) {
        out.U32(language);
        out.U32(offset);
        offset += kLeafSize;
      }
    }
  }
}

void WriteLeaves(demo::ByteWriter& out, const ResourceMap& resources, std::uint32_t address) {
  for (const auto& [key, data] : resources) {
    const auto size = static_cast<std::uint32_t>(data.size());
    out.U32(address);
    out.U32(size);
    out.U32(0);
    out.U32(0);
    address += Aligned(size);
  }
}

}  // namespace

std::string ResourceSection(const ResourceMap& resources, std::uint32_t address) {
  const Types tree = TreeOf(resources);
  const Levels levels = LevelsOf(tree, resources.size());
  demo::ByteWriter out;
  WriteRoot(out, tree, levels.Numbers);
  WriteNumbers(out, tree, levels.Languages);
  WriteLanguages(out, tree, levels.Leaves);
  WriteLeaves(out, resources, address + levels.Data);
  for (const auto& [key, data] : resources) {
    out.Align(kDataBoundary);
    out.Text(data);
  }
  out.Align(kDataBoundary);
  return out.Bytes();
}

}  // namespace orrerix
