// SPDX-License-Identifier: MIT
// What the fuzz targets share: a folder of the process's own, a program that nobody sits at, and
// numbers read off an input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>

#include "import/import_host.h"
#include "platform/message_box.h"

namespace orrerix {

// A folder for the files of this process. It goes when the process ends without a finding.
const std::filesystem::path& OwnFolder();

// Replaces a file by these bytes.
void WriteBytes(const std::filesystem::path& file, std::string_view bytes);

// The input as text. It must outlive the view.
std::string_view InputText(const std::uint8_t* data, std::size_t size);

// Answers every question: with OK, or with Cancel if `goesOn` is false.
class NobodyThere : public MessageBoxes {
 public:
  explicit NobodyThere(bool goesOn = true) : goesOn_(goesOn) {}
  MessageAnswer Show(const Message&) override {
    return goesOn_ ? MessageAnswer::Ok : MessageAnswer::Cancel;
  }

 private:
  bool goesOn_;
};

class QuietHost : public ImportHost {
 public:
  void ShowText(std::string_view) override {}
  void AppendText(std::string_view) override {}
  void ProgressIt(std::int32_t, std::int32_t, const ImportProgress&) override {}
  void Yield() override {}
  void Pause(int) override {}
  MessageAnswer Show(const Message&) override { return MessageAnswer::Ignore; }
  std::uint32_t TickCount() override { return 0; }
  bool IsMinimised() const override { return true; }
  bool IsDebugging() const override { return false; }
};

// Reads an input from its start; beyond its end there are zeros.
class Steering {
 public:
  Steering(const std::uint8_t* data, std::size_t size) : rest_(InputText(data, size)) {}

  bool AtEnd() const { return rest_.empty(); }
  std::uint8_t Byte();
  // A number below `count`, which is at least 1.
  std::size_t Below(std::size_t count);
  std::int16_t Short();
  // A text of up to 255 bytes, its length first.
  std::string_view Text();

 private:
  std::string_view rest_;
};

}  // namespace orrerix
