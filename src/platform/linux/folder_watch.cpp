// SPDX-License-Identifier: MIT
#include "platform/folder_watch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>
#include <utility>

#include <poll.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orrerix {
namespace fs = std::filesystem;
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint32_t kOfNames =
    IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF;
constexpr std::uint32_t kOfContents = kOfNames | IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB;
constexpr auto kBlindPause = std::chrono::seconds(1);

// What makes a folder the same one as before.
struct FolderIdentity {
  dev_t Device;
  ino_t Number;
  bool operator==(const FolderIdentity&) const = default;
};

std::optional<FolderIdentity> IdentityOf(const fs::path& folder) {
  struct stat status {};
  if (stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return std::nullopt;
  return FolderIdentity{status.st_dev, status.st_ino};
}

// Any change to a folder itself rebuilds all watches. That is simpler than following each move, and
// misses nothing, because the caller looks at the files themselves.
class InotifyWatch : public FolderWatch {
 public:
  InotifyWatch(fs::path above, std::vector<std::string> names)
      : above_(std::move(above)), names_(std::move(names)) {
    Renew();
  }
  InotifyWatch(const InotifyWatch&) = delete;
  InotifyWatch& operator=(const InotifyWatch&) = delete;
  ~InotifyWatch() override { Close(); }

  bool HasStirred() override {
    bool stirred = false;
    while (IsReadable(0)) stirred = ReadEvents() || stirred;
    if (mustRenew_ || IdentityOf(above_) != identity_) {
      Renew();
      stirred = true;
    }
    if (isBlind_ && Clock::now() - lastGuess_ >= kBlindPause) {
      lastGuess_ = Clock::now();
      stirred = true;
    }
    return stirred;
  }

  void Wait(std::chrono::milliseconds longest) override {
    IsReadable(static_cast<int>(longest.count()));
  }

 private:
  void Close() {
    if (handle_ >= 0) close(handle_);
    handle_ = -1;
  }

  void Renew() {
    Close();
    mustRenew_ = false;
    isBlind_ = false;
    handle_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    identity_ = IdentityOf(above_);
    aboveWatch_ = Add(above_, kOfNames);
    // A folder is watched before its entries are read, so that none comes unnoticed.
    ForEachFolder(FoldersNamed(above_, names_),
                  [this](const fs::path& folder) { Add(folder, kOfContents); });
  }

  int Add(const fs::path& folder, std::uint32_t events) {
    const int watch = inotify_add_watch(handle_, folder.c_str(), events | IN_ONLYDIR);
    const bool isGone = watch < 0 && (errno == ENOENT || errno == ENOTDIR || errno == EACCES);
    isBlind_ = isBlind_ || (watch < 0 && !isGone);
    return watch;
  }

  bool IsReadable(int milliseconds) const {
    pollfd waited{handle_, POLLIN, 0};
    return poll(&waited, 1, milliseconds) == 1 && (waited.revents & POLLIN) != 0;
  }

  // Reads what waits to be read. True if any of it counts.
  bool ReadEvents() {
    alignas(inotify_event) std::array<char, 16384> buffer{};
    const ssize_t size = read(handle_, buffer.data(), buffer.size());
    bool counts = false;
    for (ssize_t at = 0; at < size;) {
      const auto& event = *reinterpret_cast<const inotify_event*>(buffer.data() + at);
      counts = Note(event) || counts;
      at += static_cast<ssize_t>(sizeof(inotify_event) + event.len);
    }
    return counts;
  }

  // Right below the watched folder only its own names count.
  bool Note(const inotify_event& event) {
    const bool isOfItself = (event.mask & (IN_DELETE_SELF | IN_MOVE_SELF)) != 0;
    if (event.wd == aboveWatch_ && !isOfItself && (event.mask & IN_Q_OVERFLOW) == 0) {
      const std::string_view name = event.len > 0 ? event.name : "";
      if (!IsWatchedName(name)) return false;
    }
    constexpr std::uint32_t structure = IN_ISDIR | IN_Q_OVERFLOW | IN_UNMOUNT;
    const bool comesOrGoes = (event.mask & (kOfNames | IN_Q_OVERFLOW | IN_UNMOUNT)) != 0;
    if (isOfItself || ((event.mask & structure) != 0 && comesOrGoes)) mustRenew_ = true;
    return (event.mask & IN_IGNORED) == 0;
  }

  bool IsWatchedName(std::string_view name) const {
    std::string lower(name);
    for (char& c : lower) {
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return std::find(names_.begin(), names_.end(), lower) != names_.end();
  }

  fs::path above_;
  std::vector<std::string> names_;
  int handle_ = -1;
  int aboveWatch_ = -1;
  std::optional<FolderIdentity> identity_;
  bool mustRenew_ = false;
  bool isBlind_ = false;  // not everything can be watched
  Clock::time_point lastGuess_{};
};

}  // namespace

std::unique_ptr<FolderWatch> WatchFolders(const fs::path& above, std::vector<std::string> names) {
  return std::make_unique<InotifyWatch>(above, std::move(names));
}

}  // namespace orrerix
