// SPDX-License-Identifier: MIT
// The game folder, the universe file and its import.
#include <QScreen>
#include <QWindow>
#include <optional>
#include <utility>

#include "forms/controls/form_geometry.h"
#include "forms/orrerix_main.h"
#include "forms/start/import_screen_layout.h"
#include "import/log_entry.h"
#include "platform/game_path.h"
#include "shell/game_record.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr int kImportDecorationDelay = 100;  // milliseconds

// A game folder as it is typed in, without what stands after it by accident.
std::string FolderText(const QString& text) {
  QString folder = text.trimmed();
  while (folder.size() > 1 && (folder.endsWith('\\') || folder.endsWith('/'))) folder.chop(1);
  return folder.toStdString();
}

}  // namespace

// False if another process works with the file and the user leaves the program.
bool OrrerixMain::ExamineUniverseFile(Routine& routine) {
  UniverseState state = ExamineUniverse(routine, saveFolder_, parts_.Version);
  while (state == UniverseState::InUse) {
    if (!AsksAgain()) return false;
    state = ExamineUniverse(routine, saveFolder_, parts_.Version);
  }
  if (state != UniverseState::Absent) language_.InitLanguages();
  return true;
}

bool OrrerixMain::AsksAgain() {
  return parts_.Messages.Show(UniverseInUseQuestion(parts_.Speech.Current, UniverseFile(),
                                                    parts_.Version)) == MessageAnswer::Retry;
}

void OrrerixMain::ShowImportScreen() {
  if (phase_ == Phase::Map) phase_ = Phase::FirstRun;
  map_.Hide();
  importScreen_->setGeometry(rect());
  importScreen_->LayOut(OuterWidth(*this), OuterHeight(*this), Importing());
  importScreen_->show();
  if (Importing()) {
    importScreen_->Memory().MemoryUpdate(parts_.Log, startMemory_, OuterWidth(*this),
                                         isMinimized());
  }
  // Long work and questions must not run inside a resize event: they wait for the event loop.
  lookForGame_.start(0);
}

std::string OrrerixMain::GameFolderText() const {
  return FolderText(importScreen_->GameFolderEdit().text());
}

void OrrerixMain::LookForGame() {
  if (phase_ == Phase::Preparing || gameMissing_.IsOpen() || !isVisible() ||
      importScreen_->isHidden()) {
    return;
  }
  const GameFolder game(GameFolderText());
  if (game.FindFile(game.Text() + "\\exe\\Freelancer.exe")) return StartImport();
  const Language language = parts_.Speech.Current;
  gameMissing_.Show({FormatIn(language, TextId::GameMissing, parts_.GamePath()) + "\r\n\r\n" +
                         FormatIn(language, TextId::NoGameIn, game.Text()),
                     windowTitle().toStdString(), MessageButtons::Ok, MessageIcon::Exclamation});
}

void OrrerixMain::PlaceForImport() {
  const QRect screenRect = screen()->geometry();
  const WholeTwipRect place =
      ImportWindowPlace(static_cast<int>(Twips(screenRect.width())),
                        static_cast<int>(Twips(screenRect.height())), MemFrame::kDesignHeight);
  const QRect outer = PixelRect(place).translated(screenRect.topLeft());
  setWindowState(windowState() & ~Qt::WindowMaximized);
  SetOuterGeometry(outer);
  // A normal window's decoration is not that of a maximised one, and is known a little later.
  QTimer::singleShot(kImportDecorationDelay, this, [this, outer] {
    if (Importing() && windowState() == Qt::WindowNoState) SetOuterGeometry(outer);
  });
}

void OrrerixMain::SetOuterGeometry(const QRect& outer) {
  const QSize decoration = frameGeometry().size() - size();
  move(outer.topLeft());
  resize(outer.size() - decoration);
  // A form that was of this size while maximised takes it for done, though its window goes back to
  // the size before.
  if (windowHandle() != nullptr) windowHandle()->resize(size());
}

void OrrerixMain::StartImport() {
  if (phase_ != Phase::FirstRun) return;
  phase_ = Phase::Preparing;
  std::optional<FolderLock> lock = LockSaveFolder();
  phase_ = Phase::FirstRun;
  if (lock) RunImport(std::move(*lock));
}

// Makes the folder of the universe file and holds it for the import. Nothing if there is none: the
// user has been told.
std::optional<FolderLock> OrrerixMain::LockSaveFolder() {
  std::error_code ignored;
  fs::create_directories(saveFolder_, ignored);
  if (!fs::is_directory(saveFolder_, ignored)) {
    parts_.Messages.Show(FolderMissingMessage(parts_.Speech.Current, saveFolder_, parts_.Version));
    return std::nullopt;
  }
  std::optional<FolderLock> lock;
  while (!(lock = FolderLock::TryHold(saveFolder_))) {
    if (AsksAgain()) continue;
    close();
    return std::nullopt;
  }
  return lock;
}

void OrrerixMain::RunImport(FolderLock lock) {
  phase_ = Phase::Importing;
  Redraw();
  PlaceForImport();
  const GameFolder game(GameFolderText());
  const GameRecord record{GameFolderText(), StampOfGame(GameFolderText())};
  const std::size_t linesBefore = parts_.Log.DataLines().size();
  import_.emplace(parts_, *this, *importScreen_, startMemory_, std::move(lock));
  const ImportSession::Result result = import_->Run({game, saveFolder_, format_, parts_.Version});
  import_.reset();
  if (result == ImportSession::Result::GivenUp) {
    phase_ = Phase::GivenUp;
    return;
  }
  phase_ = Phase::FirstRun;
  if (result == ImportSession::Result::Ended) {
    close();
    return;
  }
  WriteGameRecord(UniverseFile(), record);
  const std::vector<std::string>& lines = parts_.Log.DataLines();
  SaveLog(UniverseFile(), {lines.begin() + static_cast<std::ptrdiff_t>(linesBefore), lines.end()});
  ShowMaximised();
  Redraw();
}

}  // namespace orrerix
