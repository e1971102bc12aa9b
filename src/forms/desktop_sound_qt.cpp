// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QAudioDevice>
#include <QEventLoop>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>
#include <map>

#include "forms/desktop_sound.h"

namespace orrerix {
namespace {

class DesktopSound : public SoundPlayer {
 public:
  void Play(const std::filesystem::path& file) override;
  void WaitForEnd() override;
  void Beep() override;

 private:
  QSoundEffect& EffectOf(const std::filesystem::path& file);

  std::map<std::filesystem::path, std::unique_ptr<QSoundEffect>> effects_;  // read once
  QSoundEffect* last_ = nullptr;
};

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

}  // namespace

std::unique_ptr<SoundPlayer> MakeDesktopSound() {
  return std::make_unique<DesktopSound>();
}

}  // namespace orrerix
