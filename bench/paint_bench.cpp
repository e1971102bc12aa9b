// SPDX-License-Identifier: MIT
// A whole redraw of the map: drawing list, scene and paint of the whole window. At a zoom that was
// shown before, with and without a switch of the panel, and at one that is new.
#include <QApplication>
#include <QImage>
#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>

#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "bench_sinks.h"
#include "db/engine/working_copy.h"
#include "map/layers/system_pictures.h"
#include "map/redraw.h"
#include "picture/map_scene.h"
#include "picture/map_scene_view.h"
#include "picture/picture_files.h"
#include "picture/picture_store.h"
#include "picture/qt_text_measure.h"
#include "picture/twips.h"
#include "shell/version.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr QSize kWindow(1920, 1050);
constexpr ZoomRectangle kHalf{1, 1, 9, 9};

enum class Change {
  Nothing,     // but the window is painted again
  Switch,      // trade lanes, off and on
  Names,       // names of systems, off and on: what is still on the map changes, too
  Zoom,        // to one that was never shown, as the user sees it first
  FineZoom,    // the same, until all pictures are as fine as they get
  ZoomFrames,  // the longest time of a zoom in which the window answers to nothing
  GlideFrame   // a frame while the map of before moves
};

struct Redraw {
  ZoomRectangle Rectangle;
  double DevicePixelRatio = 1;
  Change What = Change::Nothing;
};

// Paints as it does in its window.
class WindowView : public MapSceneView {
 public:
  WindowView() {
    OnUnfinished = [] {};
  }
  bool IsInWindow = false;

 protected:
  bool IsOnWindow(const QPainter&) const override { return IsInWindow; }
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
    Show(*scene);
    Sharpen(*scene, *pictures);
    for (auto _ : state) {
      if (redraw_.What == Change::Switch) lanes_ = !lanes_;
      if (redraw_.What == Change::Names) names_ = !names_;
      if (redraw_.What < Change::Zoom) {
        Show(*scene);
        continue;
      }
      state.PauseTiming();
      scene.reset();
      pictures = std::make_unique<PictureStore>();
      scene = std::make_unique<MapScene>(*pictures);
      ShowAnotherZoom(*scene, *pictures);
      state.ResumeTiming();
      if (redraw_.What == Change::ZoomFrames) {
        TakeFrames(*scene, *pictures, state);
        continue;
      }
      if (redraw_.What == Change::GlideFrame) {
        TakeGlideFrame(*scene, state);
        continue;
      }
      Show(*scene);
      if (redraw_.What == Change::FineZoom) Sharpen(*scene, *pictures);
    }
  }

 private:
  // By then the program has read all pictures of systems, and none is of the size that is needed
  // next.
  void ShowAnotherZoom(MapScene& scene, PictureStore& pictures) {
    for (int i = 0; i < kSystemPictures; ++i) {
      pictures.Read(PictureFile(MakePicture(ControlId::SystemPicture, i, {})));
    }
    map_.Zoom.Reset(redraw_.Rectangle.IsZoomed() ? ZoomRectangle{} : kHalf);
    Show(scene);
    Sharpen(scene, pictures);
    map_.Zoom.Reset(redraw_.Rectangle);
  }

  using Clock = std::chrono::steady_clock;

  static double SecondsOf(const std::function<void()>& work) {
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
  }

  // One step of the event loop while nothing else happens. False once there is nothing to do.
  bool Step(PictureStore& pictures) {
    if (const std::optional<QRegion> seen = view_.PaintMore()) {
      if (!seen->isEmpty()) {
        view_.viewport()->render(&canvas_, seen->boundingRect().topLeft(), *seen);
      }
      return true;
    }
    if (!pictures.IsWanting()) return false;
    pictures.ReadWanted(PictureStore::Waiting::ForNothing);
    return true;
  }

  void TakeFrames(MapScene& scene, PictureStore& pictures, benchmark::State& state) {
    view_.IsInWindow = true;
    double longest = SecondsOf([&] { Show(scene); });
    double all = longest;
    for (bool isDone = false; !isDone;) {
      const double step = SecondsOf([&] { isDone = !Step(pictures); });
      longest = std::max(longest, step);
      all += step;
    }
    view_.IsInWindow = false;
    state.SetIterationTime(longest);
    state.counters["all_ms"] = all * 1000;
  }

  void TakeGlideFrame(MapScene& scene, benchmark::State& state) {
    constexpr int longTime = 1000 * 1000;
    view_.IsInWindow = true;
    view_.Glide().SetTime(longTime);
    Show(scene);
    state.SetIterationTime(SecondsOf([&] { Paint(scene); }));
    view_.Glide().SetTime(0);
    view_.Glide().End();
    view_.IsInWindow = false;
  }

  void Sharpen(MapScene& scene, PictureStore& pictures) {
    while (pictures.IsWanting()) {
      pictures.ReadWanted();
      Paint(scene);
    }
  }

  void Show(MapScene& scene) {
    MapOptions options = MapOptions::Defaults(map_.Zoom.Current().IsZoomed());
    options.On[static_cast<std::size_t>(MapSwitch::TradelaneLines)] = lanes_;
    options.On[static_cast<std::size_t>(MapSwitch::SystemNames)] = names_;
    scene.Show(DrawMap(universe_, map_,
                       {static_cast<int>(Twips(kWindow.width())),
                        static_cast<int>(Twips(kWindow.height())), options, measure_, panel_}));
    Paint(scene);
  }

  // The view has the size of the map frame, as in the program.
  void Paint(MapScene& scene) {
    view_.setScene(&scene);
    view_.resize(scene.sceneRect().size().toSize());
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
  bool names_ = true;
  WindowView view_;
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
    auto* registered =
        benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMillisecond);
    if (redraw.What >= Change::ZoomFrames) registered->UseManualTime();
  };
  for (const BenchGame& game : games) {
    for (const View& view : {View{"whole", {}}, View{"half", kHalf}, View{"zoomed", {7, 5, 10, 8}},
                             View{"single", {7, 4, 7, 4}}}) {
      for (const double ratio : {1.0, 2.0}) {
        const std::string name = game.Name + "/" + view.Name + (ratio > 1 ? "/fine screen" : "");
        add("Redraw/" + name, game, {view.Rectangle, ratio, Change::Nothing});
        add("SwitchRedraw/" + name, game, {view.Rectangle, ratio, Change::Switch});
        add("NamesRedraw/" + name, game, {view.Rectangle, ratio, Change::Names});
        add("FirstRedraw/" + name, game, {view.Rectangle, ratio, Change::Zoom});
        add("FineRedraw/" + name, game, {view.Rectangle, ratio, Change::FineZoom});
        add("ZoomFrames/" + name, game, {view.Rectangle, ratio, Change::ZoomFrames});
        add("GlideFrame/" + name, game, {view.Rectangle, ratio, Change::GlideFrame});
      }
    }
  }
}

}  // namespace orrerix
