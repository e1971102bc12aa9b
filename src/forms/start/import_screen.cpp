// SPDX-License-Identifier: MIT
#include "forms/start/import_screen.h"

#include <QPainter>

#include "forms/controls/captions.h"
#include "forms/controls/form_geometry.h"
#include "forms/controls/tiled_ground.h"
#include "picture/form_font.h"

namespace orrerix {
namespace {

constexpr Color kProgressBorder{0x800000};
constexpr std::array<Color, 3> kProgressFill = {Color{0xFF8080}, Color{0x400000}, Color{0xC00000}};
constexpr int kButtonWidth = 2100;
constexpr int kRowHeight = 375;
constexpr int kTextFont = 9;

constexpr const char* kTextStyle =
    "QPlainTextEdit { background: rgba(6, 10, 34, 225); color: #b4ccff;"
    "  border: 1px solid #2a4080; selection-background-color: #3050a0; }";
constexpr const char* kPathStyle =
    "QLineEdit { background: #0a1034; color: #e0e8ff; border: 1px solid #3a54a0;"
    "  padding: 0 4px; selection-background-color: #3050a0; }";
constexpr const char* kButtonStyle =
    "QPushButton { background: #1c3478; color: #f0f4ff; border: 1px solid #5a7cd0; }"
    "QPushButton:hover, QPushButton:focus { background: #2a4a9c; }"
    "QPushButton:pressed { background: #142658; }";

}  // namespace

ImportScreen::ImportScreen(PictureStore& pictures, const LanguageChoice& choice, QWidget* parent)
    : QWidget(parent),
      pictures_(pictures),
      choice_(choice),
      text1_(new QPlainTextEdit(this)),
      text2_(new QLineEdit(this)),
      command1_(new QPushButton(this)),
      memFrame_(new MemFrame(choice, this)) {
  setObjectName("ImportScreen");
  MakeText1();
  MakePathRow();
  ShowCaptions();
  for (std::size_t i = 0; i < progress_.size(); ++i) {
    progress_[i] = new ProgressShape(kProgressBorder, kProgressFill[i], this);
    progress_[i]->setObjectName(QStringLiteral("Progress%1").arg(i));
    progress_[i]->hide();
  }
  memFrame_->hide();
}

void ImportScreen::ShowCaptions() {
  const Language language = choice_.Current;
  text1_->setAccessibleName(CaptionIn(language, TextId::ImportProgressName));
  text1_->setPlainText(CaptionIn(language, TextId::ImportBegins) + "\n");
  text2_->setAccessibleName(CaptionIn(language, TextId::GameFolderName));
  command1_->setText(CaptionIn(language, TextId::StartImport));
}

void ImportScreen::MakeText1() {
  text1_->setObjectName("Text1");
  text1_->setReadOnly(true);
  text1_->setFont(FixedFont(kTextFont));
  text1_->setStyleSheet(kTextStyle);
}

void ImportScreen::MakePathRow() {
  text2_->setObjectName("Text2");
  text2_->setText("C:\\Programme\\Microsoft Games\\Freelancer");
  text2_->setFont(FormFont(kTextFont));
  text2_->setStyleSheet(kPathStyle);
  command1_->setObjectName("Command1");
  command1_->setFont(FormFont(kTextFont));
  command1_->setStyleSheet(kButtonStyle);
}

void ImportScreen::LayOut(int formWidth, int formHeight, bool importing) {
  FormPlace row{0, 0, 0, kRowHeight};
  const ImportScreenLayout layout =
      LayOutImportScreen({formWidth, formHeight, kButtonWidth, MemFrame::DesignHeight, importing});
  text1_->setGeometry(PixelRect(layout.Text1));
  row = layout.Text2;
  row.Height = kRowHeight;
  text2_->setGeometry(PixelRect(row));
  row = layout.Command1;
  row.Height = kRowHeight;
  command1_->setGeometry(PixelRect(row));
  text2_->setVisible(!importing);
  command1_->setVisible(!importing);
  memFrame_->setVisible(importing);
  progress_[0]->setVisible(importing);
  if (!importing) return;
  memFrame_->setGeometry(PixelRect(layout.MemFrame));
  progress_[0]->setGeometry(PixelRect(layout.Progress));
  const FormPlace& place = layout.Progress;
  progressPlace_ = {place.Left, place.Top, place.Width, place.Height};
}

void ImportScreen::ShowProgress(std::int32_t maximum, std::int32_t value,
                                const ImportProgress& progress) {
  const ProgressPicture picture = LayOutProgress(progressPlace_, maximum, value, progress);
  const auto place = [](ProgressShape& shape, const ProgressBox& box) {
    shape.setGeometry(PixelRect(box.Left, box.Top, box.Width, box.Height));
    shape.show();
  };
  place(*progress_[1], picture.Overall);
  place(*progress_[2], picture.Inner);
}

void ImportScreen::HideProgress() {
  for (ProgressShape* shape : progress_) shape->hide();
}

void ImportScreen::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintTiles(painter, rect(), pictures_);
}

}  // namespace orrerix
