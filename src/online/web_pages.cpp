// SPDX-License-Identifier: MIT
#include "online/web_pages.h"

#include "db/values/text.h"

namespace orrerix {
namespace {

std::string_view PathOf(WebPage page) {
  switch (page) {
    case WebPage::Main:
      return "/OX";
    case WebPage::FirstClan:
      return "/clan";
    case WebPage::GameServer:
      return "/server";
    case WebPage::WarningHelp:
      break;
  }
  return "/details/warning.htm";
}

}  // namespace

std::string PageAddress(std::string_view newsAddress, WebPage page) {
  if (!IsWebAddress(newsAddress)) return {};
  const std::size_t host = newsAddress.find("//") + 2;
  const std::size_t hostEnd = newsAddress.find_first_of("/?#", host);
  return std::string(newsAddress.substr(0, hostEnd)) + std::string(PathOf(page));
}

void OpenLink(LinkOpener& links, std::string_view address) {
  if (address.empty()) return links.OpenManual();
  if (IsOpenable(address)) links.Open(std::string(address));
}

bool IsWebAddress(std::string_view address) {
  const std::string folded = FoldAscii(address);
  return folded.starts_with("http://") || folded.starts_with("https://");
}

bool IsOpenable(std::string_view address) {
  return IsWebAddress(address) || FoldAscii(address).starts_with("mailto:");
}

bool IsFirstHalf(double x, double y, double width, double height) {
  if (width <= 0 || height <= 0) return false;
  const int fromRight = 100 - static_cast<int>(100 * x / width);
  return fromRight + static_cast<int>(100 * y / height) > 100;
}

}  // namespace orrerix
