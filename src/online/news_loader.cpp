// SPDX-License-Identifier: MIT
#include "online/news_loader.h"

#include <fstream>
#include <utility>

#include <fmt/format.h>

#include "import/resources/windows1252.h"
#include "shell/language_texts.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

constexpr std::string_view kLoading = "While loading News via MSINET.OCX";
constexpr int kTransferFailed = 35761;  // of the transfer control: no answer within its time

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// Whether the sequences of bytes have the lengths of well-formed UTF-8.
bool LooksLikeUtf8(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size();) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    std::size_t length = 1;
    if (first >= 0xF0 && first < 0xF8) {
      length = 4;
    } else if (first >= 0xE0) {
      length = 3;
    } else if (first >= 0xC2) {
      length = 2;
    } else if (first >= 0x80) {
      return false;
    }
    if (first >= 0xF8 || i + length > bytes.size()) return false;
    for (std::size_t k = 1; k < length; ++k) {
      if (!IsContinuation(bytes[i + k])) return false;
    }
    i += length;
  }
  return true;
}

}  // namespace

NewsLoader::NewsLoader(ErrorLog& log, Network& network, MessageBoxes& messages,
                       std::string newsAddress, std::filesystem::path applicationFolder,
                       Language language)
    : log_(log),
      network_(network),
      messages_(messages),
      newsAddress_(std::move(newsAddress)),
      applicationFolder_(std::move(applicationFolder)),
      language_(language) {}

std::string NewsLoader::Fetch() {
  std::string text;
  Routine routine(log_, "NewsLoader.Command1_Click", kLoading);
  routine.Run([&] {
    if (!newsAddress_.empty()) text = FetchText(newsAddress_);
  });
  return text;
}

std::string NewsLoader::FetchText(const std::string& address) {
  std::string text;
  Routine routine(log_, "NewsLoader.GetHTML", kLoading);
  routine.Run([&] {
    routine.Try([&] {
      try {
        text = network_.Get(address);
      } catch (const NetworkError& error) {
        throw Failure{kTransferFailed, fmt::format("{} ({})", error.what(), address), "Inet"};
      }
    });
    if (!LooksLikeUtf8(text)) text = FromWindows1252(text);
  });
  return text;
}

bool NewsLoader::SaveFile(const std::string& address) {
  const std::string name = StripPathHelper(address);
  if (!ShowNoConnectionHint()) return false;
  try {
    const std::string bytes = network_.Get(address);
    std::ofstream file(applicationFolder_ / std::filesystem::u8path(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (file) return true;
    messages_.Show({FormatIn(language_, TextId::CannotWrite, name), "", MessageButtons::Ok,
                    MessageIcon::None});
  } catch (const NetworkError& error) {
    messages_.Show({error.what(), "", MessageButtons::Ok, MessageIcon::None});
  }
  return false;
}

bool NewsLoader::ShowNoConnectionHint() {
  const bool isUp = IsOnline();
  if (!isUp) {
    messages_.Show({std::string(TextIn(language_, TextId::NoConnection)), "", MessageButtons::Ok,
                    MessageIcon::None});
  }
  return isUp;
}

std::string StripPathHelper(const std::string& path) {
  const std::size_t separator = path.find_last_of("\\/");
  return separator == std::string::npos ? path : path.substr(separator + 1);
}

}  // namespace orrerix
