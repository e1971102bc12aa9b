// SPDX-License-Identifier: MIT
#include "tour.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include <fmt/format.h>

#include "forms/controls/captions.h"
#include "forms/controls/control_name.h"
#include "forms/start/spoiler.h"
#include "forms/start/update.h"
#include "map/grid/map_coords.h"
#include "map/layers/system_pictures.h"
#include "picture/control_items.h"
#include "picture/twips.h"
#include "travel_tour.h"

namespace orrerix {
namespace {

// What is done at once may ask for more to be done, in a few turns. Timers that never rest, as the
// tour has one itself during the import, keep the event loop from ever being idle.
void PassEvents() {
  constexpr int turns = 20;
  for (int turn = 0; turn < turns; ++turn) QCoreApplication::processEvents();
}

template <typename Child>
Child& ChildOf(QWidget& window, const QString& name) {
  if (auto* child = window.findChild<Child*>(name)) return *child;
  throw std::runtime_error(fmt::format("there is no {}", name.toStdString()));
}

// The middle of the cells that have a name: where most is to be seen.
QPointF MiddleOfLabels(const MapDrawing& drawing) {
  QRectF all;
  for (const Control& control : drawing.Controls) {
    if (control.Id == ControlId::SystemLabel)
      all |= QRectF(control.Place.Left, control.Place.Top, 1, 1);
  }
  return all.center();
}

bool HasPicture(const Control& label) {
  for (int i = 0; i < kSystemPictures; ++i) {
    const MapCell cell = CellOfTag(SystemPictureTag(i));
    if (label.Index == static_cast<int>(CellNames::Index(cell))) return true;
  }
  return false;
}

// The named cell with a picture that is nearest to a point.
const Control& NearestLabel(const MapDrawing& drawing, QPointF point) {
  const Control* nearest = nullptr;
  double least = 0;
  for (const Control& control : drawing.Controls) {
    if (control.Id != ControlId::SystemLabel || !HasPicture(control)) continue;
    const QPointF way = QPointF(control.Place.Left, control.Place.Top) - point;
    const double distance = QPointF::dotProduct(way, way);
    if (nearest != nullptr && distance >= least) continue;
    nearest = &control;
    least = distance;
  }
  if (nearest == nullptr) throw std::runtime_error("no system of the map has a picture");
  return *nearest;
}

std::vector<int> Stations(const MapDrawing& drawing) {
  std::vector<int> stations;
  for (const Control& control : drawing.Controls) {
    const std::string picture = control.Picture.value_or("");
    if (control.Id == ControlId::MapIcon && picture != "Jumpgate" && picture != "JumpHole") {
      stations.push_back(control.Index.value_or(0));
    }
  }
  return stations;
}

const char* ViewName(StationMode mode) {
  switch (mode) {
    case StationMode::Prices:
      return "station-prices";
    case StationMode::Trades:
      return "station-trades";
    case StationMode::Ships:
      return "station-ships";
    case StationMode::Equipment:
      return "station-equipment";
    default:
      return "station-info";
  }
}

}  // namespace

bool Tour::Go() {
  try {
    TakeLoading();
    TakeImport();
    TakeMap();
    TakeOptions();
    TakeZoomed();
    TakeHover();
    TakeSearch();
    TakeStation();
    TakeNarrow();
    TakeTools();
    TakeTravel();
    TakeSummary();
    TakeUpdate();
    TakeErrorLog();
    TakeFailure();
  } catch (const std::runtime_error& error) {
    fmt::print(stderr, "the tour ends: {}\n", error.what());
    return false;
  }
  return album_.Complete();
}

void Tour::Wait(const char* what, const std::function<bool()>& isSo) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(5);
  while (!isSo()) {
    if (std::chrono::steady_clock::now() > end) throw std::runtime_error(what);
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  PassEvents();
}

void Tour::TakeLoading() {
  album_.Take("loading", run_.StartForm());
}

// Taken where the picture of the whole import and that of the stage in it can be told apart.
void Tour::TakeImport() {
  bool taken = false;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    TakeSpoiler();
    OrrerixMain* main = run_.Main();
    if (taken || main == nullptr || !main->Importing()) return;
    const int frame = ChildOf<QWidget>(*main, "Progress0").width();
    const auto& overall = ChildOf<QWidget>(*main, "Progress1");
    const int stage = ChildOf<QWidget>(*main, "Progress2").width();
    if (!overall.isVisible() || overall.width() * 2 < frame) return;
    if (stage * 4 < overall.width() || stage * 5 > overall.width() * 4) return;
    taken = true;
    TakeMain("import");
  });
  timer.start(0);  // with every look at the events
  run_.Start();
  Wait("no map came",
       [&] { return run_.Main() != nullptr && run_.Main()->Map().Frame().isVisible(); });
  if (!taken) throw std::runtime_error("the import was too quick for a picture");
}

// The warning waits for an answer before the first map.
void Tour::TakeSpoiler() {
  auto* spoiler = dynamic_cast<Spoiler*>(QApplication::activeModalWidget());
  if (spoiler == nullptr) return;
  album_.Take("spoiler", *spoiler);
  spoiler->accept();
}

void Tour::TakeUpdate() {
  Update update("Version 1.1 is there", pictures_, Language::English);
  update.show();
  PassEvents();
  album_.Take("update", update);
}

void Tour::TakeMap() {
  TakeMain("map");
  for (const int pictures : {0, 1}) Controller().ToggleSwitch(pictures);
  PassEvents();
  TakeMain("map-pictures");
  for (const int pictures : {0, 1}) Controller().ToggleSwitch(pictures);
}

void Tour::TakeOptions() {
  Controller().UnfoldOptions();
  PassEvents();
  TakeMain("map-options");
  Controller().MoveOverMap(PointerButton::None, 0, 0);
}

// Around the system in the middle, `cells` to each side.
void Tour::ZoomInto(int cells) {
  const Control& label = NearestLabel(Drawing(), MiddleOfLabels(Drawing()));
  const TwipRect place = label.Place;
  const double reach = cells * place.Width;
  const auto from = [&](double corner) {
    return static_cast<float>(std::max(10.0, corner + place.Width / 2 - reach));
  };
  const auto to = [&](double corner) {
    return static_cast<float>(corner + place.Width / 2 + reach);
  };
  Controller().PressOnMap(from(place.Left), from(place.Top));
  Controller().ReleaseOnMap(PointerButton::Left, to(place.Left), to(place.Top));
  PassEvents();
}

// With all pictures as fine as they get.
void Tour::TakeMain(const QString& name) {
  run_.Main()->grab();
  Wait("the pictures stay coarse", [this] { return !pictures_.IsWanting(); });
  album_.Take(name, *run_.Main());
}

void Tour::ZoomOut() {
  Controller().PressOnMap(10, 10);
  Controller().ReleaseOnMap(PointerButton::Right, 10, 10);
  PassEvents();
}

void Tour::TakeZoomed() {
  ZoomInto(2);
  TakeMain("map-zoomed");
  ZoomOut();
  ZoomInto(0);
  TakeMain("map-system");
}

void Tour::TakeHover() {
  const std::vector<int> stations = Stations(Drawing());
  if (stations.empty()) throw std::runtime_error("the system in the middle has no station");
  Controller().HoverIcon(stations.front());
  PassEvents();
  TakeMain("hover");
  Controller().MoveOverMap(PointerButton::None, 0, 0);
}

void Tour::ClickPanel(ControlId id, int index) {
  SysmapFrame& frame = run_.Main()->Map().Frame();
  for (const QGraphicsItem* item : frame.scene()->items()) {
    const Control& control = ControlItem::Of(*item);
    if (control.Id != id || control.Index != index) continue;
    const QRectF box(0, 0, Pixels(control.Place.Width), Pixels(control.Place.Height));
    QTest::mouseClick(frame.viewport(), Qt::LeftButton, {},
                      item->mapToScene(box.center()).toPoint());
    PassEvents();
    return;
  }
  throw std::runtime_error(fmt::format("the panel has no {}({})", PrintedName(id), index));
}

void Tour::TakeSearch() {
  ClickPanel(ControlId::Tool, 0);
  auto& places = ChildOf<QWidget>(*run_.Main(), NameOf(ControlId::PlaceList));
  ChildOf<QAbstractButton>(places, "Head1").click();
  PassEvents();
  TakeMain("search-places");
  ClickPanel(ControlId::Tool, 1);
  TakeMain("search-ships");
  run_.Main()->findChild<QAbstractButton*>(NameOf(ControlId::SearchClose))->click();
  PassEvents();
}

// The first station of the map at which ships and equipment are sold; null if there is none.
StationInfo* Tour::OpenRichStation() {
  for (const int icon : Stations(Drawing())) {
    Controller().OpenStationOf(icon);
    PassEvents();
    const auto& windows = run_.Main()->Stations().Windows();
    if (windows.empty()) continue;
    StationInfo& station = *windows.back();
    const auto sells = [&](int mode) {
      return ChildOf<QAbstractButton>(station, NameOf(ControlId::ModeButton, mode)).text() != "X";
    };
    if (sells(2) && sells(3)) return &station;
    station.close();
    PassEvents();
  }
  return nullptr;
}

void Tour::TakeStation() {
  ZoomOut();
  ZoomInto(3);
  StationInfo* station = OpenRichStation();
  if (station == nullptr) throw std::runtime_error("no station sells ships and equipment");
  album_.Take("station-info", *station);
  const auto take = [&](int mode) {
    ChildOf<QAbstractButton>(*station, NameOf(ControlId::ModeButton, mode)).click();
    PassEvents();
    album_.Take(ViewName(station->Mode()), *station);
  };
  for (const int mode : {0, 0, 2, 3}) take(mode);
  station->close();
  PassEvents();
}

// Beside a game in a window of its own.
void Tour::TakeNarrow() {
  OrrerixMain& main = *run_.Main();
  main.showNormal();
  main.resize(720, 780);
  PassEvents();
  TakeMain("map-narrow");
  main.ShowMaximised();
  PassEvents();
}

// The tools' page of a name, with what it has read.
QWidget& Tour::OpenPage(QWidget& window, TextId name) {
  auto& pages = ChildOf<QListWidget>(window, "PageList");
  const auto found = pages.findItems(CaptionIn(Language::English, name), Qt::MatchExactly);
  if (found.isEmpty()) throw std::runtime_error("a page is missing");
  pages.setCurrentItem(found.front());
  PassEvents();
  return *ChildOf<QStackedWidget>(window, "PageStack").currentWidget();
}

void Tour::TakeMapPages(QWidget& window) {
  OpenPage(window, TextId::LayersPage);
  Wait("the layers", [this] { return run_.Main()->Layers().Shown() != nullptr; });
  album_.Take("tools-layers", window);
  QWidget& find = OpenPage(window, TextId::FindPage);
  auto& rows = ChildOf<QTreeWidget>(find, "FindRows");
  ChildOf<QLineEdit>(find, "FindText").setText("station");
  Wait("what was found", [&] { return rows.topLevelItemCount() > 0; });
  album_.Take("tools-find", window);
  QWidget& bookmarks = OpenPage(window, TextId::BookmarksPage);
  ChildOf<QAbstractButton>(bookmarks, "BookmarkAdd").click();
  PassEvents();
  album_.Take("tools-bookmarks", window);
}

void Tour::TakeAtlas(QWidget& window) {
  QWidget& atlas = OpenPage(window, TextId::AtlasPage);
  auto& tables = ChildOf<QListWidget>(atlas, "AtlasTables");
  auto& rows = ChildOf<QTableView>(atlas, "AtlasTable");
  Wait("the tables of the atlas", [&] { return rows.model()->rowCount() > 0; });
  tables.setCurrentRow(1);
  PassEvents();
  rows.selectRow(0);
  PassEvents();
  album_.Take("tools-atlas", window);
}

void Tour::TakeRelations(QWidget& window) {
  QWidget& page = OpenPage(window, TextId::RelationsPage);
  const auto& relations = ChildOf<QTableView>(page, "Relations");
  Wait("the relations", [&] { return relations.model()->rowCount() > 0; });
  album_.Take("tools-relations", window);
}

void Tour::TakeTools() {
  run_.Main()->MapTools().Open();
  QWidget* window = nullptr;
  for (QWidget* form : QApplication::topLevelWidgets()) {
    if (form->objectName() == "Workbench") window = form;
  }
  if (window == nullptr) throw std::runtime_error("the tools have no window");
  auto& pages = ChildOf<QListWidget>(*window, "PageList");
  pages.setCurrentRow(0);
  auto& findings = ChildOf<QTreeView>(*window, "Findings");
  Wait("the check", [&] { return findings.model()->rowCount() > 0; });
  findings.expandToDepth(0);
  findings.setCurrentIndex(findings.model()->index(0, 0, findings.model()->index(0, 0)));
  PassEvents();
  album_.Take("tools-check", *window);
  pages.setCurrentRow(pages.count() - 1);
  PassEvents();
  album_.Take("tools-log", *window);
  TakeMapPages(*window);
  TakeAtlas(*window);
  TakeRelations(*window);
  window->close();
}

void Tour::TakeTravel() {
  ZoomOut();
  TravelTour(
      *run_.Main(), album_,
      [this](const char* what, const std::function<bool()>& isSo) { Wait(what, isSo); },
      [this](const QString& name) { TakeMain(name); })
      .Go();
}

// What stands in the room of the news while there are none.
void Tour::TakeSummary() {
  run_.Main()->ShowNews("1.0\r\n\r\n\r\n");
  ZoomInto(0);
  auto& summary = ChildOf<QWidget>(*run_.Main(), "Summary");
  Wait("the summary", [&] { return summary.isVisible(); });
  TakeMain("map-summary");
  ZoomOut();
}

void Tour::TakeErrorLog() {
  if (!log_.LogWindowOpen()) log_.AddErrorLine("Cant find file: [\\DATA\\missing.ini]");
  PassEvents();
  album_.Take("error-log", run_.LogWindow());
}

void Tour::TakeFailure() {
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    QWidget* question = QApplication::activeModalWidget();
    if (question == nullptr) return;
    timer.stop();
    album_.Take("failure", *question);
    question->close();
  });
  timer.start(50);
  std::ignore = log_.AddDataError(
      "OrrerixMain.Form_Resize", {3021, "No current record.", "Orrerix"}, "While calcing a border");
  PassEvents();
  album_.Take("error-log-failures", run_.LogWindow());
}

}  // namespace orrerix
