// SPDX-License-Identifier: MIT
// The map without its window: gestures, boxes and searches on a universe that stays the same.
#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "db/engine/working_copy.h"
#include "demo_universe.h"
#include "info/boxes/hover_box.h"
#include "info/boxes/text_info_box.h"
#include "info/search/search_panel.h"
#include "map/gestures.h"
#include "map/grid/cell_cursor.h"
#include "support.h"

namespace {

using namespace orrerix;

// A redraw is by far the longest step.
constexpr int kMostRedraws = 2;

Database& OpenDemo() {
  static WorkingCopy copy;
  static IgnoreFailures ignore;
  static Database& opened = copy.Of(ignore, MakeDemoUniverse(30));
  return opened;
}

const CellNames& NamesOf(Universe& universe) {
  static FixedLanguage english(Language::English);
  static const CellNames names = GetSystemNames(universe, english);
  return names;
}

class Map {
 public:
  Map(Universe& universe, Steering& input) : universe_(universe), input_(input) {
    state_.Names = NamesOf(universe);
    if (input_.Below(2) == 1) state_.Zoom.Reset(Rectangle());
    Redraw();
  }

  void Run() {
    while (!input_.AtEnd()) Play();
  }

 private:
  void Play() {
    switch (input_.Below(12)) {
      case 0:
        return Press();
      case 1:
        return Move();
      case 2:
        return Release(PointerButton::Left);
      case 3:
        return Release(PointerButton::Right);
      case 4:
        return Hover();
      case 5:
        return MoveCursor();
      case 6:
        return ZoomIn();
      case 7:
        return ChangeForm();
      case 8:
        Follow(panel_.Open(Scope(), static_cast<SearchType>(input_.Below(4))));
        break;
      case 9:
        Follow(panel_.SetText(Scope(), std::string(input_.Text())));
        break;
      case 10:
        return ChooseFound();
      default:
        return UseKeys();
    }
  }

  float Twips() { return static_cast<float>(input_.Short()) * (input_.Below(2) == 0 ? 1 : 100); }

  // Now and then a form far larger than any screen: its thousands of background tiles take long.
  int FormTwips() {
    const int scale = input_.Below(64) == 63 ? 7 : 1;
    return static_cast<std::uint16_t>(input_.Short()) * scale;
  }

  ZoomRectangle Rectangle() {
    const int x1 = static_cast<int>(input_.Below(MapMaxX + 1));
    const int y1 = static_cast<int>(input_.Below(MapMaxY + 1));
    const int x2 = x1 + static_cast<int>(input_.Below(MapMaxX + 1 - x1));
    return {x1, y1, x2, y1 + static_cast<int>(input_.Below(MapMaxY + 1 - y1))};
  }

  void Press() {
    const float x = Twips();
    mouse_.MouseDown(x, Twips());
  }

  void Move() {
    const auto held = static_cast<PointerButton>(input_.Below(3));
    const float x = Twips();
    if (mouse_.MouseMove(held, x, Twips(), !hover_.empty()).Redraw) Redraw();
  }

  void Release(PointerButton button) {
    const float x = Twips();
    if (mouse_.MouseUp(button, drawing_.Cells, x, Twips()).Redraw) Redraw();
  }

  // The box of one of the icons, and the same box after the next redraw.
  void Hover() {
    ControlList icons = drawing_.Controls;
    std::erase_if(icons, [](const Control& control) { return control.Id != ControlId::MapIcon; });
    if (icons.empty()) return;
    const Control& icon = icons[input_.Below(icons.size())];
    hover_ = OpenHoverBox(universe_, state_.Names, texts_, measure_, drawing_, icon).Box;
    MovedHoverBox(hover_, icon, drawing_);
  }

  void MoveCursor() {
    const int columns = input_.Short();
    cursor_.Move(columns, input_.Short(), state_.Zoom.Current());
    cursor_.Lines(drawing_.Cells, state_.Zoom.Current());
  }

  void ZoomIn() {
    UnloadObjects(state_);
    state_.Zoom.PushZoomStack(universe_.Log, Rectangle());
    Redraw();
  }

  void ChangeForm() {
    width_ = FormTwips();
    height_ = FormTwips();
    for (bool& on : options_.On) on = input_.Below(2) == 1;
    state_.OptionsOpen = input_.Below(2) == 1;
    state_.PrintMode = input_.Below(4) == 1;
    Redraw();
  }

  void ChooseFound() {
    const auto row = static_cast<std::size_t>(input_.Short());
    Follow(panel_.SelectSubSearch(Scope(), row));
    panel_.SelectList(input_.Byte());
  }

  void UseKeys() {
    switch (input_.Below(5)) {
      case 0:
        return Follow(panel_.MoveSelection(Scope(), input_.Short()));
      case 1:
        return Follow(panel_.EnterInText());
      case 2:
        return Follow(panel_.EnterInSubSearch());
      case 3:
        return Follow(panel_.EnterInList());
      default:
        return Follow(panel_.Close());
    }
  }

  SearchScope Scope() { return {universe_, wording_, measure_, drawing_}; }

  void Follow(const SearchAnswer& answer) {
    if (!answer.Jump) return;
    Routine routine(universe_.Log, "OrrerixMain.JumpToStation");
    routine.Run([&] { JumpTargetOf(routine, universe_, *answer.Jump); });
  }

  void Redraw() {
    if (redraws_++ == kMostRedraws) return;
    drawing_ = DrawMap(universe_, state_, {width_, height_, options_, measure_, content_});
  }

  Universe& universe_;
  Steering& input_;
  FixedLanguage texts_{Language::English};
  Wording wording_{texts_, {}};
  FixedTextMeasure measure_;
  PanelContent content_ = PanelTexts(texts_);
  MapState state_;
  MapGestures mouse_{universe_.Log, state_};
  MapOptions options_ = MapOptions::Defaults(true);
  MapDrawing drawing_;
  CellCursor cursor_;
  SearchPanel panel_;
  ControlList hover_;
  int width_ = 24000;
  int height_ = 18000;
  int redraws_ = 0;
};

}  // namespace

// The input is what somebody does with mouse and keyboard.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Steering input(data, size);
  NobodyThere messages(input.Below(4) != 1);
  ErrorLog log(messages, CurrentVersion());
  Universe universe{log, OpenDemo()};
  Map(universe, input).Run();
  return 0;
}
