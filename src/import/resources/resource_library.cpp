// SPDX-License-Identifier: MIT
#include "import/resources/resource_library.h"

#include <algorithm>
#include <array>
#include <vector>

#include "db/values/text.h"
#include "import/resources/windows1252.h"

namespace orrerix {
namespace {

constexpr std::uint32_t kStringType = 6;
constexpr std::uint32_t kHtmlType = 23;
constexpr std::uint32_t kEnglish = 0x0409;
constexpr std::uint32_t kDirectoryFlag = 0x80000000;
constexpr std::uint32_t kHighestNumber = 65535;
constexpr std::uint32_t kStringsInBlock = 16;
constexpr std::size_t kLongestString = 1023;
// More entries than a sound file can need: there are 65,535 numbers of each of two types.
constexpr std::size_t kMostEntries = 1 << 20;

struct NoLibrary {};

// Checked little-endian reads anywhere in a row of bytes.
class Image {
 public:
  explicit Image(std::string_view bytes) : bytes_(bytes) {}

  std::uint32_t U16(std::uint64_t at) const { return Number(at, 2); }
  std::uint32_t U32(std::uint64_t at) const { return Number(at, 4); }

  std::string_view Bytes(std::uint64_t at, std::uint64_t size) const {
    if (at > bytes_.size() || bytes_.size() - at < size) throw NoLibrary{};
    return bytes_.substr(at, size);
  }

  std::uint64_t Size() const { return bytes_.size(); }

 private:
  std::uint32_t Number(std::uint64_t at, std::uint64_t size) const {
    std::uint32_t number = 0;
    const std::string_view bytes = Bytes(at, size);
    for (std::size_t i = size; i-- > 0;) {
      number = (number << 8) | static_cast<unsigned char>(bytes[i]);
    }
    return number;
  }

  std::string_view bytes_;
};

struct Section {
  std::uint32_t VirtualSize;
  std::uint32_t VirtualAddress;
  std::uint32_t RawSize;
  std::uint32_t RawOffset;
};

// What the headers say.
struct Headers {
  std::vector<Section> Sections;
  std::uint32_t ResourceAddress = 0;  // RVA, 0 if there are no resources
};

Headers ReadHeaders(const Image& image) {
  if (image.Bytes(0, 2) != "MZ") throw NoLibrary{};
  const std::uint64_t pe = image.U32(0x3C);
  if (image.Bytes(pe, 4) != std::string_view("PE\0\0", 4)) throw NoLibrary{};
  const std::uint32_t sections = image.U16(pe + 6);
  const std::uint32_t optionalSize = image.U16(pe + 20);
  const std::uint64_t optional = pe + 24;
  const std::uint32_t magic = image.U16(optional);
  if (magic != 0x10B && magic != 0x20B) throw NoLibrary{};
  const std::uint64_t directories = optional + (magic == 0x10B ? 96 : 112);
  constexpr std::uint64_t resourceDirectory = 2 * 8;

  Headers headers;
  if (directories + resourceDirectory + 8 <= optional + optionalSize) {
    headers.ResourceAddress = image.U32(directories + resourceDirectory);
  }
  for (std::uint32_t i = 0; i < sections; ++i) {
    const std::uint64_t at = optional + optionalSize + 40ULL * i;
    headers.Sections.push_back(
        {image.U32(at + 8), image.U32(at + 12), image.U32(at + 16), image.U32(at + 20)});
  }
  return headers;
}

// File offset of an RVA; nothing if no section holds it.
std::optional<std::uint64_t> FileOffset(const Headers& headers, std::uint32_t address) {
  for (const Section& section : headers.Sections) {
    const std::uint32_t size = std::max(section.VirtualSize, section.RawSize);
    if (address < section.VirtualAddress || address - section.VirtualAddress >= size) continue;
    const std::uint32_t within = address - section.VirtualAddress;
    if (within >= section.RawSize) return std::nullopt;
    return std::uint64_t{section.RawOffset} + within;
  }
  return std::nullopt;
}

struct Entry {
  std::uint32_t Number;
  std::uint32_t Offset;  // from the start of the resource directory
};

// Walks the three levels of the tree: type, number, language.
class ResourceTree {
 public:
  ResourceTree(const Image& image, const Headers& headers, std::uint64_t root)
      : image_(image), headers_(headers), root_(root) {}

  // The raw data of all numbers of a type.
  std::map<std::uint32_t, std::string_view> Read(std::uint32_t type) {
    std::map<std::uint32_t, std::string_view> found;
    for (const Entry& typed : NumericEntries(0)) {
      const std::uint32_t numbers = DirectoryOffset(typed);
      if (typed.Number != type) continue;
      for (const Entry& numbered : NumericEntries(numbers)) {
        const auto data = LeafData(PreferredLeaf(DirectoryOffset(numbered)));
        if (data) found.emplace_hint(found.end(), numbered.Number, *data);
      }
    }
    return found;
  }

 private:
  static std::uint32_t DirectoryOffset(const Entry& entry) {
    if ((entry.Offset & kDirectoryFlag) == 0) throw NoLibrary{};
    return entry.Offset & ~kDirectoryFlag;
  }

  std::vector<Entry> NumericEntries(std::uint32_t directory) {
    const std::uint64_t at = root_ + directory;
    const std::uint32_t named = image_.U16(at + 12);
    const std::uint32_t numeric = image_.U16(at + 14);
    entriesRead_ += named + numeric;
    if (entriesRead_ > kMostEntries) throw NoLibrary{};
    std::vector<Entry> entries;
    for (std::uint32_t i = 0; i < named + numeric; ++i) {
      const std::uint64_t entry = at + 16 + 8ULL * i;
      const Entry read{image_.U32(entry), image_.U32(entry + 4)};
      if ((read.Number & kDirectoryFlag) == 0) entries.push_back(read);
    }
    return entries;
  }

  std::optional<std::uint32_t> PreferredLeaf(std::uint32_t languages) {
    std::optional<std::uint32_t> english;
    std::optional<std::uint32_t> first;
    std::optional<std::uint32_t> neutral;
    for (const Entry& language : NumericEntries(languages)) {
      if ((language.Offset & kDirectoryFlag) != 0) throw NoLibrary{};  // a fourth level
      if (!first) first = language.Offset;
      if (language.Number == kEnglish && !english) english = language.Offset;
      if (language.Number == 0 && !neutral) neutral = language.Offset;
    }
    if (neutral) return neutral;
    return english ? english : first;
  }

  // A leaf whose data lie outside the file is as good as not there.
  std::optional<std::string_view> LeafData(std::optional<std::uint32_t> leaf) const {
    if (!leaf) return std::nullopt;
    const std::uint64_t at = root_ + *leaf;
    if (at + 16 > image_.Size()) return std::nullopt;
    const auto offset = FileOffset(headers_, image_.U32(at));
    const std::uint32_t size = image_.U32(at + 4);
    if (!offset || *offset > image_.Size() || image_.Size() - *offset < size) return std::nullopt;
    return image_.Bytes(*offset, size);
  }

  const Image& image_;
  const Headers& headers_;
  std::uint64_t root_;
  std::size_t entriesRead_ = 0;
};

// A string of a block as its UTF-16 bytes; empty if it is absent or cut short.
std::string_view StringInBlock(std::string_view block, std::uint32_t index) {
  for (std::uint32_t i = 0;; ++i) {
    if (block.size() < 2) return {};
    const std::size_t bytes =
        2 * (static_cast<unsigned char>(block[0]) + 256U * static_cast<unsigned char>(block[1]));
    block.remove_prefix(2);
    if (block.size() < bytes) return {};
    if (i == index) return block.substr(0, bytes);
    block.remove_prefix(bytes);
  }
}

// Converts a string as the game's system does: its character set, its limit on length.
std::string AsSystemText(std::string_view utf16) {
  std::string text = FromUtf16(utf16);
  const bool isAscii = std::all_of(text.begin(), text.end(),
                                   [](char c) { return static_cast<signed char>(c) >= 0; });
  if (isAscii) {
    text.resize(std::min(text.size(), kLongestString));
    return text;
  }
  std::string system;
  std::size_t characters = 0;
  for (std::size_t at = 0; at < text.size() && characters < kLongestString; ++characters) {
    const char32_t codePoint = NextCodePoint(text, at);
    AppendUtf8(system, IsInWindows1252(codePoint) ? codePoint : U'?');
  }
  return system;
}

// Appends the leading ASCII characters of a UTF-16 text, which most texts consist of, in a loop
// that the compiler can vectorise. Returns the number of bytes read.
std::size_t AppendAsciiUnits(std::string& text, std::string_view utf16) {
  constexpr std::size_t unitsAtATime = 16;
  std::size_t end = 0;
  while (end + 2 * unitsAtATime <= utf16.size()) {
    std::array<char, unitsAtATime> ascii;
    unsigned char others = 0;
    for (std::size_t i = 0; i < unitsAtATime; ++i) {
      ascii[i] = utf16[end + 2 * i];
      others |= static_cast<unsigned char>((ascii[i] & 0x80) | utf16[end + 2 * i + 1]);
    }
    if (others != 0) break;
    text.append(ascii.data(), ascii.size());
    end += 2 * unitsAtATime;
  }
  while (end + 1 < utf16.size() && static_cast<signed char>(utf16[end]) >= 0 &&
         utf16[end + 1] == '\0') {
    text.push_back(utf16[end]);
    end += 2;
  }
  return end;
}

}  // namespace

std::optional<ResourceLibrary> ResourceLibrary::Open(std::string_view bytes) {
  try {
    const Image image(bytes);
    const Headers headers = ReadHeaders(image);
    ResourceLibrary library;
    if (headers.ResourceAddress == 0) return library;
    const auto root = FileOffset(headers, headers.ResourceAddress);
    if (!root) return std::nullopt;
    ResourceTree tree(image, headers, *root);
    library.cards_ = tree.Read(kHtmlType);
    library.blocks_ = tree.Read(kStringType);
    library.cards_.erase(0);
    library.cards_.erase(library.cards_.upper_bound(kHighestNumber), library.cards_.end());
    return library;
  } catch (const NoLibrary&) {
    return std::nullopt;
  }
}

std::map<std::uint32_t, std::string> ResourceLibrary::Strings() const {
  std::map<std::uint32_t, std::string> strings;
  for (const auto& [name, block] : blocks_) {
    if (name == 0 || name > (kHighestNumber + 1) / kStringsInBlock) continue;
    for (std::uint32_t i = 0; i < kStringsInBlock; ++i) {
      const std::uint32_t number = (name - 1) * kStringsInBlock + i;
      const std::string_view utf16 = StringInBlock(block, i);
      if (number == 0 || utf16.empty()) continue;
      strings.emplace_hint(strings.end(), number, AsSystemText(utf16));
    }
  }
  return strings;
}

std::string FromUtf16(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() / 2 + 1);
  const auto unitAt = [bytes](std::size_t i) {
    const char32_t low = static_cast<unsigned char>(bytes[i]);
    return i + 1 < bytes.size() ? low | (char32_t{static_cast<unsigned char>(bytes[i + 1])} << 8)
                                : low;
  };
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    i += AppendAsciiUnits(text, bytes.substr(i));
    if (i >= bytes.size()) break;
    const char32_t unit = unitAt(i);
    const bool isHigh = unit >= 0xD800 && unit < 0xDC00;
    const char32_t low = isHigh && i + 2 < bytes.size() ? unitAt(i + 2) : 0;
    if (low >= 0xDC00 && low < 0xE000) {
      AppendUtf8(text, 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
      i += 2;
    } else {
      AppendUtf8(text, unit);  // half of a pair becomes "?" there
    }
  }
  return text;
}

}  // namespace orrerix
