// SPDX-License-Identifier: MIT
#include "forms/orrerix_main.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <utility>

#include "db/number_text.h"
#include "derived/stages.h"
#include "forms/form_geometry.h"
#include "import/import_driver.h"
#include "platform/game_path.h"
#include "shell/routine.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr QSize kSmallestForm{640, 480};
constexpr QRgb kGround = 0xFF04081C;

// A game folder as it is typed in, without what stands behind it by accident.
std::string FolderText(const QString& text) {
  QString folder = text.trimmed();
  while (folder.size() > 1 && (folder.endsWith('\\') || folder.endsWith('/'))) folder.chop(1);
  return folder.toStdString();
}

}  // namespace

OrrerixMain::OrrerixMain(const FormParts& parts, Settings& settings, Language& language,
                         const MemoryStatus& startMemory, JetVersionOption format)
    : parts_(parts),
      settings_(settings),
      language_(language),
      startMemory_(startMemory),
      format_(format),
      importScreen_(new ImportScreen(parts.Pictures, this)),
      map_(parts.Pictures, settings, language, this),
      host_(*this, *importScreen_, parts.Messages, parts.Log, startMemory, parts.Paths.Debugging) {
  setObjectName("OrrerixMain");
  setMinimumSize(kSmallestForm);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, QColor(kGround));
  setPalette(colors);
  QObject::connect(&importScreen_->Command1(), &QPushButton::clicked, this,
                   [this] { Command1Click(); });
}

OrrerixMain::~OrrerixMain() = default;

void OrrerixMain::FormLoad() {
  Routine routine(parts_.Log, "OrrerixMain.Form_Load",
                  "While opening Database and checking for version.");
  routine.Run([&] {
    const StartPaths& paths = parts_.Paths;
    saveFolder_ =
        paths.SaveFolder ? *paths.SaveFolder : SaveFolderBelow(parts_.Registry.GetPersonalFolder());
    MakeShortcuts(parts_.Log, routine, parts_.Registry, paths.ApplicationFolder, paths.Executable,
                  parts_.Version);
    importScreen_->Text2().setText(QString::fromStdString(parts_.GamePath()));
    setWindowTitle(QString::fromStdString(StartCaption(parts_.Version)));
    std::error_code ignored;
    const fs::path ownMap = fs::absolute(paths.ApplicationFolder / "SysMap.jpg", ignored);
    if (fs::exists(ownMap, ignored)) map_.ReplaceStarMap(ownMap.string());
    if (ExamineUniverse(routine, saveFolder_, parts_.Version) != UniverseState::Absent) {
      language_.InitLanguages();
    }
  });
  LoadFormTXT();
  loaded_ = true;
}

void OrrerixMain::LoadFormTXT() {
  Routine routine(parts_.Log, "OrrerixMain.LoadFormTXT", "While reading language-text.");
  routine.Run([&] {
    language_.CurrentLanguage = routine.Integer(Val(settings_.ReadSetting("LANG")));
    map_.LoadFormTXT();
  });
}

void OrrerixMain::ShowMaximised() {
  // Where no window manager answers the form fills the screen all the same.
  setGeometry(screen()->availableGeometry());
  showMaximized();
}

void OrrerixMain::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FormResize();
}

void OrrerixMain::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) FormResize();
}

void OrrerixMain::FormResize() {
  if (!loaded_ || isMinimized()) return;
  std::error_code ignored;
  if (importing_ || !fs::exists(UniverseFile(), ignored)) {
    ShowImportScreen();
  } else {
    ShowMap();
  }
}

void OrrerixMain::ShowImportScreen() {
  map_.Hide();
  importScreen_->setGeometry(rect());
  importScreen_->LayOut(OuterWidth(*this), OuterHeight(*this), importing_);
  importScreen_->show();
  if (importing_) {
    importScreen_->Memory().MemoryUpdate(parts_.Log, startMemory_, OuterWidth(*this),
                                         isMinimized());
  }
  // Long work and questions have no place inside a resize: both wait for the event loop.
  if (std::exchange(lookQueued_, true)) return;
  QTimer::singleShot(0, this, [this] {
    lookQueued_ = false;
    LookForGame();
  });
}

std::string OrrerixMain::GameFolderText() const {
  return FolderText(importScreen_->Text2().text());
}

void OrrerixMain::LookForGame() {
  if (complaining_ || !isVisible() || importScreen_->isHidden()) return;
  const GameFolder game(GameFolderText());
  if (game.FindFile(game.Text() + "\\exe\\Freelancer.exe")) {
    if (!importing_) Command1Click();
    return;
  }
  complaining_ = true;
  parts_.Messages.Show({MissingExecutableText(parts_.GamePath()), windowTitle().toStdString(),
                        MessageButtons::Ok, MessageIcon::Exclamation});
  complaining_ = false;
}

void OrrerixMain::PlaceForImport() {
  const QRect screenRect = screen()->geometry();
  const FormPlace place =
      ImportWindowPlace(static_cast<int>(Twips(screenRect.width())),
                        static_cast<int>(Twips(screenRect.height())), MemFrame::DesignHeight);
  const QRect outer = PixelRect(place).translated(screenRect.topLeft());
  const QSize decoration = frameGeometry().size() - size();
  setWindowState(windowState() & ~Qt::WindowMaximized);
  move(outer.topLeft());
  resize(outer.size() - decoration);
}

void OrrerixMain::Command1Click() {
  if (importRuns_) return;
  importRuns_ = true;
  importing_ = true;
  FormResize();
  RunImport();
  importRuns_ = false;
  if (host_.Ended()) {
    importing_ = false;
    close();
    return;
  }
  if (importing_) return;  // given up: the screen stays until the program is closed
  ShowMaximised();
  FormResize();
}

void OrrerixMain::RunImport() {
  PlaceForImport();
  Database database;
  const GameFolder game(GameFolderText());
  try {
    importing_ = !ImportGame(parts_.Log, host_, database,
                             {game, saveFolder_, format_, parts_.Version}, DerivedStages());
  } catch (const ImportEnded&) {
    // Whoever closes the form wants the program to end; Command1Click goes on with that.
  }
  database.Close();
  importScreen_->HideProgress();
}

void OrrerixMain::ShowMap() {
  setWindowTitle(QString::fromStdString(MapCaption(parts_.Version)));
  importScreen_->hide();
  Routine routine(parts_.Log, "OrrerixMain.Form_Resize");
  routine.Run([&] {
    const bool isFirstMap = !std::exchange(mapShown_, true);
    const bool warns = isFirstMap && IsWarningWanted(routine, UniverseFile());
    Universe universe{parts_.Log, copy_.Of(routine, UniverseFile())};
    map_.InitDataUsage(universe);
    if (warns && OnFirstMap) OnFirstMap();
    map_.Redraw(universe, OuterWidth(*this), OuterHeight(*this));
  });
}

void OrrerixMain::closeEvent(QCloseEvent* event) {
  if (importRuns_) {
    // The import is on the stack below this event: it has to end first.
    host_.End();
    event->ignore();
    return;
  }
  event->accept();
  if (OnQueryUnload) OnQueryUnload();
}

}  // namespace orrerix
