// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_captions.h"

#include <algorithm>
#include <span>
#include <string_view>

#include <fmt/format.h>

namespace orrerix {
namespace {

struct AtlasCaptionRow {
  std::string_view English;
  std::string_view German;
  std::string_view French;
};

// clang-format off
constexpr AtlasCaptionRow kAtlasNames[] = {
    {"Name", "Name", "Nom"},
    {"Nickname", "Kürzel", "Code"},
    {"Type", "Typ", "Type"},
    {"Class", "Klasse", "Classe"},
    {"Price", "Preis", "Prix"},
    {"Hold", "Laderaum", "Soute"},
    {"Hold per price", "Laderaum je Preis", "Soute par prix"},
    {"Nanobots", "Nanobots", "Nanobots"},
    {"Shield batteries", "Schildbatterien", "Batteries de bouclier"},
    {"Hit points", "Trefferpunkte", "Points de structure"},
    {"Mass", "Masse", "Masse"},
    {"Guns", "Geschütze", "Canons"},
    {"Gun class", "Geschützklasse", "Classe de canon"},
    {"Turrets", "Geschütztürme", "Tourelles"},
    {"Turret class", "Turmklasse", "Classe de tourelle"},
    {"Missiles and torpedoes", "Raketen und Torpedos", "Missiles et torpilles"},
    {"Torpedoes", "Torpedos", "Torpilles"},
    {"Mines", "Minen", "Mines"},
    {"Countermeasures", "Gegenmaßnahmen", "Contre-mesures"},
    {"Shields", "Schilde", "Boucliers"},
    {"Shield class", "Schildklasse", "Classe de bouclier"},
    {"Thrusters", "Nachbrenner", "Propulseurs"},
    {"Engines", "Antriebe", "Moteurs"},
    {"Power plants", "Energiequellen", "Générateurs"},
    {"Scanners and tractors", "Scanner und Traktorstrahlen", "Scanners et rayons tracteurs"},
    {"Commodities", "Waren", "Marchandises"},
    {"Systems", "Systeme", "Systèmes"},
    {"Bribes", "Bestechungen", "Pots-de-vin"},
    {"Hardpoints", "Aufhängungen", "Points d'attache"},
    {"Impulse speed", "Impulsgeschwindigkeit", "Vitesse d'impulsion"},
    {"Cruise speed", "Reisegeschwindigkeit", "Vitesse de croisière"},
    {"Cruise charging", "Laden der Reisegeschwindigkeit", "Charge de croisière"},
    {"Turn rate", "Drehrate", "Vitesse de rotation"},
    {"Power", "Energie", "Énergie"},
    {"Power charge rate", "Ladrate der Energie", "Recharge d'énergie"},
    {"Thrust power", "Schubenergie", "Énergie de poussée"},
    {"Sellers", "Verkäufer", "Vendeurs"},
    {"Sold at", "Verkauft bei", "Vendu à"},
    {"Hardpoint type", "Aufhängungstyp", "Type d'attache"},
    {"Weapon type", "Waffentyp", "Type d'arme"},
    {"Hull damage", "Hüllenschaden", "Dégâts à la coque"},
    {"Shield damage", "Schildschaden", "Dégâts au bouclier"},
    {"Hull damage per energy", "Hüllenschaden je Energie", "Dégâts à la coque par énergie"},
    {"Shield damage per energy", "Schildschaden je Energie", "Dégâts au bouclier par énergie"},
    {"Refire rate", "Feuerrate", "Cadence de tir"},
    {"Energy", "Energie", "Énergie"},
    {"Range", "Reichweite", "Portée"},
    {"Projectile speed", "Geschossgeschwindigkeit", "Vitesse du projectile"},
    {"Lifetime", "Lebensdauer", "Durée de vie"},
    {"Ammunition price", "Munitionspreis", "Prix des munitions"},
    {"Ammunition per damage", "Munition je Schaden", "Munitions par dégât"},
    {"Kind", "Art", "Genre"},
    {"Blast radius", "Sprengradius", "Rayon d'explosion"},
    {"Top speed", "Höchstgeschwindigkeit", "Vitesse maximale"},
    {"Seeker range", "Suchreichweite", "Portée du guidage"},
    {"Seeker cone", "Suchkegel", "Cône de guidage"},
    {"Time to lock", "Zielerfassung", "Temps de verrouillage"},
    {"Ammunition limit", "Munitionsvorrat", "Réserve de munitions"},
    {"Seek range", "Suchreichweite", "Portée de recherche"},
    {"Acceleration", "Beschleunigung", "Accélération"},
    {"Safe for its owner", "Sicher für den Besitzer", "Sans danger pour son propriétaire"},
    {"Shield type", "Schildtyp", "Type de bouclier"},
    {"Capacity", "Kapazität", "Capacité"},
    {"Regeneration", "Regeneration", "Régénération"},
    {"Time to refill", "Zeit zum Auffüllen", "Temps de remplissage"},
    {"Offline time", "Ausfallzeit", "Temps d'arrêt"},
    {"Offline below", "Ausfall unter", "Arrêt au-dessous de"},
    {"Energy while rebuilding", "Energie beim Wiederaufbau", "Énergie de reconstruction"},
    {"Capacity per price", "Kapazität je Preis", "Capacité par prix"},
    {"Thrust", "Schub", "Poussée"},
    {"Thrust per energy", "Schub je Energie", "Poussée par énergie"},
    {"Force", "Kraft", "Force"},
    {"Linear drag", "Linearer Widerstand", "Traînée linéaire"},
    {"Reverse speed", "Rückwärtsgeschwindigkeit", "Vitesse en marche arrière"},
    {"Cruise energy", "Energie der Reisegeschwindigkeit", "Énergie de croisière"},
    {"Ships", "Schiffe", "Vaisseaux"},
    {"Charge rate", "Ladrate", "Vitesse de charge"},
    {"Time to charge", "Ladezeit", "Temps de charge"},
    {"Thrust capacity", "Schubkapazität", "Capacité de poussée"},
    {"Thrust charge rate", "Ladrate des Schubs", "Recharge de poussée"},
    {"Diversion", "Ablenkung", "Diversion"},
    {"Speed", "Geschwindigkeit", "Vitesse"},
    {"Scan range", "Scanreichweite", "Portée du scanner"},
    {"Cargo scan range", "Frachtscanreichweite", "Portée du scanner de soute"},
    {"Tractor length", "Länge des Traktorstrahls", "Longueur du rayon tracteur"},
    {"Tractor speed", "Tempo des Traktorstrahls", "Vitesse du rayon tracteur"},
    {"List price", "Listenpreis", "Prix de base"},
    {"Cheapest", "Billigster Preis", "Prix le plus bas"},
    {"Cheapest at", "Am billigsten bei", "Le moins cher à"},
    {"Dearest", "Höchster Preis", "Prix le plus haut"},
    {"Dearest at", "Am teuersten bei", "Le plus cher à"},
    {"Spread", "Spanne", "Écart"},
    {"Spread per volume", "Spanne je Volumen", "Écart par volume"},
    {"Volume", "Volumen", "Volume"},
    {"Decay", "Verderb", "Dégradation"},
    {"Takers", "Abnehmer", "Acheteurs"},
    {"System", "System", "Système"},
    {"Sector", "Sektor", "Secteur"},
    {"Owner", "Besitzer", "Propriétaire"},
    {"Docks", "Docks", "Docks"},
    {"Ships sold", "Verkaufte Schiffe", "Vaisseaux vendus"},
    {"Commodities sold", "Verkaufte Waren", "Marchandises vendues"},
    {"Guns and turrets sold", "Verkaufte Geschütze und Türme", "Canons et tourelles vendus"},
    {"Missiles sold", "Verkaufte Raketen", "Missiles vendus"},
    {"Mines sold", "Verkaufte Minen", "Mines vendues"},
    {"Shields sold", "Verkaufte Schilde", "Boucliers vendus"},
    {"Thrusters sold", "Verkaufte Nachbrenner", "Propulseurs vendus"},
    {"Countermeasures sold", "Verkaufte Gegenmaßnahmen", "Contre-mesures vendues"},
    {"Other goods sold", "Andere verkaufte Güter", "Autres biens vendus"},
    {"Place", "Ort", "Lieu"},
    {"Map scale", "Kartenmaßstab", "Échelle de la carte"},
    {"Bases", "Basen", "Bases"},
    {"Factions", "Fraktionen", "Factions"},
    {"Jumps", "Sprungverbindungen", "Sauts"},
    {"Short name", "Kurzname", "Nom court"},
    {"Lowest bribe", "Kleinste Bestechung", "Pot-de-vin minimal"},
    {"Highest bribe", "Größte Bestechung", "Pot-de-vin maximal"},
    {"Bribes at", "Bestechung bei", "Pots-de-vin à"},
    {"Faction", "Fraktion", "Faction"},
    {"Faction nickname", "Kürzel der Fraktion", "Code de la faction"},
    {"Base", "Basis", "Base"},
    {"Base nickname", "Kürzel der Basis", "Code de la base"},
    {"Offers", "Angebote", "Offres"},
    {"Highest price", "Höchster Preis", "Prix maximal"},
};

constexpr AtlasCaptionRow kAtlasUnits[] = {
    {"credits", "Credits", "crédits"},
    {"units", "Einheiten", "unités"},
    {"units/1000 credits", "Einheiten/1000 Credits", "unités/1000 crédits"},
    {"pieces", "Stück", "pièces"},
    {"points", "Punkte", "points"},
    {"mass", "Masse", "masse"},
    {"mounts", "Aufhängungen", "emplacements"},
    {"number", "Anzahl", "nombre"},
    {"type: mounts", "Typ: Anzahl", "type : nombre"},
    {"degrees/s", "Grad/s", "degrés/s"},
    {"units/s", "Einheiten/s", "unités/s"},
    {"bases", "Basen", "bases"},
    {"points/shot", "Punkte/Schuss", "points/tir"},
    {"points/s", "Punkte/s", "points/s"},
    {"points/unit", "Punkte/Einheit", "points/unité"},
    {"shots/s", "Schüsse/s", "tirs/s"},
    {"units/shot", "Einheiten/Schuss", "unités/tir"},
    {"credits/shot", "Credits/Schuss", "crédits/tir"},
    {"credits/point", "Credits/Punkt", "crédits/point"},
    {"degrees", "Grad", "degrés"},
    {"radians/s", "Radiant/s", "radians/s"},
    {"shots", "Schüsse", "tirs"},
    {"% of capacity", "% der Kapazität", "% de la capacité"},
    {"points/credit", "Punkte/Credit", "points/crédit"},
    {"force", "Kraft", "force"},
    {"force/unit", "Kraft/Einheit", "force/unité"},
    {"force*s/m", "Kraft*s/m", "force*s/m"},
    {"credits/unit of hold", "Credits/Laderaumeinheit", "crédits/unité de soute"},
    {"units of hold", "Laderaumeinheiten", "unités de soute"},
    {"pieces/s", "Stück/s", "pièces/s"},
    {"objects", "Objekte", "objets"},
    {"kinds", "Arten", "sortes"},
    {"column, row", "Spalte, Zeile", "colonne, ligne"},
    {"factor", "Faktor", "facteur"},
    {"people", "Personen", "personnes"},
    {"m", "m", "m"},
    {"s", "s", "s"},
    {"m/s", "m/s", "m/s"},
    {"m/s^2", "m/s^2", "m/s^2"},
    {"%", "%", "%"},
};
// clang-format on

std::optional<std::string_view> Translated(std::span<const AtlasCaptionRow> rows,
                                           std::string_view english, Language language) {
  const auto row = std::find_if(rows.begin(), rows.end(), [english](const AtlasCaptionRow& each) {
    return each.English == english;
  });
  if (row == rows.end()) return std::nullopt;
  return language == Language::German ? row->German : row->French;
}

}  // namespace

std::optional<std::string> TranslatedCaption(Language language, const std::string& english) {
  if (language != Language::German && language != Language::French) return english;
  const std::size_t bracket = english.find(" (");
  const std::string_view all(english);
  const auto name = Translated(kAtlasNames, all.substr(0, bracket), language);
  if (!name || bracket == std::string::npos)
    return name ? std::optional<std::string>(*name) : std::nullopt;
  const auto unit =
      Translated(kAtlasUnits, all.substr(bracket + 2, all.size() - bracket - 3), language);
  if (!unit) return std::nullopt;
  return fmt::format("{} ({})", *name, *unit);
}

QString AtlasCaption(Language language, const std::string& english) {
  return QString::fromStdString(TranslatedCaption(language, english).value_or(english));
}

}  // namespace orrerix
