// SPDX-License-Identifier: MIT
// How large everything in the windows is, in percent.
#pragma once

#include <QSettings>
#include <filesystem>
#include <vector>

namespace orrerix {

// The sizes to choose from, 75 to 200.
const std::vector<int>& InterfaceScales();

// The one that was chosen; 100 where none of them is stored.
int StoredScale(const QSettings& settings);
void StoreScale(QSettings& settings, int percent);

// Makes Qt's windows as large as the settings below an application folder say. To be called before
// the application is made; a scale that the desktop has set in QT_SCALE_FACTOR stays.
void ApplyStoredScale(const std::filesystem::path& applicationFolder);

// The file of what the tools and the windows remember.
QString ToolsSettingsFile(const std::filesystem::path& applicationFolder);

}  // namespace orrerix
