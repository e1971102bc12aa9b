// SPDX-License-Identifier: MIT
#include "demo/content/sentences.h"

namespace orrerix::demo {

const std::vector<std::string>& StationDetails() {
  static const std::vector<std::string> sentences = {
      "The dock master keeps a parrot that has learned the landing clearances by heart.",
      "Half of the lamps are kept dark to save the other half.",
      "A mural in the main hall shows the founders, with the unpopular ones painted over.",
      "Repairs are done by {owner} crews, who work slowly and charge by the hour.",
      "Ships of {nation} pay a lower fee here, and complain about it no less.",
      "The market opens when the first freighter docks and closes when the last trader gives up.",
      "There is a small greenhouse on the sunward side, where tomatoes and rumours grow well.",
      "Its radio room hears most of what is said in {system}, and repeats some of it.",
      "A fire some years ago took one arm of the structure; nobody has missed it since.",
      "Crews on leave are asked to keep their boots on, for reasons that the floor explains.",
      "The chapel, the bar and the court share one room, in that order of the day.",
      "An old pressure door amidships is still stamped with the name of another station.",
      "{owner} holds the lease and has painted its mark on everything that does not move.",
      "The hangar was built for ships of another age, and modern pilots enter it with care.",
  };
  return sentences;
}

const std::vector<std::string>& StationClosings() {
  static const std::vector<std::string> sentences = {
      "Berths are let by the night, and the nights are long.",
      "Pilots who owe money here are advised to say so before docking.",
      "The view from the upper gallery alone is worth the fee.",
      "Departure is free, which the sign calls a courtesy.",
      "Those who stay a year are given a key; those who stay ten, a window.",
      "It is not a beautiful place, but it is warm, and the tea is good.",
      "Ask for the quartermaster, and bring exact change.",
      "Few people remember why it was built just here, and none would move it.",
      "On quiet days the whole crew plays cards for the morning watch.",
  };
  return sentences;
}

const std::vector<std::string>& PlanetDetails() {
  static const std::vector<std::string> sentences = {
      "Two thirds of its people live within sight of the landing fields.",
      "Its moons rise together once in eleven days, which is a holiday.",
      "The first settlers left their ship standing; it now serves as the town hall.",
      "Schools here teach three languages and the art of haggling.",
      "Most of what is grown on the surface is eaten in orbit.",
      "The {owner} barracks by the harbour is the largest building on the southern half.",
      "A ring of mirrors adds an hour of light to the shortest days.",
      "Its deep mines closed a generation ago and now hold archives and cheese.",
      "Traders from {nation} keep houses here, with gardens and locked cellars.",
      "Storm season empties the high road, and fills the inns along it.",
      "The elevator to orbit is slow, free and always crowded.",
      "Local beasts have been described as shy by those who met the small ones.",
  };
  return sentences;
}

const std::vector<std::string>& PlanetClosings() {
  static const std::vector<std::string> sentences = {
      "Visitors should declare fruit, firearms and opinions.",
      "Landing permits are granted at the ring, usually within the hour.",
      "The night markets alone justify the trip.",
      "It is customary to leave a coin at the gate, and to take none.",
      "Weather reports for pilots are read aloud every hour, with feeling.",
      "Nobody leaves without a jar of something.",
      "Old hands land on the dark side and walk.",
      "The next census is expected to settle several bets.",
  };
  return sentences;
}

const std::vector<std::string>& WreckNames() {
  static const std::vector<std::string> names = {
      "Patient Margit", "Söndag",         "Third Opinion",  "Étoile Perdue",
      "Salt Sister",    "Honest Bargain", "Königstern",     "Yellow Door",
      "Little Thunder", "Ardent Miller",  "Nine of Cups",   "Grandfather Clock",
      "Paper Crown",    "Émeraude",       "Slow Tuesday",   "Widow's Purse",
      "Ünal's Promise", "Cold Kettle",    "Star of Adaran", "Empty Cradle"};
  return names;
}

const std::vector<std::string>& WreckStories() {
  static const std::vector<std::string> sentences = {
      "The {name} left {system} with a full hold and a new captain.",
      "Her log ends in the middle of a sentence about dinner.",
      "Salvagers have stripped the hull, but not well.",
      "The holds were sealed from within.",
      "No claim was ever filed for the {name}, which is a story in itself.",
  };
  return sentences;
}

const std::vector<std::string>& FieldNames() {
  static const std::vector<std::string> names = {"Drift", "Shoals", "Belt", "Scatter", "Reef",
                                                 "Cloud", "Gravel", "Veil", "Banks",   "Teeth"};
  return names;
}

const std::vector<std::string>& FirstNames() {
  static const std::vector<std::string> names = {
      "Åsa",      "Björn", "Sigrun",  "Torvald", "Elise", "Benoît", "Maëlle",
      "Corentin", "Aigul", "Daniyar", "Saule",   "Timur", "Ninsha", "Ilu",
      "Tabni",    "Warad", "June",    "Silas",   "Petra", "Orrin"};
  return names;
}

const std::vector<std::string>& FamilyNames() {
  static const std::vector<std::string> names = {
      "Lindqvist", "Håkonsen", "Sköld",   "Vantreuil", "Delorge", "Fauvel", "Bekzhan", "Ormanov",
      "Tuleyev",   "Adarat",   "Kesheni", "Ubarit",    "Marrow",  "Tull",   "Hask",    "Pennywell"};
  return names;
}

}  // namespace orrerix::demo
