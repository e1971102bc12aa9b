// SPDX-License-Identifier: MIT
#include "shell/language_texts.h"

namespace orrerix {
namespace {

// clang-format off
constexpr LanguageText kTexts[] = {
    {0, "English",
     "Deutsch",
     "Français"},
    {1, "Empty Backgrounds",
     "Leere Hintergründe",
     "Pas de Fond d'Ecran"},
    {2, "System Backgrounds",
     "System Hintergründe",
     "Fond d'Ecran Systèmes"},
    {3, "Jumpgate Lines",
     "Sprungtor Linien",
     "Portes de Saut"},
    {4, "JumpHole Lines",
     "Sprungloch Linien",
     "Routes de Trous de Saut"},
    {5, "Tradelane Lines",
     "Handelsrouten",
     "Routes Commerciales"},
    {6, "System Names",
     "System Namen",
     "Noms des Systèmes"},
    {7, "Show Options",
     "Anzeige Optionen",
     "Montrer Options"},
    {8, "- We Run That Place -",
     "- Uns gehört das hier -",
     "- Nous Régnons Sur Ce Lieu -"},
    {9, "Search a Planet, Station, Base, Object,...",
     "Suche nach Planeten, Basen, Stationen,...",
     "Rechercher une Planète, Station, Base, Objet,…"},
    {10, "Search a Ship by name",
     "Suche ein Schiff nach Name",
     "Recherche d'un vaisseau par nom"},
    {11, "Search for Equipment",
     "Suche nach Ausrüstung",
     "Recherche d'équipement"},
    {12, "Search - Type a Name",
     "Suche - Name eingeben",
     "Recherche - Tapez un nom"},
    {13, "The clans of the Lantern Circle run this community's game server - fly with us, trade with us, or try to outrun us.",
     "Die Clans des Laternenkreises betreiben den Spielserver dieser Gemeinschaft - fliegt mit uns, handelt mit uns oder fliegt uns davon.",
     "Les clans du Cercle des Lanternes font vivre le serveur de jeu de cette communauté - volez, commercez ou fuyez avec nous."},
    {14, "Click here to open the selected clanpage.",
     "Hier klicken um die entsprechende Clan-Seite zu öffnen.",
     "Cliquez ici pour ouvrir la page du Clan sélectionné."},
    {15, "Unknown System",
     "Unbekanntes System",
     "Système Inconnus"},
    {16, "Ammo",
     "Munition",
     "Munitions"},
    {17, "U r in Pricelist - Click to switch to best Traderunnlist for System.",
     "Du bist in der Preisliste - Klick hier um die besten Verkaufsmöglichkeiten zu sehen",
     "Vous êtes dans la liste de prix - Cliquez pour aller aux meilleures Lignes Commerciales pour le Système."},
    {18, "Commodities Sell Prices",
     "Waren Verkaufspreise",
     "Prix de Vente des Marchandises"},
    {19, "Commodities Standard Sell Prices",
     "STANDARD Verkaufspreise",
     "Prix de Ventes des Marchandises Standard"},
    {20, "Click to switch to Pricelist.",
     "Hier für die Preisliste klicken.",
     "Cliquez pour aller à la liste de prix."},
    {21, "Best Trades inside System",
     "Beste Verkaufsmöglichkeiten in diesem System",
     "Meilleure vente dans le Système"},
    {22, "Best Trades outside System",
     "Beste Verkäufe im gesamten Universum",
     "Meilleur Vente Hors du Système"},
    {23, "Owner",
     "Besitzer",
     "Propriétaire"},
    {24, "Select a Ship",
     "Schiff auswählen",
     "Sélectionnez un Vaisseau"},
    {25, "Select Equipment",
     "Ausrüstung auswählen",
     "Sélectionner Equipement"},
    {26, "Price",
     "Preis",
     "Prix"},
    {27, "Search for Bribes",
     "Suche nach Hackern",
     "Recherche de Pot de Vin"},
    {28, "Commodities Buy Prices",
     "Waren Einkaufspreise",
     "Prix d'Achat des Marchandises"},
};
// clang-format on

}  // namespace

std::span<const LanguageText> LanguageTexts() {
  return kTexts;
}

std::string_view TextIn(int language, int id) {
  for (const LanguageText& text : kTexts) {
    if (text.ID != id) continue;
    switch (language) {
      case 0: return text.English;
      case 1: return text.German;
      case 2: return text.French;
      default: return kMissingText;
    }
  }
  return kMissingText;
}

}  // namespace orrerix
