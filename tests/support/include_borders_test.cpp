// SPDX-License-Identifier: MIT
// Which folder below src/ may include which: borders that are kept by good will alone leak.
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

namespace fs = std::filesystem;

// What each folder may include besides itself, as src/folders.txt has it.
std::map<std::string, std::set<std::string>> MayInclude() {
  std::map<std::string, std::set<std::string>> table;
  std::ifstream stream(fs::path(ORRERIX_SOURCES) / "folders.txt");
  for (std::string line; std::getline(stream, line);) {
    const std::size_t colon = line.find(':');
    if (line.starts_with('#') || colon == std::string::npos) continue;
    std::istringstream uses(line.substr(colon + 1));
    auto& folders = table[line.substr(0, colon)];
    for (std::string folder; uses >> folder;) folders.insert(folder);
  }
  return table;
}

// The windows, what paints for them, and the command line's pictures.
bool MayUseQt(std::string_view file) {
  return file.starts_with("forms/") || file.starts_with("picture/") ||
         file == "cli/render_verb.cpp";
}

bool IsOfQt(std::string_view header) {
  return header.size() > 1 && header[0] == 'Q' && (header[1] == 't' || std::isupper(header[1]));
}

bool MayUseLinux(std::string_view file) {
  return file.starts_with("platform/linux/") || file.starts_with("platform/windows/console");
}

// "fcntl.h" is one of both systems.
bool IsOfLinux(std::string_view header) {
  static const std::set<std::string_view> headers = {"unistd.h", "dirent.h", "fcntl.h", "pwd.h",
                                                     "dlfcn.h",  "poll.h",   "glob.h",  "ftw.h",
                                                     "syslog.h", "pthread.h"};
  return headers.contains(header) || header.starts_with("sys/") || header.starts_with("linux/") ||
         header.starts_with("arpa/") || header.starts_with("netinet/");
}

bool MayUseWindows(std::string_view file) {
  return file.starts_with("platform/windows/");
}

bool IsOfWindows(std::string_view header) {
  return header.starts_with("win") || header.starts_with("shl") || header == "objbase.h";
}

struct Include {
  std::string File;    // below src/
  std::string Header;  // as it stands
  bool Own = false;    // in quotes
};

std::vector<Include> IncludesOf(const fs::path& path, const std::string& file) {
  std::vector<Include> includes;
  std::ifstream stream(path);
  for (std::string line; std::getline(stream, line);) {
    constexpr std::string_view word = "#include ";
    if (!line.starts_with(word)) continue;
    const bool own = line[word.size()] == '"';
    const std::size_t start = word.size() + 1;
    includes.push_back({file, line.substr(start, line.find(own ? '"' : '>', start) - start), own});
  }
  return includes;
}

std::vector<Include> AllIncludes() {
  const fs::path sources = ORRERIX_SOURCES;
  std::vector<Include> all;
  for (const auto& entry : fs::recursive_directory_iterator(sources)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".cpp" && extension != ".h") continue;
    const std::string file = fs::relative(entry.path(), sources).generic_string();
    const auto includes = IncludesOf(entry.path(), file);
    all.insert(all.end(), includes.begin(), includes.end());
  }
  return all;
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.find('/'));
}

TEST(IncludeBorders, EveryFolderIsInTheTable) {
  const auto mayInclude = MayInclude();
  for (const auto& entry : fs::directory_iterator(ORRERIX_SOURCES)) {
    if (!entry.is_directory()) continue;
    EXPECT_TRUE(mayInclude.contains(entry.path().filename().string())) << entry.path();
  }
}

TEST(IncludeBorders, AFolderUsesOnlyFoldersBelowItself) {
  for (const auto& [folder, uses] : MayInclude()) {
    for (const std::string& used : uses) {
      EXPECT_TRUE(MayInclude().contains(used)) << folder << " uses " << used;
      EXPECT_FALSE(MayInclude()[used].contains(folder)) << folder << " and " << used;
    }
  }
}

TEST(IncludeBorders, NoFolderReachesBeyondWhatItMayUse) {
  const auto mayInclude = MayInclude();
  const auto includes = AllIncludes();
  ASSERT_GT(includes.size(), 100u);
  for (const Include& include : includes) {
    if (!include.Own) continue;
    const std::string from = FolderOf(include.File);
    const std::string to = FolderOf(include.Header);
    ASSERT_NE(to, include.Header) << include.File << " names no folder for " << include.Header;
    EXPECT_TRUE(from == to || (mayInclude.contains(from) && mayInclude.at(from).contains(to)))
        << include.File << " includes " << include.Header;
  }
}

TEST(IncludeBorders, QtStaysWithTheWindowsAndPictures) {
  for (const Include& include : AllIncludes()) {
    EXPECT_TRUE(!IsOfQt(include.Header) || MayUseQt(include.File))
        << include.File << " includes " << include.Header;
  }
}

TEST(IncludeBorders, SystemHeadersStayBehindThePlatformFolder) {
  for (const Include& include : AllIncludes()) {
    if (include.Own) continue;
    EXPECT_TRUE(!IsOfLinux(include.Header) || MayUseLinux(include.File))
        << include.File << " includes " << include.Header;
    EXPECT_TRUE(!IsOfWindows(include.Header) || MayUseWindows(include.File))
        << include.File << " includes " << include.Header;
  }
}

}  // namespace
}  // namespace orrerix
