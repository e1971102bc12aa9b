// SPDX-License-Identifier: MIT
#include "import/resources/resource_strings.h"

#include <optional>

#include <fmt/format.h>

#include "db/values/text.h"
#include "import/resources/info_card.h"
#include "import/resources/resource_library.h"
#include "import/resources/windows1252.h"
#include "import/whole_file.h"
#include "platform/tick_count.h"
#include "shell/language_texts.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

constexpr std::int32_t kHighestStringNumber = 65535;
constexpr std::size_t kLongestName = 255;

// Libraries are below 2 GiB; a larger file is none.
constexpr std::streamoff kLargestLibrary = 0x7FFFFFFF;

std::optional<WholeFile> ReadLibraryFile(GameFiles& files, const std::string& path) {
  auto found = files.Read(path, kLargestLibrary);
  return found ? std::move(found->Whole) : std::nullopt;
}

std::string BareFileName(std::string_view path) {
  return std::string(path.substr(path.rfind('\\') + 1));
}

// Counts one step of the import, and shows at a measured pace how far it is.
class PacedStep {
 public:
  explicit PacedStep(Import& import) : import_(import) {
    ++import_.Progress.ImportDone;
    import_.ProgressIt(kHighestStringNumber, 0);
    lastTick_ = import_.Host.TickCount();
  }

  void At(std::uint32_t number) {
    if (!IsDue(import_.Host.TickCount(), lastTick_)) return;
    import_.ProgressIt(kHighestStringNumber, static_cast<std::int32_t>(number));
    lastTick_ = import_.Host.TickCount();
  }

  void Finish() {
    import_.ProgressIt(kHighestStringNumber, kHighestStringNumber);
    import_.Host.Yield();
  }

 private:
  Import& import_;
  std::uint32_t lastTick_ = 0;
};

std::int32_t TextNumber(std::uint32_t number, std::int32_t offset) {
  return static_cast<std::int32_t>(number) + offset;
}

void ReadCards(Import& import, Routine& routine, const ResourceLibrary& library,
               const std::string& name, std::int32_t offset) {
  Recordset infos = import.Target.DB.OpenTable(routine, "ids_info");
  PacedStep step(import);
  for (const auto& entry : library.Cards()) {
    const std::uint32_t number = entry.first;
    step.At(number);
    const std::string card = routine.Or(std::string(), [&] { return FromUtf16(entry.second); });
    const std::string_view clean = CleanEnd(card);
    if (clean.empty()) continue;
    infos.AddNew();
    infos["ID"] = TextNumber(number, offset);
    infos["Info"] = [&] { return InfoCardToText(clean); };
    infos["DLL"] = name;
    infos.Update();
  }
  step.Finish();
}

void ReadStrings(Import& import, Routine& routine, const ResourceLibrary& library,
                 const std::string& name, std::int32_t offset) {
  Recordset names = import.Target.DB.OpenTable(routine, "ids_name");
  import.Host.Yield();
  PacedStep step(import);
  for (const auto& [number, text] : library.Strings()) {
    step.At(number);
    const std::string_view clean = CleanEnd(text);
    if (clean.empty()) continue;
    names.AddNew();
    names["ID"] = TextNumber(number, offset);
    names["Name"] = clean;
    names["DLL"] = name;
    names.Update();
  }
  step.Finish();
}

}  // namespace

void ReadHTML_STRData(Import& import, const std::string& path, std::int32_t offset) {
  Routine routine(import.Target.Log, "OrrerixMain.ReadHTML_STRData",
                  "While reading dynamic linked DLL-Data");
  routine.Run([&] {
    const auto file = ReadLibraryFile(import.Files, path);
    const auto library = file ? ResourceLibrary::Open(file->Bytes()) : std::nullopt;
    if (!library) {
      import.Host.Show({FormatIn(import.Host.Speech(), TextId::LibraryLinkError, path),
                        "FL Orrerix", MessageButtons::Ok, MessageIcon::Exclamation});
      return;
    }
    const std::string name = BareFileName(path);
    ReadCards(import, routine, *library, name, offset);
    ReadStrings(import, routine, *library, name, offset);
  });
}

std::string GetName(Universe& universe, std::int32_t number, std::string_view fallback) {
  std::string name;
  Routine routine(universe.Log, "OrrerixMain.GetName",
                  [number] { return fmt::format("While getting Name #{}", number); });
  routine.Run([&] {
    const auto found = universe.DB.LookUp(routine, "ids_name", "Name", "ID", number);
    name = found ? found->Text() : fmt::format("{}({})", fallback, number);
    if (name.size() > kLongestName) name.resize(Left(name, kLongestName).size());
  });
  return name;
}

std::string GetInfo(Universe& universe, std::int32_t number) {
  std::string info;
  Routine routine(universe.Log, "OrrerixMain.GetInfo",
                  [number] { return fmt::format("While getting Info #{}", number); });
  routine.Run([&] {
    Recordset row =
        universe.DB.OpenRecordset(routine, "SELECT * from ids_info WHERE ID = {}", {number});
    info = row.AtEnd() ? fmt::format("{} - {}", number, number & kHighestStringNumber)
                       : row["Info"].Get().Text();
  });
  return info;
}

std::string GetChangeInfo(Universe& universe, std::int32_t number) {
  return GetInfo(universe, number);
}

}  // namespace orrerix
