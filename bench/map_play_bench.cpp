// SPDX-License-Identifier: MIT
// From an event of the mouse to the painted map, on a form of 1920 by 1080 pixels.
#include <chrono>
#include <cmath>
#include <functional>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "map_window.h"

namespace orrerix {
namespace {

using Step = std::function<double(MapWindow&)>;

// Times one step again and again, each after `back`, which is not measured.
void Time(benchmark::State& state, MapWindow& window, const Step& step, const Step& back) {
  for (auto _ : state) {
    back(window);
    state.SetIterationTime(step(window));
  }
}

void Hover(benchmark::State& state, MapWindow& window) {
  window.Click(window.CellMiddle(8, 9));
  const std::vector<QPointF> icons = window.Icons();
  if (icons.empty()) return state.SkipWithError("the cell has no icons");
  std::size_t next = 0;
  for (auto _ : state) {
    window.Move(window.Nowhere());
    state.SetIterationTime(window.Move(icons[next++ % icons.size()]));
  }
}

void EndHover(benchmark::State& state, MapWindow& window) {
  window.Click(window.CellMiddle(8, 9));
  if (window.Icons().empty()) return state.SkipWithError("the cell has no icons");
  Time(
      state, window, [](MapWindow& w) { return w.Move(w.Nowhere()); },
      [](MapWindow& w) { return w.Move(w.Icons().front()); });
}

void Unfold(benchmark::State& state, MapWindow& window) {
  Time(
      state, window, [](MapWindow& w) { return w.Move(*w.Middle(ControlId::OptionsCaption, 0)); },
      [](MapWindow& w) { return w.Move(w.Nowhere()); });
}

void Switch(benchmark::State& state, MapWindow& window) {
  window.Move(*window.Middle(ControlId::OptionsCaption, 0));
  Time(
      state, window, [](MapWindow& w) { return w.Click(*w.Middle(ControlId::OptionSwitch, 4)); },
      [](MapWindow&) { return 0.0; });
}

void NextLanguage(benchmark::State& state, MapWindow& window) {
  Time(
      state, window, [](MapWindow& w) { return w.Click(*w.Middle(ControlId::OptionLabel, 6)); },
      [](MapWindow&) { return 0.0; });
}

void Band(benchmark::State& state, MapWindow& window) {
  window.Click(window.CellMiddle(8, 9));
  double step = 0;
  for (auto _ : state) {
    step += 1;
    QMouseEvent press(QEvent::MouseButtonPress, {20, 20}, {20, 20}, Qt::LeftButton, Qt::LeftButton,
                      {});
    QApplication::sendEvent(window.Map().Frame().viewport(), &press);
    const QPointF to(500 + 200 * std::sin(step), 500 + 200 * std::cos(step));
    QMouseEvent move(QEvent::MouseMove, to, to, Qt::NoButton, Qt::LeftButton, {});
    const auto start = std::chrono::steady_clock::now();
    QApplication::sendEvent(window.Map().Frame().viewport(), &move);
    QCoreApplication::processEvents();
    state.SetIterationTime(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
}

// Into four by four cells, whose pictures have been shown in this size before.
void ZoomAgain(benchmark::State& state, MapWindow& window) {
  const Step in = [](MapWindow& w) { return w.Drag(w.CellMiddle(6, 6), w.CellMiddle(9, 9)); };
  const Step out = [](MapWindow& w) { return w.Click(w.Nowhere(), Qt::RightButton); };
  in(window);
  out(window);
  Time(state, window, in, out);
}

// Into squares of one to twelve cells, each for the first time.
void ZoomFirst(benchmark::State& state, MapWindow& window) {
  int cells = 0;
  for (auto _ : state) {
    cells = cells % 12 + 1;
    state.SetIterationTime(
        window.Drag(window.CellMiddle(3, 3), window.CellMiddle(2 + cells, 2 + cells)));
    window.Click(window.Nowhere(), Qt::RightButton);
  }
}

void ZoomOut(benchmark::State& state, MapWindow& window) {
  Time(
      state, window, [](MapWindow& w) { return w.Click(w.Nowhere(), Qt::RightButton); },
      [](MapWindow& w) { return w.Drag(w.CellMiddle(6, 6), w.CellMiddle(9, 9)); });
}

}  // namespace

void RegisterMapPlayBenchmarks(const std::vector<BenchGame>& games, const fs::path& work) {
  struct Play {
    const char* Name;
    void (*Run)(benchmark::State&, MapWindow&);
    int Iterations;
  };
  for (const BenchGame& game : games) {
    const auto universe = std::make_shared<fs::path>();
    for (const Play& play : {Play{"Hover", Hover, 200}, Play{"EndHover", EndHover, 200},
                             Play{"UnfoldOptions", Unfold, 100}, Play{"Switch", Switch, 100},
                             Play{"Language", NextLanguage, 60}, Play{"RubberBand", Band, 200},
                             Play{"ZoomAgain", ZoomAgain, 60}, Play{"ZoomFirst", ZoomFirst, 12},
                             Play{"ZoomOut", ZoomOut, 60}}) {
      benchmark::RegisterBenchmark((std::string("MapPlay/") + game.Name + "/" + play.Name).c_str(),
                                   [game, work, universe, play](benchmark::State& state) {
                                     if (universe->empty()) *universe = ImportInto(game, work);
                                     MapWindow window(game, *universe);
                                     play.Run(state, window);
                                   })
          ->UseManualTime()
          ->Iterations(play.Iterations)
          ->Unit(benchmark::kMillisecond);
    }
  }
}

}  // namespace orrerix
