// SPDX-License-Identifier: MIT
#include "forms/start/memory_frame.h"

#include <QLocale>
#include <QPainter>

#include "forms/controls/captions.h"
#include "forms/controls/form_geometry.h"
#include "forms/controls/plain_label.h"
#include "picture/form_font.h"
#include "shell/memory_watch.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

constexpr int kBars = 3;
constexpr int kBarsLeft = 1650;  // room for the bars' names
constexpr int kBarsTop = 375;
constexpr int kBarHeight = 300;
constexpr int kBarStep = 345;
constexpr int kMemoryFrameCaptionFont = 8;
constexpr int kSmallestFont = 6;
constexpr int kHeadFont = 9;

constexpr std::array<TextId, kBars> kBarNames = {TextId::PhysicalMemory, TextId::PageFile,
                                                 TextId::AddressSpace};

// Background and text colours of a segment: in use at the start, added since, free.
struct SegmentColors {
  QRgb Ground;
  QRgb Letters;
};
constexpr std::array<SegmentColors, 3> kSegments = {
    {{0xFF2C4A8C, 0xFFE8F0FF}, {0xFFE0A030, 0xFF201000}, {0xFF1E5C46, 0xFFD8FFE8}}};

void SetColors(QLabel& label, QColor ground, QColor letters) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::Window, ground);
  palette.setColor(QPalette::WindowText, letters);
  label.setPalette(palette);
  label.setAutoFillBackground(ground.alpha() > 0);
}

// A caption that its segment has no room for is left out rather than cut: half a figure is a wrong
// one.
class MemSegment : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    for (int points = kMemoryFrameCaptionFont; points >= kSmallestFont; --points) {
      painter.setFont(FormFont(points));
      if (painter.fontMetrics().horizontalAdvance(text()) > width()) continue;
      painter.drawText(rect(), static_cast<int>(alignment()), text());
      return;
    }
  }
};

NumberSeparators SeparatorsOf(const QLocale& locale) {
  return {locale.groupSeparator().toStdString(), locale.decimalPoint().toStdString()};
}

}  // namespace

MemFrame::MemFrame(const LanguageChoice& choice, QWidget* parent)
    : QWidget(parent), choice_(choice), headLab_(new PlainLabel(this)) {
  setObjectName("MemFrame");
  setGeometry(PixelRect(0, 0, 0, kDesignHeight));
  headLab_->setObjectName("MemHeadLab0");
  headLab_->setFont(FormFont(kHeadFont));
  headLab_->setAlignment(Qt::AlignCenter);
  SetColors(*headLab_, Qt::transparent, QColor(0xFFC8D8F8));
  MakeBars();
}

void MemFrame::MakeBars() {
  for (int bar = 0; bar < kBars; ++bar) {
    auto* name =
        new PlainLabel(CaptionIn(choice_.Current, kBarNames[static_cast<std::size_t>(bar)]), this);
    name->setFont(FormFont(kMemoryFrameCaptionFont));
    name->setGeometry(PixelRect(100, kBarsTop + bar * kBarStep, kBarsLeft - 200, kBarHeight));
    SetColors(*name, Qt::transparent, QColor(0xFF9FB4DC));
  }
  for (std::size_t i = 0; i < memLab_.size(); ++i) {
    auto* segment = new MemSegment(this);
    segment->setObjectName(QStringLiteral("MemLab%1").arg(i));
    segment->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const SegmentColors& colors = kSegments[i % kSegments.size()];
    SetColors(*segment, QColor(colors.Ground), QColor(colors.Letters));
    memLab_[i] = segment;
  }
}

void MemFrame::MemoryUpdate(ErrorLog& log, const MemoryStatus& start, int formWidth,
                            bool minimised) {
  Routine routine(log, "OrrerixMain.MemoryUpdate", "While calculating Memory-Map");
  routine.Run([&] {
    const MemoryStatus now = GlobalMemoryStatus();
    const auto figures = MemoryFigures(start, now);
    const NumberSeparators separators = SeparatorsOf(locale());
    for (std::size_t i = 0; i < figures.size(); ++i) {
      memLab_[i]->setText(QString::fromStdString(MemoryCaption(figures[i], separators)));
    }
    if (!minimised) ShowSegments(figures, formWidth);
    headLab_->setText(QString::fromStdString(MemoryHeadline(choice_.Current, start, now)));
  });
}

void MemFrame::ShowSegments(const std::array<std::int32_t, 9>& figures, int formWidth) {
  headLab_->setGeometry(0, 0, width(), PixelRect(0, 0, 0, kBarsTop).height());
  const auto segments = LayOutMemoryBars(figures, formWidth, kBarsLeft);
  for (std::size_t i = 0; i < segments.size(); ++i) {
    const int top = kBarsTop + static_cast<int>(i) / kBars * kBarStep;
    memLab_[i]->setGeometry(PixelRect(segments[i].Left, top, segments[i].Width, kBarHeight));
  }
}

}  // namespace orrerix
