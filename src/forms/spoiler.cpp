// SPDX-License-Identifier: MIT
#include "forms/spoiler.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <algorithm>

#include "forms/form_geometry.h"
#include "forms/spoiler_layout.h"
#include "map/opt_font_size.h"

namespace orrerix {
namespace {

constexpr int kLargestHeadLine = 24;
constexpr int kCheckFont = 10;
constexpr int kTextMargin = 2;  // logical pixels at each side of the text
constexpr int kDesignFont = 1;  // from here every search ends at the largest size that fits
constexpr int kButtonMargin = 200;
constexpr QRgb kGround = 0xFF000040;
constexpr QRgb kCheckGround = 0xFF5068B0;  // the box is seen on the dark ground

}  // namespace

Spoiler::Spoiler(const SpoilerTexts& texts) {
  setObjectName("Spoiler");
  setWindowTitle("FL Orrerix Spoiler-Warning");
  setModal(true);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, QColor(kGround));
  setPalette(colors);
  headLine_ = new QLabel(QString::fromStdString(texts.HeadLine), this);
  headLine_->setObjectName("HeadLine");
  headLine_->setTextFormat(Qt::PlainText);
  headLine_->setAlignment(Qt::AlignCenter);
  colors.setColor(QPalette::WindowText, QColor(0xFFFFD060));
  headLine_->setPalette(colors);
  text_ = new QPlainTextEdit(QString::fromStdString(texts.Text).remove('\r'), this);
  text_->setObjectName("Text");
  text_->setAccessibleName("Warning");
  text_->setReadOnly(true);
  text_->document()->setDocumentMargin(kTextMargin);
  text_->setTabChangesFocus(true);
  text_->viewport()->installEventFilter(this);
  check1_ = new QCheckBox("Dont show that warning again (If I use the same map)", this);
  check1_->setObjectName("Check1");
  check1_->setFont(FormFont(kCheckFont));
  QPalette box = check1_->palette();
  box.setColor(QPalette::Base, QColor(kCheckGround));
  check1_->setPalette(box);
  QObject::connect(check1_, &QCheckBox::toggled, this, [this](bool checked) {
    if (OnCheck1) OnCheck1(checked);
  });
  ok_ = AddButton("Command1_0", texts.Ok, "OK - Start Orrerix");
  cancel_ = AddButton("Command1_1", texts.Cancel, "Cancel - Quit Program");
  QObject::connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  QObject::connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  ok_->setFocus();
}

QPushButton* Spoiler::AddButton(const char* name, const std::string& caption, const char* toolTip) {
  auto* button = new QPushButton(QString::fromStdString(caption), this);
  button->setObjectName(name);
  button->setToolTip(toolTip);
  return button;
}

// The largest size at which the longest line of a text fits.
int Spoiler::FittingFont(const QString& text, int width) const {
  int size = 0;
  for (const QString& line : text.split('\n')) {
    const int fits = OptFontSize(line.toStdString(), fixedMeasure_, kDesignFont, width);
    size = size == 0 ? fits : std::min(size, fits);
  }
  return size;
}

void Spoiler::FormResize() {
  const SpoilerPlaces places = LayOutSpoiler(OuterWidth(*this), OuterHeight(*this));
  headLine_->setGeometry(PixelRect(places.HeadLine));
  text_->setGeometry(PixelRect(places.Text));
  check1_->setGeometry(PixelRect(places.Check1));
  ok_->setGeometry(PixelRect(places.Ok));
  cancel_->setGeometry(PixelRect(places.Cancel));
  for (QPushButton* button : {ok_, cancel_}) {
    // On a wide screen the width alone would give letters larger than the button.
    button->setFont(FormFont(OptFontSize(button->text().toStdString(), formMeasure_, kDesignFont,
                                         places.Ok.Width - kButtonMargin, places.Ok.Height)));
  }
  // Room for the frame and for a scroll bar, which would break the longest line.
  const int sides = 2 * (kTextMargin + text_->frameWidth()) +
                    style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, text_);
  text_->setFont(FixedFont(
      FittingFont(text_->toPlainText(), places.Text.Width - static_cast<int>(Twips(sides)))));
  headLine_->setFont(
      FixedFont(std::min(kLargestHeadLine, FittingFont(headLine_->text(), places.HeadLine.Width))));
}

void Spoiler::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  FormResize();
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
