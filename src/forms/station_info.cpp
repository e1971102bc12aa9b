// SPDX-License-Identifier: MIT
#include "forms/station_info.h"

#include <QCloseEvent>
#include <QIcon>
#include <QScreen>
#include <utility>

#include "forms/form_geometry.h"
#include "picture/picture_files.h"

namespace orrerix {
namespace {

constexpr int kIconPixels = 64;

}  // namespace

StationInfo::StationInfo(PictureStore& pictures, std::string nickname, std::string picture)
    : nick_(std::move(nickname)), picture_(std::move(picture)) {
  setObjectName("StationInfo");
  setWindowTitle(QString::fromStdString(nick_));
  const QString file = PictureFile(MakePicture("Station", std::nullopt, {}, picture_));
  setWindowIcon(QIcon(pictures.Scaled(file, {kIconPixels, kIconPixels})));
  Place();
}

// The right-hand third of the screen.
void StationInfo::Place() {
  constexpr int kept = 400;  // twips of the screen's height
  const QRect all = screen()->geometry();
  const int third = all.width() / 3;
  move(all.left() + 2 * third, all.top());
  resize(third, all.height() - static_cast<int>(Pixels(kept)));
}

void StationInfo::closeEvent(QCloseEvent* event) {
  event->accept();
  if (OnClosed) OnClosed();
}

}  // namespace orrerix
