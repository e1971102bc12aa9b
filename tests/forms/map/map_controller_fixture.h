// SPDX-License-Identifier: MIT
// A map on a form of its own, with a stand-in for the main form.
#pragma once

#include <QAbstractButton>
#include <QMouseEvent>
#include <QTest>
#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "db/schema.h"
#include "forms/form_fixture.h"
#include "forms/map/map_controller.h"
#include "picture/control_items.h"
#include "picture/twips.h"
#include "support/universe_fixture.h"

namespace orrerix {

// The frame is 14000 by 8550 twips: the whole grid's cells have 8550 / 19 = 450 twips, 30 pixels.
// System Li01 is in cell 8, 10; in each corner of it stands an object.
class MapControllerFixture : public UniverseFixture, private MapHost {
 protected:
  MapControllerFixture() {
    db.CreateTable(mustWork, JumpNodesTable());
    db.CreateTable(mustWork, TradeLanesTable());
    db.CreateTable(mustWork, DockObjectsTable());
    Add("Systems", {{"nickname", "Li01"}, {"realname", "New York"}, {"pos", "8, 10"}});
    Dock("li01_nw_base", 0.1, 0.1);
    Dock("li01_ne_base", 0.9, 0.1);
    Dock("li01_sw_base", 0.1, 0.9);
    Dock("li01_se_base", 0.9, 0.9);
    for (const char* name : {"ui_secondary_window_open", "ui_open_infocard_button",
                             "ui_item_select", "ui_nav_map_fade"}) {
      folder.Write(std::string("DATA/AUDIO/SOUNDS/UI/") + name + ".wav", "any");
    }
    settings.ReadSetting("LANG");
    language.InitLanguages();
    map.ReadCaptions();
    map.InitDataUsage(universe);
    form.resize(1000, 650);
    form.show();
    DrawMap();
  }

  void Dock(std::string_view nickname, double x, double y) {
    Add("DockObjects", {{"nickname", nickname},
                        {"realname", "Base"},
                        {"MapX", 8},
                        {"MapY", 10},
                        {"PosX", x},
                        {"PosY", y},
                        {"loadout", "space_station"}});
  }

  MapHost& Form() { return *this; }

  void DrawMap() {
    map.Redraw(universe, 14200, 9100);
    play.MapRedrawn();
  }

  // Shows just this rectangle, with the whole grid behind it.
  void Zoom(const ZoomRectangle& rectangle) {
    map.State().Zoom.PushZoomStack(log, rectangle);
    DrawMap();
    redraws = 0;
  }

  ZoomRectangle Visible() { return map.State().Zoom.Current(); }
  QWidget* Viewport() { return map.Frame().viewport(); }

  // The mouse, in pixels of the frame.
  // A move is sent also where the mouse of an earlier test has been left.
  void Move(QPoint to) {
    QMouseEvent move(QEvent::MouseMove, to, Viewport()->mapToGlobal(to), Qt::NoButton, held_, {});
    QApplication::sendEvent(Viewport(), &move);
  }
  void Press(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    held_ = button;
    QTest::mousePress(Viewport(), button, {}, at);
  }
  void Release(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    held_ = Qt::NoButton;
    QTest::mouseRelease(Viewport(), button, {}, at);
  }
  void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    Press(at, button);
    Release(at, button);
  }
  void Drag(QPoint from, QPoint to) {
    Press(from);
    Move(to);
    Release(to);
  }
  void Key(Qt::Key key) { QTest::keyClick(&map.Frame(), key); }

  // All controls of a name that the scene shows, those in front included.
  std::vector<const Control*> Shown(ControlId id) {
    std::vector<const Control*> found;
    for (const QGraphicsItem* item : map.Scene().items(Qt::AscendingOrder)) {
      const Control& control = ControlItem::Of(*item);
      if (control.Id == id) found.push_back(&control);
    }
    return found;
  }
  const Control* Shown(ControlId id, int index) {
    for (const Control* control : Shown(id)) {
      if (control->Index.value_or(0) == index) return control;
    }
    return nullptr;
  }

  // The icon of an object; its middle, pixels.
  const Control& Icon(std::string_view nickname) {
    for (const Control* icon : Shown(ControlId::MapIcon)) {
      if (IconText(*icon) == nickname) return *icon;
    }
    throw std::runtime_error("no icon of " + std::string(nickname));
  }
  QPoint At(std::string_view nickname) { return Pixels(Icon(nickname).Place).center().toPoint(); }

  // The middle of a control of the panel, pixels of the frame.
  QPoint OnPanel(ControlId id, int index = 0) {
    for (const QGraphicsItem* item : map.Scene().items()) {
      const Control& control = ControlItem::Of(*item);
      if (control.Id == id && control.Index.value_or(0) == index) {
        return item->mapToScene(Pixels({0, 0, control.Place.Width, control.Place.Height}).center())
            .toPoint();
      }
    }
    throw std::runtime_error("the panel has no " + ObjectName(id));
  }

  std::vector<std::string> Sounds() const {
    std::vector<std::string> names;
    for (const auto& file : sound.Played) names.push_back(file.stem().string());
    return names;
  }

  TempFolder folder;
  PictureStore pictures;
  FakeSound sound;
  QWidget form;
  Settings settings{log, folder.Path(), JetVersionOption::Version30};
  LanguageChoice choice;
  LanguageFile language{log, folder.Path(), JetVersionOption::Version30, choice};
  MapScreen map{pictures, settings, language, &form};
  MapController play{map, *this, log, settings, language, sound};

  int redraws = 0;
  bool searchPanelOpen = false;
  std::vector<std::pair<std::string, std::string>> stations;  // nickname and picture
  std::vector<int> searches;
  std::vector<int> newsClicks;
  std::vector<bool> logoClicks;

 private:
  Qt::MouseButton held_ = Qt::NoButton;

  void Redraw() override {
    ++redraws;
    DrawMap();
  }
  void ReadCaptions() override { map.ReadCaptions(); }
  Universe OpenUniverse(Routine&) override { return universe; }
  GameFolder Game() const override { return GameFolder(folder.Path().string()); }
  bool SearchPanelOpen() const override { return searchPanelOpen; }
  void ShowStation(const std::string& nickname, const std::string& picture) override {
    stations.emplace_back(nickname, picture);
  }
  void UseTool(int index) override { searches.push_back(index); }
  void OpenNewsLink(int index) override { newsClicks.push_back(index); }
  void OpenLogoPage(bool firstHalf) override { logoClicks.push_back(firstHalf); }
};

}  // namespace orrerix
