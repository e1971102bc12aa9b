// SPDX-License-Identifier: MIT
#include "forms/start/spoiler.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "forms/controls/captions.h"
#include "forms/controls/fitted_button.h"
#include "forms/controls/form_geometry.h"
#include "forms/controls/painted_ground.h"
#include "forms/controls/plain_label.h"
#include "forms/start/spoiler_layout.h"
#include "map/grid/opt_font_size.h"

namespace orrerix {
namespace {

constexpr int kLargestHeadLine = 24;
constexpr int kCheckFont = 10;
constexpr int kTextMargin = 8;  // logical pixels at each side of the text
constexpr int kDesignFont = 1;  // from here every search ends at the largest size that fits
constexpr int kButtonMargin = 200;
constexpr QRgb kBand = 0xE0142A6E;  // behind the head line, fading out downwards
constexpr QRgb kBandEdge = 0xFF5AB4DC;

// The text stands on a plate, so that the tiles behind it do not disturb.
constexpr const char* kSpoilerStyle =
    "#HeadLine { color: #ffd060; }"
    "#Text { background: rgba(6, 10, 34, 225); color: #d8e4ff; border: none; }"
    "#WarningOff { color: #d8e4ff; }"
    "#WarningOff::indicator { width: 15px; height: 15px; image: "
    "url(:/pictures/tools/check_off.png); }"
    "#WarningOff::indicator:checked { image: url(:/pictures/tools/check_on.png); }"
    "#WarningOff:focus { color: #ffffff; text-decoration: underline; }"
    "QPushButton { background: #1c3478; color: #f0f4ff; border: 1px solid #5a7cd0;"
    "  border-radius: 4px; }"
    "QPushButton:hover, QPushButton:focus { background: #2a4a9c; border-color: #7ac8f0; }"
    "QPushButton:pressed { background: #142658; }";

}  // namespace

Spoiler::Spoiler(const SpoilerTexts& texts, PictureStore& pictures, Language language)
    : pictures_(pictures) {
  const auto caption = [&](TextId id) { return CaptionIn(language, id); };
  setObjectName("Spoiler");
  setWindowTitle(caption(TextId::SpoilerTitle));
  setModal(true);
  setStyleSheet(kSpoilerStyle);
  headLine_ = new PlainLabel(QString::fromStdString(texts.HeadLine), this);
  headLine_->setObjectName("HeadLine");
  headLine_->setAlignment(Qt::AlignCenter);
  text_ = new QPlainTextEdit(QString::fromStdString(texts.Text).remove('\r'), this);
  text_->setObjectName("Text");
  text_->setAccessibleName(caption(TextId::SpoilerName));
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  text_->setTabChangesFocus(true);
  text_->viewport()->installEventFilter(this);
  warningOff_ = new QCheckBox(caption(TextId::SpoilerOff), this);
  warningOff_->setObjectName("WarningOff");
  warningOff_->setFont(FormFont(kCheckFont));
  QObject::connect(warningOff_, &QCheckBox::toggled, this, [this](bool checked) {
    if (OnWarningOff) OnWarningOff(checked);
  });
  ok_ = AddButton("Ok", texts.Ok, caption(TextId::SpoilerOkTip));
  cancel_ = AddButton("Cancel", texts.Cancel, caption(TextId::SpoilerCancelTip));
  QObject::connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  QObject::connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  ok_->setFocus();
}

QPushButton* Spoiler::AddButton(const char* name, const std::string& caption,
                                const QString& toolTip) {
  auto* button = new FittedButton(QString::fromStdString(caption), this);
  button->setObjectName(name);
  button->setToolTip(toolTip);
  return button;
}

// The largest size at which the longest line of a text fits.
int Spoiler::FittingFont(const QString& text, int width) const {
  int size = 0;
  for (const QString& line : text.split('\n')) {
    const int fits = OptFontSize(line.toStdString(), courierMeasure_, kDesignFont, width);
    size = size == 0 ? fits : std::min(size, fits);
  }
  return size;
}

void Spoiler::LayOut() {
  const SpoilerPlaces places = LayOutSpoiler(OuterWidth(*this), OuterHeight(*this));
  headLine_->setGeometry(PixelRect(places.HeadLine));
  text_->setGeometry(PixelRect(places.Text));
  warningOff_->setGeometry(PixelRect(places.WarningOff));
  ok_->setGeometry(PixelRect(places.Ok));
  cancel_->setGeometry(PixelRect(places.Cancel));
  for (QPushButton* button : {ok_, cancel_}) {
    button->setFont(FormFont(OptFontSize(button->text().toStdString(), formMeasure_, kDesignFont,
                                         places.Ok.Width - kButtonMargin)));
  }
  FitText(places.Text.Width);
  headLine_->setFont(CourierFont(
      std::min(kLargestHeadLine, FittingFont(headLine_->text(), places.HeadLine.Width))));
}

// The longest line may fill the box from edge to edge; any width left becomes margin.
void Spoiler::FitText(int width) {
  const QString text = text_->toPlainText();
  text_->setFont(CourierFont(FittingFont(text, width)));
  const QFontMetricsF letters(text_->font());
  double widest = 0;
  for (const QString& line : text.split('\n')) {
    widest = std::max(widest, letters.horizontalAdvance(line));
  }
  const double spare = (text_->width() - widest) / 2;
  text_->document()->setDocumentMargin(std::clamp(spare, 0.0, double{kTextMargin}));
}

void Spoiler::paintEvent(QPaintEvent*) {
  constexpr int frame = 3;  // of the text's border, a pixel of which its plate covers
  QPainter painter(this);
  PaintTiles(painter, rect(), pictures_);
  const QRect head = headLine_->geometry();
  QLinearGradient band(head.topLeft(), head.bottomLeft());
  band.setColorAt(0, QColor::fromRgba(kBand));
  band.setColorAt(1, QColor::fromRgba(kBand & 0x30FFFFFF));
  painter.fillRect(head, band);
  painter.fillRect(QRect(head.left(), head.bottom(), head.width(), 1), QColor(kBandEdge));
  PaintBorder(painter, BorderSet::Options, text_->geometry().adjusted(-frame, -frame, frame, frame),
              pictures_);
  PaintBorder(painter, BorderSet::Map, rect(), pictures_);
}

void Spoiler::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  LayOut();
}

// Escape neither spoils the game nor ends the program.
void Spoiler::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) QDialog::keyPressEvent(event);
}

void Spoiler::closeEvent(QCloseEvent* event) {
  event->ignore();
  accept();
}

bool Spoiler::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease && OnTextClick) OnTextClick();
  return QDialog::eventFilter(watched, event);
}

}  // namespace orrerix
