// SPDX-License-Identifier: MIT
// The main form on a universe, with a mouse of its own.
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

#include "bench_games.h"
#include "forms/orrerix_main.h"
#include "picture/control_items.h"
#include "picture/twips.h"
#include "platform/native_registry.h"

namespace orrerix {
namespace fs = std::filesystem;

class Silent : public MessageBoxes,
               public SoundPlayer,
               public LinkOpener,
               public Printers,
               public Network {
 public:
  MessageAnswer Show(const Message&) override { return MessageAnswer::Ok; }
  void Play(const fs::path&) override {}
  void WaitForEnd() override {}
  void Beep() override {}
  void Open(const std::string&) override {}
  void OpenManual() override {}
  std::string Get(const std::string&) override { throw NetworkError("there is no network"); }
  bool IsUp() const override { return false; }
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
    form_.Load();
    form_.setGeometry(0, 0, 1920, 1080);
    form_.show();
    // The pictures that are read while nothing else happens are read before anything is measured.
    for (int i = 0; i < 200; ++i) QCoreApplication::processEvents();
    Viewport()->installEventFilter(&counter_);
  }

  MapScreen& Map() { return form_.Map(); }
  OrrerixMain& Form() { return form_; }

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
  std::optional<QPointF> Middle(ControlId id, int index) {
    for (const QGraphicsItem* item : Map().Scene().items()) {
      const Control& control = ControlItem::Of(*item);
      if (control.Id != id || control.Index.value_or(0) != index) continue;
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
      if (control.Id == ControlId::MapIcon && open.contains(middle)) middles.push_back(middle);
    }
    return middles;
  }
  // A place of the map that is neither icon nor panel.
  QPointF Nowhere() {
    for (int y = 20;; y += 7) {
      const ControlHit hit = Map().Scene().HitAt({20, static_cast<double>(y)});
      if (hit.Shown == nullptr || hit.Shown->Id != ControlId::MapIcon)
        return {20, static_cast<double>(y)};
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
  LanguageChoice choice_;
  FormParts parts_{paths_,  CurrentVersion(), log_,    registry_, silent_, silent_,
                   silent_, silent_,          silent_, pictures_, choice_};
  Settings settings_{log_, fs::temp_directory_path() / "orrerix-window-bench",
                     JetVersionOption::Version30};
  LanguageFile language_{log_, fs::temp_directory_path() / "orrerix-window-bench",
                         JetVersionOption::Version30, choice_};
  MemoryStatus start_ = GlobalMemoryStatus();
  OrrerixMain form_{parts_, settings_, language_, start_, JetVersionOption::Version30};
  PaintCounter counter_;
};

}  // namespace orrerix
