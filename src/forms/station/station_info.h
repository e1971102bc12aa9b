// SPDX-License-Identifier: MIT
// The station windows.
#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QListWidget>
#include <QSettings>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/controls/text_box.h"
#include "forms/station/price_table_view.h"
#include "info/station/station_layout.h"
#include "info/station/station_modes.h"
#include "picture/picture_store.h"
#include "picture/qt_text_measure.h"
#include "platform/sound.h"
#include "shell/routine.h"

namespace orrerix {

// What station windows are built from; all of it outlives them.
struct StationParts {
  ErrorLog& Log;
  PictureStore& Pictures;
  SoundPlayer& Sound;
  TextSource& Texts;
  const CellNames& Names;
  std::function<Universe(Routine&)> OpenUniverse;
  std::function<QSize()> Decoration;  // what the desktop adds to a window's size, pixels

  // Called with the station's nickname by the buttons for what to buy at it, for its trades and for
  // the way to it; without them there are no such buttons.
  std::function<void(const std::string&)> OnGoods = nullptr;
  std::function<void(const std::string&)> OnTrades = nullptr;
  std::function<void(const std::string&)> OnWay = nullptr;

  // Where the size is kept that the user gave a window; null, or without it, none is.
  std::function<QSettings*()> Remembered = nullptr;
};

// The station window of one object of the map: five views of what the universe knows of it.
class StationInfo : public QWidget {
 public:
  // `picture` is the name of the object's icon picture. The window stands so many steps off the
  // right-hand edge of the screen that those which stand there show beside it.
  StationInfo(const StationParts& parts, std::string nickname, std::string picture, int step = 0);

  int Step() const { return step_; }

  const std::string& Nick() const { return nick_; }
  const std::string& Picture() const { return picture_; }
  StationMode Mode() const { return modes_.Mode(); }

  // Whether it has the size that its place asks for, which is once it is on the screen.
  bool IsSettled() const { return settled_; }

  // Keeps the size if the user has changed it. Closing does so, too.
  void RememberSize() const;

  // Called when the user closes it, with nothing of it on the stack after that.
  std::function<void()> OnClosed;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void MakeDecoration();
  QPixmap SharpPixmap(const QString& file, QSize size);
  void ShowPicture(ControlId id, const QString& file, const QRect& place);
  void MakeModes();
  void MakeTravelButtons();
  void Place();
  void Settle();
  QSize RememberedSize() const;
  QSize Decoration() const;
  void ReadAnew();
  void ShowView();
  void ChooseMode(std::size_t button);
  void ShowForSale(int row);
  void ShowModeTexts();
  void ShowModes();
  void ShowControl(const Control& control);
  void FillList();
  const std::vector<ForSale>& ForSaleRows() const;
  Wording Words() const;
  QString Caption(TextId id) const;

  const StationParts parts_;
  std::string nick_;
  std::string picture_;
  int step_;
  StationData data_;
  StationModes modes_;
  StationTexts texts_;
  QRect place_;           // outer, pixels of the screen
  QSize placedSize_;      // inner, as it was placed
  bool settled_ = false;  // it has the size that its place asks for with its real decoration
  QtTextMeasure formMeasure_;
  QtTextMeasure fixedMeasure_{FixedFont};
  std::array<QAbstractButton*, kModeButtons> mode_{};
  TextBox* infoText_;
  PriceTableView* prices_;
  QGroupBox* searchFrame_;
  QListWidget* searchList_;
};

// The station windows that stand open, any number side by side.
class StationWindows {
 public:
  explicit StationWindows(StationParts parts) : parts_(std::move(parts)) {}

  // Shows one more, a step beside those that are open. It is freed when it is closed, or with this.
  void Open(const std::string& nickname, const std::string& picture);

  void CloseAll();

  // Those that are open, the oldest first.
  const std::vector<std::unique_ptr<StationInfo>>& Windows() const { return windows_; }

 private:
  void Forget(const StationInfo* window);
  int FreeStep() const;

  const StationParts parts_;
  std::vector<std::unique_ptr<StationInfo>> windows_;
};

}  // namespace orrerix
