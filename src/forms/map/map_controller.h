// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/map/icon_keys.h"
#include "forms/map/map_box.h"
#include "forms/map/map_host.h"
#include "forms/map/map_keys.h"
#include "forms/map/map_mouse.h"
#include "forms/map/map_screen.h"
#include "forms/map/panel_keys.h"
#include "map/gestures.h"
#include "map/grid/cell_cursor.h"
#include "map/panel/option_switches.h"
#include "platform/sound.h"

namespace orrerix {

// Plays on the map what mouse and keyboard ask for. An icon keeps its events to itself, and so does
// the panel; all others belong to the map. Whoever is pressed upon gets moves and release too,
// wherever they are.
class MapController : private MapMouse, private MapKeys {
 public:
  // All of these must outlive this.
  MapController(MapScreen& screen, MapHost& form, ErrorLog& log, Settings& settings,
                LanguageFile& language, SoundPlayer& sound);
  ~MapController() override;
  MapController(const MapController&) = delete;
  MapController& operator=(const MapController&) = delete;

  // To be called after each redraw.
  void MapRedrawn();

  // To be called when the news have moved in the panel.
  void NewsMoved();

  // The map's own events, in twips on the frame. A move folds the options and ends a hover.
  void PressOnMap(float x, float y);
  void MoveOverMap(PointerButton held, float x, float y);
  void ReleaseOnMap(PointerButton released, float x, float y);

  // Events of the icon with an index on the map as it was drawn last: the first opens its hover
  // box unless a box is up, the second its station window. Without such an icon nothing happens.
  void HoverIcon(int index);
  void OpenStationOf(int index);

  // Events of the panel.
  void UnfoldOptions();
  void ToggleSwitch(int index);
  void ActivateOptionLabel(int index);
  void NoteLogoHalf(double x, double y);

  // Takes a step of the zoom that others make: the same rectangle beeps, another one sounds.
  // True if the map is to be redrawn.
  bool PushZoomStack(const ZoomRectangle& rectangle);

  // Called after a click on the icon of a jump connection's end, which has no station window.
  std::function<void(const Control& icon)> OnJumpEnd;

  MapBox& Box() { return box_; }

 private:
  // Who gets an event.
  enum class Part { Map, Icon, Panel };
  struct Target {
    Part Of = Part::Map;
    ControlId Id = ControlId::MapFrame;
    int Index = 0;
    bool operator==(const Target&) const = default;
  };
  static Target TargetOf(const MapPointer& pointer);

  void MouseDown(const MapPointer& pointer) override;
  void MouseMove(const MapPointer& pointer) override;
  void MouseUp(const MapPointer& pointer) override;
  void KeyDown(MapKey key) override;
  void FocusByTab() override;
  void FocusLost() override;

  void Click(const Target& target);
  void ClickIcon(int index);
  void PanelClick(ControlId id, int index);
  void PanelKeyClick(ControlId id, int index);
  void FoldOrUnfold();
  void Follow(const SwitchAnswer& answer);
  void ZoomInOnCursor();
  void ShowCursor();
  IconKeys::Events IconEvents();
  std::vector<std::string> NamesOfIcons(const std::vector<const Control*>& icons);
  void Play(std::string_view sound);
  const ZoomRectangle& Visible() const { return screen_.State().Zoom.Current(); }

  MapScreen& screen_;
  MapHost& form_;
  ErrorLog& log_;
  LanguageFile& language_;
  SoundPlayer& sound_;
  QtTextMeasure boxMeasure_{FixedFont};
  MapGestures gestures_;
  OptionSwitches switches_;
  MapBox box_;
  CellCursor cursor_;
  IconKeys iconKeys_;
  PanelKeys panelKeys_;
  std::optional<Target> pressed_;
  bool firstHalfClick_ = false;  // the logo's half that the mouse was on last
};

}  // namespace orrerix
