// SPDX-License-Identifier: MIT
#include "forms/start/update.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "forms/controls/captions.h"
#include "forms/controls/painted_border.h"
#include "forms/controls/tiled_ground.h"
#include "picture/form_font.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

constexpr int kFont = 12;
constexpr int kMargin = 24;

// A link that lights up under the mouse.
constexpr const char* kStyle =
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
  label1_ = new QPushButton(CaptionIn(language, TextId::UpdateNotice), this);
  label1_->setObjectName("Label1");
  label1_->setFont(FormFont(kFont));
  label1_->setStyleSheet(kStyle);
  label1_->setCursor(Qt::PointingHandCursor);
  label1_->setToolTip(PlainToolTip(toolTip));
  layout->addWidget(label1_);
  QObject::connect(label1_, &QPushButton::clicked, this, [this] {
    if (OnLabel1Click) OnLabel1Click();
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
  if (OnQueryUnload) OnQueryUnload();
}

}  // namespace orrerix
