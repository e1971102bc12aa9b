// SPDX-License-Identifier: MIT
#include "forms/start/loading.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/controls/painted_ground.h"
#include "forms/controls/plain_label.h"
#include "picture/form_font.h"

namespace orrerix {
namespace {

constexpr QSize kLogoSize{640, 160};
constexpr QSize kFormSize{672, 252};
constexpr int kLogoTop = 16;
constexpr int kYieldsBeforeClosing = 5;

}  // namespace

Loading::Loading(PictureStore& pictures, const LanguageChoice& choice)
    : pictures_(pictures), choice_(choice) {
  setObjectName("loading");
  setWindowTitle(CaptionIn(choice_.Current, TextId::LoadingTitle));
  setFixedSize(kFormSize);
  auto* logo = new PlainLabel(this);
  logo->setObjectName("Image_Clan");
  logo->setGeometry(QRect({(kFormSize.width() - kLogoSize.width()) / 2, kLogoTop}, kLogoSize));
  QPixmap picture = pictures.Scaled(":/pictures/logo.png", kLogoSize * devicePixelRatioF());
  picture.setDevicePixelRatio(devicePixelRatioF());
  logo->setPixmap(picture);
  const int below = kLogoTop + kLogoSize.height() + 10;
  AddLabel("Label1", CaptionIn(choice_.Current, TextId::LoadingSlogan), 11, below);
  AddLabel("Label2", CaptionIn(choice_.Current, TextId::LoadingCredit), 9, below + 28);
  move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

QLabel* Loading::AddLabel(const char* name, const QString& text, int points, int top) {
  auto* label = new PlainLabel(text, this);
  label->setObjectName(name);
  label->setFont(FormFont(points));
  label->setAlignment(Qt::AlignCenter);
  label->setGeometry(0, top, kFormSize.width(), 24);
  QPalette colors = label->palette();
  colors.setColor(QPalette::WindowText, QColor(0xFFB4CCFF));
  label->setPalette(colors);
  return label;
}

void Loading::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  // Not every desktop gives the focus to a window that is just shown, so being shown has to do.
  QTimer::singleShot(0, this, [this] { GotFocus(); });
}

void Loading::GotFocus() {
  if (std::exchange(started_, true)) return;
  if (OnGotFocus) OnGotFocus();
}

void Loading::ShowClosing(const std::function<void()>& yield) {
  setWindowTitle(CaptionIn(choice_.Current, TextId::ClosingTitle));
  started_ = true;
  show();
  for (int i = 0; i < kYieldsBeforeClosing; ++i) yield();
}

void Loading::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintTiles(painter, rect(), pictures_);
}

}  // namespace orrerix
