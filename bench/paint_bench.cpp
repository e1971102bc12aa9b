// SPDX-License-Identifier: MIT
// A whole redraw of the map: drawing list, scene and paint, at a zoom that was shown before and at
// one that is new.
#include <QApplication>
#include <QImage>
#include <memory>

#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "bench_sinks.h"
#include "db/engine/working_copy.h"
#include "map/redraw.h"
#include "picture/map_scene.h"
#include "picture/map_scene_view.h"
#include "picture/picture_store.h"
#include "picture/qt_text_measure.h"
#include "picture/twips.h"
#include "shell/version.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr QSize kWindow(1920, 1050);

enum class Change {
  Nothing,  // but all is painted again
  Switch,   // trade lanes, off and on
  Zoom      // to one that was never shown
};

struct Redraw {
  ZoomRectangle Rectangle;
  double DevicePixelRatio = 1;
  Change What = Change::Nothing;
};

class PaintBench {
 public:
  PaintBench(const fs::path& database, const Redraw& redraw)
      : redraw_(redraw),
        universe_{log_, copy_.Of(sink_, database)},
        canvas_(kWindow * redraw.DevicePixelRatio, QImage::Format_RGB32) {
    canvas_.setDevicePixelRatio(redraw.DevicePixelRatio);
    map_.Zoom.Reset(redraw.Rectangle);
    map_.Names = GetSystemNames(universe_, english_);
  }

  void Run(benchmark::State& state) {
    auto pictures = std::make_unique<PictureStore>();
    auto scene = std::make_unique<MapScene>(*pictures);
    ShowSharp(*scene, *pictures, kWindow);
    for (auto _ : state) {
      if (redraw_.What == Change::Switch) lanes_ = !lanes_;
      if (redraw_.What == Change::Zoom) {
        state.PauseTiming();
        scene.reset();
        pictures = std::make_unique<PictureStore>();
        scene = std::make_unique<MapScene>(*pictures);
        // All pictures are read by then, and none is of the size that is needed next.
        ShowSharp(*scene, *pictures, kWindow * 0.9);
        state.ResumeTiming();
      }
      Show(*scene, kWindow);
    }
  }

 private:
  void ShowSharp(MapScene& scene, PictureStore& pictures, QSize window) {
    Show(scene, window);
    while (pictures.IsWanting()) pictures.ReadWanted();
    Show(scene, window);
  }

  void Show(MapScene& scene, QSize window) {
    MapOptions options = MapOptions::Defaults(redraw_.Rectangle.IsZoomed());
    options.On[static_cast<std::size_t>(MapSwitch::TradelaneLines)] = lanes_;
    scene.Show(DrawMap(universe_, map_,
                       {static_cast<int>(Twips(window.width())),
                        static_cast<int>(Twips(window.height())), options, measure_, panel_}));
    view_.setScene(&scene);
    view_.resize(window);
    view_.viewport()->render(&canvas_);
  }

  MustWork sink_;
  SilentMessages messages_;
  ErrorLog log_{messages_, CurrentVersion()};
  WorkingCopy copy_;
  Redraw redraw_;
  Universe universe_;
  FixedLanguage english_{Language::English};
  PanelContent panel_ = PanelTexts(english_);
  QtTextMeasure measure_;
  MapState map_;
  QImage canvas_;
  bool lanes_ = true;
  MapSceneView view_;  // a window: pictures get finer after the redraw, which is not measured
};

}  // namespace

void RegisterPaintBenchmarks(const std::vector<BenchGame>& games, const fs::path& work,
                             const std::function<void()>& makeApplication) {
  struct View {
    const char* Name;
    ZoomRectangle Rectangle;
  };
  const auto add = [&](const std::string& name, const BenchGame& game, const Redraw& redraw) {
    const auto run = [game, work, redraw, makeApplication](benchmark::State& state) {
      makeApplication();
      PaintBench(ImportInto(game, work), redraw).Run(state);
    };
    benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMillisecond);
  };
  for (const BenchGame& game : games) {
    for (const View& view : {View{"whole", {}}, View{"half", {1, 1, 9, 9}},
                             View{"zoomed", {7, 5, 10, 8}}, View{"single", {7, 4, 7, 4}}}) {
      for (const double ratio : {1.0, 2.0}) {
        const std::string name = game.Name + "/" + view.Name + (ratio > 1 ? "/fine screen" : "");
        add("Redraw/" + name, game, {view.Rectangle, ratio, Change::Nothing});
        add("SwitchRedraw/" + name, game, {view.Rectangle, ratio, Change::Switch});
        add("FirstRedraw/" + name, game, {view.Rectangle, ratio, Change::Zoom});
      }
    }
  }
}

}  // namespace orrerix
