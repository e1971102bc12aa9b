// SPDX-License-Identifier: MIT
#include "forms/start/update.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "forms/controls/captions.h"
#include "forms/controls/painted_ground.h"
#include "picture/form_font.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

constexpr int kUpdateFont = 12;
constexpr int kMargin = 24;

// A link that lights up under the mouse.
constexpr const char* kUpdateStyle =
    "QPushButton { color: #b8e4ff; background: rgba(6, 10, 34, 200); border: none;"
    "  padding: 8px 12px; }"
    "QPushButton:hover, QPushButton:focus { color: #ffffff; background: #1c3478; }";

}  // namespace

Update::Update(const std::string& toolTip, PictureStore& pictures, Language language)
    : pictures_(pictures) {
  setObjectName("Update");
  setWindowTitle(CaptionIn(language, TextId::UpdateTitle));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  notice_ = new QPushButton(CaptionIn(language, TextId::UpdateNotice), this);
  notice_->setObjectName("UpdateNotice");
  notice_->setFont(FormFont(kUpdateFont));
  notice_->setStyleSheet(kUpdateStyle);
  notice_->setCursor(Qt::PointingHandCursor);
  notice_->setToolTip(PlainToolTip(toolTip));
  layout->addWidget(notice_);
  QObject::connect(notice_, &QPushButton::clicked, this, [this] {
    if (OnNoticeClicked) OnNoticeClicked();
  });
  adjustSize();
  move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

void Update::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintTiles(painter, rect(), pictures_);
  PaintBorder(painter, BorderSet::InfoBox, rect(), pictures_);
}

void Update::closeEvent(QCloseEvent* event) {
  event->accept();
  if (OnClosed) OnClosed();
}

}  // namespace orrerix
