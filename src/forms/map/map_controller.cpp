// SPDX-License-Identifier: MIT
#include "forms/map/map_controller.h"

#include <utility>

#include "derived/lookup.h"
#include "map/game_sounds.h"
#include "online/web_pages.h"
#include "shell/routine.h"

namespace orrerix {

MapController::MapController(MapScreen& screen, MapHost& form, ErrorLog& log, Settings& settings,
                             LanguageFile& language, SoundPlayer& sound)
    : screen_(screen),
      form_(form),
      log_(log),
      language_(language),
      sound_(sound),
      gestures_(log, screen.State()),
      switches_(log, settings, language, screen.State(),
                [this](std::string_view path) { Play(path); }),
      box_(screen.Scene()),
      iconKeys_(screen.Frame(), IconEvents()),
      panelKeys_(screen.Frame(), [this](ControlId id, int index) { PanelKeyClick(id, index); }) {
  screen_.Frame().SetMouse(this);
  screen_.Frame().SetKeys(this);
}

MapController::~MapController() {
  screen_.Frame().SetMouse(nullptr);
  screen_.Frame().SetKeys(nullptr);
}

void MapController::MapRedrawn() {
  box_.MapRedrawn();
  ShowCursor();
  NewsMoved();
  iconKeys_.Follow(screen_.Drawing(), language_.Text(TextId::MapObjectsName),
                   [this](const auto& icons) { return NamesOfIcons(icons); });
}

void MapController::NewsMoved() {
  panelKeys_.Follow(screen_.Drawing());
}

void MapController::Play(std::string_view sound) {
  if (!sound.empty()) PlaySoundfile(log_, sound_, form_.Game(), sound);
}

// The map's own events.

void MapController::PressOnMap(float x, float y) {
  gestures_.MouseDown(x, y);
}

void MapController::MoveOverMap(PointerButton held, float x, float y) {
  Routine routine(log_, "OrrerixMain.SysmapFrame_MouseMove");
  routine.Run([&] {
    MoveAnswer answer = gestures_.MouseMove(held, x, y, box_.IsHoverBox());
    if (answer.Redraw) form_.Redraw();
    if (answer.EndHover) box_.EndHover();
    if (!answer.RubberBand.empty()) {
      screen_.Scene().ShowInFront(FrontLayer::RubberBand, std::move(answer.RubberBand));
    }
  });
}

void MapController::ReleaseOnMap(PointerButton released, float x, float y) {
  Routine routine(log_, "OrrerixMain.SysmapFrame_MouseUp");
  routine.Run([&] {
    screen_.Scene().ShowInFront(FrontLayer::RubberBand, {});
    const ReleaseAnswer answer = gestures_.MouseUp(released, screen_.Drawing().Cells, x, y);
    if (answer.Beep) sound_.Beep();
    Play(answer.Sound);
    if (answer.Redraw) form_.Redraw();
  });
}

bool MapController::PushZoomStack(const ZoomRectangle& rectangle) {
  const ZoomChange change = screen_.State().Zoom.PushZoomStack(log_, rectangle);
  if (change == ZoomChange::Beep) sound_.Beep();
  if (change == ZoomChange::Changed) Play(kZoomSound);
  return change == ZoomChange::Changed;
}

// Icons.

void MapController::HoverIcon(int index) {
  if (box_.Visible()) return;
  const Control* shown = screen_.Scene().Find(ControlId::MapIcon, index);
  if (shown == nullptr) return;
  // A question about a failure lets events through, and with them a redraw.
  const Control icon = *shown;
  Routine routine(log_, "OrrerixMain.Image1_MouseMove");
  routine.Run([&] {
    Play(kHoverSound);
    Universe universe = form_.OpenUniverse(routine);
    box_.ShowHover(OpenHoverBox(universe, screen_.State().Names, language_, boxMeasure_,
                                screen_.Drawing(), icon));
  });
}

void MapController::OpenStationOf(int index) {
  const Control* icon = screen_.Scene().Find(ControlId::MapIcon, index);
  if (icon == nullptr) return;
  // The map may be drawn again while the window opens.
  const std::string nickname = IconText(*icon);
  const std::string picture = icon->Picture.value_or("");
  Routine routine(log_, "OrrerixMain.Image1_Click");
  routine.Run([&] {
    Universe universe = form_.OpenUniverse(routine);
    if (!OpensStation(universe, nickname)) return;
    form_.ShowStation(nickname, picture);
    Play(kStationSound);
  });
}

// The panel.

void MapController::UnfoldOptions() {
  if (switches_.UnfoldOptions(form_.SearchPanelOpen())) form_.Redraw();
}

void MapController::ToggleSwitch(int index) {
  Follow(switches_.ToggleSwitch(index, screen_.Options()));
}

void MapController::ActivateOptionLabel(int index) {
  Follow(switches_.ActivateOptionLabel(index, screen_.Options()));
}

void MapController::Follow(const SwitchAnswer& answer) {
  if (answer.ReadCaptions) form_.ReadCaptions();
  if (answer.Redraw) form_.Redraw();
}

void MapController::PanelClick(ControlId id, int index) {
  switch (id) {
    case ControlId::Tool:
      return form_.UseTool(index);
    case ControlId::OptionSwitch:
      return ToggleSwitch(index);
    case ControlId::OptionLabel:
      return ActivateOptionLabel(index);
    case ControlId::NewsLabel:
      return form_.OpenNewsLink(index);
    case ControlId::Logo:
      return form_.OpenLogoPage(firstHalfClick_);
    default:
      return;
  }
}

// A place on the map frame, twips.
void MapController::NoteLogoHalf(double x, double y) {
  Routine routine(log_, "OrrerixMain.ImageClan_MouseMove");
  routine.Run([&] {
    const auto logo = PlaceOf(screen_.Drawing().Controls, ControlId::Logo);
    if (!logo) return;
    firstHalfClick_ = IsFirstHalf(x - logo->Left, y - logo->Top, logo->Width, logo->Height);
  });
}

// The keyboard touches nothing in passing: it unfolds and folds the options by a click.
void MapController::PanelKeyClick(ControlId id, int index) {
  if (id == ControlId::OptionsCaption) return FoldOrUnfold();
  PanelClick(id, index);
}

void MapController::FoldOrUnfold() {
  if (!std::exchange(screen_.State().OptionsOpen, false)) return UnfoldOptions();
  form_.Redraw();
}

// The mouse.

MapController::Target MapController::TargetOf(const MapPointer& pointer) {
  if (pointer.Under == nullptr) return {};
  const Control& control = *pointer.Under;
  if (pointer.OnPanel) return {Part::Panel, control.Id, control.Index.value_or(0)};
  if (control.Id == ControlId::MapIcon) return {Part::Icon, control.Id, control.Index.value_or(0)};
  return {};
}

void MapController::MouseDown(const MapPointer& pointer) {
  cursor_.Hide();
  ShowCursor();
  if (!pointer.OthersHeld || !pressed_) pressed_ = TargetOf(pointer);
  if (pressed_->Of == Part::Map) {
    PressOnMap(static_cast<float>(pointer.X), static_cast<float>(pointer.Y));
  }
}

void MapController::MouseMove(const MapPointer& pointer) {
  const Target target = pressed_ ? *pressed_ : TargetOf(pointer);
  switch (target.Of) {
    case Part::Map:
      return MoveOverMap(pointer.Button, static_cast<float>(pointer.X),
                         static_cast<float>(pointer.Y));
    case Part::Icon:
      return HoverIcon(target.Index);
    case Part::Panel:
      if (target.Id == ControlId::OptionsCaption) UnfoldOptions();
      if (target.Id == ControlId::Logo) NoteLogoHalf(pointer.X, pointer.Y);
      return;
  }
}

void MapController::MouseUp(const MapPointer& pointer) {
  if (!pressed_) return;
  const Target target = *pressed_;
  if (!pointer.OthersHeld) pressed_.reset();
  if (target.Of == Part::Map) {
    ReleaseOnMap(pointer.Button, static_cast<float>(pointer.X), static_cast<float>(pointer.Y));
  } else if (pointer.Button == PointerButton::Left && target == TargetOf(pointer)) {
    Click(target);
  }
}

void MapController::Click(const Target& target) {
  if (target.Of == Part::Icon) return ClickIcon(target.Index);
  PanelClick(target.Id, target.Index);
}

void MapController::ClickIcon(int index) {
  OpenStationOf(index);
  const Control* icon = screen_.Scene().Find(ControlId::MapIcon, index);
  if (icon == nullptr || !OnJumpEnd || !std::holds_alternative<JumpEnd>(icon->Subject)) return;
  Control clicked = *icon;  // which may go with a redraw
  if (box_.IsHoverBox()) {
    const ControlList& box = screen_.Scene().InFront(FrontLayer::Box);
    clicked = RestoredIcon(clicked, std::get<HoveredIcon>(box.front().Subject));
  }
  OnJumpEnd(clicked);
}

// The keyboard.

void MapController::KeyDown(MapKey key) {
  switch (key) {
    case MapKey::Left:
      cursor_.Move(-1, 0, Visible());
      break;
    case MapKey::Right:
      cursor_.Move(1, 0, Visible());
      break;
    case MapKey::Up:
      cursor_.Move(0, -1, Visible());
      break;
    case MapKey::Down:
      cursor_.Move(0, 1, Visible());
      break;
    case MapKey::ZoomIn:
      return ZoomInOnCursor();
    case MapKey::GoBack:
      return ReleaseOnMap(PointerButton::Right, 0, 0);
  }
  ShowCursor();
}

// As a click into the middle of its cell.
void MapController::ZoomInOnCursor() {
  const auto cell = cursor_.Cell(Visible());
  if (!cell) return;
  const TwipRect box = screen_.Drawing().Cells.CellBox(cell->X, cell->Y);
  const auto x = static_cast<float>(box.Left + box.Width / 2);
  const auto y = static_cast<float>(box.Top + box.Height / 2);
  PressOnMap(x, y);
  ReleaseOnMap(PointerButton::Left, x, y);
}

// The keyboard on an icon does what the mouse does there.
IconKeys::Events MapController::IconEvents() {
  return {[this](int icon) {
            box_.EndHover();
            HoverIcon(icon);
          },
          [this] { box_.EndHover(); }, [this](int icon) { ClickIcon(icon); },
          [this](MapKey key) { KeyDown(key); }};
}

// A place by its name, the end of a jump connection by its description in one line.
std::vector<std::string> MapController::NamesOfIcons(const std::vector<const Control*>& icons) {
  std::vector<std::string> names;
  names.reserve(icons.size());
  for (const Control* icon : icons) {
    names.push_back(QString::fromStdString(IconText(*icon)).simplified().toStdString());
  }
  Routine routine(log_, "OrrerixMain.Form_Resize");
  routine.Run([&] {
    Universe universe = form_.OpenUniverse(routine);
    for (std::size_t i = 0; i < icons.size(); ++i) {
      if (!std::holds_alternative<DockableObject>(icons[i]->Subject)) continue;
      Recordset dock = RowNamed(routine, universe, "DockObjects", IconText(*icons[i]));
      if (dock.AtEnd()) continue;
      const std::string name = dock["realname"].Get().Text();
      if (!name.empty()) names[i] = name;
    }
  });
  return names;
}

void MapController::ShowCursor() {
  screen_.Scene().ShowInFront(FrontLayer::CellCursor,
                              cursor_.Lines(screen_.Drawing().Cells, Visible()));
  const auto cell = cursor_.Cell(Visible());
  screen_.Frame().setAccessibleDescription(
      cell ? QString::fromStdString(screen_.State().Names.Of(*cell)) : QString());
}

void MapController::FocusByTab() {
  cursor_.Show(Visible());
  ShowCursor();
}

void MapController::FocusLost() {
  cursor_.Hide();
  ShowCursor();
}

}  // namespace orrerix
