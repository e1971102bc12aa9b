// SPDX-License-Identifier: MIT
#include <fmt/core.h>

#include "demo/content/sounds.h"
#include "demo/files/writers.h"
#include "demo/format/ini_text.h"

namespace orrerix::demo {
namespace {

void AddProgramSections(IniText& ini) {
  ini.Comment("Configuration of the demo game")
      .Section("Freelancer")
      .Line("data path", "..\\data")
      .Line("local_server", "server.dll")
      .Line("initial_world", "InitialWorld.ini\t;relative to the data path")
      .Section("ListServer")
      .Line("hostname", "localhost          ;this computer")
      .Line("port", 2300)
      .Section("Server")
      .Line("name", "Demo")
      .Line("death_penalty", "60   ; percent of the cargo lost")
      .Section("Initial SP DLLs")
      .Line("path", "..\\dlls\\bin")
      .Line("DLL", "Play.dll, Rules, HIGHEST")
      .Comment("the rest is loaded when it is needed")
      .Line("DLL", "Play.dll, Space, NORMAL");
}

void AddResources(IniText& ini) {
  ini.Section("Resources");
  for (const LibraryFile& file : LibraryFiles()) {
    ini.Line("DLL", fmt::format("{} ; {}", file.Name, file.Purpose));
  }
}

void AddData(IniText& ini) {
  ini.Section("Data")
      .Comment("archetypes come before the universe that uses them")
      .Line("solar", "solar\\solararch.ini")
      .Line("universe", "universe\\universe.ini")
      .Line("constants", "constants.ini\t\t;numbers that rarely change")
      .Line("sounds", "audio\\interface_sounds.ini")
      .Line("asteroids", "solar\\asteroidarch.ini")
      .Raw("")
      .Line("equipment", "equipment\\select_equip.ini")
      .Line("equipment", "equipment\\misc_equip.ini")
      .Line("equipment", "equipment\\engine_equip.ini\t\t")
      .Line("equipment", "equipment\\ST_equip.ini   ; shields and thrusters")
      .Line("equipment", "equipment\\weapon_equip.ini")
      .Raw("")
      .Line("ships", "ships\\shiparch.ini")
      .Line("goods", "equipment\\goods.ini")
      .Line("goods", "equipment\\misc_good.ini")
      .Line("goods", "equipment\\weapon_good.ini")
      .Line("goods", "equipment\\lost_good.ini")
      .Line("loadouts", "ships\\loadouts.ini")
      .Line("loadouts", "solar\\loadouts.ini ")
      .Line("fuses", "fx\\fuse.ini")
      .Line("groups", "InitialWorld.ini")
      .Line("HUD", "interface\\hud.ini")
      .Comment("bases names no file; the key says when the systems are loaded")
      .Raw("bases\t\t")
      .Line("markets", "equipment\\market_misc.ini")
      .Line("markets", "equipment\\market_ships.ini")
      .Line("markets", "equipment\\market_commodities.ini")
      .Line("WeaponModDB", "equipment\\WeaponModDB.ini")
      .Section("Error")
      .Line("log", "..\\Demo.txt,-1,1      ; all errors");
}

}  // namespace

void WriteConfiguration(Game& game) {
  IniText ini;
  AddProgramSections(ini);
  AddResources(ini);
  AddData(ini);
  game.Folder.Write("EXE/Freelancer.exe", "");
  game.Folder.Write("EXE/freelancer.ini", ini.Bytes());
}

void WriteLibraries(Game& game) {
  for (const LibraryFile& file : LibraryFiles()) {
    game.Folder.Write(fmt::format("EXE/{}", file.Name), game.Texts.Image(file.Place));
  }
}

void WriteSounds(Game& game) {
  for (const SoundFile& sound : MenuSounds()) {
    game.Folder.Write(fmt::format("DATA/AUDIO/SOUNDS/UI/{}", sound.Name), sound.Bytes);
  }
}

}  // namespace orrerix::demo
