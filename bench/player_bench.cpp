// SPDX-License-Identifier: MIT
// What a player waits for: a keystroke in the search, a selected row with its sellers, a station
// window.
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <algorithm>
#include <functional>
#include <string>

#include <benchmark/benchmark.h>

#include "forms/controls/control_name.h"
#include "map_window.h"

namespace orrerix {
namespace {

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  QCoreApplication::processEvents();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

template <typename Child>
Child& Part(MapWindow& window, ControlId id) {
  return *window.Map().Frame().findChild<Child*>(NameOf(id));
}

void OpenSearch(MapWindow& window, int tool) {
  window.Click(*window.Middle(ControlId::Tool, tool));
  QCoreApplication::processEvents();
}

void Press(QWidget& control, int key, const QString& text = {}) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&control, &press);
}

// One letter into the empty box, which most names hold, and back.
void Keystroke(benchmark::State& state, MapWindow& window, int tool) {
  OpenSearch(window, tool);
  auto& text = Part<QLineEdit>(window, ControlId::SearchText);
  for (auto _ : state) {
    text.clear();
    QCoreApplication::processEvents();
    state.SetIterationTime(Seconds([&] { Press(text, Qt::Key_E, "e"); }));
  }
}

void SelectedRow(benchmark::State& state, MapWindow& window) {
  OpenSearch(window, 2);
  auto& list = Part<QListWidget>(window, ControlId::FoundList);
  int row = 0;
  for (auto _ : state) {
    row = (row + 7) % std::max(1, list.count());
    state.SetIterationTime(Seconds([&] { list.setCurrentRow(row); }));
  }
}

// The icons of the cell that shows most of them.
void Station(benchmark::State& state, MapWindow& window) {
  window.Click(window.CellMiddle(8, 9));
  std::vector<int> icons;
  for (const Control& control : window.Map().Drawing().Controls) {
    if (control.Id != ControlId::MapIcon || control.Picture->starts_with("Jump")) continue;
    icons.push_back(control.Index.value_or(0));
  }
  if (icons.empty()) return state.SkipWithError("the cell has no icons");
  std::size_t next = 0;
  for (auto _ : state) {
    state.SetIterationTime(
        Seconds([&] { window.Form().Controller().OpenStationOf(icons[next++ % icons.size()]); }));
    const auto& windows = window.Form().Stations().Windows();
    if (!windows.empty()) windows.back()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

// From its info to its prices and best trades.
void Trades(benchmark::State& state, MapWindow& window) {
  window.Click(window.CellMiddle(8, 9));
  StationInfo* busiest = nullptr;
  for (const Control& control : window.Map().Drawing().Controls) {
    if (control.Id == ControlId::MapIcon)
      window.Form().Controller().OpenStationOf(control.Index.value_or(0));
  }
  int most = -1;
  for (const auto& station : window.Form().Stations().Windows()) {
    station->findChild<QAbstractButton*>("Mode_0")->click();
    const int rows =
        station->findChild<PriceTableView*>(NameOf(ControlId::PriceTable))->model()->rowCount();
    if (rows > most) {
      most = rows;
      busiest = station.get();
    }
  }
  if (busiest == nullptr) return state.SkipWithError("the cell has no station");
  state.counters["rows"] = most;
  auto* button = busiest->findChild<QAbstractButton*>("Mode_0");
  for (auto _ : state) {
    button->click();
    state.SetIterationTime(Seconds([&] { button->click(); }));
  }
}

}  // namespace

void RegisterPlayerBenchmarks(const std::vector<BenchGame>& games, const fs::path& work) {
  struct Play {
    const char* Name;
    std::function<void(benchmark::State&, MapWindow&)> Run;
  };
  const auto keystroke = [](int tool) {
    return [tool](benchmark::State& state, MapWindow& window) { Keystroke(state, window, tool); };
  };
  for (const BenchGame& game : games) {
    const auto universe = std::make_shared<fs::path>();
    for (const Play& play :
         {Play{"KeyInPlaces", keystroke(0)}, Play{"KeyInShips", keystroke(1)},
          Play{"KeyInEquipment", keystroke(2)}, Play{"KeyInBribes", keystroke(3)},
          Play{"SelectedRow", SelectedRow}, Play{"Station", Station}, Play{"Trades", Trades}}) {
      benchmark::RegisterBenchmark((std::string("Player/") + game.Name + "/" + play.Name).c_str(),
                                   [game, work, universe, play](benchmark::State& state) {
                                     if (universe->empty()) *universe = ImportInto(game, work);
                                     MapWindow window(game, *universe);
                                     play.Run(state, window);
                                   })
          ->UseManualTime()
          ->Iterations(60)
          ->Unit(benchmark::kMillisecond);
    }
  }
}

}  // namespace orrerix
