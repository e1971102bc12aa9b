// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "import/universe.h"
#include "info/texts/table_row.h"
#include "info/texts/wording.h"
#include "shell/routine.h"

namespace orrerix {

// Writes what the info box says of a piece of equipment: its price as a good, with the ammunition
// that comes with it; its figures as a shield; its figures as a gun. Each part stands only if the
// table has the nickname. Cancelled in the middle, it keeps the lines that it has.
//
// A gun's damage in the game's files is the figure for a second, and that times its refire delay
// the figure for a shot. A gun without energy damage does half its hull damage to shields.
class EquipmentWriter {
 public:
  // All of these must outlive this.
  EquipmentWriter(Routine& routine, Universe& universe, const Wording& wording,
                  std::string_view nickname)
      : routine_(routine), universe_(universe), wording_(wording), nickname_(nickname) {}

  void Write();

  // What is written so far.
  std::string Take() { return std::move(text_); }

 private:
  void WriteGood();
  void WriteShield();
  void WriteGun();
  void WriteShot(TableRow& gun, double refire);

  // One line of the text is one step.
  template <typename Content>
  void Line(const Content& content);
  template <typename Content>
  void Blank(const Content& content);

  std::string Fmt2(double number) const;
  std::string Fmt0(double number) const;
  std::string ShotAndSecond(double shot, double second) const;

  Routine& routine_;
  Universe& universe_;
  const Wording& wording_;
  std::string_view nickname_;
  std::string text_;
};

}  // namespace orrerix
