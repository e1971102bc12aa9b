// SPDX-License-Identifier: MIT
#include "forms/update.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include "picture/form_font.h"

namespace orrerix {
namespace {

constexpr int kFont = 12;
constexpr int kMargin = 24;

}  // namespace

Update::Update(const std::string& toolTip) {
  setObjectName("Update");
  setWindowTitle("Update online");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  label1_ =
      new QPushButton("A new Version is online. Click here to open the FL-Orrerix WebPage", this);
  label1_->setObjectName("Label1");
  label1_->setFont(FormFont(kFont));
  label1_->setFlat(true);
  label1_->setCursor(Qt::PointingHandCursor);
  label1_->setToolTip(QString::fromStdString(toolTip).toHtmlEscaped());
  layout->addWidget(label1_);
  QObject::connect(label1_, &QPushButton::clicked, this, [this] {
    if (OnLabel1Click) OnLabel1Click();
  });
  adjustSize();
  move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

void Update::closeEvent(QCloseEvent* event) {
  event->accept();
  if (OnQueryUnload) OnQueryUnload();
}

}  // namespace orrerix
