// SPDX-License-Identifier: MIT
// The decisions of a start: which engine format, import or map, shortcuts or none.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "db/engine/engine.h"
#include "platform/message_box.h"
#include "shell/error_log.h"
#include "shell/game_registry.h"
#include "shell/text_id.h"
#include "shell/version.h"

namespace orrerix {

// Probes the engine by creating "Test.mdb" in the application folder, the older format first, and
// removes it again. Nothing if neither can be created.
std::optional<JetVersionOption> CheckJetDatabase(const std::filesystem::path& applicationFolder);

// What a start finds in the save folder.
enum class UniverseState {
  Usable,       // a finished file of this version
  Absent,       // none, or one that was not usable and has been deleted
  Undeletable,  // one that is not usable and could not be deleted
  InUse         // another process holds it or its folder, as an import does
};

// Looks at "Orrerix.fl". A file of another version, a damaged one and the leftovers of a broken
// import are deleted without asking; one that another process works with is left alone. A delete
// that fails is the routine's failure.
UniverseState ExamineUniverse(FailureSink& routine, const std::filesystem::path& saveFolder,
                              const AppVersion& version);

// Whether the warning before the first map is to be shown: its switch in the universe file is off
// unless the user has set it. The switch's row is made on first display.
bool IsWarningWanted(FailureSink& routine, const std::filesystem::path& universeFile);

// The save folder's part below the personal folder, "\My Games\Freelancer\Accts\SinglePlayer", as
// a real path. The game makes this folder; with a folder of another case on disk that one counts.
std::filesystem::path SaveFolderBelow(const std::filesystem::path& personalFolder);

// The universe file of a save folder.
std::filesystem::path UniverseFileIn(const std::filesystem::path& saveFolder);

// If the setup program left the marker "CopyLnk" in the application folder: makes the shortcuts on
// the desktop and in the programs folder, and deletes the marker.
void MakeShortcuts(ErrorLog& log, FailureSink& routine, const GameRegistry& registry,
                   const std::filesystem::path& applicationFolder,
                   const std::filesystem::path& program, const AppVersion& version);

// Makes one shortcut.
void CreateLink(ErrorLog& log, const std::filesystem::path& target,
                const std::filesystem::path& link);

// The question whether to try again while another process works with the universe file, and the
// message that its folder cannot be made.
Message UniverseInUseQuestion(Language language, const std::filesystem::path& file,
                              const AppVersion& version);
Message FolderMissingMessage(Language language, const std::filesystem::path& folder,
                             const AppVersion& version);

// Captions of the main window before the first map, and with it.
std::string StartCaption(const AppVersion& version);
std::string MapCaption(const AppVersion& version);

}  // namespace orrerix
