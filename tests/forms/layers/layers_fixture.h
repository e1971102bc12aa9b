// SPDX-License-Identifier: MIT
// A map with a universe file of one system, New York in cell 8, 10, and what lies in it.
#pragma once

#include <QHelpEvent>
#include <QSettings>
#include <QTest>
#include <QToolTip>

#include "forms/layers/map_space.h"
#include "forms/map/map_controller_fixture.h"

namespace orrerix {

class LayersFixture : public MapControllerFixture {
 protected:
  LayersFixture() {
    file = DBEngine::CreateDatabase(mustWork, UniverseFile(), JetVersionOption::Version30);
    for (const TableDef& table : FixedTables()) file.CreateTable(mustWork, table);
    file.CreateTable(mustWork, JumpNodesTable());
    // 200,000 units across.
    AddTo("Systems", {{"nickname", "Li01"},
                      {"realname", "New York"},
                      {"pos", "8, 10"},
                      {"navmapscale", "1.3333333333333333"}});
    AddTo("Objects", {{"nickname", "sun"},
                      {"realname", "Sol"},
                      {"archetype", "sun_20000"},
                      {"sys_nick", "Li01"},
                      {"pos", "0, 0, 0"}});
    AddGate([this](std::string_view table, Fields fields) { AddTo(table, fields); });
  }

  // Has `addRow` add a gate to the system of cell 3, 4, a quarter off the left and upper edges.
  template <typename AddRow>
  static void AddGate(AddRow addRow) {
    addRow("JumpNodes", Fields{{"nickname", "gate"},
                               {"nickname2", "back"},
                               {"MapX1", 8},
                               {"MapY1", 10},
                               {"MapX2", 3},
                               {"MapY2", 4},
                               {"PosX1", 0.25},
                               {"PosY1", 0.25},
                               {"PosX2", 0.5},
                               {"PosY2", 0.5},
                               {"Type", 1}});
  }

  std::filesystem::path UniverseFile() { return folder.Path() / "space.fl"; }

  void AddTo(std::string_view table, Fields fields) {
    Recordset rows = file.OpenTable(mustWork, table);
    rows.AddNew();
    for (const auto& [name, value] : fields) rows[name] = value;
    rows.Update();
  }

  void Read(MapSpace& space) {
    file.Close();
    space.Read(UniverseFile(), folder.Path().string());
    ASSERT_TRUE(WaitUntil([&] { return space.Shown() != nullptr; }));
  }

  // One system: its cell is 8550 twips wide, 570 pixels.
  void ShowSystem(MapSpace& space) {
    Zoom({8, 10, 8, 10});
    space.MapRedrawn();
  }

  QImage Picture() {
    QImage picture(map.Frame().viewport()->size(), QImage::Format_RGB32);
    map.Frame().viewport()->render(&picture);
    return picture;
  }

  Database file;
  QSettings remembered{QString::fromStdString((folder.Path() / "tools.ini").string()),
                       QSettings::IniFormat};
};

}  // namespace orrerix
