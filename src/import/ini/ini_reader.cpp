// SPDX-License-Identifier: MIT
#include "import/ini/ini_reader.h"

#include <algorithm>
#include <optional>

#include <fmt/format.h>

#include "import/ini/block_cutter.h"
#include "import/ini/ini_text.h"
#include "import/ini/packed_ini.h"
#include "import/resources/windows1252.h"
#include "import/sections/generic_section.h"
#include "import/sections/known_sections.h"
#include "import/whole_file.h"
#include "platform/tick_count.h"
#include "shell/language_texts.h"

namespace orrerix {
namespace {

Failure CannotRead(const std::string& file, std::string_view why) {
  return {failure_number::kPathFileAccess,
          fmt::format("Path/File access error: {} ({})", file, why)};
}

// A file's text, unpacked if it is packed.
class FileText {
 public:
  FileText(FoundFile found, const std::string& file) : bytes_(std::move(found.Whole)) {
    if (!bytes_) throw CannotRead(file, "it cannot be read");
    if (!IsPackedIni(bytes_->Bytes())) return;
    unpacked_ = UnpackIni(bytes_->Bytes());
    if (!unpacked_) throw CannotRead(file, "this packed file is damaged");
    bytes_.reset();
  }

  std::string_view Text() const { return bytes_ ? bytes_->Bytes() : std::string_view(*unpacked_); }

 private:
  std::optional<WholeFile> bytes_;
  std::optional<std::string> unpacked_;
};

// One call of the reader on a file's text.
class Reader {
 public:
  Reader(Import& import, ReaderRoutine& routine, const std::string& file,
         const std::string& systemNickname)
      : import_(import), routine_(routine), file_(file), known_(import, routine, systemNickname) {}

  void Read(std::string_view text) {
    routine_.SetFileSize(text.size());
    const auto length = static_cast<std::int32_t>(text.size());
    import_.ProgressIt(length, 0);
    lastTick_ = import_.Host.TickCount();
    BlockCutter cutter(text);
    while (const auto block = cutter.Next()) {
      if (block->empty()) continue;
      routine_.BeginBlock(*block);
      const auto consumed = static_cast<std::int32_t>(cutter.Consumed());
      routine_.Try([&] { ShowProgress(length, consumed); });
      ReadBlock(*block);
    }
    import_.ProgressIt(length, length);
  }

 private:
  void ShowProgress(std::int32_t length, std::int32_t consumed) {
    const std::uint32_t now = import_.Host.TickCount();
    if (!IsDue(now, lastTick_) && !import_.Host.IsDebugging()) return;
    if (!import_.Host.IsMinimised()) {
      import_.Host.ShowText(FormatIn(import_.Host.Speech(), TextId::ReadingFile, file_) +
                            "\r\n\r\n" + FromWindows1252(routine_.BlockQuote()));
    }
    import_.ProgressIt(length, std::min(length, consumed));
    lastTick_ = import_.Host.TickCount();
    import_.Host.Yield();
  }

  // A block whose statements do not stop a failure themselves is one step.
  void ReadBlock(std::string_view block) {
    try {
      routine_.Try([&] { ReadSection(block); });
    } catch (const NextBlock&) {
      // The failure stands in the data log; its row was dropped.
    }
  }

  void ReadSection(std::string_view block) {
    const CleanBlock clean(block);
    if (known_.Read(clean.Text())) return;
    routine_.SetInGeneric(true);
    ReadGenericSection(import_, routine_, file_, clean.Text());
  }

  Import& import_;
  ReaderRoutine& routine_;
  const std::string& file_;
  KnownSections known_;
  std::uint32_t lastTick_ = 0;
};

}  // namespace

void ReadINI(Import& import, const std::string& file, const std::string& systemNickname) {
  ReaderRoutine routine(import, file);
  routine.Run([&] {
    ++import.Progress.ImportDone;
    std::optional<FoundFile> found;
    const auto read = [&] { found = import.Files.Read(file); };
    if (!file.ends_with('\\') && !routine.Try(read)) return;
    if (!found) {
      import.Target.Log.AddErrorLine("Cant find file: [" + file + "]");
      return;
    }
    std::optional<FileText> whole;
    if (!routine.Try([&] { whole.emplace(std::move(*found), file); })) return;
    const std::string_view text = whole->Text();
    if (text.empty()) return;
    Reader(import, routine, file, systemNickname).Read(text);
  });
}

}  // namespace orrerix
