// SPDX-License-Identifier: MIT
#include "demo/content/nations.h"

namespace orrerix::demo {
namespace {

Nation Vorrland() {
  return {
      "vo",
      "the Vorrland Compact",
      {"Hällmark", "Skarnvik", "Östrand", "Brönsund", "Djupfjäll", "Ravnholt", "Tyrsö"},
      {"Häll", "Skarn", "Öst",  "Brön", "Djup", "Ravn", "Tyr", "Grå",  "Isk",  "Varg",
       "Stål", "Norr",  "Mörk", "Eld",  "Ulv",  "Fros", "Ask", "Hval", "Kung", "Rim"},
      {"mark", "vik",    "gard", "sund", "holm", "fjord", "borg", "heim", "by",   "dal",
       "näs",  "strand", "lund", "havn", "fell", "sten",  "vang", "bro",  "skog", "kulla"},
      "",
      {"The Compact counts {name} among its oldest charters, and the winter assembly still meets "
       "here every ninth year.",
       "Most families on {name} can name the ship their ancestors arrived in, and many will, at "
       "length.",
       "Light is rationed on {name} during the long eclipse, a habit that visitors mistake for "
       "thrift.",
       "The harbour bells of {name} ring for every ship that comes home late.",
       "Wood is worth more than steel on {name}, and a carved door says more about its owner than "
       "a bank account."}};
}

Nation Cassorel() {
  return {
      "ca",
      "the Cassorel Republic",
      {"Cassorel", "Valmière", "Séranne", "Aubrelle", "Tressonne", "Lisâne", "Brévaux", "Orlinde"},
      {"Val", "Sér", "Aubr", "Tress", "Lis", "Brév", "Orl",  "Cass",  "Mont", "Clair",
       "Fré", "Gal", "Péri", "Rosc",  "Arg", "Bell", "Cour", "Étren", "Noir", "Sauv"},
      {"ière", "anne", "elle", "onne", "âne",  "aux",  "inde",  "orel",  "emer", "ette",
       "ois",  "ence", "igny", "ault", "evin", "ouse", "armes", "ondel", "esse", "ymont"},
      "",
      {"{name} votes on everything, twice, and argues about the result over dinner.",
       "The gardens of {name} are older than the Republic, and the gardeners make sure that "
       "nobody forgets it.",
       "Every second street on {name} is named after a poet, and every first one after a tax.",
       "A season at {name} is still thought to finish an education in Cassorel.",
       "The customs officers of {name} are famous for their manners and feared for their "
       "patience."}};
}

Nation Tarkesh() {
  return {
      "ta",
      "the Tarkesh Dominion",
      {"Tarkesh", "Ulgarat", "Temirkul", "Sarazh", "Bozkara", "Altynor"},
      {"Tark", "Ulg", "Tem", "Sar",  "Boz", "Alt", "Kar", "Zhal", "Orm", "Bek",
       "Dzun", "Yar", "Qor", "Tugh", "Jel", "Nur", "Saz", "Kysh", "Arg", "Erk"},
      {"esh",  "arat", "irkul", "azh", "akara", "ynor", "bulak", "atau",  "umysh", "endek",
       "agan", "oryk", "ashir", "oba", "ataly", "uzen", "azhan", "ikent", "amor",  "usun"},
      "",
      {"The clans of {name} settle their quarrels by racing, and the wrecks along the course are "
       "left where they fell.",
       "A guest on {name} is offered salt, bread and the better chair, in this order.",
       "The Dominion moved its mint to {name} after the second siege and has not regretted it.",
       "Dust from the high plains of {name} colours the sunsets, the laundry and the soup.",
       "It is said on {name} that a road is worth two fleets, and the wardens are paid "
       "accordingly."}};
}

Nation Ishenu() {
  return {
      "is",
      "the Houses of Ishenu",
      {"Ishenu", "Lamarat", "Nabesh", "Urshadin", "Enkibar", "Sippanu", "Zimrida"},
      {"Ish",  "Lam", "Nab", "Ursh", "Enk",  "Sipp", "Zim",  "Adar", "Gil", "Hur",
       "Kesh", "Lag", "Mar", "Nin",  "Shar", "Tel",  "Ubar", "Yad",  "Ash", "Dil"},
      {"enu",  "arat", "esh",   "adin", "ibar", "anu",  "rida", "umesh", "ukkal",  "amur",
       "ahad", "itur", "ashti", "ebal", "orin", "unna", "izim", "apal",  "eshkar", "ultum"},
      "",
      {"Three Houses hold {name} in turn, and each repaints the walls of the harbour in its own "
       "colour.",
       "The archives of {name} keep a copy of every contract ever broken in the sector.",
       "No voice is raised before noon on {name}, by a custom that even dock crews observe.",
       "The water clocks of {name} are wrong by design, to remind merchants of humility.",
       "Scribes from {name} are hired across the sector to write what others would rather not "
       "sign."}};
}

Nation FreeWorlds() {
  return {"fw",
          "the border worlds",
          {"Last Lantern", "Hollow Reach", "Cinder Gap", "Widow's Mile", "Tallow", "Salt Meridian",
           "Quiet Harbour", "Ninefold", "Broken Oar", "Farewell", "Rust Garden", "Gallows Tide",
           "Moth's End", "Grey Ledger", "Kettle", "Blind Ferry", "Long Apology", "Candlewick",
           "Bitter Well"},
          {"Hollow", "Broken",  "Quiet",  "Rust",   "Salt",   "Cinder", "Blind",
           "Grey",   "Last",    "Bitter", "Long",   "Pale",   "Lost",   "Iron",
           "Amber",  "Crooked", "Silent", "Copper", "Winter", "Dusty"},
          {"Reach", "Gap",    "Mile",    "Harbour", "Garden", "Tide",     "Ferry",
           "Well",  "Ledger", "Lantern", "Oar",     "Hearth", "Crossing", "Furrow",
           "Bell",  "Anchor", "Orchard", "Ladder",  "Kiln",   "Verge"},
          " ",
          {"Nobody was ever sent to {name}; everybody who lives here chose to.",
           "There is one judge on {name}, and she also runs the bakery.",
           "Maps of the nations leave {name} blank, which suits its people well.",
           "On {name} a debt is paid in parts, in fuel or in silence.",
           "The radio of {name} plays the same forty songs, and strangers are asked to bring a new "
           "one."}};
}

}  // namespace

const std::vector<Nation>& Nations() {
  static const std::vector<Nation> nations = {Vorrland(), Cassorel(), Tarkesh(), Ishenu(),
                                              FreeWorlds()};
  return nations;
}

}  // namespace orrerix::demo
