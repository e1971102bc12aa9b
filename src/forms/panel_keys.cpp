// SPDX-License-Identifier: MIT
#include "forms/panel_keys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <utility>

#include "map/map_options.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr int kTools = 5;
constexpr const char* kNews = "InfoBoxLabel";
constexpr QRgb kFocusMark = 0xFF80FFFF;

}  // namespace

class PanelKeys::Key : public QAbstractButton {
 public:
  Key(const char* name, int index, QWidget* parent)
      : QAbstractButton(parent), name_(name), index_(index) {
    setObjectName(QStringLiteral("%1_%2").arg(name).arg(index));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::TabFocus);
    setCheckable(name_ == "SetImage");
    hide();
  }

  bool Is(std::string_view name, int index) const { return name == name_ && index == index_; }

  // `place` is that of the control, pixels of the frame.
  void Follow(const Control& control, const QRectF& place) {
    setGeometry(place.toAlignedRect());
    setChecked(control.Tag == "1");
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
  std::string_view name_;
  int index_;
};

PanelKeys::PanelKeys(QAbstractScrollArea& frame, Activate activate)
    : parent_(frame.viewport()), activate_(std::move(activate)) {
  for (int i = 0; i < kTools; ++i) Add("StationSearch", i);
  Add("ShowOptionsLabel", 0);
  Add("SetLabel", kLanguageLabel);
  for (int i = 0; i < kMapSwitches; ++i) Add("SetImage", i);
}

PanelKeys::Key* PanelKeys::Add(const char* name, int index) {
  keys_.push_back(new Key(name, index, parent_));
  QObject::connect(keys_.back(), &QAbstractButton::clicked, parent_,
                   [this, name, index] { activate_(name, index); });
  return keys_.back();
}

void PanelKeys::Follow(const MapDrawing& drawing) {
  std::set<Key*> gone(keys_.begin(), keys_.end());
  for (const Control& control : drawing.Controls) {
    if (control.Name != "MenuFrame") continue;
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
    } else if (Key* box = KeyOf("SetImage", index); box != nullptr && control.Name == "SetLabel") {
      box->setAccessibleName(caption);
    }
  }
}

// How many news there are, only their labels tell.
PanelKeys::Key* PanelKeys::KeyFor(const Control& control, int index) {
  if (Key* key = KeyOf(control.Name, index)) return key;
  return control.Name == kNews ? Add(kNews, index) : nullptr;
}

PanelKeys::Key* PanelKeys::KeyOf(std::string_view name, int index) const {
  for (Key* key : keys_) {
    if (key->Is(name, index)) return key;
  }
  return nullptr;
}

}  // namespace orrerix
