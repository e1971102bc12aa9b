// SPDX-License-Identifier: MIT
#include "forms/qt_services.h"

#include <QAbstractButton>
#include <QApplication>
#include <QAudioDevice>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMessageBox>
#include <QPrinterInfo>
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

// Installed beside the program, or in the folder that it was built in.
void DesktopLinks::OpenManual() {
  for (const char* place : {"../share/doc/orrerix/manual.md", "docs/manual.md",
                            "../docs/manual.md", "../../docs/manual.md"}) {
    const QFileInfo manual(QDir(QCoreApplication::applicationDirPath()), place);
    if (!manual.exists()) continue;
    QDesktopServices::openUrl(QUrl::fromLocalFile(manual.canonicalFilePath()));
    return;
  }
}

std::optional<PrintTarget> DesktopPrinters::DefaultPrinter() {
  const QString printer = QPrinterInfo::defaultPrinterName();
  if (printer.isEmpty()) return std::nullopt;
  return PrintTarget{printer.toStdString(), {}};
}

DesktopSound::DesktopSound() = default;
DesktopSound::~DesktopSound() = default;

QSoundEffect& DesktopSound::EffectOf(const std::filesystem::path& file) {
  auto& effect = effects_[file];
  if (!effect) {
    effect = std::make_unique<QSoundEffect>();
    effect->setSource(QUrl::fromLocalFile(QString::fromStdString(file.string())));
  }
  return *effect;
}

void DesktopSound::Play(const std::filesystem::path& file) {
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  if (device.isNull()) return;
  if (last_ != nullptr) last_->stop();
  last_ = &EffectOf(file);
  if (last_->audioDevice() != device) last_->setAudioDevice(device);
  last_->play();
}

void DesktopSound::Beep() {
  QApplication::beep();
}

}  // namespace orrerix
