// SPDX-License-Identifier: MIT
#include "forms/workbench/tools.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/interface_scale.h"
#include "forms/workbench/atlas/atlas_page.h"
#include "forms/workbench/check_page.h"
#include "forms/workbench/differences_page.h"
#include "forms/workbench/log_page.h"
#include "forms/workbench/relations/relations_page.h"
#include "forms/workbench/setting_keys.h"
#include "forms/workbench/travel/goods_page.h"
#include "forms/workbench/travel/trades_page.h"
#include "forms/workbench/travel/way_page.h"
#include "platform/path_text.h"
#include "shell/game_record.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

constexpr int kToolsWatchInterval = 30;  // milliseconds

}  // namespace

Tools::Tools(WorkbenchHost& host, const FormParts& parts, JetVersionOption format)
    : host_(host),
      parts_(parts),
      format_(format),
      settings_(ToolsSettingsFile(parts.Paths.ApplicationFolder), QSettings::IniFormat) {
  watchTimer_.setInterval(kToolsWatchInterval);
  QObject::connect(&watchTimer_, &QTimer::timeout, [this] { LookForChanges(); });
}

Tools::~Tools() = default;

Workbench& Tools::Window() {
  if (window_ != nullptr) return *window_;
  window_ = std::make_unique<Workbench>(settings_, parts_.Speech);
  window_->Add(std::make_unique<CheckPage>(
      host_, parts_.Speech, [this](const fs::path& file, int line) { OpenInEditor(file, line); }));
  window_->Add(std::make_unique<DifferencesPage>(host_, parts_.Speech, parts_.Version));
  const TravelParts travel{host_, parts_.Speech, settings_, worlds_};
  auto goods = std::make_unique<GoodsPage>(travel);
  auto trades = std::make_unique<TradesPage>(travel);
  auto way = std::make_unique<WayPage>(travel);
  goodsPage_ = goods.get();
  tradesPage_ = trades.get();
  wayPage_ = way.get();
  window_->Add(std::move(trades));
  window_->Add(std::move(way));
  window_->Add(std::move(goods));
  auto atlas = std::make_unique<AtlasPage>(host_, parts_.Speech, settings_);
  atlasPage_ = atlas.get();
  window_->Add(std::move(atlas));
  window_->Add(std::make_unique<RelationsPage>(host_, parts_.Speech));
  for (const MakePage& make : morePages_) window_->Add(make());
  auto game = std::make_unique<GamePage>(host_, settings_, parts_.Speech);
  gamePage_ = game.get();
  gamePage_->OnLightPanels = [this](bool on) { window_->UseLightPanels(on); };
  window_->Add(std::move(game));
  window_->Add(std::make_unique<LogPage>(
      host_, parts_.Speech, [this](const fs::path& file, int line) { OpenInEditor(file, line); }));
  return *window_;
}

void Tools::Open() {
  Window().Open();
}

void Tools::ShowKeys() {
  Window().ShowKeys();
}

void Tools::ShowTradesFrom(const std::string& place) {
  Window().Open(TextId::TradesPage);
  tradesPage_->ShowTradesFrom(place);
}

void Tools::ShowWayTo(const std::string& place) {
  Window().Open(TextId::WayPage);
  wayPage_->ShowWayTo(place);
}

void Tools::ShowGoodsFrom(const std::string& place) {
  Window().Open(TextId::GoodsPage);
  goodsPage_->ShowGoodsFrom(place);
}

void Tools::FindGood(const std::string& text) {
  Window().Open(TextId::GoodsPage);
  goodsPage_->FindGood(QString::fromStdString(text));
}

void Tools::ShowInAtlas(const std::string& table, const std::string& text) {
  Workbench& window = Window();
  atlasPage_->ShowRows(QString::fromStdString(table), QString::fromStdString(text));
  window.Open(TextId::AtlasPage);
}

void Tools::ShowState(const QString& text) {
  if (gamePage_ != nullptr) gamePage_->ShowState(text);
}

void Tools::ImportAgain() {
  if (import_.IsRunning()) {
    importsAgain_ = true;
    return;
  }
  ShowState(CaptionIn(parts_.Speech.Current, TextId::Importing));
  import_.Start({host_.GameText(), host_.UniverseFile(), format_, parts_.Version},
                [this](const ImportOutcome& outcome) { FinishImport(outcome); });
}

void Tools::FinishImport(const ImportOutcome& outcome) {
  const Language language = parts_.Speech.Current;
  ShowState(QString::fromStdString(
      outcome.Finished ? FormatIn(language, TextId::ImportedIn, outcome.Seconds,
                                  outcome.LogEntries.size(), outcome.Failures)
                       : FormatIn(language, TextId::ImportImpossible, outcome.Error)));
  if (outcome.Finished) {
    if (OnReplaced) OnReplaced();
    if (window_ != nullptr) window_->UniverseChanged();
  }
  if (std::exchange(importsAgain_, false)) ImportAgain();
}

void Tools::WatchGame(bool on) {
  watch_.reset();
  if (on) {
    watch_ = std::make_unique<GameFilesWatch>(PathOf(host_.GameText()), std::vector<fs::path>(),
                                              GameFilesWatch::kShortQuiet);
  }
  on ? watchTimer_.start() : watchTimer_.stop();
}

void Tools::LookForChanges() {
  if (watch_ && watch_->TakeRound(std::chrono::steady_clock::now())) ImportAgain();
}

void Tools::UniverseShown() {
  WatchGame(settings_.value(setting_key::kWatch, false).toBool());
  if (window_ != nullptr) window_->UniverseChanged();
  stamp_.Start(
      [file = host_.UniverseFile(), game = host_.GameText()](const BackgroundTask::IsCancelled&) {
        const auto record = ReadGameRecord(file);
        return record && IsSameFolder(record->Game, game) && record->Stamp != StampOfGame(game);
      },
      [this](bool changed) {
        if (OnChangeSeen) OnChangeSeen(changed);
      });
}

// The command's arguments may name the file and the line.
void Tools::OpenInEditor(const fs::path& file, int line) {
  const QString name = QString::fromStdString(file.string());
  QStringList words = QProcess::splitCommand(settings_.value(setting_key::kEditor).toString());
  if (words.isEmpty()) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(name));
    return;
  }
  for (QString& word : words) word.replace("{file}", name).replace("{line}", QString::number(line));
  const QString program = words.takeFirst();
  QProcess::startDetached(program, words);
}

}  // namespace orrerix
