// SPDX-License-Identifier: MIT
// The fields that the pages of ways and of trades share.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "forms/workbench/travel/travel_choices.h"
#include "routes/travel.h"
#include "shell/text_id.h"

namespace orrerix {

// A place that is chosen from a list or typed: nickname or name.
class PlaceBox : public QComboBox {
 public:
  PlaceBox(const char* name, const QString& caption, QWidget* parent);

  // Keeps the place that is chosen.
  void Offer(const std::vector<TravelChoice>& places);

  void ShowPlace(const std::string& nickname);

  // The nickname of what was chosen, else what was typed; may be empty.
  std::string Place() const;
};

// From, to, ship, and what to keep away from, in rows to which a page adds its own.
class TravelFields : public QWidget {
 public:
  // `choice`, the language in use, outlives this.
  TravelFields(const LanguageChoice& choice, QWidget* parent);

  void Offer(const TravelChoices& choices);

  // Where the player is now: taken over while the field still says where they were.
  void StartAt(const std::string& place);

  // The player stands at a place, until they choose another or are somewhere else.
  void StandAt(const std::string& place);

  // What all pages share, from page to page and from run to run. A start is remembered only if the
  // player chose it.
  void Recall(const QSettings& settings);
  void Remember(QSettings& settings) const;

  std::string From() const { return from_->Place(); }
  std::string To() const { return to_->Place(); }
  TravelRequest Request() const;  // without a game

  void ShowTo(const std::string& place) { to_->ShowPlace(place); }

  // Adds hold and money; without a number the ship's hold counts, and the money has no limit.
  void AddLoad();
  std::optional<std::int64_t> Hold() const;  // nothing without a number
  std::optional<std::int64_t> Money() const;

  // The first of both that is empty gets the keyboard.
  void FocusEmpty() { (From().empty() ? from_ : to_)->setFocus(); }

  // Adds a field below the ship and those that were added before; one without a caption speaks for
  // itself.
  void Add(TextId caption, QWidget* field);
  void Add(QWidget* field);

  // The fields of places say that an empty one means any place.
  void AllowAnyPlace();

  void EnableTo(bool on) { to_->setEnabled(on); }
  void HideTo();

 private:
  QString Caption(TextId id) const;
  QCheckBox* MakeSwitch(TextId caption, const char* name);
  std::string Ship() const;
  std::vector<std::string> Enemies() const;
  void ChooseShip(const std::string& nickname);
  void CheckEnemies(const std::vector<std::string>& nicknames);

  const LanguageChoice& choice_;
  QFormLayout* rows_;
  PlaceBox* from_;
  PlaceBox* to_;
  QComboBox* ship_;
  QListWidget* factions_;
  QLineEdit* avoid_;
  QCheckBox* noGates_;
  QCheckBox* noHoles_;
  QCheckBox* noLocked_;
  QLineEdit* hold_ = nullptr;
  QLineEdit* money_ = nullptr;
  int added_ = 0;
  std::string startedAt_;
  bool isOffered_ = false;
  std::string wantedShip_;  // until ships and factions are offered
  std::vector<std::string> wantedEnemies_;
};

}  // namespace orrerix
