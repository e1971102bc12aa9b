// SPDX-License-Identifier: MIT
#include "map/panel/side_panel.h"

#include <algorithm>

#include <fmt/format.h>

#include "map/grid/numeric.h"
#include "map/grid/opt_font_size.h"
#include "map/layers/borders.h"

namespace orrerix {
namespace {

constexpr Color kBack{0x400000};
constexpr Color kText{0x0000FF};
constexpr Color kOptionText{0x00CCCC};
constexpr Color kNewsText{0xFFFF80};
constexpr Color kCreditText{0xC0A080};

constexpr int kTools = 5;
constexpr std::array kToolTips = {TextId::SearchPlaces, TextId::SearchShips,
                                  TextId::SearchEquipment, TextId::SearchBribes, TextId::PrintMap};
// Of the six switches and the language.
constexpr std::array kOptionTexts = {TextId::EmptyBackgrounds, TextId::SystemBackgrounds,
                                     TextId::JumpGateLines,    TextId::JumpHoleLines,
                                     TextId::TradeLaneLines,   TextId::SystemNames,
                                     TextId::LanguageName};
constexpr int kToolsMargin = 100;  // beside, and above and below their row, each in sum
constexpr int kInnerLeft = 40;     // of the frames within the panel
constexpr int kInnerRight = 20;
constexpr int kCheckSize = 225;
constexpr int kCheckLeft = 120;
constexpr TwipRect kOptionLabel{0, 0, 1095, 495};
constexpr int kShowOptionsHeight = 495;
constexpr int kNewsHeight = 270;
constexpr int kSloganFont = 10;
constexpr int kCreditFont = 8;
constexpr int kNewsFont = 9;
constexpr int kOptionFont = 8;

// Of a compact panel: the least room for news, and the smallest logo, twips.
constexpr double kNewsWidth = 3000;
constexpr double kNewsRoom = 1500;
constexpr double kSmallestLogo = 1500;
constexpr double kCompactGap = 50;

// Design size of the head band; only the ratio counts.
constexpr double kHeadBandHeight = 615;
constexpr double kHeadBandWidth = 8115;

constexpr std::array<const char*, kTools> kToolPictures = {
    "tools/search_place.svg", "tools/search_ship.svg", "tools/search_equipment.svg",
    "tools/search_bribe.svg", "tools/print.svg"};

TwipRect WithSize(double left, double top, double width, double height) {
  return {left, top, NotBelowZero(width), NotBelowZero(height)};
}

Control Label(ControlId id, std::optional<int> index, TwipRect place, std::string caption,
              int fontSize, Color color) {
  Control label = MakeLabel(id, index, place, std::move(caption));
  label.FontSize = fontSize;
  label.ForeColor = color;
  return label;
}

ControlList Border(const PanelView& view, BorderSet set, double right, double bottom) {
  if (view.PrintMode) return {};
  return LayOutBorder(view.Log, set, right, bottom);
}

// Fits a picture of the logo's proportions into a room, as wide as it can be.
TwipRect FitLogo(const PanelContent& content, double width, double mostHeight) {
  TwipRect logo = WithSize(0, 0, width, 0);
  logo.Height = logo.Width / content.LogoWidth * content.LogoHeight;
  if (mostHeight < logo.Height) {
    logo.Height = NotBelowZero(mostHeight);
    logo.Width = NotBelowZero(logo.Height / content.LogoHeight * content.LogoWidth);
  }
  return logo;
}

ControlList NewsLabels(const PanelContent& content, double width, double top) {
  ControlList labels;
  for (std::size_t i = 0; i < content.News.size(); ++i) {
    const NewsItem& item = content.News[i];
    Control label = Label(ControlId::NewsLabel, static_cast<int>(i),
                          {0, top + static_cast<double>(i) * kNewsHeight, width, kNewsHeight},
                          item.Caption, kNewsFont, kNewsText);
    label.ToolTip = item.ToolTip;
    label.Subject = NewsLink{item.Link};
    labels.push_back(std::move(label));
  }
  return labels;
}

Control Logo(const PanelContent& content, TwipRect place) {
  Control logo = MakePicture(ControlId::Logo, std::nullopt, place, "logo.png");
  logo.ToolTip = content.LogoTip;
  return logo;
}

// The row of tool icons with its border.
ControlList Tools(const TwipRect& panel, double iconSize, const PanelView& view) {
  ControlList tools;
  for (int i = 0; i < kTools; ++i) {
    Control tool = MakePicture(ControlId::Tool, i, {i * iconSize + 50, 50, iconSize, iconSize},
                               kToolPictures[static_cast<std::size_t>(i)]);
    tool.ToolTip = view.Content.ToolTips[static_cast<std::size_t>(i)];
    tool.BackColor = kBack;
    tools.push_back(std::move(tool));
  }
  constexpr int borderGap = 21;
  Append(tools, Border(view, BorderSet::Tools, panel.Width, iconSize + kToolsMargin - borderGap));
  return tools;
}

// The six switches in one or two columns, below `top`.
ControlList Switches(double frameWidth, double top, const PanelContent& content,
                     const MapOptions& options) {
  const double labelLeft = kCheckLeft + kCheckSize;
  const bool twoColumns = 2 * kOptionLabel.Width + 2 * labelLeft < frameWidth;
  const double secondLeft = frameWidth - kOptionLabel.Width - labelLeft - kBorderThickness;
  ControlList switches;
  for (int i = 0; i < kMapSwitches; ++i) {
    const int row = twoColumns ? i / 2 : i;
    const double left = twoColumns && i % 2 == 1 ? secondLeft : kCheckLeft;
    const double rowTop = top + row * kOptionLabel.Height;
    const bool on = options.On[static_cast<std::size_t>(i)];
    Control check = MakePicture(ControlId::OptionSwitch, i, {left, rowTop, kCheckSize, kCheckSize},
                                on ? "tools/check_on.svg" : "tools/check_off.svg");
    check.Subject = SwitchState{on};
    switches.push_back(std::move(check));
    switches.push_back(Label(ControlId::OptionLabel, i,
                             {left + kCheckSize, rowTop, kOptionLabel.Width, kOptionLabel.Height},
                             content.Options[static_cast<std::size_t>(i)], kOptionFont,
                             kOptionText));
  }
  return switches;
}

Control OptionsFrame(const TwipRect& panel, double top, const PanelView& view) {
  const PanelContent& content = view.Content;
  const double width = NotBelowZero(panel.Width - kInnerLeft - kInnerRight);
  const TwipRect caption{0, kBorderThickness, width, kShowOptionsHeight};
  const double switchesTop = caption.Bottom() + 2 * kBorderThickness;
  Control frame = MakeFrame(ControlId::PanelFrame, 1, {kInnerLeft, top, width, switchesTop}, kBack);
  frame.Caption = "Show - Options";
  frame.ForeColor = kText;
  frame.Children.push_back(Label(ControlId::OptionsCaption, std::nullopt, caption,
                                 content.ShowOptions, kNewsFont, kOptionText));
  frame.Children.push_back(
      Label(ControlId::OptionLabel, kLanguageLabel,
            {caption.Right() - kOptionLabel.Width, caption.Bottom() - kOptionLabel.Height,
             kOptionLabel.Width, kOptionLabel.Height},
            content.Options[kLanguageLabel], kOptionFont, kOptionText));
  if (view.OptionsOpen) {
    ControlList switches = Switches(width, switchesTop, content, view.Options);
    frame.Place.Height = switches.back().Place.Top + kOptionLabel.Height + kBorderThickness;
    Append(frame.Children, std::move(switches));
  }
  Append(frame.Children, Border(view, BorderSet::Options, width, frame.Place.Height));
  return frame;
}

// Slogan, logo and credit line, placed from the bottom up.
struct InfoBoxFoot {
  Control Slogan;
  Control LogoPicture;
  Control Credit;
};

InfoBoxFoot FootOf(const TwipRect& box, const PanelContent& content, const TextMeasure& measure) {
  const int width = WholeTwips(box.Width);
  const int sloganFont = OptFontSize(content.Slogan, measure, kSloganFont, width);
  const int creditFont =
      OptFontSize(content.Credit, measure, kCreditFont, WholeTwips(box.Width / 2));
  InfoBoxFoot foot{
      Label(ControlId::InfoBoxLine, 0,
            {0, 0, box.Width, static_cast<double>(measure.TextHeight(content.Slogan, sloganFont))},
            content.Slogan, sloganFont, kText),
      Logo(content, FitLogo(content, box.Width, 0)),
      Label(ControlId::InfoBoxLine, 1,
            {0, 0, box.Width, static_cast<double>(measure.TextHeight(content.Credit, creditFont))},
            content.Credit, creditFont, kCreditText)};
  foot.Slogan.BackColor = kBack;
  foot.Slogan.ToolTip = content.SloganTip;
  TwipRect& logo = foot.LogoPicture.Place;
  logo = FitLogo(content, box.Width, box.Height - 1000 - foot.Slogan.Place.Height);
  if (logo.Width < box.Width) logo.Left = box.Width / 2 - logo.Width / 2;
  foot.Credit.Place.Top = NotBelowZero(box.Height - foot.Credit.Place.Height - 50);
  logo.Top = NotBelowZero(foot.Credit.Place.Top - logo.Height - 50);
  foot.Slogan.Place.Top = NotBelowZero(logo.Top - foot.Slogan.Place.Height);
  return foot;
}

struct InfoBox {
  Control Frame;
  bool NewsScrolls = false;
  double BackgroundHeight = 0;
};

Control InfoFrame(const TwipRect& box) {
  Control frame = MakeFrame(ControlId::PanelFrame, 2, box, kBack);
  frame.Caption = "Infobox";
  frame.ForeColor = kText;
  return frame;
}

InfoBox MakeInfoBox(const TwipRect& panel, double top, const PanelView& view) {
  const PanelContent& content = view.Content;
  InfoBox info;
  const TwipRect box =
      WithSize(kInnerLeft, top, panel.Width - kInnerLeft - kInnerRight, panel.Height - top);
  info.Frame = InfoFrame(box);
  InfoBoxFoot foot = FootOf(box, content, view.Measure);
  const double bandHeight = box.Width / kHeadBandWidth * kHeadBandHeight;
  const bool hasLogo =
      !view.Compact || (panel.Width >= kNarrowestPanel &&
                        foot.Slogan.Place.Top >= kBorderThickness + bandHeight + kNewsRoom);
  if (!hasLogo) {
    foot.Slogan.Place.Top = NotBelowZero(foot.Credit.Place.Top - foot.Slogan.Place.Height);
  }
  const double sloganTop = foot.Slogan.Place.Top;

  TwipRect background =
      WithSize(kBorderThickness, kBorderThickness, box.Width - 2 * kBorderThickness,
               sloganTop - kBorderThickness - kBorderThickness);
  if (view.PrintMode) background.Height = view.BackgroundHeight.value_or(background.Height);
  info.BackgroundHeight = background.Height;
  ControlList& children = info.Frame.Children;
  children.push_back(MakePicture(ControlId::InfoBoxPicture, 1, background, "itac_background.jpg"));
  children.push_back(MakePicture(ControlId::InfoBoxPicture, 0,
                                 {0, kBorderThickness, box.Width, bandHeight}, "itac_head.png"));
  Append(children, NewsLabels(content, box.Width, kBorderThickness + bandHeight));
  info.NewsScrolls = !content.News.empty() && children.back().Place.Bottom() > sloganTop;
  Append(children, Border(view, BorderSet::InfoBox, box.Width, sloganTop));
  if (hasLogo) children.push_back(std::move(foot.LogoPicture));
  children.push_back(std::move(foot.Slogan));
  children.push_back(std::move(foot.Credit));
  return info;
}

int IconSize(const TwipRect& panel) {
  return std::max(0, WholeTwips((panel.Width - kToolsMargin) / kTools));
}

// The tools with the options below them, which come last.
ControlList ToolsAndOptions(double width, const PanelView& view) {
  const TwipRect panel{0, 0, width, 0};
  const double iconSize = IconSize(panel);
  ControlList controls = Tools(panel, iconSize, view);
  controls.push_back(OptionsFrame(panel, iconSize + kToolsMargin, view));
  return controls;
}

// The width at which tools and folded options are no higher than the panel, if they can be. They
// keep it while the options are unfolded, so that these do not move away from the mouse.
double FittingWidth(const TwipRect& panel, double width, PanelView view) {
  view.OptionsOpen = false;
  const TwipRect options = ToolsAndOptions(width, view).back().Place;
  if (options.Bottom() <= panel.Height) return width;
  const double iconSize = panel.Height - options.Height - kToolsMargin;
  return std::min(width, std::max(kNarrowestPanel, kTools * iconSize + kToolsMargin));
}

Control InfoFrameBelow(const TwipRect& panel, const PanelContent& content) {
  const TwipRect box = WithSize(0, 0, panel.Width, panel.Height);
  Control frame = InfoFrame(box);
  Append(frame.Children, NewsLabels(content, box.Width, 0));
  TwipRect logo = FitLogo(content, NotBelowZero(box.Width - 100), box.Height - 100);
  logo.Left = NotBelowZero(box.Width - logo.Width) - 50;
  logo.Top = NotBelowZero(box.Height - logo.Height) - 50;
  frame.Children.push_back(Logo(content, logo));
  return frame;
}

// Tools, news and logo side by side. The tools give way first, then the logo.
struct CompactRow {
  double Tools = 0;  // widths
  double News = 0;
  double Logo = 0;  // 0 for none
};

CompactRow CompactRowIn(const TwipRect& panel, double toolsWidth, const PanelContent& content) {
  const double logo = FitLogo(content, panel.Width, panel.Height - 2 * kCompactGap).Width;
  const double others = kNewsWidth + logo + 3 * kCompactGap;
  CompactRow row;
  row.Tools = std::min(toolsWidth, std::max(kNarrowestPanel, NotBelowZero(panel.Width - others)));
  const double room = NotBelowZero(panel.Width - row.Tools);
  row.Logo = std::min(logo, room - kNewsWidth - 3 * kCompactGap);
  if (row.Logo < kSmallestLogo) row.Logo = 0;
  row.News = NotBelowZero(room - row.Logo - 3 * kCompactGap);
  return row;
}

Control CompactInfoFrame(const TwipRect& panel, const CompactRow& row,
                         const PanelContent& content) {
  Control frame = InfoFrame(WithSize(0, 0, panel.Width, panel.Height));
  ControlList news = NewsLabels(content, row.News, 0);
  for (Control& label : news) label.Place.Left = row.Tools + kCompactGap;
  Append(frame.Children, std::move(news));
  if (row.Logo <= 0) return frame;
  TwipRect logo = FitLogo(content, row.Logo, NotBelowZero(panel.Height - 2 * kCompactGap));
  logo.Left = panel.Width - logo.Width - kCompactGap;
  logo.Top = panel.Height - logo.Height - kCompactGap;
  frame.Children.push_back(Logo(content, logo));
  return frame;
}

}  // namespace

PanelContent PanelTexts(TextSource& texts) {
  PanelContent content;
  const auto textsOf = [&](const auto& ids, auto& captions) {
    std::transform(ids.begin(), ids.end(), captions.begin(),
                   [&](TextId id) { return texts.Text(id); });
  };
  textsOf(kOptionTexts, content.Options);
  textsOf(kToolTips, content.ToolTips);
  content.ShowOptions = texts.Text(TextId::ShowOptions);
  content.Slogan = texts.Text(TextId::Slogan);
  content.SloganTip = texts.Text(TextId::SloganTip);
  content.LogoTip = texts.Text(TextId::LogoTip);
  content.Credit = texts.Text(TextId::ArtworkCredit);
  content.News.push_back({texts.Text(TextId::MainPage), texts.Text(TextId::MainPageTip), ""});
  return content;
}

SidePanel LayOutPanelRight(const TwipRect& panel, const PanelView& view) {
  SidePanel laidOut;
  // Where the panel is too narrow for them tools and options reach over the map at its left.
  laidOut.Overhangs = view.Compact && panel.Width < kNarrowestPanel;
  const double width = laidOut.Overhangs ? kNarrowestPanel : panel.Width;
  laidOut.Controls = ToolsAndOptions(width, view);
  for (Control& control : laidOut.Controls) {
    control.Place.Left -= std::min(panel.Left, width - panel.Width);
  }
  Control optionsFrame = std::move(laidOut.Controls.back());
  laidOut.Controls.pop_back();
  InfoBox info = MakeInfoBox(panel, optionsFrame.Place.Bottom(), view);
  laidOut.NewsScrolls = info.NewsScrolls;
  laidOut.BackgroundHeight = info.BackgroundHeight;
  laidOut.Controls.push_back(std::move(info.Frame));
  laidOut.Controls.push_back(std::move(optionsFrame));
  return laidOut;
}

SidePanel LayOutPanelBelow(const TwipRect& panel, const TwipRect& atRight, const PanelView& view) {
  const double fitting = FittingWidth(panel, std::min(atRight.Width, panel.Width), view);
  const CompactRow row = CompactRowIn(panel, fitting, view.Content);
  const double width = view.Compact ? row.Tools : fitting;
  ControlList inFront = ToolsAndOptions(width, view);
  SidePanel laidOut;
  const double missing = inFront.back().Place.Bottom() - panel.Height;
  if (missing > 0) {
    laidOut.Overhangs = true;
    const double up = std::min(missing, panel.Top);
    for (Control& control : inFront) control.Place.Top -= up;
  }
  laidOut.Controls.push_back(view.Compact ? CompactInfoFrame(panel, row, view.Content)
                                          : InfoFrameBelow(panel, view.Content));
  Append(laidOut.Controls, std::move(inFront));
  return laidOut;
}

}  // namespace orrerix
