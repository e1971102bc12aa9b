// SPDX-License-Identifier: MIT
// The drawing list of the map, whole grid and zoomed.
#include <memory>

#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "bench_sinks.h"
#include "db/engine/working_copy.h"
#include "map/redraw.h"
#include "shell/version.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

void DrawingList(benchmark::State& state, const BenchGame& game, const fs::path& work,
                 const ZoomRectangle& rectangle) {
  MustWork sink;
  SilentMessages messages;
  ErrorLog log(messages, CurrentVersion());
  WorkingCopy copy;
  Universe universe{log, copy.Of(sink, ImportInto(game, work))};
  FixedLanguage english(Language::English);
  FixedTextMeasure measure;
  const PanelContent panel = PanelTexts(english);
  MapState map;
  map.Zoom.Reset(rectangle);
  map.Names = GetSystemNames(universe, english);
  const MapView view{28800, 16200, MapOptions::Defaults(rectangle.IsZoomed()), measure, panel};
  std::size_t controls = 0;
  for (auto _ : state) controls = DrawMap(universe, map, view).Controls.size();
  state.counters["controls"] = static_cast<double>(controls);
}

}  // namespace

void RegisterRedrawBenchmarks(const std::vector<BenchGame>& games, const fs::path& work) {
  struct View {
    const char* Name;
    ZoomRectangle Rectangle;
  };
  for (const BenchGame& game : games) {
    for (const View& view : {View{"whole", {}}, View{"zoomed", {7, 5, 10, 8}}}) {
      benchmark::RegisterBenchmark(("DrawingList/" + game.Name + "/" + view.Name).c_str(),
                                   [game, work, view](benchmark::State& state) {
                                     DrawingList(state, game, work, view.Rectangle);
                                   })
          ->Unit(benchmark::kMillisecond);
    }
  }
}

}  // namespace orrerix
