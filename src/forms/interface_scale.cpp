// SPDX-License-Identifier: MIT
#include "forms/interface_scale.h"

#include <algorithm>

#include "forms/workbench/setting_keys.h"
#include "platform/path_text.h"

namespace orrerix {
namespace {

constexpr int kUsual = 100;
constexpr const char* kVariable = "QT_SCALE_FACTOR";

}  // namespace

const std::vector<int>& InterfaceScales() {
  static const std::vector<int> kScales = {75, 90, 100, 110, 125, 150, 175, 200};
  return kScales;
}

int StoredScale(const QSettings& settings) {
  const int percent = settings.value(setting_key::kScale, kUsual).toInt();
  const std::vector<int>& all = InterfaceScales();
  return std::find(all.begin(), all.end(), percent) == all.end() ? kUsual : percent;
}

void StoreScale(QSettings& settings, int percent) {
  settings.setValue(setting_key::kScale, percent);
}

void ApplyStoredScale(const std::filesystem::path& applicationFolder) {
  const QSettings settings(ToolsSettingsFile(applicationFolder), QSettings::IniFormat);
  const int percent = StoredScale(settings);
  if (percent == kUsual || qEnvironmentVariableIsSet(kVariable)) return;
  qputenv(kVariable, QByteArray::number(percent / 100.0));
}

QString ToolsSettingsFile(const std::filesystem::path& applicationFolder) {
  return QString::fromStdString(TextOf(applicationFolder / "Orrerix-Tools.ini"));
}

}  // namespace orrerix
