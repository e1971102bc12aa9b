// SPDX-License-Identifier: MIT
#include "forms/start/import_screen.h"

#include <QPainter>

#include "forms/controls/captions.h"
#include "forms/controls/form_geometry.h"
#include "forms/controls/painted_ground.h"
#include "forms/start/import_screen_layout.h"
#include "picture/form_font.h"
#include "picture/twips.h"

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
      importText_(new QPlainTextEdit(this)),
      gameFolderEdit_(new QLineEdit(this)),
      startButton_(new QPushButton(this)),
      memFrame_(new MemFrame(choice, this)) {
  setObjectName("ImportScreen");
  MakeImportText();
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
  importText_->setAccessibleName(CaptionIn(language, TextId::ImportProgressName));
  importText_->setPlainText(CaptionIn(language, TextId::ImportBegins) + "\n");
  gameFolderEdit_->setAccessibleName(CaptionIn(language, TextId::GameFolderName));
  startButton_->setText(CaptionIn(language, TextId::StartImport));
}

void ImportScreen::MakeImportText() {
  importText_->setObjectName("ImportText");
  importText_->setReadOnly(true);
  importText_->setFont(FixedFont(kTextFont));
  importText_->setStyleSheet(kTextStyle);
}

void ImportScreen::MakePathRow() {
  gameFolderEdit_->setObjectName("GameFolderEdit");
  gameFolderEdit_->setText("C:\\Programme\\Microsoft Games\\Freelancer");
  gameFolderEdit_->setFont(FormFont(kTextFont));
  gameFolderEdit_->setStyleSheet(kPathStyle);
  startButton_->setObjectName("StartButton");
  startButton_->setFont(FormFont(kTextFont));
  startButton_->setStyleSheet(kButtonStyle);
}

void ImportScreen::LayOut(int formWidth, int formHeight, bool importing) {
  WholeTwipRect row{0, 0, 0, kRowHeight};
  const ImportScreenLayout layout =
      LayOutImportScreen({formWidth, formHeight, kButtonWidth, MemFrame::kDesignHeight, importing});
  importText_->setGeometry(PixelRect(layout.Text));
  row = layout.GameFolder;
  row.Height = kRowHeight;
  gameFolderEdit_->setGeometry(PixelRect(row));
  row = layout.StartButton;
  row.Height = kRowHeight;
  startButton_->setGeometry(PixelRect(row));
  gameFolderEdit_->setVisible(!importing);
  startButton_->setVisible(!importing);
  memFrame_->setVisible(importing);
  progress_[0]->setVisible(importing);
  if (!importing) return;
  memFrame_->setGeometry(PixelRect(layout.MemFrame));
  progress_[0]->setGeometry(PixelRect(layout.Progress));
  progressPlace_ = layout.Progress;
}

void ImportScreen::ShowProgress(std::int32_t maximum, std::int32_t value,
                                const ImportProgress& progress) {
  const ProgressPicture picture = LayOutProgress(progressPlace_, maximum, value, progress);
  const auto place = [](ProgressShape& shape, const WholeTwipRect& box) {
    shape.setGeometry(PixelRect(box));
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

ProgressShape::ProgressShape(Color border, Color fill, QWidget* parent)
    : QWidget(parent), border_(ToQColor(border)), fill_(ToQColor(fill)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ProgressShape::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), border_);
  painter.fillRect(rect().adjusted(1, 1, -1, -1), fill_);
}

}  // namespace orrerix
