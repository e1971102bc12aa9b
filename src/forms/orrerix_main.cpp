// SPDX-License-Identifier: MIT
#include "forms/orrerix_main.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QImage>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <new>
#include <utility>

#include <fmt/format.h>

#include "db/number_text.h"
#include "derived/stages.h"
#include "forms/controls/form_geometry.h"
#include "forms/print_form.h"
#include "import/import_driver.h"
#include "map/game_sounds.h"
#include "online/web_pages.h"
#include "platform/game_path.h"
#include "shell/files.h"
#include "shell/routine.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr QSize kSmallestForm{640, 480};
constexpr int kDecorationDelay = 100;  // milliseconds
constexpr QRgb kGround = 0xFF04081C;

// A game folder as it is typed in, without what stands behind it by accident.
std::string FolderText(const QString& text) {
  QString folder = text.trimmed();
  while (folder.size() > 1 && (folder.endsWith('\\') || folder.endsWith('/'))) folder.chop(1);
  return folder.toStdString();
}

}  // namespace

OrrerixMain::OrrerixMain(const FormParts& parts, Settings& settings, LanguageFile& language,
                         const MemoryStatus& startMemory, JetVersionOption format)
    : parts_(parts),
      settings_(settings),
      language_(language),
      startMemory_(startMemory),
      format_(format),
      importScreen_(new ImportScreen(parts.Pictures, parts.Speech, this)),
      map_(parts.Pictures, settings, language, this),
      play_(map_, *this, parts.Log, settings, language, parts.Sound),
      search_(map_, *this, play_, parts.Log, language),
      newsPlay_(map_, parts.Log),
      stations_({parts.Log, parts.Pictures, parts.Sound, language, map_.State().Names,
                 [this](Routine& routine) { return OpenUniverse(routine); },
                 [this] { return frameGeometry().size() - size(); }}),
      host_(*this, *importScreen_, parts.Messages, parts.Log, startMemory, parts.Paths.Debugging,
            parts.Speech) {
  setObjectName("OrrerixMain");
  setMinimumSize(kSmallestForm);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, QColor(kGround));
  setPalette(colors);
  newsPlay_.OnMoved = [this] { play_.NewsMoved(); };
  QObject::connect(&importScreen_->Command1(), &QPushButton::clicked, this,
                   [this] { Command1Click(); });
}

OrrerixMain::~OrrerixMain() = default;

bool OrrerixMain::FormLoad() {
  bool leaves = false;
  Routine routine(parts_.Log, "OrrerixMain.Form_Load",
                  "While opening Database and checking for version.");
  routine.Run([&] {
    const StartPaths& paths = parts_.Paths;
    routine.Try([&] {
      saveFolder_ = paths.SaveFolder ? *paths.SaveFolder
                                     : SaveFolderBelow(parts_.Registry.GetPersonalFolder());
    });
    MakeShortcuts(parts_.Log, routine, parts_.Registry, paths.ApplicationFolder, paths.Executable,
                  parts_.Version);
    importScreen_->Text2().setText(QString::fromStdString(parts_.GamePath()));
    setWindowTitle(QString::fromStdString(StartCaption(parts_.Version)));
    ReplaceStarMap(routine, paths.ApplicationFolder / "SysMap.jpg");
    leaves = !ExamineUniverseFile(routine);
    if (leaves) return;
    LoadFormTXT();
    isMaximised_ = true;
  });
  loaded_ = true;
  return !leaves;
}

// A picture of the user's own in place of the built-in one, which stays if it cannot be read.
void OrrerixMain::ReplaceStarMap(Routine& routine, const fs::path& picture) {
  if (!FileExists(routine, picture)) return;
  std::error_code ignored;
  const fs::path file = fs::absolute(picture, ignored);
  if (QImage(QString::fromStdString(file.string())).isNull()) {
    routine.Fail({failure_number::kInvalidPicture,
                  fmt::format("Invalid picture: '{}' cannot be read.", file.string())});
    return;
  }
  map_.ReplaceStarMap(file.string());
}

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

void OrrerixMain::LoadFormTXT() {
  Routine routine(parts_.Log, "OrrerixMain.LoadFormTXT", "While reading language-text.");
  routine.Run([&] {
    language_.SetCurrent(static_cast<Language>(routine.Integer(
        Val(settings_.ReadSetting("LANG")), static_cast<std::int16_t>(language_.Current()))));
    map_.LoadFormTXT();
  });
}

void OrrerixMain::ShowLoaded() {
  isMaximised_ ? ShowMaximised() : show();
}

void OrrerixMain::ShowMaximised() {
  // Where no window manager answers the form fills the screen all the same.
  setGeometry(screen()->availableGeometry());
  showMaximized();
}

// What a desktop remembers as the form's own size may leave no room for the decoration.
void OrrerixMain::KeepOnScreen() {
  if (windowState() != Qt::WindowNoState || printSide_ > 0) return;
  const QRect inside = geometry();
  const QRect outer = frameGeometry();
  const QMargins decoration(inside.left() - outer.left(), inside.top() - outer.top(),
                            outer.right() - inside.right(), outer.bottom() - inside.bottom());
  const QRect fitted = InsideWithin(inside, decoration, screen()->availableGeometry());
  if (fitted != inside) setGeometry(fitted);
}

void OrrerixMain::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FormResize();
}

void OrrerixMain::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) {
    FormResize();
    // The desktop tells the decoration of a form that is no longer maximised a moment later.
    QTimer::singleShot(kDecorationDelay, this, [this] { KeepOnScreen(); });
  }
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) QueueFocus();
}

void OrrerixMain::FormResize() {
  if (!loaded_ || warning_ || isMinimized()) return;
  // The question about a failure lets events through. A redraw that they ask for waits for this
  // one.
  redrawWanted_ = true;
  if (redrawing_) return;
  const QScopedValueRollback<bool> running(redrawing_, true);
  while (std::exchange(redrawWanted_, false)) ShowScreen();
}

void OrrerixMain::ShowScreen() {
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
  parts_.Messages.Show({FormatIn(parts_.Speech.Current, TextId::GameMissing, parts_.GamePath()),
                        windowTitle().toStdString(), MessageButtons::Ok, MessageIcon::Exclamation});
  complaining_ = false;
}

void OrrerixMain::PlaceForImport() {
  const QRect screenRect = screen()->geometry();
  const FormPlace place =
      ImportWindowPlace(static_cast<int>(Twips(screenRect.width())),
                        static_cast<int>(Twips(screenRect.height())), MemFrame::DesignHeight);
  const QRect outer = PixelRect(place).translated(screenRect.topLeft());
  setWindowState(windowState() & ~Qt::WindowMaximized);
  SetOuterGeometry(outer);
  // A normal window's decoration is not that of a maximised one, and is known a little later.
  QTimer::singleShot(kDecorationDelay, this, [this, outer] {
    if (importing_ && windowState() == Qt::WindowNoState) SetOuterGeometry(outer);
  });
}

void OrrerixMain::SetOuterGeometry(const QRect& outer) {
  const QSize decoration = frameGeometry().size() - size();
  move(outer.topLeft());
  resize(outer.size() - decoration);
}

void OrrerixMain::Command1Click() {
  if (importRuns_ || complaining_ || !PrepareSaveFolder()) return;
  importRuns_ = true;
  importing_ = true;
  FormResize();
  RunImport();
  importRuns_ = false;
  lock_.reset();
  if (host_.Ended()) {
    importing_ = false;
    close();
    return;
  }
  if (importing_) return;  // given up: the screen stays until the program is closed
  ShowMaximised();
  FormResize();
}

// Makes the folder of the universe file and holds it for the import. False if there is none: the
// user has been told.
bool OrrerixMain::PrepareSaveFolder() {
  complaining_ = true;
  std::error_code ignored;
  fs::create_directories(saveFolder_, ignored);
  bool isReady = fs::is_directory(saveFolder_, ignored);
  if (!isReady) {
    parts_.Messages.Show(FolderMissingMessage(parts_.Speech.Current, saveFolder_, parts_.Version));
  }
  while (isReady && !(lock_ = FolderLock::TryHold(saveFolder_))) isReady = AsksAgain();
  const bool leaves = !isReady && fs::is_directory(saveFolder_, ignored);
  complaining_ = false;
  if (leaves) close();
  return isReady;
}

void OrrerixMain::RunImport() {
  PlaceForImport();
  Database database;
  const GameFolder game(GameFolderText());
  try {
    importing_ = !ImportGame(parts_.Log, host_, database,
                             {game, saveFolder_, format_, parts_.Version}, DerivedStages())
                      .Finished;
  } catch (const ImportEnded&) {
    // Whoever closes the form or aborts for lack of memory wants the program to end; Command1Click
    // goes on with that.
    host_.End();
  } catch (const std::bad_alloc&) {
    // There was not even memory for the question.
    host_.End();
  }
  database.Close();
}

void OrrerixMain::ShowMap() {
  setWindowTitle(QString::fromStdString(MapCaption(parts_.Version)));
  importScreen_->HideProgress();
  importScreen_->hide();
  Routine routine(parts_.Log, "OrrerixMain.Form_Resize");
  routine.Run([&] {
    const bool isFirstMap = !std::exchange(mapShown_, true);
    const bool warns = isFirstMap && IsWarningWanted(routine, UniverseFile());
    Universe universe = OpenUniverse(routine);
    map_.InitDataUsage(universe);
    if (warns && OnFirstMap) {
      warning_ = true;
      setEnabled(false);
      const bool goesOn = OnFirstMap();
      setEnabled(true);
      if (!goesOn) {
        // The form is just being shown: it goes when that is done.
        QTimer::singleShot(0, this, [this] { hide(); });
        return;
      }
      warning_ = false;
    }
    const bool prints = printSide_ > 0;
    map_.Redraw(universe, prints ? printSide_ : OuterWidth(*this),
                prints ? printSide_ : OuterHeight(*this));
    play_.MapRedrawn();
    newsPlay_.MapRedrawn();
    // Not every desktop gives the focus to a form that is just shown.
    if (isFirstMap) QueueFocus();
    if (isFirstMap) map_.Frame().setFocus();
  });
}

Universe OrrerixMain::OpenUniverse(Routine& routine) {
  return {parts_.Log, copy_.Of(routine, UniverseFile())};
}

GameFolder OrrerixMain::Game() const {
  return GameFolder(GameFolderText());
}

void OrrerixMain::ShowStation(const std::string& nickname, const std::string& picture) {
  stations_.Open(nickname, picture);
}

void OrrerixMain::UseTool(int index) {
  constexpr int printTool = 4;
  Routine routine(parts_.Log, "OrrerixMain.StationSearch_Click", fmt::format("Index: {}", index));
  routine.Run([&] {
    if (index == printTool) {
      PrintTheMap();
    } else {
      search_.OpenSearch(static_cast<SearchType>(index));
    }
  });
}

void OrrerixMain::InfoBoxLabelFillup(const std::string& text) {
  Routine routine(parts_.Log, "OrrerixMain.InfoBoxLabelFillup", "While building up News-Table.");
  routine.Run([&] {
    news_ = orrerix::InfoBoxLabelFillup(text);
    std::vector<NewsItem> items;
    for (NewsEntry& entry : news_.Entries) {
      items.push_back({entry.Caption, entry.ToolTip, entry.Address});
    }
    map_.SetNews(PageAddress(parts_.Paths.NewsAddress, WebPage::Main), std::move(items));
  });
}

void OrrerixMain::OpenNewsLink(int index) {
  PlaySoundfile(parts_.Log, parts_.Sound, Game(), kLinkSound);
  const auto entry = static_cast<std::size_t>(index) - 1;
  OpenLink(parts_.Links, index > 0 && entry < news_.Entries.size()
                             ? news_.Entries[entry].Address
                             : PageAddress(parts_.Paths.NewsAddress, WebPage::Main));
}

void OrrerixMain::OpenLogoPage(bool firstHalf) {
  OpenLink(parts_.Links, PageAddress(parts_.Paths.NewsAddress,
                                     firstHalf ? WebPage::FirstClan : WebPage::GameServer));
}

// The form may be just being shown, which has to be done before it gives way; and so have an import
// and the warning.
void OrrerixMain::QueueFocus() {
  QTimer::singleShot(0, this, [this] {
    if (isVisible() && !warning_ && !importRuns_) FormGotFocus();
  });
}

void OrrerixMain::FormGotFocus() {
  Routine routine(parts_.Log, "OrrerixMain.Form_GotFocus");
  routine.Run([&] {
    if (!IsUpdateDue(parts_.Version, news_.LatestVersion, updateNoticeShown_)) return;
    updateNoticeShown_ = true;
    if (OnUpdate) OnUpdate(news_);
  });
}

void OrrerixMain::PrintTheMap() {
  if (printSide_ > 0) return;
  const auto yield = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
  Routine routine(parts_.Log, "OrrerixMain.PrintTheMap");
  routine.Run([&] {
    const Qt::WindowStates state = windowState();
    const QRect place = state == Qt::WindowNoState ? geometry() : normalGeometry();
    setWindowState(Qt::WindowNoState);
    map_.State().PrintMode = true;
    const QRect screenRect = screen()->geometry();
    printSide_ = static_cast<int>(Twips(screenRect.height()));
    SetOuterGeometry({screenRect.topLeft(), QSize(screenRect.height(), screenRect.height())});
    FormResize();
    yield();
    routine.Try([&] {
      PrintForm(*this, map_.Frame(), parts_.Printing.DefaultPrinter(), parts_.Speech.Current);
    });
    yield();
    map_.State().PrintMode = false;
    printSide_ = 0;
    setGeometry(place);
    setWindowState(state);
    FormResize();
  });
  printSide_ = 0;
}

void OrrerixMain::closeEvent(QCloseEvent* event) {
  if (importRuns_) {
    // The import is on the stack below this event: it has to end first.
    host_.End();
    event->ignore();
    return;
  }
  event->accept();
  stations_.CloseAll();
  if (OnQueryUnload) OnQueryUnload();
}

}  // namespace orrerix
