// SPDX-License-Identifier: MIT
// What a screen reader is told of a window.
#pragma once

#include <QAccessible>
#include <QWidget>
#include <string>
#include <vector>

#include <fmt/format.h>

namespace orrerix {

struct AccessibleLine {
  int Depth = 0;
  QAccessible::Role Role = QAccessible::NoRole;
  std::string RoleName;  // as Qt spells it
  std::string Name;
  std::string Description;
  bool Focusable = false;
};

inline void AddAccessible(QAccessibleInterface* shown, int depth,
                          std::vector<AccessibleLine>& lines) {
  if (shown == nullptr || !shown->isValid() || shown->state().invisible) return;
  lines.push_back({depth, shown->role(), qAccessibleRoleString(shown->role()),
                   shown->text(QAccessible::Name).toStdString(),
                   shown->text(QAccessible::Description).toStdString(),
                   shown->state().focusable != 0});
  for (int i = 0; i < shown->childCount(); ++i) AddAccessible(shown->child(i), depth + 1, lines);
}

// The visible part of the tree of a window, parents before their children.
inline std::vector<AccessibleLine> AccessibleTree(QWidget& window) {
  std::vector<AccessibleLine> lines;
  AddAccessible(QAccessible::queryAccessibleInterface(&window), 0, lines);
  return lines;
}

inline std::string TextOf(const std::vector<AccessibleLine>& tree) {
  std::string text;
  for (const AccessibleLine& line : tree) {
    text += fmt::format("{:{}}{} '{}'{}{}\n", "", 2 * line.Depth, line.RoleName, line.Name,
                        line.Description.empty() ? "" : " - " + line.Description,
                        line.Focusable ? " *" : "");
  }
  return text;
}

}  // namespace orrerix
