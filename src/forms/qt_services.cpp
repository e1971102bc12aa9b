// SPDX-License-Identifier: MIT
#include "forms/qt_services.h"

#include <QAbstractButton>
#include <QApplication>
#include <QAudioDevice>
#include <QDesktopServices>
#include <QMediaDevices>
#include <QMessageBox>
#include <QSoundEffect>
#include <QUrl>

namespace orrerix {
namespace {

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::AbortRetryIgnore:
      return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case MessageButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Critical:
      return QMessageBox::Critical;
    case MessageIcon::Exclamation:
      return QMessageBox::Warning;
    case MessageIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

MessageAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Cancel:
      return MessageAnswer::Cancel;
    case QMessageBox::Abort:
      return MessageAnswer::Abort;
    case QMessageBox::Retry:
      return MessageAnswer::Retry;
    case QMessageBox::Ignore:
      return MessageAnswer::Ignore;
    default:
      return MessageAnswer::Ok;
  }
}

}  // namespace

MessageAnswer DesktopMessageBoxes::Show(const Message& message) {
  QMessageBox box(IconOf(message.Icon), QString::fromStdString(message.Title),
                  QString::fromStdString(message.Text).remove('\r'), ButtonsOf(message.Buttons),
                  QApplication::activeWindow());
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  box.setWindowModality(Qt::ApplicationModal);
  for (QAbstractButton* button : box.buttons()) button->setIcon({});
  return AnswerOf(box.exec());
}

void DesktopLinks::Open(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

DesktopSound::DesktopSound() = default;
DesktopSound::~DesktopSound() = default;

void DesktopSound::Play(const std::filesystem::path& file) {
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  if (device.isNull()) return;
  if (!effect_) effect_ = std::make_unique<QSoundEffect>(device);
  effect_->stop();
  effect_->setSource(QUrl::fromLocalFile(QString::fromStdString(file.string())));
  effect_->play();
}

void DesktopSound::Beep() {
  QApplication::beep();
}

}  // namespace orrerix
