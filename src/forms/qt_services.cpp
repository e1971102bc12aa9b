// SPDX-License-Identifier: MIT
#include "forms/qt_services.h"

#include <QAbstractButton>
#include <QApplication>
#include <QAudioDevice>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

#include "picture/picture_store.h"

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

// The drawing for a sign; none for a message without one.
QString FileOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Critical:
      return QStringLiteral(":/pictures/signs/critical.svg");
    case MessageIcon::Exclamation:
      return QStringLiteral(":/pictures/signs/exclamation.svg");
    case MessageIcon::None:
      break;
  }
  return {};
}

void ShowSign(QMessageBox& box, MessageIcon icon) {
  constexpr int pixels = 40;
  const QString file = FileOf(icon);
  if (file.isEmpty()) return;
  PictureStore pictures;
  const double ratio = box.devicePixelRatioF();
  QPixmap sign = pictures.Scaled(file, QSize(pixels, pixels) * ratio);
  sign.setDevicePixelRatio(ratio);
  box.setIconPixmap(sign);
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
  QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(message.Title),
                  QString::fromStdString(message.Text).remove('\r'), ButtonsOf(message.Buttons),
                  QApplication::activeWindow());
  box.setObjectName("MessageBox");
  ShowSign(box, message.Icon);
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
  for (const char* place : {"../share/doc/orrerix/manual.md", "docs/manual.md", "../docs/manual.md",
                            "../../docs/manual.md"}) {
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

void DesktopSound::WaitForEnd() {
  constexpr int longest = 3000;  // milliseconds
  if (last_ == nullptr) return;
  const auto isSounding = [this] {
    return last_->isPlaying() || last_->status() == QSoundEffect::Loading;
  };
  QEventLoop loop;
  QTimer::singleShot(longest, &loop, &QEventLoop::quit);
  const auto quitOnceSilent = [&] {
    if (!isSounding()) loop.quit();
  };
  QObject::connect(last_, &QSoundEffect::playingChanged, &loop, quitOnceSilent);
  QObject::connect(last_, &QSoundEffect::statusChanged, &loop, quitOnceSilent);
  if (isSounding()) loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void DesktopSound::Beep() {
  QApplication::beep();
}

}  // namespace orrerix
