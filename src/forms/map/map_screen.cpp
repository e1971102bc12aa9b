// SPDX-License-Identifier: MIT
#include "forms/map/map_screen.h"

#include <QGuiApplication>
#include <QStyle>
#include <algorithm>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "map/layers/system_pictures.h"
#include "map/panel/option_switches.h"
#include "online/web_pages.h"
#include "picture/picture_files.h"
#include "picture/twips.h"
#include "platform/freed_memory.h"

namespace orrerix {
namespace {

constexpr int kMostGlideTime = 100;  // milliseconds
constexpr int kReadingPause = 2;
constexpr int kCompactForm = 1020;  // outer width of a form beside the game, pixels

std::vector<QString> PicturesOfZooms() {
  std::vector<QString> files = {PictureFile(MakePicture(ControlId::BackgroundTile, 0, {})),
                                PictureFile(MakePicture(ControlId::EmptyCell, 0, {}))};
  for (int i = 0; i < kSystemPictures; ++i) {
    files.push_back(PictureFile(MakePicture(ControlId::SystemPicture, i, {})));
  }
  return files;
}

}  // namespace

int DesktopGlideTime(const QWidget& widget) {
  const QString platform = QGuiApplication::platformName();
  if (platform == "offscreen" || platform == "minimal") return 0;
  const int time =
      widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget);
  return std::clamp(time, 0, kMostGlideTime);
}

MapScreen::MapScreen(PictureStore& pictures, Settings& settings, TextSource& texts, QWidget* form)
    : pictures_(pictures),
      settings_(settings),
      texts_(texts),
      scene_(pictures),
      frame_(new SysmapFrame(scene_, form)),
      sharpening_(new QTimer(frame_)) {
  frame_->hide();
  frame_->Glide().SetTime(DesktopGlideTime(*frame_));
  frame_->OnUnfinished = [this] { sharpening_->start(0); };
  overlay_ = std::make_unique<HoverOverlay>(scene_, frame_);
  QObject::connect(sharpening_, &QTimer::timeout, frame_, [this] { Sharpen(); });
  pictures_.OnWanted = [this] { sharpening_->start(0); };
}

MapScreen::~MapScreen() {
  pictures_.OnWanted = nullptr;
}

void MapScreen::ReadCaptions() {
  panel_ = PanelTexts(texts_);
  frame_->setAccessibleName(QString::fromStdString(texts_.Text(TextId::StarMap)));
  panel_.News.front().Link = ownLink_;
  for (const NewsItem& item : news_) {
    NewsItem& shown = panel_.News.emplace_back(item);
    if (IsOpenable(item.Link)) continue;
    const std::string notOpened = texts_.Text(TextId::LinkNotOpened);
    shown.ToolTip += " - " + fmt::format(fmt::runtime(notOpened), item.Link);
  }
}

void MapScreen::SetNews(std::string ownLink, std::vector<NewsItem> news) {
  ownLink_ = std::move(ownLink);
  news_ = std::move(news);
  ReadCaptions();
}

void MapScreen::InitDataUsage(Universe& universe) {
  if (std::exchange(namesRead_, true)) return;
  state_.Names = GetSystemNames(universe, texts_);
  ReadAhead();
}

// The first zoom needs many pictures at once: they are read one by one while nothing else happens.
void MapScreen::ReadAhead() {
  auto* timer = new QTimer(frame_);
  QObject::connect(timer, &QTimer::timeout, frame_,
                   [this, timer, files = PicturesOfZooms()]() mutable {
                     pictures_.Read(files.back());
                     files.pop_back();
                     if (!files.empty()) return;
                     timer->deleteLater();
                     ReturnFreedMemory();
                   });
  timer->start(0);
}

// What takes longer than a redraw is done after one, bit by bit.
void MapScreen::Sharpen() {
  if (frame_->PaintMore()) return;
  const bool isDone = pictures_.ReadWanted(PictureStore::Waiting::ForNothing);
  sharpening_->setInterval(isDone ? 0 : kReadingPause);
  if (pictures_.IsWanting() || frame_->PaintMore()) return;
  sharpening_->stop();
  ReturnFreedMemory();
}

MapOptions MapScreen::ReadOptions() {
  return ReadMapOptions(settings_, state_.Zoom.Current().IsZoomed());
}

void MapScreen::Redraw(Universe& universe, int formWidth, int formHeight) {
  options_ = ReadOptions();
  // News and language may change while a question about a failure is open.
  const PanelContent panel = panel_;
  MapDrawing drawing = DrawMap(universe, state_,
                               {formWidth, formHeight, options_, measure_, panel, starMap_,
                                formWidth <= Twips(kCompactForm)});
  // Leaves out pixels that the drawing covers only in part.
  const QRectF frame = Pixels(drawing.Frame);
  frame_->setGeometry(QRect(frame.topLeft().toPoint(), QSize(static_cast<int>(frame.width()),
                                                             static_cast<int>(frame.height()))));
  scene_.Show(std::move(drawing));
  frame_->show();
}

}  // namespace orrerix
