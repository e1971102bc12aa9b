// SPDX-License-Identifier: MIT
#include "platform/folder_watch.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <windows.h>

#include "platform/path_text.h"
#include "platform/windows/folder_identity.h"
#include "platform/windows/wide_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr DWORD kWhat = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME |
                        FILE_NOTIFY_CHANGE_SIZE | FILE_NOTIFY_CHANGE_LAST_WRITE;
constexpr DWORD kEveryone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

using Clock = std::chrono::steady_clock;

// How often a wait looks for a folder that is missing.
constexpr auto kLookAgain = std::chrono::milliseconds(100);

// Lets the system report whatever happens below the one folder, so that no folder in it is held
// open and kept from being renamed; what is in none of the watched folders does not count.
class DirectoryChanges : public FolderWatch {
 public:
  DirectoryChanges(fs::path above, std::vector<std::string> names) : above_(std::move(above)) {
    for (const std::string& name : names) names_.push_back(WideOf(name));
    Renew();
  }
  DirectoryChanges(const DirectoryChanges&) = delete;
  DirectoryChanges& operator=(const DirectoryChanges&) = delete;
  ~DirectoryChanges() override { Close(); }

  bool HasStirred() override {
    bool stirred = std::exchange(hasStirred_, false);
    while (isAsked_ && IsAnswered(0)) stirred = TakeAnswer() || stirred;
    if (IdentityOf(above_) != identity_ || !isAsked_) {
      const bool wasThere = identity_.has_value();
      Renew();
      stirred = stirred || wasThere || identity_.has_value();
    }
    return stirred;
  }

  // While the folder is missing there is nothing that the system could report.
  void Wait(std::chrono::milliseconds longest) override {
    const auto end = Clock::now() + longest;
    do {
      const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
      const auto pause = std::clamp(left, std::chrono::milliseconds(0), kLookAgain);
      if (!isAsked_) {
        Sleep(static_cast<DWORD>(pause.count()));
        hasStirred_ = HasStirred();
      } else if (IsAnswered(static_cast<DWORD>(pause.count()))) {
        hasStirred_ = TakeAnswer() || hasStirred_;
      }
    } while (!hasStirred_ && Clock::now() < end);
  }

 private:
  void Close() {
    if (folder_ == INVALID_HANDLE_VALUE) return;
    if (isAsked_) {
      CancelIo(folder_);
      DWORD ignored = 0;
      GetOverlappedResult(folder_, &request_, &ignored, TRUE);
    }
    CloseHandle(folder_);
    CloseHandle(request_.hEvent);
    folder_ = INVALID_HANDLE_VALUE;
    isAsked_ = false;
  }

  void Renew() {
    Close();
    identity_ = IdentityOf(above_);
    folder_ =
        CreateFileW(SystemPath(above_).c_str(), FILE_LIST_DIRECTORY, kEveryone, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OVERLAPPED, nullptr);
    if (folder_ == INVALID_HANDLE_VALUE) return;
    request_ = {};
    request_.hEvent = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    Ask();
  }

  void Ask() {
    ResetEvent(request_.hEvent);
    isAsked_ = ReadDirectoryChangesW(folder_, buffer_.data(), static_cast<DWORD>(sizeof buffer_),
                                     TRUE, kWhat, nullptr, &request_, nullptr) != 0;
  }

  bool IsAnswered(DWORD milliseconds) const {
    return WaitForSingleObject(request_.hEvent, milliseconds) == WAIT_OBJECT_0;
  }

  // Reads the system's report and asks for the next one. True if any of it counts; an empty report
  // means that more has happened than it could hold.
  bool TakeAnswer() {
    DWORD size = 0;
    const bool isWhole = GetOverlappedResult(folder_, &request_, &size, FALSE) != 0;
    isAsked_ = false;
    const bool counts = isWhole && (size == 0 || AnyCounts());
    if (isWhole) Ask();
    return counts;
  }

  bool AnyCounts() const {
    const auto* at = reinterpret_cast<const unsigned char*>(buffer_.data());
    for (;;) {
      const auto& change = *reinterpret_cast<const FILE_NOTIFY_INFORMATION*>(at);
      if (Counts({change.FileName, change.FileNameLength / sizeof(wchar_t)})) return true;
      if (change.NextEntryOffset == 0) return false;
      at += change.NextEntryOffset;
    }
  }

  bool Counts(std::wstring_view path) const {
    std::wstring first(path.substr(0, path.find(L'\\')));
    std::transform(first.begin(), first.end(), first.begin(), [](wchar_t c) {
      return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c;
    });
    return std::find(names_.begin(), names_.end(), first) != names_.end();
  }

  fs::path above_;
  std::vector<std::wstring> names_;
  HANDLE folder_ = INVALID_HANDLE_VALUE;
  OVERLAPPED request_{};
  std::array<DWORD, 16384> buffer_{};
  std::optional<FolderIdentity> identity_;
  bool isAsked_ = false;  // the system has a request of ours
  bool hasStirred_ = false;
};

}  // namespace

std::unique_ptr<FolderWatch> WatchFolders(const fs::path& above, std::vector<std::string> names) {
  return std::make_unique<DirectoryChanges>(above, std::move(names));
}

}  // namespace orrerix
