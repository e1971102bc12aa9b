// SPDX-License-Identifier: MIT
#include "import/log_entry.h"

#include <fstream>
#include <sstream>

#include "db/values/text.h"
#include "import/ini/ini_text.h"
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr char kEndOfEntry = '\0';  // no entry holds one: it is made of text files

std::string Between(std::string_view text, std::string_view before, std::string_view after) {
  const std::size_t begin = text.find(before);
  if (begin == std::string_view::npos) return {};
  const std::string_view rest = text.substr(begin + before.size());
  return std::string(rest.substr(0, rest.find(after)));
}

std::string FirstLine(std::string_view text) {
  return std::string(text.substr(0, text.find_first_of("\r\n")));
}

// The value of a block's key nickname, up to the end of its line.
std::string NicknameOf(std::string_view block) {
  const std::string upper = UpperAscii(block);
  const std::size_t key = upper.find("NICKNAME");
  const std::size_t sign = key == std::string::npos ? key : block.find('=', key);
  if (sign == std::string::npos) return {};
  const std::string line = FirstLine(block.substr(sign + 1));
  return std::string(Trim(std::string_view(line).substr(0, line.find(';'))));
}

}  // namespace

LogEntry ParseLogEntry(std::string_view entry) {
  LogEntry parsed;
  parsed.Text = entry;
  const auto has = [entry](std::string_view text) { return Contains(entry, text); };
  if (has("Cant find file: [")) {
    parsed.Kind = LogKind::MissingFile;
    parsed.File = Between(entry, "Cant find file: [", "]");
  } else if (has("DOUBLE-DATA for [")) {
    parsed.Kind = LogKind::DoubleData;
    parsed.File = Between(entry, "in file [", "]");
    parsed.Nickname = NicknameOf(entry);
  } else if (has("--- Error in FL-MOD-File:")) {
    parsed.Kind = LogKind::RowRefused;
    const std::string rest = Between(entry, "--- Error in FL-MOD-File:", "\x1");
    const std::size_t name = rest.find_first_not_of("\r\n");
    if (name != std::string::npos) parsed.File = FirstLine(std::string_view(rest).substr(name));
    parsed.Nickname = NicknameOf(entry);
  } else if (has("FL-MOD-ERROR Searching target Tradelane <")) {
    parsed.Kind = LogKind::MissingRing;
    parsed.Nickname = Between(entry, "> for <", ">");
  } else if (has("FL-MOD-ERROR: Objekt ")) {
    parsed.Kind = LogKind::MissingPosition;
    parsed.Nickname = Between(entry, "FL-MOD-ERROR: Objekt ", " has no POS");
  } else if (has("this means the ship has no equipment")) {
    parsed.Kind = LogKind::MissingPackage;
    parsed.Nickname = has("NO Shiphull for ") ? Between(entry, "NO Shiphull for ", " this means")
                                              : Between(entry, "for Shiphull ", " this means");
  }
  return parsed;
}

fs::path LogFileOf(const fs::path& universeFile) {
  fs::path log = universeFile;
  return SystemPath(log += ".log");
}

bool SaveLog(const fs::path& universeFile, const std::vector<std::string>& entries) {
  std::ofstream file(LogFileOf(universeFile), std::ios::binary | std::ios::trunc);
  for (const std::string& entry : entries) file << entry << kEndOfEntry;
  return static_cast<bool>(file.flush());
}

std::vector<std::string> ReadSavedLog(const fs::path& universeFile) {
  std::ifstream file(LogFileOf(universeFile), std::ios::binary);
  std::vector<std::string> entries;
  for (std::string entry; std::getline(file, entry, kEndOfEntry);) {
    entries.push_back(std::move(entry));
  }
  return entries;
}

}  // namespace orrerix
