// SPDX-License-Identifier: MIT
// The workbench beside the map, and what its pages ask of the map.
#include <QShortcut>

#include "forms/controls/captions.h"
#include "forms/orrerix_main.h"
#include "forms/workbench/bookmarks_page.h"
#include "forms/workbench/find_page.h"
#include "forms/workbench/layers_page.h"
#include "map/grid/map_places.h"
#include "platform/game_path.h"
#include "shell/game_record.h"
#include "shell/routine.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;

GameFolder OrrerixMain::Game() const {
  return GameFolder(GameFolderText());
}

void OrrerixMain::MakeTools() {
  MakePages();
  MakeKeys();
  space_.OnRead = [this] {
    ShowSummary();
    if (layersPage_ != nullptr) layersPage_->ShowContent();
  };
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
    layersPage_ = page.get();
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

// In the room of the news, while there are none.
void OrrerixMain::ShowSummary() {
  constexpr std::size_t mostNames = 12;
  if (space_.Shown() == nullptr || map_.HasNews()) return summary_->hide();
  const ZoomRectangle& view = map_.State().Zoom.Current();
  summary_->Show(SummaryOf(*space_.Shown(), {{view.X1, view.Y1}, {view.X2, view.Y2}}, mostNames),
                 !view.IsZoomed(), map_.Drawing());
}

void OrrerixMain::FollowSummary(const SummaryLine& line) {
  const ZoomRectangle& view = map_.State().Zoom.Current();
  const bool isSystem = view.Columns() == 1 && view.Rows() == 1;
  switch (line.Kind) {
    case SummaryKind::Base:
      ShowOnMap(line.Nickname);
      return;
    case SummaryKind::Gate:
      return ShowCell(*line.Cell);
    case SummaryKind::Systems:
    case SummaryKind::System:
      return tools_.ShowInAtlas("systems", line.Name);
    case SummaryKind::Bases:
    case SummaryKind::More:
      return tools_.ShowInAtlas(
          "bases", isSystem ? map_.State().Names.Of({view.X1, view.Y1}) : std::string());
    case SummaryKind::Owners:
    case SummaryKind::Owner:
      return tools_.ShowInAtlas("factions", line.Name);
    case SummaryKind::Gates:
    case SummaryKind::Holes:
    case SummaryKind::Bodies:
    case SummaryKind::Zones:
    case SummaryKind::Wrecks:
      return tools_.ShowPage(TextId::LayersPage);
  }
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

}  // namespace orrerix
