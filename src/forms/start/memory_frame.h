// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QWidget>
#include <array>

#include "platform/memory_status.h"
#include "shell/error_log.h"

namespace orrerix {

// The memory watch at the foot of the import screen: a head line over three bars of three segments,
// each what was in use at the start, what has been added since, and what is free.
class MemFrame : public QWidget {
 public:
  // `choice` must outlive this.
  MemFrame(const LanguageChoice& choice, QWidget* parent);

  // Its design height in twips.
  static constexpr int kDesignHeight = 1500;

  // Shows the memory as it is now beside that of the start. While the form is minimised the
  // captions only.
  void MemoryUpdate(ErrorLog& log, const MemoryStatus& start, int formWidth, bool minimised);

 private:
  void MakeBars();
  void ShowSegments(const std::array<std::int32_t, 9>& figures, int formWidth);

  const LanguageChoice& choice_;
  QLabel* headLab_;
  std::array<QLabel*, 9> memLab_{};
};

}  // namespace orrerix
