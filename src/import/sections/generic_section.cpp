// SPDX-License-Identifier: MIT
#include "import/sections/generic_section.h"

#include <algorithm>
#include <array>
#include <string>

#include <fmt/format.h>

#include "db/values/text.h"
#include "import/ini/block_text.h"
#include "import/resources/windows1252.h"

namespace orrerix {
namespace {

// Sections whose names are part of this text leave no table.
constexpr std::string_view kSkipped = "*archetype*";

// Sections whose rows may share a nickname.
constexpr std::array<std::string_view, 3> kWithoutKey = {"mroom", "lightsource",
                                                         "encounterparameters"};

// Keys that the game's files repeat as a matter of course.
constexpr std::array<std::string_view, 14> kRepeating = {
    "locked_gate",    "movie_file",          "fixture", "npc",
    "voice",          "density_restriction", "faction", "encounter",
    "faction_weight", "shield_hit_effects",  "dll",     "log",
    "fuse",           "npc_locked_gate"};

template <std::size_t N>
bool IsOneOf(const std::array<std::string_view, N>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

std::string SectionName(std::string_view block) {
  const std::size_t end = block.find(']');
  if (end == std::string_view::npos || end == 0) return {};
  return Lcase(FromWindows1252(block.substr(1, end - 1)));
}

bool IsSkipped(std::string_view name) {
  return name.empty() || name.find_first_of("=;") != std::string_view::npos ||
         Contains(kSkipped, name);
}

std::string_view TrimControlsFront(std::string_view text) {
  const auto first = std::find_if(text.begin(), text.end(),
                                  [](char c) { return static_cast<unsigned char>(c) >= 14; });
  return text.substr(static_cast<std::size_t>(first - text.begin()));
}

std::string_view TrimControlsBack(std::string_view text) {
  while (!text.empty() && static_cast<unsigned char>(text.back()) < 14) text.remove_suffix(1);
  return text;
}

// Whether a text stays as it is in lower case.
bool IsLowerAscii(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) {
    return static_cast<signed char>(c) < 0 || (c >= 'A' && c <= 'Z');
  });
}

// Takes the next line off a block.
std::string_view TakeLine(std::string_view& rest) {
  rest = TrimControlsFront(rest);
  std::string_view line = rest;
  if (const std::size_t lf = rest.find('\n'); lf != std::string_view::npos) {
    line = rest.substr(0, std::min(rest.substr(0, lf).find('\r'), lf) + 1);
  }
  rest.remove_prefix(line.size());
  return TrimControlsBack(line);
}

// Fills one row of a section's table, line by line.
class RowReader {
 public:
  RowReader(Import& import, ReaderRoutine& routine, SectionTable& table, std::string_view file)
      : import_(import), routine_(routine), table_(table), file_(file) {}

  void Read(std::string_view block) {
    routine_.BeginRecord(RetryState::GenericTable, [this] { table_.AddNew(); });
    routine_.Try([&] {
      constexpr SectionTable::FieldIndex sourceFileName = 0;
      table_.Set(sourceFileName, file_.substr(import_.Game.Text().size()));
    });
    for (std::size_t sign = block.find('='); sign != std::string_view::npos;) {
      const char* const at = block.data() + sign;
      const std::string_view line = TakeLine(block);
      if (at >= line.data() + line.size()) {
        sign = static_cast<std::size_t>(at - block.data());
        continue;
      }
      routine_.Try([&] { ReadLine(line, static_cast<std::size_t>(at - line.data())); });
      sign = block.find('=');
    }
    if (stored_) {
      routine_.Try([this] { table_.Update(); });
    } else {
      table_.CancelUpdate();
    }
  }

 private:
  void ReadLine(std::string_view line, std::size_t sign) {
    std::string_view key = KeyText(line.substr(0, sign));
    std::string_view value = Trim(line.substr(sign + 1));
    if (key == "shield_mod") SplitShieldMod(key, value);
    if (key.empty() || value.empty()) return;
    routine_.SetPair(key, value);
    Store(key, reader_.Utf8(value));
    routine_.ClearPair();
  }

  // Good until the next one.
  std::string_view KeyText(std::string_view bytes) {
    bytes = Trim(bytes);
    if (IsLowerAscii(bytes)) return bytes;
    key_ = Lcase(reader_.Utf8(bytes));
    return key_;
  }

  // The value is two things: the shield's type, which becomes the key, and the figure.
  void SplitShieldMod(std::string_view& key, std::string_view& value) {
    const std::string_view both = value;
    key = routine_.Or(key, [&] { return KeyText(RequireBeforeComma(both)); });
    const CommaCut cut = CutAtComma(both);
    value = Trim(cut.Found ? cut.After : cut.Before);
  }

  void Store(std::string_view key, std::string_view value) {
    auto field = table_.FindField(key, nextField_);
    if (!field) {
      field = AddField(key);
      if (!field) return;
    }
    nextField_ = *field + 1;
    routine_.Try([&] { WarnOfDoubleData(key, *field); });
    routine_.Try([&] { table_.Set(*field, value); });
    stored_ = true;
  }

  // Changing the table closes the open row, so the row is stored and opened again. Returns nothing
  // if the field could not be added; its value is then dropped.
  std::optional<SectionTable::FieldIndex> AddField(std::string_view key) {
    std::int32_t rowID = table_.RowID();
    routine_.Try([this] { table_.Update(); });
    const auto field = routine_.Or(std::optional<SectionTable::FieldIndex>(),
                                   [&] { return table_.AddField(key); });
    if (field && key == "nickname" && !IsOneOf(kWithoutKey, table_.Name())) {
      rowID = MakeKey(rowID, *field);
    }
    routine_.Try([&] { table_.Edit(rowID); });
    return field;
  }

  // A single blank holds the row's place in the coming key until its nickname is written.
  std::int32_t MakeKey(std::int32_t rowID, SectionTable::FieldIndex nickname) {
    routine_.Try([&] {
      try {
        table_.Edit(rowID);
      } catch (const Failure&) {
        table_.AddNew();
      }
      table_.Set(nickname, " ");
      rowID = table_.RowID();
      table_.Update();
    });
    routine_.Try([this] { table_.MakeNicknameKey(); });
    import_.Host.Yield();
    return rowID;
  }

  void WarnOfDoubleData(std::string_view key, SectionTable::FieldIndex field) {
    const std::string_view* before = table_.Get(field);
    if (before == nullptr || Len(*before) <= 1 || IsOneOf(kRepeating, key)) return;
    if (!routine_.TakesRemarks()) return;
    routine_.Remark(
        fmt::format("+--- Warning: DOUBLE-DATA for [{}] in file [{}] in DataBlock:\r\n{}\r\n-- "
                    "(useing last value) --\r\n",
                    key, file_, FromWindows1252(routine_.BlockQuote())));
  }

  Import& import_;
  ReaderRoutine& routine_;
  SectionTable& table_;
  std::string_view file_;
  std::string key_;
  Windows1252Reader reader_;
  SectionTable::FieldIndex nextField_ = 0;  // rows of one section mostly name their keys in order
  bool stored_ = false;
};

}  // namespace

void ReadGenericSection(Import& import, ReaderRoutine& routine, std::string_view file,
                        std::string_view block) {
  std::string name = SectionName(block);
  if (IsSkipped(name)) return;
  if (const std::size_t bracket = name.find('['); bracket != std::string::npos) {
    name.erase(0, bracket + 1);
  }
  SectionTable* table = nullptr;
  routine.Try([&] { table = &import.Sections.Open(name); });
  if (table == nullptr) return;
  RowReader(import, routine, *table, file).Read(Trim(block.substr(block.find(']') + 1)));
}

}  // namespace orrerix
