// SPDX-License-Identifier: MIT
// The twelve kinds of blocks that have tables of their own.
#pragma once

#include <string>
#include <string_view>

#include "import/ini/block_text.h"
#include "import/ini/reader_routine.h"
#include "import/resources/windows1252.h"

namespace orrerix {

// The tables that stay open while one file is read.
class KnownSections {
 public:
  KnownSections(Import& import, ReaderRoutine& routine, std::string systemNickname);

  // Handles a block without comments and with CR LF line ends. False if it is of no known kind.
  bool Read(std::string_view block);

 private:
  void ReadSystem(BlockText& block);
  void ReadCommodity(BlockText& block);
  void ReadObject(BlockText& block);
  void ReadGood(BlockText& block);
  void AssignCommodityName(const std::string& nickname, const std::string& equipment);
  void ReadAddons(BlockText block, const std::string& package);
  void ReadBaseGood(BlockText& block);
  void ReadResources(BlockText& block);
  void ReadData(BlockText& block);
  void ReadDataLine(Recordset& dataFiles, std::string_view line);
  void ReadMBase(BlockText& block);
  void ReadNPC(BlockText& block);
  void ReadGroup(BlockText& block);
  void ReadShip(BlockText& block);
  void ReadHardpoints(BlockText block, const std::string& ship);
  void ReadLoadout(BlockText& block);

  // Name of a number with the row's nickname as fallback, both as the row holds them.
  void AssignRealName(Recordset& row, std::string_view numberField);

  Import& import_;
  ReaderRoutine& routine_;
  std::string systemNickname_;
  std::string lastBase_;
  Windows1252Reader reader_;
  Recordset commodity_;
  Recordset objects_;
  Recordset goods_;
  Recordset packages_;
  Recordset baseGoods_;
  Recordset hardpoints_;
  Recordset loadoutCargo_;
  Recordset npcs_;
  Recordset groups_;
  Recordset ships_;
};

}  // namespace orrerix
