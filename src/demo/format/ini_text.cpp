// SPDX-License-Identifier: MIT
#include "demo/format/ini_text.h"

#include <fmt/core.h>

#include "demo/format/text_codec.h"

namespace orrerix::demo {

IniText& IniText::Section(std::string_view name) {
  if (!text_.empty()) text_ += "\r\n";
  return Raw(fmt::format("[{}]", name));
}

IniText& IniText::Line(std::string_view key, std::string_view value) {
  return Raw(fmt::format("{} = {}", key, value));
}

IniText& IniText::Line(std::string_view key, int value) {
  return Raw(fmt::format("{} = {}", key, value));
}

IniText& IniText::Line(std::string_view key, double value, int digits) {
  return Line(key, Decimal(value, digits));
}

IniText& IniText::Raw(std::string_view line) {
  text_ += line;
  text_ += "\r\n";
  return *this;
}

IniText& IniText::Comment(std::string_view text) {
  return Raw(fmt::format("; {}", text));
}

std::string IniText::Bytes() const {
  return Windows1252FromUtf8(text_);
}

std::string Decimal(double value, int digits) {
  std::string text = fmt::format("{:.{}f}", value, digits);
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text == "-0" ? "0" : text;
}

}  // namespace orrerix::demo
