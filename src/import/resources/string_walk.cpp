// SPDX-License-Identifier: MIT
// XTractNames: the strings of one build of a library, found by walking the file itself.
#include <fstream>
#include <vector>

#include <fmt/format.h>

#include "import/resources/resource_strings.h"
#include "import/resources/windows1252.h"
#include "shell/language_texts.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// Where the table of text blocks stands in that build, counted from 1.
constexpr std::size_t kFirstRecord = 23937;
constexpr std::size_t kRecordSize = 16;
constexpr std::size_t kLongestWalkedString = 105;
constexpr std::int32_t kFirstNumber = 196608;
constexpr std::size_t kShownEvery = 100;

struct TextBlock {
  std::size_t Offset;
  std::size_t Size;
  std::size_t End() const { return Offset + Size; }
};

// A file's bytes at positions that count from 1; what lies past the end reads as 0.
class FileBytes {
 public:
  explicit FileBytes(std::string bytes) : bytes_(std::move(bytes)) {}
  std::size_t Length() const { return bytes_.size(); }
  std::size_t At(std::size_t position) const {
    return position >= 1 && position <= bytes_.size()
               ? static_cast<unsigned char>(bytes_[position - 1])
               : 0;
  }

 private:
  std::string bytes_;
};

std::vector<TextBlock> ReadBlocks(const FileBytes& file) {
  std::vector<TextBlock> blocks;
  std::size_t position = kFirstRecord;
  do {
    blocks.push_back(
        {file.At(position) + (file.At(position + 1) << 8) + (file.At(position + 2) << 16),
         file.At(position + 4) + (file.At(position + 5) << 8)});
    position += kRecordSize;
  } while (position < blocks.front().Offset && position <= file.Length());
  return blocks;
}

// The string at a position, which moves past it.
std::string ReadString(const FileBytes& file, const TextBlock& block, std::size_t length,
                       std::size_t& position) {
  std::string text;
  for (std::size_t i = 0; i < length; ++i) {
    text.push_back(static_cast<char>(file.At(position)));
    position += 2;
    if (position <= block.End() + 1) continue;
    if (text.back() != '\0') position -= 2;
    text.pop_back();
    break;
  }
  return text;
}

TableDef NamesTable() {
  Field id{"ID", FieldType::Long, 0, false, false};
  Field name{"name", FieldType::Text, kDefaultTextSize, true, false};
  return {"Names", {id, name}, std::nullopt};
}

void ReadBlock(Import& import, Recordset& names, const FileBytes& file, const TextBlock& block,
               bool isLast, std::size_t& stored) {
  std::size_t position = block.Offset + 1;
  while (position < block.End()) {
    const std::size_t length = file.At(position);
    position += 2;
    if (position >= block.End() || position >= file.Length()) return;
    const std::string text = ReadString(file, block, length, position);
    if ((isLast && position >= block.End()) || text.size() >= kLongestWalkedString) continue;
    if (stored % kShownEvery == 0) {
      import.Host.ShowText(
          FormatIn(import.Host.Speech(), TextId::ReadingTexts, position, file.Length()) +
          "\r\n\r\n" + FromWindows1252(text));
      import.Host.Yield();
    }
    names.AddNew();
    names["ID"] = kFirstNumber + static_cast<std::int32_t>(stored++);
    names["name"] = FromWindows1252(text);
    names.Update();
  }
}

}  // namespace

void XTractNames(Import& import) {
  Routine routine(import.Target.Log, "OrrerixMain.XTractNames");
  routine.Run([&] {
    import.Target.DB.CreateTable(routine, NamesTable());
    const std::string path = import.Game.Text() + "\\exe\\nameresources.dll";
    auto stream = import.Game.OpenFile(path);
    if (!stream) {
      routine.Fail({failure_number::kFileNotFound, "File not found: " + path});
      return;
    }
    const FileBytes file({std::istreambuf_iterator<char>(*stream), {}});
    Recordset names = import.Target.DB.OpenTable(routine, "Names");
    const std::vector<TextBlock> blocks = ReadBlocks(file);
    std::size_t stored = 0;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
      ReadBlock(import, names, file, blocks[i], i + 1 == blocks.size(), stored);
    }
  });
}

}  // namespace orrerix
