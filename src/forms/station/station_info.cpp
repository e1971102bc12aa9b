// SPDX-License-Identifier: MIT
#include "forms/station/station_info.h"

#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "forms/controls/control_name.h"
#include "forms/controls/form_geometry.h"
#include "forms/controls/locale_separators.h"
#include "forms/controls/plain_label.h"
#include "forms/controls/row_list.h"
#include "picture/picture_files.h"

namespace orrerix {
namespace {

constexpr int kCascadeStep = 32;  // pixels, about a title bar
constexpr int kCascadeSteps = 8;
constexpr QSize kSmallestStation{320, 240};
constexpr const char* kSizeKey = "station/size";
constexpr int kIconPixels = 64;
constexpr int kTravelIconPixels = 36;
constexpr QRgb kStationInfoBackground = 0xFF000040;

// Places of what stands in the left margin, twips.
constexpr int kStationInfoSide = 150;
constexpr int kButton = kStationMargin - 2 * kStationInfoSide;
constexpr int kFirstMode = 1500;
constexpr int kModeStep = kButton + 120;
constexpr int kOrnamentTop = kFirstMode + static_cast<int>(kModeButtons) * kModeStep + 300;
constexpr int kStripHeight = 9000;

constexpr const char* kFrameStyle =
    "QGroupBox { border: 1px solid #3a6ca8; border-radius: 3px; margin-top: 8px; }"
    "QGroupBox::title { subcontrol-origin: margin; left: 4px; padding: 0 2px; }";

// Logical pixels round the text. Lines that are broken beforehand leave 20 free, most of which the
// scroll bar may need.
constexpr int kStationInfoTextMargin = 6;
constexpr int kWrappedMargin = 2;

constexpr std::array<TextId, kModeButtons> kModeNames = {
    TextId::PricesAndTrades, TextId::Information, TextId::ShipsForSale, TextId::EquipmentForSale};

}  // namespace

StationInfo::StationInfo(const StationParts& parts, std::string nickname, std::string picture,
                         int step)
    : parts_(parts), nick_(std::move(nickname)), picture_(std::move(picture)), step_(step) {
  setObjectName("StationInfo");
  QPalette colors = palette();
  colors.setColor(QPalette::Window, QColor(kStationInfoBackground));
  setPalette(colors);
  MakeDecoration();
  MakeModes();
  MakeTravelButtons();
  infoText_ = new TextBox(ControlId::BoxText, this);
  infoText_->setAccessibleName(Caption(TextId::Information));
  prices_ = new PriceTableView(parts_.Texts, this);
  prices_->setAccessibleName(Caption(TextId::Prices));
  searchFrame_ = new QGroupBox(this);
  searchFrame_->setObjectName(NameOf(ControlId::ForSaleFrame));
  searchFrame_->setStyleSheet(kFrameStyle);
  searchFrame_->setFont(FormFont(kStationText));
  searchList_ = new RowList(searchFrame_);
  searchList_->setObjectName(NameOf(ControlId::ForSaleList));
  searchList_->setFont(FormFont(kStationText));
  searchList_->setAccessibleName(Caption(TextId::ForSale));
  QObject::connect(searchList_, &QListWidget::currentRowChanged, this,
                   [this](int row) { ShowForSale(row); });
  QObject::connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this,
                   [this] { close(); });
  texts_ = ReadStationTexts({}, StationMode::Prices, parts_.Texts);
  Place();
  ReadAnew();
}

void StationInfo::MakeDecoration() {
  const QString file = PictureFile(MakePicture(ControlId::StationIcon, std::nullopt, {}, picture_));
  setWindowIcon(QIcon(parts_.Pictures.Scaled(file, {kIconPixels, kIconPixels})));
  ShowPicture(ControlId::StationStrip, ":/pictures/station/strip.jpg",
              PixelRect(0, 0, kStationMargin, kStripHeight));
  ShowPicture(ControlId::StationOrnament, ":/pictures/station/ornament.svg",
              PixelRect(kStationInfoSide, kOrnamentTop, kButton, kButton));
  ShowPicture(ControlId::StationIcon, file,
              PixelRect(kStationInfoSide, kStationInfoSide, kButton, kButton));
}

// A picture in front of those before it; the mouse goes through it.
void StationInfo::ShowPicture(ControlId id, const QString& file, const QRect& place) {
  auto* label = new PlainLabel(this);
  label->setObjectName(NameOf(id));
  label->setGeometry(place);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  label->setPixmap(SharpPixmap(file, place.size()));
}

// A picture in a size in logical pixels, made for this screen's own.
QPixmap StationInfo::SharpPixmap(const QString& file, QSize size) {
  const double ratio = devicePixelRatioF();
  QPixmap pixmap = parts_.Pictures.Scaled(file, size * ratio);
  pixmap.setDevicePixelRatio(ratio);
  return pixmap;
}

void StationInfo::MakeModes() {
  for (std::size_t i = 0; i < kModeButtons; ++i) {
    auto* button = new QPushButton(this);
    button->setObjectName(NameOf(ControlId::ModeButton, static_cast<int>(i)));
    button->setCheckable(true);
    button->setGeometry(PixelRect(kStationInfoSide, kFirstMode + static_cast<int>(i) * kModeStep,
                                  kButton, kButton));
    QObject::connect(button, &QPushButton::clicked, this, [this, i] { ChooseMode(i); });
    mode_[i] = button;
  }
}

// Below the ornament.
void StationInfo::MakeTravelButtons() {
  struct TravelButton {
    const char* Name;
    TextId Caption;
    const char* Picture;
    const std::function<void(const std::string&)>& Act;
  };
  const TravelButton buttons[] = {
      {"BuyHere", TextId::BuyHere, ":/pictures/tools/goods.svg", parts_.OnGoods},
      {"TradesFromHere", TextId::TradesFromHere, ":/pictures/tools/trades.svg", parts_.OnTrades},
      {"WayToHere", TextId::WayToHere, ":/pictures/tools/way.svg", parts_.OnWay}};
  int top = kOrnamentTop + kModeStep + 300;
  for (const TravelButton& travel : buttons) {
    if (!travel.Act) continue;
    auto* button = new QPushButton(this);
    button->setObjectName(travel.Name);
    button->setAccessibleName(Caption(travel.Caption));
    button->setToolTip(Caption(travel.Caption));
    button->setIcon(SharpPixmap(travel.Picture, QSize(kTravelIconPixels, kTravelIconPixels)));
    button->setIconSize(QSize(kTravelIconPixels, kTravelIconPixels));
    button->setGeometry(PixelRect(kStationInfoSide, top, kButton, kButton));
    QObject::connect(button, &QPushButton::clicked, this,
                     [this, &act = travel.Act] { act(nick_); });
    top += kModeStep;
  }
}

// Decoration included: the right-hand third of the screen, or the size that the user gave a window
// before. Each step is one of a title bar to the left and down, and ends above the same lower edge.
void StationInfo::Place() {
  constexpr int kept = 400;  // twips of the screen's height
  const QRect all = screen()->geometry();
  QSize size(all.width() / 3, all.height() - static_cast<int>(Pixels(kept)));
  const QSize remembered = RememberedSize();
  if (remembered.isValid()) size = remembered.boundedTo(size.expandedTo({all.width(), 0}));
  const int shift = step_ * kCascadeStep;
  const int left = std::max(all.left(), all.left() + all.width() - size.width() - shift);
  const int lowest = all.top() + all.height() - static_cast<int>(Pixels(kept));
  size.setHeight(std::min(size.height(), lowest - all.top() - shift));
  place_ = QRect(QPoint(left, all.top() + shift), size);
  move(place_.topLeft());
  resize(place_.size() - Decoration());
  placedSize_ = this->size();
}

// Only once it is on the screen does the window know its own decoration, which may be another than
// the one that it was placed with.
void StationInfo::Settle() {
  if (std::exchange(settled_, true)) return;
  const QSize inner = place_.size() - Decoration();
  placedSize_ = inner;
  if (size() == inner) return ShowView();
  move(place_.topLeft());
  resize(inner);
}

// Outer; not valid if there is none.
QSize StationInfo::RememberedSize() const {
  QSettings* settings = parts_.Remembered ? parts_.Remembered() : nullptr;
  const QSize size = settings == nullptr ? QSize() : settings->value(kSizeKey).toSize();
  return size.isValid() ? size.expandedTo(kSmallestStation) : QSize();
}

// Only what the user has changed: the size of a place is not one to be kept.
void StationInfo::RememberSize() const {
  QSettings* settings = parts_.Remembered ? parts_.Remembered() : nullptr;
  const bool isOwn = settled_ && size() != placedSize_ && windowState() == Qt::WindowNoState;
  if (settings != nullptr && isOwn) settings->setValue(kSizeKey, frameGeometry().size());
}

QSize StationInfo::Decoration() const {
  return settled_ ? frameGeometry().size() - size() : parts_.Decoration();
}

QString StationInfo::Caption(TextId id) const {
  return QString::fromStdString(parts_.Texts.Text(id));
}

Wording StationInfo::Words() const {
  return {parts_.Texts, LocaleSigns()};
}

void StationInfo::ReadAnew() {
  Routine routine(parts_.Log, "StationInfo.Form_Initialize", "While initializing Station-Infos");
  routine.Run([&] {
    Universe universe = parts_.OpenUniverse(routine);
    texts_ = ReadStationTexts(std::move(texts_), modes_.Mode(), parts_.Texts);
    data_ = ReadStation(universe, parts_.Names, parts_.Texts, nick_, modes_.Mode());
  });
  setWindowTitle(QString::fromStdString(data_.Caption.empty() ? nick_ : data_.Caption));
  ShowModeTexts();
  ShowModes();
  ShowView();
}

void StationInfo::ShowModeTexts() {
  const auto buttons = modes_.Buttons(data_, texts_);
  for (std::size_t i = 0; i < kModeButtons; ++i) {
    mode_[i]->setText(QString::fromStdString(buttons[i].Caption));
    mode_[i]->setFont(FormFont(buttons[i].FontSize));
    const QString name = Caption(kModeNames[i]);
    mode_[i]->setAccessibleName(name);
    mode_[i]->setToolTip(buttons[i].ToolTip.empty() ? name
                                                    : QString::fromStdString(buttons[i].ToolTip));
  }
}

void StationInfo::ShowModes() {
  const StationMode mode = modes_.Mode();
  mode_[0]->setChecked(mode == StationMode::Prices || mode == StationMode::Trades);
  mode_[1]->setChecked(mode == StationMode::Info);
  mode_[2]->setChecked(mode == StationMode::Ships);
  mode_[3]->setChecked(mode == StationMode::Equipment);
}

void StationInfo::ChooseMode(std::size_t button) {
  Routine routine(parts_.Log, "StationInfo.Mode_Click");
  routine.Run([&] {
    switch (modes_.Click(button, data_)) {
      case ModeAnswer::Beep:
        parts_.Sound.Beep();
        break;
      case ModeAnswer::Resize:
        ShowView();
        break;
      case ModeAnswer::Read:
        ReadAnew();
        break;
    }
    ShowModes();
  });
}

const std::vector<ForSale>& StationInfo::ForSaleRows() const {
  return modes_.Mode() == StationMode::Ships ? data_.Ships : data_.Equipment;
}

void StationInfo::FillList() {
  const StationMode mode = modes_.Mode();
  if (mode != StationMode::Ships && mode != StationMode::Equipment) return;
  const QSignalBlocker quiet(searchList_);
  searchList_->clear();
  for (const ForSale& item : ForSaleRows()) {
    searchList_->addItem(QString::fromStdString(item.RealName));
  }
  searchList_->setCurrentRow(0);
}

void StationInfo::ShowView() {
  Routine routine(parts_.Log, "StationInfo.Form_Resize", "While resizing objects in Shipinfo");
  routine.Run([&] {
    Universe universe = parts_.OpenUniverse(routine);
    const bool isTable =
        modes_.Mode() == StationMode::Prices || modes_.Mode() == StationMode::Trades;
    FillList();
    const TextMeasure& measure = modes_.Mode() == StationMode::Info ? fixedMeasure_ : formMeasure_;
    const QSize outer = OuterTwips(size(), Decoration());
    StationPicture picture = LayOutStation(
        universe, Words(), measure, {data_, texts_, modes_.Mode(), outer.width(), outer.height()});
    prices_->setVisible(isTable);
    infoText_->setVisible(!isTable);
    searchFrame_->setVisible(!isTable && modes_.Mode() != StationMode::Info);
    if (isTable) return prices_->Show(std::move(picture.Prices));
    for (const Control& control : picture.Controls) ShowControl(control);
  });
}

// What reaches beyond the window's inner edge would hide its scroll bars.
void StationInfo::ShowControl(const Control& control) {
  const QRect place = PixelRect(control.Place);
  if (control.Id == ControlId::BoxText) {
    infoText_->setGeometry(place & rect());
    infoText_->SetMargin(modes_.Mode() == StationMode::Info ? kWrappedMargin
                                                            : kStationInfoTextMargin);
    infoText_->Show(control.Caption.value_or(""));
  } else if (control.Id == ControlId::ForSaleFrame) {
    searchFrame_->setGeometry(place & rect());
    searchFrame_->setTitle(QString::fromStdString(control.Caption.value_or("")));
  } else if (control.Id == ControlId::ForSaleList) {
    // Its scroll bar and inner margins stand in the frame's own margin beside it.
    QRect widened = place;
    widened.setRight(searchFrame_->rect().right() - 1);
    searchList_->setGeometry(widened & searchFrame_->rect());
  }
}

void StationInfo::ShowForSale(int row) {
  const auto& rows = ForSaleRows();
  if (row < 0 || static_cast<std::size_t>(row) >= rows.size()) return;
  Routine routine(parts_.Log, "StationInfo.SearchList_Click", "While searching in Shipinfo");
  routine.Run([&] {
    Universe universe = parts_.OpenUniverse(routine);
    infoText_->Show(
        ForSaleText(universe, Words(), modes_.Mode(), rows[static_cast<std::size_t>(row)]));
  });
}

void StationInfo::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShowView();
}

void StationInfo::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (!settled_) QTimer::singleShot(0, this, [this] { Settle(); });
}

void StationInfo::closeEvent(QCloseEvent* event) {
  event->accept();
  RememberSize();
  if (OnClosed) OnClosed();
}

void StationWindows::Open(const std::string& nickname, const std::string& picture) {
  windows_.push_back(std::make_unique<StationInfo>(parts_, nickname, picture, FreeStep()));
  StationInfo* window = windows_.back().get();
  window->OnClosed = [this, window] { Forget(window); };
  window->show();
}

void StationWindows::CloseAll() {
  for (const auto& window : windows_) window->RememberSize();
  windows_.clear();
}

// The first place at which no window stands; beyond the last they cover each other.
int StationWindows::FreeStep() const {
  for (int step = 0; step < kCascadeSteps; ++step) {
    const bool isTaken = std::any_of(windows_.begin(), windows_.end(),
                                     [&](const auto& window) { return window->Step() == step; });
    if (!isTaken) return step;
  }
  return static_cast<int>(windows_.size()) % kCascadeSteps;
}

// The window's own event is on the stack: it goes with the next turn of the event loop.
void StationWindows::Forget(const StationInfo* window) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& known) { return known.get() == window; });
  if (found == windows_.end()) return;
  found->release()->deleteLater();
  windows_.erase(found);
}

}  // namespace orrerix
