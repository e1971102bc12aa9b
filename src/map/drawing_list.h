// SPDX-License-Identifier: MIT
// The map as plain values: what the window shows, the printer prints and the command line writes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "map/control_id.h"

namespace orrerix {

// A colour with its bytes in the order blue, green, red.
struct Color {
  std::uint32_t Bgr = 0;

  constexpr int Red() const { return static_cast<int>(Bgr & 0xFF); }
  constexpr int Green() const { return static_cast<int>((Bgr >> 8) & 0xFF); }
  constexpr int Blue() const { return static_cast<int>((Bgr >> 16) & 0xFF); }
  bool operator==(const Color&) const = default;

  // "0x00CCCC"
  std::string Text() const;
};

// Place and size in twips from the parent's top left corner.
struct TwipRect {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;

  double Right() const { return Left + Width; }
  double Bottom() const { return Top + Height; }
  bool operator==(const TwipRect&) const = default;
};

// The numbers of line styles.
enum class LineStyle { Solid = 1, Dashed = 2, Dotted = 3 };

// Ends of a line, 32-bit floats as the controls hold them.
struct LineEnds {
  float X1 = 0;
  float Y1 = 0;
  float X2 = 0;
  float Y2 = 0;
  bool operator==(const LineEnds&) const = default;
};

// What a line stands for.
enum class LineKind { JumpGate, JumpHole, TradeLane, RubberBand, CellCursor };

// The numbers of what a shape draws.
enum class ShapeForm { Rectangle = 0, RoundedRectangle = 4 };

enum class ControlKind { Line, Picture, Label, Frame };

// What a control stands for, where that is more than its place in the list.

// The two places that a line connects. Empty where they could not be read.
struct ConnectedPlaces {
  std::string From;
  std::string To;
  bool operator==(const ConnectedPlaces&) const = default;
};

// The dockable object of an icon.
struct DockableObject {
  std::string Nickname;
  bool operator==(const DockableObject&) const = default;
};

// One end of a jump connection: what its hover box says.
struct JumpEnd {
  std::string Description;
  bool operator==(const JumpEnd&) const = default;
};

// The icon that a hover box belongs to, with the width that it gets back.
struct HoveredIcon {
  int Index = 0;
  float Width = 0;
  bool operator==(const HoveredIcon&) const = default;
};

// A switch of the options.
struct SwitchState {
  bool On = false;
  bool operator==(const SwitchState&) const = default;
};

// The page that a news label opens; empty if it opens none.
struct NewsLink {
  std::string Address;
  bool operator==(const NewsLink&) const = default;
};

using ControlSubject = std::variant<std::monostate, ConnectedPlaces, DockableObject, JumpEnd,
                                    HoveredIcon, SwitchState, NewsLink>;

// One visible control. What a kind has no use for stays empty.
struct Control {
  ControlKind Kind = ControlKind::Picture;
  ControlId Id = ControlId::MapFrame;
  std::optional<int> Index;  // within the array
  ControlSubject Subject;

  TwipRect Place;  // all kinds but lines
  LineEnds Ends;   // lines
  LineKind Line = LineKind::JumpGate;
  LineStyle Style = LineStyle::Solid;
  Color BorderColor;

  std::optional<std::string> Caption;
  std::optional<int> FontSize;  // points
  std::optional<Color> ForeColor;
  std::optional<Color> BackColor;
  std::optional<ShapeForm> Shape;      // of a frame that is a shape, with an outline in BorderColor
  std::optional<std::string> Picture;  // name of the control or file that it comes from
  std::optional<std::string> ToolTip;
  bool Bordered = false;      // a picture with a line of one pixel in BorderColor inside its place
  bool ClipsChildren = true;  // of a frame: what leaves its box is not seen

  std::vector<Control> Children;  // in the parent's coordinates, back to front

  bool operator==(const Control&) const = default;
};

// Controls of the same layer, back to front.
using ControlList = std::vector<Control>;

// The text by which an icon is known: its object's nickname, or the description of its jump
// connection's end. Empty for controls that are no icons.
const std::string& IconText(const Control& control);

// The place of the first control with an identity, children included, from the corner that the
// list's own controls are placed by.
std::optional<TwipRect> PlaceOf(const ControlList& controls, ControlId id);

// Moves controls to the end of a list.
void Append(ControlList& list, ControlList more);

// A line whose place is set later. `style` and `color` are how it looks.
Control MakeLine(ControlId id, int index, LineKind kind, Color color,
                 LineStyle style = LineStyle::Solid);

// A picture; without a name the one that belongs to the control itself.
Control MakePicture(ControlId id, std::optional<int> index, TwipRect place, std::string picture);
Control MakePicture(ControlId id, std::optional<int> index, TwipRect place);

Control MakeFrame(ControlId id, std::optional<int> index, TwipRect place, Color back);
Control MakeLabel(ControlId id, std::optional<int> index, TwipRect place, std::string caption);

}  // namespace orrerix
