// SPDX-License-Identifier: MIT
#include "forms/map/summary_view.h"

#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/controls/narrow_scroll_bar.h"
#include "picture/form_font.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr int kSummaryFont = 10;
constexpr int kSummaryInset = 8;  // pixels
constexpr QSize kSmallestSummary{130, 54};
constexpr int kOptionsFrame = 1;  // indices of the panel's frames
constexpr int kInfoFrame = 2;
constexpr const char* kSummaryStyle =
    "QListWidget { background: transparent; color: #b8dcff; border: 1px solid transparent;"
    " outline: none; }"
    "QListWidget:focus { border-color: #80ffff; }"
    "QListWidget::item { padding: 0 2px; }"
    "QListWidget::item:hover { color: #ffffff; background: rgba(60, 90, 180, 90); }"
    "QListWidget::item:selected { color: #ffffff; background: rgba(60, 90, 180, 140); }";

const Control* FrameIn(const ControlList& controls, int index) {
  const auto found = std::find_if(controls.begin(), controls.end(), [&](const Control& control) {
    return control.Id == ControlId::PanelFrame && control.Index == index;
  });
  return found == controls.end() ? nullptr : &*found;
}

// What the panel's room is cut down to, twips on the frame that has the news.
struct SummaryEdges {
  double Left = 0;
  double Top = 0;
  double Right = 0;
  double Bottom = 0;
};

SummaryEdges EdgesIn(const Control& panel, const Control& info, PanelPlace place) {
  SummaryEdges edges{0, 0, info.Place.Width, info.Place.Height};
  for (const Control& child : info.Children) {
    if (child.Id == ControlId::NewsLabel) edges.Top = std::max(edges.Top, child.Place.Bottom());
    if (child.Id == ControlId::InfoBoxLine && child.Index == 0) {
      edges.Bottom = std::min(edges.Bottom, child.Place.Top);
    }
    if (child.Id == ControlId::Logo && place == PanelPlace::Below && child.Place.Width > 0) {
      edges.Right = std::min(edges.Right, child.Place.Left);
    }
  }
  const Control* options = FrameIn(panel.Children, kOptionsFrame);
  if (place == PanelPlace::Below && options != nullptr) {
    edges.Left = options->Place.Right() - info.Place.Left;
  }
  return edges;
}

}  // namespace

std::optional<QRect> SummaryRoom(const MapDrawing& drawing) {
  if (drawing.PrintMode || drawing.Panel == PanelPlace::None) return std::nullopt;
  const Control* panel = FrameIn(drawing.Controls, 0);
  const Control* info = panel == nullptr ? nullptr : FrameIn(panel->Children, kInfoFrame);
  if (info == nullptr) return std::nullopt;
  const SummaryEdges edges = EdgesIn(*panel, *info, drawing.Panel);
  const QPointF corner = Pixels(panel->Place).topLeft() + Pixels(info->Place).topLeft();
  const QRectF room(corner + QPointF(Pixels(edges.Left), Pixels(edges.Top)),
                    corner + QPointF(Pixels(edges.Right), Pixels(edges.Bottom)));
  const QRect inner =
      room.toRect().adjusted(kSummaryInset, kSummaryInset, -kSummaryInset, -kSummaryInset);
  if (inner.width() < kSmallestSummary.width() || inner.height() < kSmallestSummary.height()) {
    return std::nullopt;
  }
  return inner;
}

SummaryView::SummaryView(QWidget* frame, const LanguageChoice& choice,
                         std::function<void(const SummaryLine&)> onLink)
    : QListWidget(frame), choice_(choice), onLink_(std::move(onLink)) {
  setObjectName("Summary");
  setFont(FormFont(kSummaryFont));
  setStyleSheet(kSummaryStyle);
  setFrameShape(QFrame::NoFrame);
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBar(new NarrowScrollBar(this));
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  viewport()->setCursor(Qt::PointingHandCursor);
  QObject::connect(this, &QListWidget::itemClicked, this,
                   [this](QListWidgetItem* item) { Follow(row(item)); });
  hide();
}

QString SummaryView::TextOf(const SummaryLine& line) const {
  const auto format = [&](TextId id, const auto& value) {
    return QString::fromStdString(FormatIn(choice_.Current, id, value));
  };
  const QString inset = QStringLiteral("    ");
  switch (line.Kind) {
    case SummaryKind::Systems:
      return format(TextId::SummarySystems, line.Count);
    case SummaryKind::Bases:
      return format(TextId::SummaryBases, line.Count);
    case SummaryKind::Gates:
      return format(TextId::SummaryGates, line.Count);
    case SummaryKind::Holes:
      return format(TextId::SummaryHoles, line.Count);
    case SummaryKind::Bodies:
      return format(TextId::SummaryBodies, line.Count);
    case SummaryKind::Zones:
      return format(TextId::SummaryZones, line.Count);
    case SummaryKind::Wrecks:
      return format(TextId::SummaryWrecks, line.Count);
    case SummaryKind::Owners:
      return format(TextId::SummaryOwners, line.Count);
    case SummaryKind::Owner:
      return line.Name.empty() ? CaptionIn(choice_.Current, TextId::NoOwner)
                               : format(TextId::SummaryOwner, line.Name);
    case SummaryKind::More:
      return inset + format(TextId::SummaryMore, line.Count);
    case SummaryKind::Base:
      return inset + QString::fromStdString(line.Name);
    case SummaryKind::Gate:
      return inset + QStringLiteral("\u2192 ") + QString::fromStdString(line.Name);
    case SummaryKind::System:
      break;
  }
  return QString::fromStdString(line.Name);
}

QString SummaryView::TipOf(const SummaryLine& line) const {
  switch (line.Kind) {
    case SummaryKind::Base:
      return CaptionIn(choice_.Current, TextId::ShowOnMap);
    case SummaryKind::Gate:
      return CaptionIn(choice_.Current, TextId::SummarySystemTip);
    case SummaryKind::Bodies:
    case SummaryKind::Zones:
    case SummaryKind::Wrecks:
    case SummaryKind::Gates:
    case SummaryKind::Holes:
      return CaptionIn(choice_.Current, TextId::SummaryLayersTip);
    default:
      return CaptionIn(choice_.Current, TextId::SummaryAtlasTip);
  }
}

void SummaryView::AddLine(const SummaryLine& line) {
  auto* item = new QListWidgetItem(TextOf(line), this);
  item->setToolTip(TipOf(line));
  if (line.Kind != SummaryKind::System) return;
  QFont bold = font();
  bold.setBold(true);
  item->setFont(bold);
}

// A line without a link.
void SummaryView::AddHead(const QString& text) {
  auto* item = new QListWidgetItem(text, this);
  QFont bold = font();
  bold.setBold(true);
  item->setFont(bold);
  item->setFlags(Qt::NoItemFlags);
  item->setForeground(QColor(0xFFE0F0FF));
}

void SummaryView::Show(std::vector<SummaryLine> lines, bool isWhole, const MapDrawing& drawing) {
  const auto room = SummaryRoom(drawing);
  if (!room || lines.empty()) return hide();
  setGeometry(*room);
  const bool isOther =
      lines != lines_ || isWhole != isWhole_ || shownIn_ != choice_.Current || count() == 0;
  if (isOther) {
    lines_ = std::move(lines);
    isWhole_ = isWhole;
    shownIn_ = choice_.Current;
    setAccessibleName(CaptionIn(choice_.Current, TextId::SummaryName));
    clear();
    const bool isSystem = lines_.front().Kind == SummaryKind::System;
    if (!isSystem) {
      AddHead(CaptionIn(choice_.Current, isWhole ? TextId::SummaryUniverse : TextId::SummaryName));
    }
    for (const SummaryLine& line : lines_) AddLine(line);
  }
  show();
}

void SummaryView::Follow(int row) {
  const int heads = count() - static_cast<int>(lines_.size());
  if (row < heads || row >= count()) return;
  // The lines may be others after that.
  const SummaryLine line = lines_[static_cast<std::size_t>(row - heads)];
  clearSelection();
  onLink_(line);
}

void SummaryView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
    return Follow(currentRow());
  }
  QListWidget::keyPressEvent(event);
}

}  // namespace orrerix
