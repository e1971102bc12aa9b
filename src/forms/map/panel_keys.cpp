// SPDX-License-Identifier: MIT
#include "forms/map/panel_keys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <utility>

#include "forms/controls/control_name.h"
#include "map/panel/map_options.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr int kTools = 5;
constexpr QRgb kFocusMark = 0xFF80FFFF;

}  // namespace

class PanelKeys::Key : public QAbstractButton {
 public:
  Key(ControlId id, int index, QWidget* parent) : QAbstractButton(parent), id_(id), index_(index) {
    setObjectName(NameOf(id, index));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::TabFocus);
    setCheckable(id == ControlId::OptionSwitch);
    hide();
  }

  bool Is(ControlId id, int index) const { return id == id_ && index == index_; }

  // `place` is that of the control, pixels of the frame.
  void Follow(const Control& control, const QRectF& place) {
    setGeometry(place.toAlignedRect());
    const auto* state = std::get_if<SwitchState>(&control.Subject);
    setChecked(state != nullptr && state->On);
    show();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(QPen(QColor(kFocusMark), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
    QAbstractButton::keyPressEvent(event);
  }

 private:
  ControlId id_;
  int index_;
};

PanelKeys::PanelKeys(QAbstractScrollArea& frame, Activate activate)
    : parent_(frame.viewport()), activate_(std::move(activate)) {
  for (int i = 0; i < kTools; ++i) Add(ControlId::Tool, i);
  Add(ControlId::OptionsCaption, 0);
  Add(ControlId::OptionLabel, kLanguageLabel);
  for (int i = 0; i < kMapSwitches; ++i) Add(ControlId::OptionSwitch, i);
}

PanelKeys::Key* PanelKeys::Add(ControlId id, int index) {
  keys_.push_back(new Key(id, index, parent_));
  QObject::connect(keys_.back(), &QAbstractButton::clicked, parent_,
                   [this, id, index] { activate_(id, index); });
  return keys_.back();
}

void PanelKeys::Follow(const MapDrawing& drawing) {
  std::set<Key*> gone(keys_.begin(), keys_.end());
  for (const Control& control : drawing.Controls) {
    if (control.Id != ControlId::PanelFrame) continue;
    FollowControls(control.Children, Pixels(control.Place).topLeft(), gone);
  }
  for (Key* key : gone) key->hide();
}

// A switch is named by the label beside it.
void PanelKeys::FollowControls(const ControlList& controls, const QPointF& corner,
                               std::set<Key*>& gone) {
  for (const Control& control : controls) {
    const QRectF place = Pixels(control.Place).translated(corner);
    FollowControls(control.Children, place.topLeft(), gone);
    const int index = control.Index.value_or(0);
    const QString caption =
        QString::fromStdString(control.Caption.value_or(control.ToolTip.value_or("")));
    if (Key* key = KeyFor(control, index)) {
      key->Follow(control, place);
      key->setAccessibleName(caption);
      gone.erase(key);
    } else if (Key* box = KeyOf(ControlId::OptionSwitch, index);
               box != nullptr && control.Id == ControlId::OptionLabel) {
      box->setAccessibleName(caption);
    }
  }
}

// News labels vary in number, so their keys are created on demand.
PanelKeys::Key* PanelKeys::KeyFor(const Control& control, int index) {
  if (Key* key = KeyOf(control.Id, index)) return key;
  return control.Id == ControlId::NewsLabel ? Add(ControlId::NewsLabel, index) : nullptr;
}

PanelKeys::Key* PanelKeys::KeyOf(ControlId id, int index) const {
  for (Key* key : keys_) {
    if (key->Is(id, index)) return key;
  }
  return nullptr;
}

}  // namespace orrerix
