// SPDX-License-Identifier: MIT
#include "demo/format/pe_writer.h"

#include <stdexcept>

#include "demo/format/byte_writer.h"
#include "demo/format/text_codec.h"

namespace orrerix {
namespace {

constexpr std::uint32_t kPeOffset = 0x80;
constexpr std::uint32_t kFileAlignment = 0x200;
constexpr std::uint32_t kSectionAlignment = 0x1000;
constexpr std::uint32_t kHeadersSize = 0x200;
constexpr std::uint32_t kSectionAddress = 0x1000;
constexpr std::uint32_t kDirectoryCount = 16;
constexpr std::uint32_t kResourceDirectory = 2;

std::uint32_t RoundUp(std::uint32_t value, std::uint32_t boundary) {
  return (value + boundary - 1) / boundary * boundary;
}

void WriteDosHeader(demo::ByteWriter& out) {
  out.Text("MZ");
  out.U16(0x90);  // bytes on the last page
  out.U16(3);     // pages
  out.U16(0);     // relocations
  out.U16(4);     // header size in paragraphs
  out.U16(0);
  out.U16(0xFFFF);
  out.U16(0);
  out.U16(0xB8);  // initial stack pointer
  out.PadTo(0x18);
  out.U16(0x40);  // relocation table
  out.PadTo(0x3C);
  out.U32(kPeOffset);
  out.PadTo(kPeOffset);
}

void WriteCoffHeader(demo::ByteWriter& out, bool wide) {
  out.Text(std::string_view("PE\0\0", 4));
  out.U16(wide ? 0x8664 : 0x14C);
  out.U16(1);  // sections
  out.U32(0);  // time stamp
  out.U32(0);
  out.U32(0);
  out.U16(wide ? 240 : 224);        // size of the optional header
  out.U16(wide ? 0x2022 : 0x210E);  // executable, DLL
}

// An address or a size that has 8 bytes in the 64-bit header.
void WritePointer(demo::ByteWriter& out, bool wide, std::uint32_t value) {
  out.U32(value);
  if (wide) out.U32(0);
}

void WriteStandardFields(demo::ByteWriter& out, bool wide, std::uint32_t rawSize) {
  out.U16(wide ? 0x20B : 0x10B);
  out.U8(6);  // linker version
  out.U8(0);
  out.U32(0);  // code
  out.U32(rawSize);
  out.U32(0);
  out.U32(0);  // entry point
  out.U32(0);
  if (!wide) out.U32(kSectionAddress);
  WritePointer(out, wide, 0x10000000);  // image base
}

void WriteWindowsFields(demo::ByteWriter& out, bool wide, std::uint32_t sectionSize) {
  out.U32(kSectionAlignment);
  out.U32(kFileAlignment);
  out.U32(4);  // system version 4.0
  out.U32(0);
  out.U32(4);  // subsystem version 4.0
  out.U32(0);
  out.U32(kSectionAddress + RoundUp(sectionSize, kSectionAlignment));
  out.U32(kHeadersSize);
  out.U32(0);  // checksum
  out.U16(2);  // windows subsystem
  out.U16(0);
  WritePointer(out, wide, 0x100000);  // stack and heap, reserved and committed
  WritePointer(out, wide, 0x1000);
  WritePointer(out, wide, 0x100000);
  WritePointer(out, wide, 0x1000);
  out.U32(0);
  out.U32(kDirectoryCount);
}

void WriteDirectories(demo::ByteWriter& out, std::uint32_t sectionSize) {
  for (std::uint32_t i = 0; i < kDirectoryCount; ++i) {
    out.U32(i == kResourceDirectory ? kSectionAddress : 0);
    out.U32(i == kResourceDirectory ? sectionSize : 0);
  }
}

void WriteSectionHeader(demo::ByteWriter& out, std::uint32_t sectionSize, std::uint32_t rawSize) {
  out.Text(std::string_view(".rsrc\0\0\0", 8));
  out.U32(sectionSize);
  out.U32(kSectionAddress);
  out.U32(rawSize);
  out.U32(kHeadersSize);
  out.U32(0);
  out.U32(0);
  out.U32(0);
  out.U32(0x40000040);  // initialised data, readable
}

void AppendUnits(demo::ByteWriter& out, const std::u16string& units) {
  for (const char16_t unit : units) out.U16(unit);
}

}  // namespace

void ResourceLibraryWriter::AddString(std::uint16_t number, std::string_view utf8,
                                      std::uint32_t language) {
  std::u16string units = demo::Utf16FromUtf8(utf8);
  if (units.size() > 0xFFFF) throw std::length_error("text of a string table is too long");
  blocks_[{number / 16u + 1, language}][number % 16u] = std::move(units);
}

void ResourceLibraryWriter::AddCard(std::uint16_t number, std::string_view utf8,
                                    std::uint32_t language) {
  demo::ByteWriter bytes;
  bytes.U16(0xFEFF);
  AppendUnits(bytes, demo::Utf16FromUtf8(utf8));
  AddRaw({kHtmlType, number, language}, bytes.Bytes());
}

void ResourceLibraryWriter::AddRaw(const ResourceKey& key, std::string bytes) {
  raw_[key] = std::move(bytes);
}

ResourceMap ResourceLibraryWriter::AllResources() const {
  ResourceMap all = raw_;
  for (const auto& [place, block] : blocks_) {
    demo::ByteWriter bytes;
    for (const std::u16string& text : block) {
      bytes.U16(static_cast<std::uint32_t>(text.size()));
      AppendUnits(bytes, text);
    }
    all.try_emplace({kStringType, place.first, place.second}, bytes.Bytes());
  }
  return all;
}

std::string ResourceLibraryWriter::Image(PeImage image) const {
  const bool wide = image == PeImage::Bits64;
  const std::string section = ResourceSection(AllResources(), kSectionAddress);
  const auto size = static_cast<std::uint32_t>(section.size());
  const std::uint32_t rawSize = RoundUp(size, kFileAlignment);
  demo::ByteWriter out;
  WriteDosHeader(out);
  WriteCoffHeader(out, wide);
  WriteStandardFields(out, wide, rawSize);
  WriteWindowsFields(out, wide, size);
  WriteDirectories(out, size);
  WriteSectionHeader(out, size, rawSize);
  out.PadTo(kHeadersSize);
  out.Text(section);
  out.Align(kFileAlignment);
  return out.Bytes();
}

std::string ResourceLibraryImage(const std::map<std::uint16_t, std::string>& strings,
                                 const std::map<std::uint16_t, std::string>& cards) {
  ResourceLibraryWriter library;
  for (const auto& [number, text] : strings) library.AddString(number, text);
  for (const auto& [number, text] : cards) library.AddCard(number, text);
  return library.Image();
}

}  // namespace orrerix
