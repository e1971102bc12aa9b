// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "shell/text_id.h"

namespace orrerix {

// One page of the workbench.
class WorkbenchPage : public QWidget {
 public:
  // `name` is its entry in the list.
  explicit WorkbenchPage(TextId name) : name_(name) {}

  TextId Name() const { return name_; }

  // The page comes to the front.
  virtual void Enter() {}

  // The page goes to the back, or the window closes: what is to be remembered is stored now.
  virtual void Leave() {}

  // Another universe is shown, or the same one after an import.
  virtual void UniverseChanged() {}

 private:
  TextId name_;
};

}  // namespace orrerix
