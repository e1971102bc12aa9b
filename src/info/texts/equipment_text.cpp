// SPDX-License-Identifier: MIT
#include "info/texts/equipment_text.h"

#include <cmath>

#include "db/values/text.h"
#include "import/resources/resource_strings.h"
#include "info/texts/table_row.h"

namespace orrerix {
namespace {

// The program's arithmetic ends at the largest number.
double Finite(double number) {
  if (!std::isfinite(number)) throw RuntimeFailure(failure_number::kOverflow);
  return number;
}

// Ammunition that is sold along with a gun: "nickname, count".
struct FreeAmmo {
  std::string Nickname;
  double Count = 0;
};

// Without a comma the nickname is empty and the whole text the count.
FreeAmmo ParseFreeAmmo(const std::string& text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string::npos) return {"", Val(text)};
  return {std::string(Trim(text.substr(0, comma))), Val(text.substr(comma + 1))};
}

std::int32_t WithAmmo(std::int32_t total, std::int32_t count, std::int32_t price) {
  const auto sum = ToLong(total + static_cast<double>(count) * price);
  if (!sum) throw RuntimeFailure(failure_number::kOverflow);
  return *sum;
}

}  // namespace

template <typename Content>
void EquipmentWriter::Line(const Content& content) {
  routine_.Try([&] { text_ += "\r\n" + content(); });
}
template <typename Content>
void EquipmentWriter::Blank(const Content& content) {
  routine_.Try([&] { text_ += "\r\n\r\n" + content(); });
}

std::string EquipmentWriter::Fmt2(double number) const {
  return FormatGrouped(Finite(number), 2, wording_.Separators);
}
std::string EquipmentWriter::Fmt0(double number) const {
  return FormatGrouped(Finite(number), 0, wording_.Separators);
}
std::string EquipmentWriter::ShotAndSecond(double shot, double second) const {
  return Fmt2(shot) + " = " + Fmt0(second) + " per second";
}

void EquipmentWriter::Write() {
  WriteGood();
  WriteShield();
  WriteGun();
}

void EquipmentWriter::WriteGood() {
  TableRow good(routine_, universe_, "Goods", "nickname", nickname_);
  if (!good.Found()) return;
  std::int32_t total = 0;
  routine_.Try([&] { total = good["price"].RequireLong(); });
  std::int32_t count = 0;
  std::string ammoPrice;
  if (const std::string free = good.Text("free_ammo"); !free.empty()) {
    const FreeAmmo ammo = ParseFreeAmmo(free);
    TableRow ammoGood(routine_, universe_, "Goods", "nickname", ammo.Nickname);
    if (ammoGood.Found()) {
      count = routine_.Long(ammo.Count, count);
      ammoPrice = ammoGood.Text("price");
      routine_.Try([&] { total = WithAmmo(total, count, ammoGood["price"].RequireLong()); });
    }
  }
  Line([&] {
    return "   " + wording_.Texts.Text(TextId::Price) + ": " +
           NumberText(static_cast<std::int64_t>(total)) + "  -  " +
           GetChangeInfo(universe_, good["ids_info"].RequireLong());
  });
  if (count <= 0) return;
  Line([&] {
    return " incl. " + NumberText(static_cast<std::int64_t>(count)) + " X " +
           wording_.Texts.Text(TextId::Ammunition) + " á $" + ammoPrice;
  });
}

void EquipmentWriter::WriteShield() {
  TableRow shield(routine_, universe_, "shieldgenerator", "nickname", nickname_);
  if (!shield.Found()) return;
  Blank([&] { return "            Max-Capacity: " + Fmt2(shield.Val("max_capacity")); });
  Line([&] { return " Rebuild Power usage / s: " + Fmt0(shield.Val("rebuild_power_draw")); });
  Line([&] { return " Regeneration per second: " + Fmt2(shield.Val("regeneration_rate")); });
  Blank([&] { return "             Shield-Type: " + shield.Text("shield_type"); });
  Line([&] { return "        Needed Hardpoint: " + shield.Text("hp_type"); });
}

void EquipmentWriter::WriteGun() {
  TableRow gun(routine_, universe_, "gun", "nickname", nickname_);
  if (!gun.Found()) return;
  const double refire = gun.Val("refire_delay");
  Blank([&] {
    if (refire == 0) throw RuntimeFailure(failure_number::kDivisionByZero);
    return "          Refire-Rate: " + Fmt2(refire) + " = " + Fmt2(1 / refire) +
           " Shots per second";
  });
  Line([&] { return "          Power-Usage: " + Fmt2(gun.Val("power_usage")); });
  Line([&] { return "     Projectile-Speed: " + Fmt0(gun.Val("muzzle_velocity")); });
  Line([&] { return "     Needed Hardpoint: " + gun.Text("hp_gun_type"); });
  WriteShot(gun, refire);
}

void EquipmentWriter::WriteShot(TableRow& gun, double refire) {
  TableRow shot(routine_, universe_, "munition", "nickname", gun.Text("projectile_archetype"));
  if (!shot.Found()) return;
  const double life = shot.Val("lifetime");
  const double speed = gun.Val("muzzle_velocity");
  const double hull = shot.Val("hull_damage");
  const double energy = shot.Val("energy_damage");
  Blank([&] {
    return "             LifeTime: " + Fmt2(life) + " = " + Fmt0(speed * life) + " Range";
  });
  Line([&] { return "          Hull-Damage: " + ShotAndSecond(hull * refire, hull); });
  Line([&] {
    return energy != 0 ? " Energy/Shield-Damage: " + ShotAndSecond(energy * refire, energy)
                       : "        Shield-Damage: " + ShotAndSecond(hull * refire / 2, hull / 2);
  });
}

}  // namespace orrerix
