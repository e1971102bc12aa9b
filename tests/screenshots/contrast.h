// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QString>
#include <QWidget>
#include <map>
#include <string>

namespace orrerix {

// Contrast of the texts in windows against what they are drawn on, 1 to 21: the letters' colour
// against the background that touches the letters.
class ContrastReport {
 public:
  // Measures all texts of a window.
  void Measure(const QString& picture, QWidget& window);

  // Writes the lowest contrast of each kind of text. False if one is too low to be read with ease.
  bool Print() const;

 private:
  struct Lowest {
    double Ratio;
    std::string Where;
  };
  void MeasureTable(const std::string& picture, const QAbstractItemModel& model);
  void Note(const std::string& kind, double ratio, const std::string& where);

  std::map<std::string, Lowest> lowest_;
};

}  // namespace orrerix
