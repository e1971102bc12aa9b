// SPDX-License-Identifier: MIT
#include "forms/orrerix_main.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QToolTip>
#include <utility>

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "forms/controls/captions.h"
#include "forms/controls/form_geometry.h"
#include "forms/print_form.h"
#include "forms/start/import_screen_layout.h"
#include "forms/workbench/bookmarks_page.h"
#include "forms/workbench/find_page.h"
#include "forms/workbench/layers_page.h"
#include "import/log_entry.h"
#include "map/game_sounds.h"
#include "map/grid/map_places.h"
#include "online/web_pages.h"
#include "picture/plain_tool_tip.h"
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

// A game folder as it is typed in, without what stands after it by accident.
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
                 [this](const std::string& place) { tools_.ShowWayTo(place); }}),
      tools_(*this, parts, format),
      space_(map_, tools_.Remembered(), parts.Speech),
      actions_(map_, space_, parts.Log, parts.Speech),
      moves_(map_, parts.Log, [this] { Redraw(); }),
      toolsEntry_(map_.Frame(), parts.Speech, [this] { tools_.Open(); }),
      changeNotice_(map_.Frame(), [this] { ImportAgain(); }),
      marks_(new MapMarks(map_.Frame())),
      way_(new MapWay(map_.Frame())) {
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
  QTimer::singleShot(kDecorationDelay, this, [this, outer] {
    if (Importing() && windowState() == Qt::WindowNoState) SetOuterGeometry(outer);
  });
}

void OrrerixMain::SetOuterGeometry(const QRect& outer) {
  const QSize decoration = frameGeometry().size() - size();
  move(outer.topLeft());
  resize(outer.size() - decoration);
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

// Outer size of the form that the map is drawn for, twips.
QSize OrrerixMain::DrawnSize() const {
  if (phase_ != Phase::Printing) return {OuterWidth(*this), OuterHeight(*this)};
  const int side = static_cast<int>(Twips(screen()->geometry().height()));
  return {side, side};
}

Universe OrrerixMain::OpenUniverse(Routine& routine) {
  return {parts_.Log, copy_.Of(routine, UniverseFile())};
}

GameFolder OrrerixMain::Game() const {
  return GameFolder(GameFolderText());
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

void OrrerixMain::PrintTheMap() {
  if (phase_ != Phase::Map) return;
  const auto yield = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
  Routine routine(parts_.Log, "OrrerixMain.PrintTheMap");
  routine.Run([&] {
    const Qt::WindowStates state = windowState();
    const QRect place = state == Qt::WindowNoState ? geometry() : normalGeometry();
    setWindowState(Qt::WindowNoState);
    map_.State().PrintMode = true;
    const QRect screenRect = screen()->geometry();
    phase_ = Phase::Printing;
    SetOuterGeometry({screenRect.topLeft(), QSize(screenRect.height(), screenRect.height())});
    Redraw();
    yield();
    routine.Try([&] {
      PrintForm(*this, map_.Frame(), parts_.Printing.DefaultPrinter(), parts_.Speech.Current);
    });
    yield();
    map_.State().PrintMode = false;
    phase_ = Phase::Map;
    setGeometry(place);
    setWindowState(state);
    Redraw();
  });
  phase_ = Phase::Map;
}

void OrrerixMain::MakeTools() {
  MakePages();
  MakeKeys();
  const auto onKey = [this](const QKeySequence& keys, auto act) {
    QObject::connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
  };
  map_.Frame().installEventFilter(this);
  onKey(Qt::Key_F1, [this] { tools_.ShowKeys(); });
  onKey(Qt::Key_F2, [this] { tools_.Open(); });
  onKey(Qt::Key_F5, [this] { ImportAgain(); });
  onKey(QKeySequence::Find, [this] {
    if (phase_ != Phase::Map) return;
    search_.Visible() ? FindAnything() : search_.OpenSearch(SearchType::Place);
  });
  onKey(Qt::CTRL | Qt::Key_G, [this] {
    if (phase_ == Phase::Map) tools_.FindGood(search_.Text());
  });
  search_.OnFindGood = [this](const std::string& text) { tools_.FindGood(text); };
  mapController_.OnJumpEnd = [this](const Control& icon) { GoThroughGate(icon); };
  tools_.OnReplaced = [this] {
    ReadSpace();
    changeNotice_.Hide();
    way_->Hide();
    map_.ForgetNames();
    Redraw();
  };
  tools_.OnChangeSeen = [this](bool changed) {
    if (!changed) return changeNotice_.Hide();
    changeNotice_.Show(CaptionIn(parts_.Speech.Current, TextId::FilesChanged));
  };
}

// Keys of the map that need no tools.
void OrrerixMain::MakeKeys() {
  const auto onKey = [this](const QKeySequence& keys, auto act) {
    QObject::connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, act] {
      if (phase_ == Phase::Map) (this->*act)();
    });
  };
  onKey(Qt::CTRL | Qt::SHIFT | Qt::Key_F, &OrrerixMain::FindAnything);
  onKey(Qt::CTRL | Qt::Key_D, &OrrerixMain::AddBookmark);
  onKey(QKeySequence::Copy, &OrrerixMain::CopyCoordinates);
  onKey(QKeySequence::Save, &OrrerixMain::SaveMapPicture);
}

void OrrerixMain::MakePages() {
  tools_.AddPage([this] {
    FindPage::Actions actions;
    actions.ShowCell = [this](MapCell cell) { ShowCell(cell); };
    actions.ShowInAtlas = [this](const std::string& table, const std::string& name) {
      tools_.ShowInAtlas(table, name);
    };
    auto page = std::make_unique<FindPage>(*this, parts_.Speech, std::move(actions));
    findPage_ = page.get();
    return page;
  });
  tools_.AddPage([this] {
    auto page = std::make_unique<LayersPage>(space_, parts_.Speech);
    space_.OnRead = [shown = page.get()] { shown->ShowContent(); };
    return page;
  });
  tools_.AddPage([this] {
    auto page = std::make_unique<BookmarksPage>(
        parts_.Speech, parts_.Paths.ApplicationFolder / "Orrerix-Bookmarks.txt",
        BookmarksPage::Actions{[this] { return actions_.BookmarkOfView(); },
                               [this](const Bookmark& mark) { ShowBookmark(mark); }});
    bookmarksPage_ = page.get();
    return page;
  });
}

void OrrerixMain::ShowCell(MapCell cell) {
  const ZoomRectangle view{cell.X, cell.Y, cell.X, cell.Y};
  if (phase_ != Phase::Map || view == map_.State().Zoom.Current()) return;
  map_.State().Zoom.PushZoomStack(parts_.Log, view);
  Redraw();
}

// A station's bookmark opens its window; of what is gone from the universe its view is left.
void OrrerixMain::ShowBookmark(const Bookmark& mark) {
  if (phase_ != Phase::Map || (!mark.Place.empty() && ShowOnMap(mark.Place))) return;
  if (mark.View == map_.State().Zoom.Current()) return;
  map_.State().Zoom.PushZoomStack(parts_.Log, mark.View);
  Redraw();
}

void OrrerixMain::FindAnything() {
  const QString text = QString::fromStdString(search_.Text());
  tools_.ShowPage(TextId::FindPage);
  findPage_->Begin(text);
}

void OrrerixMain::AddBookmark() {
  const Bookmark mark = actions_.BookmarkAt(actions_.Pointer());
  tools_.ShowPage(TextId::BookmarksPage);
  bookmarksPage_->Add(mark);
}

void OrrerixMain::CopyCoordinates() {
  const QString text = QString::fromStdString(actions_.CoordinatesAt(actions_.Pointer()));
  if (text.isEmpty()) return;
  QGuiApplication::clipboard()->setText(text);
  QToolTip::showText(
      QCursor::pos(),
      PlainToolTip(FormatIn(parts_.Speech.Current, TextId::CoordinatesCopied, text.toStdString())),
      &map_.Frame());
}

void OrrerixMain::SaveMapPicture() {
  const QString answer = actions_.SaveAs(*this);
  if (!answer.isEmpty()) QToolTip::showText(QCursor::pos(), PlainToolTip(answer), &map_.Frame());
}

// Shows the system at the other side.
void OrrerixMain::GoThroughGate(const Control& icon) {
  const Gate* gate = space_.GateAt(Pixels(icon.Place).center());
  if (gate == nullptr) return;
  const MapCell there = gate->OtherCell;
  mapController_.Box().EndHover();
  if (mapController_.PushZoomStack({there.X, there.Y, there.X, there.Y})) Redraw();
}

bool OrrerixMain::ShowOnMap(const std::string& nickname) {
  if (phase_ != Phase::Map) return false;
  bool isThere = false;
  Routine routine(parts_.Log, "OrrerixMain.StSearchList_DblClick");
  routine.Run([&] {
    Universe universe = OpenUniverse(routine);
    isThere = JumpTargetOf(routine, universe, nickname).has_value();
  });
  if (isThere) search_.Jump(nickname);
  return isThere;
}

bool OrrerixMain::ShowWay(const std::vector<ShownLeg>& legs) {
  if (phase_ != Phase::Map) return false;
  std::vector<MapWayLeg> shown;
  Routine routine(parts_.Log, "OrrerixMain.ShowWay");
  routine.Run([&] {
    Universe universe = OpenUniverse(routine);
    MapPlaces places(routine, universe);
    for (const ShownLeg& leg : legs) {
      const auto from = places.Find(leg.From);
      const auto to = places.Find(leg.To);
      if (from && to) shown.push_back({leg.Kind, *from, *to});
    }
  });
  way_->Show(std::move(shown));
  return way_->IsShown();
}

std::string OrrerixMain::StartPlace() {
  const ZoomRectangle& view = map_.State().Zoom.Current();
  if (phase_ != Phase::Map || view.Columns() > 1 || view.Rows() > 1) return lastStation_;
  std::string system;
  Routine routine(parts_.Log, "OrrerixMain.StartPlace");
  routine.Run([&] {
    Universe universe = OpenUniverse(routine);
    system = MapPlaces(routine, universe).SystemIn({view.X1, view.Y1});
  });
  return system.empty() ? lastStation_ : system;
}

// The first Escape takes the way off the map; without one it goes back, as on every map.
bool OrrerixMain::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && way_->IsShown() && watched == &map_.Frame() &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    way_->Hide();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void OrrerixMain::ImportAgain() {
  if (phase_ == Phase::Map) tools_.ImportAgain();
}

void OrrerixMain::OpenGame(const std::string& folder) {
  if (phase_ != Phase::Map && phase_ != Phase::FirstRun) return;
  const GameFolder game(folder);
  if (!game.FindFile(game.Text() + "\\exe\\Freelancer.exe")) {
    tools_.ShowState(
        QString::fromStdString(FormatIn(parts_.Speech.Current, TextId::NoGameIn, folder)));
    return;
  }
  RememberView();
  importScreen_->GameFolderEdit().setText(QString::fromStdString(folder));
  saveFolder_ = SaveFolderOfGame(startFolder_, folder);
  stations_.CloseAll();
  changeNotice_.Hide();
  marks_->Mark({});
  way_->Hide();
  lastStation_.clear();
  map_.ForgetNames();
  space_.Forget();
  map_.State().Zoom = {};
  RecallView();
  phase_ = Phase::FirstRun;
  Routine routine(parts_.Log, "OrrerixMain.Form_Load",
                  "While opening Database and checking for version.");
  bool goesOn = true;
  routine.Run([&] { goesOn = ExamineUniverseFile(routine); });
  if (goesOn) Redraw();
}

namespace {

QString ViewKey(const fs::path& saveFolder) {
  return "view/" + QString::fromStdString(saveFolder.filename().string());
}

}  // namespace

// Where the map was left, for when this universe is opened again.
void OrrerixMain::RememberView() {
  const ZoomRectangle& shown = map_.State().Zoom.Current();
  tools_.Remembered().setValue(
      ViewKey(saveFolder_),
      QString("%1 %2 %3 %4").arg(shown.X1).arg(shown.Y1).arg(shown.X2).arg(shown.Y2));
}

void OrrerixMain::RecallView() {
  const QStringList sides =
      tools_.Remembered().value(ViewKey(saveFolder_)).toString().split(' ', Qt::SkipEmptyParts);
  if (sides.size() != 4) return;
  const ZoomRectangle view{sides[0].toInt(), sides[1].toInt(), sides[2].toInt(), sides[3].toInt()};
  if (view.IsValid() && view.IsZoomed()) map_.State().Zoom.PushZoomStack(parts_.Log, view);
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
