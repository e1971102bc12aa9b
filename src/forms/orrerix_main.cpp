// SPDX-License-Identifier: MIT
#include "forms/orrerix_main.h"

#include <QCloseEvent>
#include <QImage>
#include <QScreen>
#include <utility>

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "forms/controls/form_geometry.h"
#include "map/game_sounds.h"
#include "online/web_pages.h"
#include "platform/game_path.h"
#include "platform/long_names.h"
#include "platform/path_text.h"
#include "shell/files.h"
#include "shell/game_record.h"
#include "shell/routine.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr QSize kSmallestForm{640, 480};
constexpr int kDecorationDelay = 100;  // milliseconds
constexpr QRgb kGround = 0xFF04081C;

}  // namespace

OrrerixMain::OrrerixMain(const FormParts& parts, Settings& settings, LanguageFile& language,
                         const MemoryStatus& startMemory, JetVersionOption format)
    : parts_(parts),
      settings_(settings),
      language_(language),
      startMemory_(startMemory),
      format_(format),
      gameMissing_(parts.Messages),
      importScreen_(new ImportScreen(parts.Pictures, parts.Speech, this)),
      map_(parts.Pictures, settings, language, this),
      mapController_(map_, *this, parts.Log, settings, language, parts.Sound),
      search_(map_, *this, mapController_, parts.Log, language),
      newsController_(map_, parts.Log),
      stations_({parts.Log, parts.Pictures, parts.Sound, language, map_.State().Names,
                 [this](Routine& routine) { return OpenUniverse(routine); },
                 [this] { return frameGeometry().size() - size(); },
                 [this](const std::string& place) { tools_.ShowGoodsFrom(place); },
                 [this](const std::string& place) { tools_.ShowTradesFrom(place); },
                 [this](const std::string& place) { tools_.ShowWayTo(place); },
                 [this] { return &tools_.Remembered(); }}),
      tools_(*this, parts, format),
      space_(map_, tools_.Remembered(), parts.Speech),
      actions_(map_, space_, parts.Log, parts.Speech),
      moves_(map_, parts.Log, [this] { Redraw(); }),
      toolsEntry_(map_.Frame(), parts.Speech, [this] { tools_.Open(); }),
      changeNotice_(map_.Frame(), [this] { ImportAgain(); }),
      marks_(new MapMarks(map_.Frame())),
      way_(new MapWay(map_.Frame())),
      summary_(new SummaryView(&map_.Frame(), parts.Speech,
                               [this](const SummaryLine& line) { FollowSummary(line); })) {
  setObjectName("OrrerixMain");
  setMinimumSize(kSmallestForm);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, QColor(kGround));
  setPalette(colors);
  newsController_.OnMoved = [this] { mapController_.NewsMoved(); };
  QObject::connect(&importScreen_->StartButton(), &QPushButton::clicked, this, [this] {
    if (!gameMissing_.IsOpen()) StartImport();
  });
  MakeTools();
  lookForGame_.setSingleShot(true);
  QObject::connect(&lookForGame_, &QTimer::timeout, this, [this] { LookForGame(); });
}

OrrerixMain::~OrrerixMain() = default;

bool OrrerixMain::Load() {
  bool leaves = false;
  Routine routine(parts_.Log, "OrrerixMain.Form_Load",
                  "While opening Database and checking for version.");
  routine.Run([&] {
    const StartPaths& paths = parts_.Paths;
    routine.Try([&] {
      saveFolder_ = paths.SaveFolder ? *paths.SaveFolder
                                     : SaveFolderBelow(PathOf(parts_.Registry.GetPersonalFolder()));
    });
    MakeShortcuts(parts_.Log, routine, parts_.Registry, paths.ApplicationFolder, paths.Executable,
                  parts_.Version);
    startFolder_ = saveFolder_;
    importScreen_->GameFolderEdit().setText(QString::fromStdString(parts_.GamePath()));
    saveFolder_ = SaveFolderOfGame(startFolder_, GameFolderText());
    setWindowTitle(QString::fromStdString(StartCaption(parts_.Version)));
    ReplaceStarMap(routine, paths.ApplicationFolder / "SysMap.jpg");
    leaves = !ExamineUniverseFile(routine);
    if (leaves) return;
    ReadCaptions();
    setWindowState(windowState() | Qt::WindowMaximized);
  });
  phase_ = Phase::FirstRun;
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

void OrrerixMain::ReadCaptions() {
  Routine routine(parts_.Log, "OrrerixMain.LoadFormTXT", "While reading language-text.");
  routine.Run([&] {
    language_.SetCurrent(static_cast<Language>(routine.Integer(
        Val(settings_.ReadSetting("LANG")), static_cast<std::int16_t>(language_.Current()))));
    map_.ReadCaptions();
  });
}

void OrrerixMain::ShowLoaded() {
  isMaximized() ? ShowMaximised() : show();
}

void OrrerixMain::ShowMaximised() {
  // Where no window manager answers the form fills the screen all the same.
  setGeometry(screen()->availableGeometry());
  showMaximized();
}

// What a desktop remembers as the form's own size may leave no room for the decoration.
void OrrerixMain::KeepOnScreen() {
  if (windowState() != Qt::WindowNoState || phase_ == Phase::Printing) return;
  const QRect inside = geometry();
  const QRect outer = frameGeometry();
  const QMargins decoration(inside.left() - outer.left(), inside.top() - outer.top(),
                            outer.right() - inside.right(), outer.bottom() - inside.bottom());
  const QRect fitted = InsideWithin(inside, decoration, screen()->availableGeometry());
  if (fitted != inside) setGeometry(fitted);
}

void OrrerixMain::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Redraw();
}

void OrrerixMain::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) {
    Redraw();
    // The desktop reports the decoration of a form that is no longer maximised a moment later.
    QTimer::singleShot(kDecorationDelay, this, [this] { KeepOnScreen(); });
  }
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) QueueFocus();
}

void OrrerixMain::Redraw() {
  if (phase_ == Phase::Loading || phase_ == Phase::Warning || isMinimized()) return;
  // The question about a failure lets events through, which may ask for a redraw.
  redraw_.Run([this] { ShowScreen(); });
}

void OrrerixMain::ShowScreen() {
  std::error_code ignored;
  if (Importing() || !fs::exists(UniverseFile(), ignored)) {
    ShowImportScreen();
  } else {
    ShowMap();
  }
}

void OrrerixMain::ShowMap() {
  const std::string gameName = TextOf(LongNames(PathOf(GameFolderText())).filename());
  setWindowTitle(QString::fromStdString(MapCaption(parts_.Version) + " - " + gameName));
  importScreen_->HideProgress();
  importScreen_->hide();
  Routine routine(parts_.Log, "OrrerixMain.Form_Resize");
  routine.Run([&] {
    const bool isNew = phase_ != Phase::Map && phase_ != Phase::Printing;
    if (isNew) phase_ = Phase::Map;
    const bool warns = isNew && OnFirstMap && IsWarningWanted(routine, UniverseFile());
    Universe universe = OpenUniverse(routine);
    map_.InitDataUsage(universe);
    if (warns && !AskBeforeFirstMap()) return;
    OnFirstMap = nullptr;
    const QSize drawn = DrawnSize();
    map_.Redraw(universe, drawn.width(), drawn.height());
    mapController_.MapRedrawn();
    newsController_.MapRedrawn();
    space_.MapRedrawn();
    toolsEntry_.Follow(map_.Drawing());
    marks_->Follow(map_.Drawing());
    way_->Follow(map_.Drawing());
    ShowSummary();
    // Not every desktop gives the focus to a form that is just shown.
    if (isNew) QueueFocus();
    if (isNew) map_.Frame().setFocus();
    if (isNew) tools_.UniverseShown();
    if (isNew) ReadSpace();
  });
}

// False if the user would rather leave the program.
bool OrrerixMain::AskBeforeFirstMap() {
  phase_ = Phase::Warning;
  setEnabled(false);
  const bool goesOn = std::exchange(OnFirstMap, nullptr)();
  setEnabled(true);
  if (goesOn) {
    phase_ = Phase::Map;
  } else {
    // The form is just being shown: it goes when that is done.
    QTimer::singleShot(0, this, [this] { hide(); });
  }
  return goesOn;
}

Universe OrrerixMain::OpenUniverse(Routine& routine) {
  return {parts_.Log, copy_.Of(routine, UniverseFile())};
}

void OrrerixMain::ShowStation(const std::string& nickname, const std::string& picture) {
  lastStation_ = nickname;
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

void OrrerixMain::ShowNews(const std::string& text) {
  Routine routine(parts_.Log, "OrrerixMain.InfoBoxLabelFillup", "While building up News-Table.");
  routine.Run([&] {
    news_ = ReadNews(text);
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

// Calls GotFocus once the form is shown, unless an import runs or the warning is open.
void OrrerixMain::QueueFocus() {
  QTimer::singleShot(0, this, [this] {
    if (isVisible() && phase_ != Phase::Warning && !import_) GotFocus();
  });
}

void OrrerixMain::GotFocus() {
  Routine routine(parts_.Log, "OrrerixMain.Form_GotFocus");
  routine.Run([&] {
    if (!OnUpdate || !IsUpdateDue(parts_.Version, news_.LatestVersion)) return;
    std::exchange(OnUpdate, nullptr)(news_);
  });
}

void OrrerixMain::closeEvent(QCloseEvent* event) {
  if (import_) {
    // The import is on the stack below this event: it has to end first.
    import_->End();
    event->ignore();
    return;
  }
  event->accept();
  if (phase_ == Phase::Map) RememberView();
  stations_.CloseAll();
  if (OnClosed) OnClosed();
}

}  // namespace orrerix
