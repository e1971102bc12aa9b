// SPDX-License-Identifier: MIT
#include "forms/workbench/layers_page.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <algorithm>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "forms/layers/layer_style.h"
#include "space/describe.h"

namespace orrerix {
namespace {

constexpr QSize kLegendIcon{34, 20};

}  // namespace

LayersPage::LayersPage(MapSpace& space, const LanguageChoice& choice)
    : WorkbenchPage(TextId::LayersPage),
      space_(space),
      choice_(choice),
      sums_(new PlainLabel(this)),
      factions_(new QListWidget(this)) {
  sums_->setObjectName("LayersSums");
  sums_->setWordWrap(true);
  auto* hint = new PlainLabel(Caption(TextId::LayersHint), this);
  hint->setWordWrap(true);
  auto* off = new QPushButton(Caption(TextId::LayersOff), this);
  off->setObjectName("LayersOff");
  connect(off, &QPushButton::clicked, this, [this] { AllOff(); });

  auto* columns = new QHBoxLayout();
  columns->addWidget(MakeGroup(
      TextId::LayersInSystems,
      {Layer::Bodies, Layer::ObjectNames, Layer::Gates, Layer::Wrecks, Layer::Platforms}));
  columns->addWidget(MakeGroup(TextId::LayersZones,
                               {Layer::Asteroids, Layer::Nebulas, Layer::Mining, Layer::Danger,
                                Layer::Patrols, Layer::TradePaths, Layer::ZoneNames}));
  columns->addWidget(
      MakeGroup(TextId::LayersOverview, {Layer::Territories, Layer::SystemNames, Layer::Sectors}));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(hint);
  layout->addLayout(columns);
  auto* row = new QHBoxLayout();
  row->addWidget(off);
  row->addWidget(sums_, 1);
  layout->addLayout(row);
  layout->addWidget(MakeLegend(), 1);
  ShowContent();
}

QString LayersPage::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

QWidget* LayersPage::MakeGroup(TextId title, std::initializer_list<Layer> layers) {
  auto* group = new QGroupBox(Caption(title), this);
  auto* layout = new QVBoxLayout(group);
  for (const Layer layer : layers) {
    const std::string_view name = LayerCaption(choice_.Current, layer);
    const std::string_view id = LayerName(layer);
    auto* box =
        new QCheckBox(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), group);
    box->setObjectName("Layer_" +
                       QString::fromLatin1(id.data(), static_cast<qsizetype>(id.size())));
    box->setIcon(LegendOf(layer));
    box->setIconSize(kLegendIcon);
    box->setChecked(space_.Choice().Has(layer));
    connect(box, &QCheckBox::toggled, this, [this, layer](bool on) { Toggle(layer, on); });
    layout->addWidget(box);
    switches_.push_back({layer, box});
  }
  layout->addStretch(1);
  return group;
}

// Which faction a colour of the territories stands for.
QWidget* LayersPage::MakeLegend() {
  auto* group = new QGroupBox(Caption(TextId::LayerTerritories), this);
  auto* layout = new QVBoxLayout(group);
  factions_->setObjectName("LayersFactions");
  factions_->setAccessibleName(Caption(TextId::LayerTerritories));
  factions_->setIconSize(kLegendIcon);
  factions_->setViewMode(QListView::ListMode);
  factions_->setFlow(QListView::TopToBottom);
  factions_->setWrapping(true);
  factions_->setResizeMode(QListView::Adjust);
  factions_->setSpacing(2);
  layout->addWidget(factions_);
  return group;
}

void LayersPage::Toggle(Layer layer, bool shown) {
  LayerChoice choice = space_.Choice();
  if (choice.Has(layer) == shown) return;
  choice.Set(layer, shown);
  space_.Choose(choice);
}

void LayersPage::AllOff() {
  space_.Choose(LayerChoice::None());
  Enter();
}

void LayersPage::Enter() {
  for (const Switch& one : switches_) one.Box->setChecked(space_.Choice().Has(one.Of));
  ShowContent();
}

void LayersPage::UniverseChanged() {
  ShowContent();
}

void LayersPage::ShowContent() {
  const Space* space = space_.Shown();
  ShowFactions();
  if (space == nullptr) {
    sums_->setText(space_.IsReading() ? Caption(TextId::LayersReading) : QString());
    return;
  }
  const auto others = std::count_if(space->Spots.begin(), space->Spots.end(), [](const Spot& spot) {
    return spot.Kind != SpotKind::Station;
  });
  sums_->setText(
      QString::fromStdString(FormatIn(choice_.Current, TextId::LayersSums, space->Zones.size(),
                                      space->Bodies.size(), space->Gates.size(), others)));
}

void LayersPage::ShowFactions() {
  factions_->clear();
  if (space_.Shown() == nullptr) return;
  const std::vector<std::string>& names = space_.Shown()->Factions;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const auto systems =
        std::count_if(space_.Shown()->Systems.begin(), space_.Shown()->Systems.end(),
                      [i](const SystemArea& system) { return system.Faction == i; });
    new QListWidgetItem(LegendOfFaction(i),
                        QString("%1 (%2)").arg(QString::fromStdString(names[i])).arg(systems),
                        factions_);
  }
}

}  // namespace orrerix
