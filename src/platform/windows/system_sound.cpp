// SPDX-License-Identifier: MIT
#include "platform/windows/system_sound.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <string>
#include <thread>

#include <windows.h>

#include "platform/path_text.h"

namespace orrerix {
namespace {

constexpr auto kLongestWait = std::chrono::seconds(3);

std::uint32_t NumberAt(const char* bytes) {
  std::uint32_t number = 0;
  std::memcpy(&number, bytes, sizeof number);
  return number;
}

}  // namespace

std::chrono::milliseconds WavDuration(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::array<char, 12> head{};
  stream.read(head.data(), head.size());
  if (!stream || std::string(head.data(), 4) != "RIFF") return {};
  std::uint32_t bytesPerSecond = 0;
  std::array<char, 8> chunk{};
  while (stream.read(chunk.data(), chunk.size())) {
    const std::string name(chunk.data(), 4);
    const std::uint32_t size = NumberAt(chunk.data() + 4);
    if (name == "data") {
      return std::chrono::milliseconds(bytesPerSecond == 0 ? 0 : size * 1000ull / bytesPerSecond);
    }
    std::array<char, 16> format{};
    std::uint32_t read = 0;
    if (name == "fmt " && stream.read(format.data(), format.size())) {
      bytesPerSecond = NumberAt(format.data() + 8);
      read = format.size();
    }
    stream.seekg(static_cast<std::streamoff>(size) - read + (size & 1), std::ios::cur);
  }
  return {};
}

void SystemSound::Play(const std::filesystem::path& file) {
  const bool plays =
      PlaySoundW(file.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT) != 0;
  end_ =
      std::chrono::steady_clock::now() + (plays ? WavDuration(file) : std::chrono::milliseconds(0));
}

void SystemSound::WaitForEnd() {
  std::this_thread::sleep_until(std::min(end_, std::chrono::steady_clock::now() + kLongestWait));
}

void SystemSound::Beep() {
  MessageBeep(MB_OK);
}

}  // namespace orrerix
