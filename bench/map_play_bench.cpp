// SPDX-License-Identifier: MIT
// From an event of the mouse to the painted map, on a form of 1920 by 1080 pixels.
#include <QApplication>
#include <QMouseEvent>
#include <chrono>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "forms/orrerix_main.h"
#include "picture/control_items.h"
#include "picture/twips.h"
#include "platform/native_registry.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

class Silent : public MessageBoxes, public SoundPlayer, public LinkOpener, public Printers {
 public:
  MessageAnswer Show(const Message&) override { return MessageAnswer::Ok; }
  void Play(const fs::path&) override {}
  void Beep() override {}
  void Open(const std::string&) override {}
  std::optional<PrintTarget> DefaultPrinter() override { return std::nullopt; }
};

// Counts what is painted.
class PaintCounter : public QObject {
 public:
  int Painted = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    Painted += event->type() == QEvent::Paint;
    return false;
  }
};

// The main form on a universe, with a mouse of its own.
class MapWindow {
 public:
  MapWindow(const BenchGame& game, const fs::path& universeFile) {
    paths_.SaveFolder = universeFile.parent_path();
    paths_.ApplicationFolder = universeFile.parent_path();
    paths_.Game = game.Folder.string();
    form_.FormLoad();
    form_.setGeometry(0, 0, 1920, 1080);
    form_.show();
    // The pictures that are read while nothing else happens are read before anything is measured.
    for (int i = 0; i < 200; ++i) QCoreApplication::processEvents();
    Viewport()->installEventFilter(&counter_);
  }

  MapScreen& Map() { return form_.Map(); }

  // Sends an event and waits until the map shows what became of it. Seconds.
  double Until(QEvent::Type type, QPointF at, Qt::MouseButton button = Qt::NoButton) {
    const bool isPress = type == QEvent::MouseButtonPress;
    QMouseEvent event(type, at, Viewport()->mapToGlobal(at), button,
                      isPress ? button : Qt::NoButton, {});
    const int before = counter_.Painted;
    const auto start = std::chrono::steady_clock::now();
    QApplication::sendEvent(Viewport(), &event);
    if (!isPress) {
      // What changes nothing paints nothing.
      for (int i = 0; i < 20 && counter_.Painted == before; ++i) QCoreApplication::processEvents();
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  }
  double Move(QPointF to) { return Until(QEvent::MouseMove, to); }
  double Click(QPointF at, Qt::MouseButton button = Qt::LeftButton) {
    Until(QEvent::MouseButtonPress, at, button);
    return Until(QEvent::MouseButtonRelease, at, button);
  }
  double Drag(QPointF from, QPointF to) {
    Until(QEvent::MouseButtonPress, from, Qt::LeftButton);
    return Until(QEvent::MouseButtonRelease, to, Qt::LeftButton);
  }

  QPointF CellMiddle(int x, int y) { return Pixels(Map().Drawing().Cells.CellBox(x, y)).center(); }
  // The middle of a control that the scene shows; nothing if it shows none.
  std::optional<QPointF> Middle(std::string_view name, int index) {
    for (const QGraphicsItem* item : Map().Scene().items()) {
      const Control& control = ControlItem::Of(*item);
      if (control.Name != name || control.Index.value_or(0) != index) continue;
      return item->mapToScene(QPointF(Pixels(control.Place.Width), Pixels(control.Place.Height)) /
                              2);
    }
    return std::nullopt;
  }
  // The middles of all icons that can be seen.
  std::vector<QPointF> Icons() {
    std::vector<QPointF> middles;
    const QRectF open(0, 0, Pixels(Map().Drawing().PanelBox.Left),
                      Pixels(Map().Drawing().PanelBox.Height));
    for (const Control& control : Map().Drawing().Controls) {
      const QPointF middle = Pixels(control.Place).center();
      if (control.Name == "Image1" && open.contains(middle)) middles.push_back(middle);
    }
    return middles;
  }
  // A place of the map that is neither icon nor panel.
  QPointF Nowhere() {
    for (int y = 20;; y += 7) {
      const ControlHit hit = Map().Scene().HitAt({20, static_cast<double>(y)});
      if (hit.Shown == nullptr || hit.Shown->Name != "Image1") return {20, static_cast<double>(y)};
    }
  }

 private:
  QWidget* Viewport() { return form_.Map().Frame().viewport(); }

  StartPaths paths_;
  Silent silent_;
  ErrorLog log_{silent_, CurrentVersion()};
  std::unique_ptr<Registry> native_ = NativeRegistry();
  GameRegistry registry_{log_, *native_};
  PictureStore pictures_;
  FormParts parts_{paths_,  CurrentVersion(), log_,    registry_, silent_,
                   silent_, silent_,          silent_, pictures_};
  Settings settings_{log_, fs::temp_directory_path() / "orrerix-window-bench",
                     JetVersionOption::Version30};
  Language language_{log_, fs::temp_directory_path() / "orrerix-window-bench",
                     JetVersionOption::Version30};
  MemoryStatus start_ = GlobalMemoryStatus();
  OrrerixMain form_{parts_, settings_, language_, start_, JetVersionOption::Version30};
  PaintCounter counter_;
};

using Step = std::function<double(MapWindow&)>;

// Times one step again and again, each behind `back`, which is not measured.
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
      state, window, [](MapWindow& w) { return w.Move(*w.Middle("ShowOptionsLabel", 0)); },
      [](MapWindow& w) { return w.Move(w.Nowhere()); });
}

void Switch(benchmark::State& state, MapWindow& window) {
  window.Move(*window.Middle("ShowOptionsLabel", 0));
  Time(
      state, window, [](MapWindow& w) { return w.Click(*w.Middle("SetImage", 4)); },
      [](MapWindow&) { return 0.0; });
}

void NextLanguage(benchmark::State& state, MapWindow& window) {
  Time(
      state, window, [](MapWindow& w) { return w.Click(*w.Middle("SetLabel", 6)); },
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
