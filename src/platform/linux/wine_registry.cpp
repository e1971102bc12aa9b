// SPDX-License-Identifier: MIT
#include "platform/linux/wine_registry.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>

#include <fmt/format.h>

#include "platform/game_path.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return lower;
}

// Appends a UTF-16 unit as UTF-8; registry files escape every character beyond ASCII that way.
void AppendUnit(std::string& text, unsigned unit) {
  if (unit < 0x80) {
    text += static_cast<char>(unit);
  } else if (unit < 0x800) {
    text += static_cast<char>(0xC0 | (unit >> 6));
    text += static_cast<char>(0x80 | (unit & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (unit >> 12));
    text += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (unit & 0x3F));
  }
}

// Reads a text with the file's escapes up to `end`, and moves `line` past it.
std::string ReadEscaped(std::string_view& line, char end) {
  std::string text;
  while (!line.empty() && line.front() != end) {
    char c = line.front();
    line.remove_prefix(1);
    if (c != '\\' || line.empty()) {
      text += c;
      continue;
    }
    c = line.front();
    line.remove_prefix(1);
    if (c == 'x') {
      std::size_t digits = 0;
      while (digits < 4 && digits < line.size() &&
             std::isxdigit(static_cast<unsigned char>(line[digits])))
        ++digits;
      const std::string number(line.substr(0, digits));
      if (digits > 0) AppendUnit(text, static_cast<unsigned>(std::stoul(number, nullptr, 16)));
      line.remove_prefix(digits);
    } else if (c == 'n') {
      text += '\n';
    } else if (c == '0') {
      text += '\0';
    } else {
      text += c;
    }
  }
  if (!line.empty()) line.remove_prefix(1);
  return text;
}

std::optional<RegistryValue> ReadValue(std::string_view data) {
  if (data.starts_with("\"")) {
    data.remove_prefix(1);
    return ReadEscaped(data, '"');
  }
  if (data.starts_with("dword:")) {
    const std::string digits(data.substr(6, 8));
    char* end = nullptr;
    const unsigned long number = std::strtoul(digits.c_str(), &end, 16);
    if (end != digits.c_str()) return static_cast<std::uint32_t>(number);
  }
  return std::nullopt;
}

}  // namespace

WineRegistry::WineRegistry(fs::path prefix)
    : prefix_(std::move(prefix)),
      machine_(ReadHive(prefix_ / "system.reg")),
      user_(ReadHive(prefix_ / "user.reg")) {}

fs::path WineRegistry::DefaultPrefix() {
  if (const char* prefix = std::getenv("WINEPREFIX"); prefix != nullptr && *prefix != '\0') {
    return prefix;
  }
  const char* home = std::getenv("HOME");
  return fs::path(home == nullptr ? "" : home) / ".wine";
}

WineRegistry::Values WineRegistry::ReadHive(const fs::path& file) {
  Values values;
  std::ifstream stream(file, std::ios::binary);
  std::string key;
  for (std::string text; std::getline(stream, text);) {
    if (!text.empty() && text.back() == '\r') text.pop_back();
    std::string_view line = text;
    if (line.starts_with("[")) {
      line.remove_prefix(1);
      key = Lower(ReadEscaped(line, ']'));
    } else if (line.starts_with("\"")) {
      line.remove_prefix(1);
      const std::string name = Lower(ReadEscaped(line, '"'));
      if (!line.starts_with("=")) continue;
      line.remove_prefix(1);
      if (auto value = ReadValue(line)) values[fmt::format("{}\\{}", key, name)] = *value;
    }
  }
  return values;
}

std::optional<RegistryValue> WineRegistry::Query(RegistryHive hive, std::string_view key,
                                                 std::string_view value) const {
  const Values& values = hive == RegistryHive::LocalMachine ? machine_ : user_;
  const std::string path = Lower(key) + "\\" + Lower(value);
  if (const auto found = values.find(path); found != values.end()) return found->second;
  if (hive != RegistryHive::LocalMachine) return std::nullopt;
  // A 32-bit installer on a 64-bit prefix writes below Wow6432Node.
  constexpr std::string_view software = "software\\";
  if (!path.starts_with(software)) return std::nullopt;
  const auto found = values.find("software\\wow6432node\\" + path.substr(software.size()));
  return found == values.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::string> WineRegistry::RealPath(std::string_view path) const {
  if (path.size() < 2 || path[1] != ':') return std::nullopt;
  std::error_code error;
  fs::path real = prefix_ / "dosdevices" / Lower(path.substr(0, 2));
  if (!fs::exists(real, error)) return std::nullopt;
  real = fs::canonical(real, error);
  const std::optional<fs::path> folder = FindFolder(real, path.substr(2));
  return folder ? std::optional(folder->string()) : std::nullopt;
}

}  // namespace orrerix
