// SPDX-License-Identifier: MIT
// Stand-ins for what a program hands in: questions are answered and remembered, nothing is shown.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "import/import_host.h"
#include "platform/message_box.h"
#include "support/fake_message_boxes.h"

namespace orrerix {

// A host whose clock stands still unless a test moves it.
class FakeHost : public ImportHost {
 public:
  struct ProgressCall {
    std::int32_t Maximum;
    std::int32_t Value;
    ImportProgress Progress;
  };

  std::string Text;
  std::vector<ProgressCall> Progress;
  std::vector<Message> Shown;
  MessageAnswer Answer = MessageAnswer::Ok;
  std::uint32_t Ticks = 0;
  bool Minimised = false;
  bool Debugging = false;
  int Yields = 0;
  std::function<void()> OnYield;

  void ShowText(std::string_view text) override { Text = text; }
  void AppendText(std::string_view text) override { Text += text; }
  void ProgressIt(std::int32_t maximum, std::int32_t value,
                  const ImportProgress& progress) override {
    Progress.push_back({maximum, value, progress});
  }
  void Yield() override {
    ++Yields;
    if (OnYield) OnYield();
  }
  void Pause(int) override {}
  MessageAnswer Show(const Message& message) override {
    Shown.push_back(message);
    return Answer;
  }
  std::uint32_t TickCount() override { return Ticks; }
  bool IsMinimised() const override { return Minimised; }
  bool IsDebugging() const override { return Debugging; }
};

}  // namespace orrerix
