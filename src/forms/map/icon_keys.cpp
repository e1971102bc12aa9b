// SPDX-License-Identifier: MIT
#include "forms/map/icon_keys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/controls/control_name.h"
#include "info/boxes/hover_box.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr QRgb kIconFocus = 0xFF80FFFF;
constexpr QRgb kIconFocusEdge = 0xFF04081C;
constexpr int kIconFocusRoom = 5;  // pixels around an icon

// Some lie beside the cells that are shown, or under the panel.
bool IsSeen(const Control& icon, const MapDrawing& drawing) {
  const double x = icon.Place.Left + icon.Place.Width / 2;
  const double y = icon.Place.Top + icon.Place.Height / 2;
  const bool hasPanelAtRight = drawing.Panel == PanelPlace::Right;
  const bool hasPanelBelow = drawing.Panel == PanelPlace::Below;
  const double right = hasPanelAtRight ? drawing.PanelBox.Left : drawing.Frame.Width;
  const double bottom = hasPanelBelow ? drawing.PanelBox.Top : drawing.Frame.Height;
  return x >= 0 && y >= 0 && x < right && y < bottom;
}

}  // namespace

class IconKeys::Key : public QAbstractButton {
 public:
  Key(IconKeys& owner, QWidget* parent) : QAbstractButton(parent), owner_(&owner) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::TabFocus);
    hide();
  }

  int Icon = 0;

  void Detach() { owner_ = nullptr; }

  void Press() const {
    if (owner_ != nullptr) owner_->events_.Press(Icon);
  }

  // `place` is that of the icon as it is at rest.
  void Follow(int icon, const QRect& place) {
    Icon = icon;
    place_ = place;
    setObjectName(NameOf(ControlId::MapIcon, icon));
    Surround();
    show();
  }

 protected:
  // Seen on the dark sky and on a bright planet.
  void paintEvent(QPaintEvent*) override {
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(QPen(QColor(kIconFocusEdge), 4));
    painter.drawRect(rect().adjusted(2, 2, -2, -2));
    painter.setPen(QPen(QColor(kIconFocus), 2));
    painter.drawRect(rect().adjusted(2, 2, -2, -2));
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (owner_ == nullptr || !owner_->KeyPress(event->key())) event->ignore();
  }

  void focusInEvent(QFocusEvent* event) override {
    QAbstractButton::focusInEvent(event);
    Surround();
    raise();
    if (owner_ != nullptr) owner_->events_.Enter(Icon);
  }

  void focusOutEvent(QFocusEvent* event) override {
    QAbstractButton::focusOutEvent(event);
    Surround();
    if (owner_ != nullptr) owner_->events_.Leave();
  }

 private:
  // With the focus its icon is as large as under the mouse.
  void Surround() {
    QRect icon = place_;
    const int hovered = static_cast<int>(std::ceil(Pixels(kHoveredIcon)));
    if (hasFocus()) icon.setSize(icon.size().expandedTo({hovered, hovered}));
    setGeometry(icon.adjusted(-kIconFocusRoom, -kIconFocusRoom, kIconFocusRoom, kIconFocusRoom));
  }

  IconKeys* owner_;  // null when it is gone
  QRect place_;
};

IconKeys::IconKeys(QAbstractScrollArea& frame, Events events)
    : frame_(frame), events_(std::move(events)) {}

// The buttons live on and lose the focus later.
IconKeys::~IconKeys() {
  for (Key* key : keys_) key->Detach();
}

void IconKeys::MakeKeys(std::size_t count) {
  while (keys_.size() < count) {
    auto* key = new Key(*this, frame_.viewport());
    QWidget::setTabOrder(&frame_, key);
    key->setFocusPolicy(Qt::NoFocus);
    QObject::connect(key, &QAbstractButton::clicked, key, [key] { key->Press(); });
    keys_.push_back(key);
  }
}

void IconKeys::Follow(const MapDrawing& drawing, const std::string& description,
                      const NamesOf& namesOf) {
  std::vector<const Control*> icons;
  for (const Control& control : drawing.Controls) {
    if (control.Id == ControlId::MapIcon && IsSeen(control, drawing)) icons.push_back(&control);
  }
  MakeKeys(icons.size());
  SetNames(icons, description, namesOf);
  points_.clear();
  for (std::size_t i = 0; i < icons.size(); ++i) {
    const QRectF place = Pixels(icons[i]->Place);
    points_.push_back({place.center().x(), place.center().y()});
    keys_[i]->Follow(icons[i]->Index.value_or(0), place.toAlignedRect());
  }
  for (std::size_t i = icons.size(); i < keys_.size(); ++i) keys_[i]->hide();
}

// An icon keeps the stop, and the focus with it, while its object is on the map.
void IconKeys::SetNames(const std::vector<const Control*>& icons, const std::string& description,
                        const NamesOf& namesOf) {
  std::vector<std::string> texts;
  texts.reserve(icons.size());
  for (const Control* icon : icons) texts.push_back(IconText(*icon));
  if (texts == texts_ && description == description_) return;
  const bool hadFocus = stop_ < keys_.size() && keys_[stop_]->hasFocus();
  const std::string before = stop_ < texts_.size() ? texts_[stop_] : std::string();
  texts_ = std::move(texts);
  description_ = description;
  const std::vector<std::string> names = namesOf(icons);
  std::vector<IconPoint> points;
  for (std::size_t i = 0; i < icons.size(); ++i) {
    keys_[i]->setAccessibleName(QString::fromStdString(names[i]));
    keys_[i]->setAccessibleDescription(QString::fromStdString(description));
    points.push_back({icons[i]->Place.Left, icons[i]->Place.Top});
  }
  const auto kept = std::find(texts_.begin(), texts_.end(), before);
  const bool isThere = kept != texts_.end() && !before.empty();
  MakeStop(isThere ? static_cast<std::size_t>(kept - texts_.begin())
                   : FirstIcon(points).value_or(0));
  if (!hadFocus) return;
  if (isThere) {
    keys_[stop_]->setFocus();
  } else {
    frame_.setFocus();
  }
}

void IconKeys::MakeStop(std::size_t key) {
  if (stop_ < keys_.size()) keys_[stop_]->setFocusPolicy(Qt::NoFocus);
  stop_ = key;
  if (stop_ < texts_.size()) keys_[stop_]->setFocusPolicy(Qt::TabFocus);
}

void IconKeys::Step(StepDirection direction) {
  const auto next = NextIcon(points_, stop_, direction);
  if (!next) return;
  MakeStop(*next);
  keys_[stop_]->setFocus(Qt::OtherFocusReason);
}

// True if the key means something on an icon.
bool IconKeys::KeyPress(int key) {
  switch (key) {
    case Qt::Key_Left:
      Step(StepDirection::Left);
      return true;
    case Qt::Key_Right:
      Step(StepDirection::Right);
      return true;
    case Qt::Key_Up:
      Step(StepDirection::Up);
      return true;
    case Qt::Key_Down:
      Step(StepDirection::Down);
      return true;
    case Qt::Key_Home:
      MakeStop(FirstIcon(points_).value_or(0));
      keys_[stop_]->setFocus(Qt::OtherFocusReason);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      keys_[stop_]->click();
      return true;
    case Qt::Key_Backspace:
    case Qt::Key_Escape:
      frame_.setFocus();
      events_.OnMap(MapKey::GoBack);
      return true;
    default:
      return false;
  }
}

}  // namespace orrerix
