// SPDX-License-Identifier: MIT
// The map as plain values: what the window shows, the printer prints and the command line tells.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
struct Box {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;

  double Right() const { return Left + Width; }
  double Bottom() const { return Top + Height; }
  bool operator==(const Box&) const = default;
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

// The numbers of what a shape draws.
enum class ShapeForm { Rectangle = 0, RoundedRectangle = 4 };

enum class ControlKind { Line, Picture, Label, Frame };

// One visible control. What a kind has no use for stays empty.
struct Control {
  ControlKind Kind = ControlKind::Picture;
  std::string Name;          // of the control or its array
  std::optional<int> Index;  // within the array

  Box Place;      // all kinds but lines
  LineEnds Ends;  // lines
  LineStyle Style = LineStyle::Solid;
  Color BorderColor;

  std::optional<std::string> Caption;
  std::optional<int> FontSize;  // points
  std::optional<Color> ForeColor;
  std::optional<Color> BackColor;
  std::optional<ShapeForm> Shape;      // of a frame that is a shape, with an outline in BorderColor
  std::optional<std::string> Picture;  // name of the control or file that it comes from
  std::optional<std::string> Tag;
  std::optional<std::string> ToolTip;
  bool Bordered = false;      // a picture with a line of one pixel in BorderColor inside its place
  bool ClipsChildren = true;  // of a frame: what leaves its box is not seen

  std::vector<Control> Children;  // in the parent's coordinates, back to front

  bool operator==(const Control&) const = default;
};

// Controls of the same layer, back to front.
using ControlList = std::vector<Control>;

// The place of the first control of a name, children included, from the corner that the list's own
// controls are placed by.
std::optional<Box> PlaceOf(const ControlList& controls, std::string_view name);

Control MakePicture(std::string name, std::optional<int> index, Box place, std::string picture);
Control MakeFrame(std::string name, std::optional<int> index, Box place, Color back);
Control MakeLabel(std::string name, std::optional<int> index, Box place, std::string caption);

}  // namespace orrerix
