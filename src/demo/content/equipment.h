// SPDX-License-Identifier: MIT
// What can be mounted on the demo game's ships.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace orrerix::demo {

// A line of guns in three marks, each stronger and dearer than the one before. Damage is per hit.
struct GunLine {
  std::string Stem;
  std::string Name;
  int Nation = 0;  // whose markets sell it
  double HullDamage = 0;
  double EnergyDamage = 0;
  double Refire = 0;  // seconds between two shots
  int Speed = 0;      // of the shot, per second
  double Lifetime = 0;
  int Power = 0;
  int Price = 0;
  std::string WeaponType;
  std::string About;
};

// A launcher whose ammunition is a good of its own; some come with a free supply.
struct Launcher {
  std::string Stem;
  std::string Name;
  std::string Section;  // of the launcher
  std::string AmmunitionSection;
  std::string HardpointType;
  double HullDamage = 0;
  double EnergyDamage = 0;
  double Refire = 0;
  int Speed = 0;
  double Lifetime = 0;
  int Price = 0;
  int AmmunitionPrice = 0;
  int FreeAmmunition = 0;  // 0: none comes with it
  std::string About;
};

// A line of shield generators in three marks.
struct ShieldLine {
  std::string Stem;
  std::string Name;
  std::string Type;
  int Nation = 0;
  double Capacity = 0;
  double Regeneration = 0;
  int RebuildPower = 0;
  int Price = 0;
  std::string About;
};

// Anything else that is sold and mounted: engines, thrusters, tractor beams, scanners, supplies.
struct Device {
  std::string Section;
  std::string Nickname;
  std::string Name;
  int Price = 0;
  std::vector<std::pair<std::string, std::string>> Keys;  // further lines of its section
  std::string About;
};

const std::vector<GunLine>& GunLines();
const std::vector<Launcher>& Launchers();
const std::vector<ShieldLine>& ShieldLines();
const std::vector<Device>& Devices();

inline constexpr int kMarks = 3;

// Nickname of a mark, 1 to 3, of a line: "vo_gun_hail_mark02".
std::string MarkNickname(const std::string& stem, int mark);
// Its name: "Hail Mk II".
std::string MarkName(const std::string& name, int mark);
// What a mark multiplies a line's figures with: 1, 1.5 or 2.25; prices grow faster.
double MarkFactor(int mark);

}  // namespace orrerix::demo
