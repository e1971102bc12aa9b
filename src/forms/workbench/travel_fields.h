// SPDX-License-Identifier: MIT
// The fields that the pages of ways and of trades share.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <string>
#include <vector>

#include "forms/workbench/travel_choices.h"
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

  std::string From() const { return from_->Place(); }
  std::string To() const { return to_->Place(); }
  TravelRequest Request() const;  // without a game

  void ShowFrom(const std::string& place) { from_->ShowPlace(place); }
  void ShowTo(const std::string& place) { to_->ShowPlace(place); }

  // The first of both that is empty gets the keyboard.
  void FocusEmpty() { (From().empty() ? from_ : to_)->setFocus(); }

  // Adds a field below the ship and those that were added before; one without a caption speaks for
  // itself.
  void Add(TextId caption, QWidget* field);
  void Add(QWidget* field);

  // The fields of places say that an empty one means any place.
  void AllowAnyPlace();

  void EnableTo(bool on) { to_->setEnabled(on); }

 private:
  QString Caption(TextId id) const;
  QCheckBox* MakeSwitch(TextId caption, const char* name);

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
  int added_ = 0;
  std::string startedAt_;
};

}  // namespace orrerix
